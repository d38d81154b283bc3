// SPDX-License-Identifier: MIT
#include "Answering.h"
#include "support/dialogs/Alerts.h"

#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;
using Answer = std::function<void(QMessageBox &)>;
Q_DECLARE_METATYPE(Answer)

class TestAlerts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void question_isYesOnlyForYes_data();
    void question_isYesOnlyForYes();
    void question_looksAsItShould();
    void error_showsPlainText_data();
    void error_showsPlainText();
};

namespace {

Answer key(Qt::Key key)
{
    return [key](QMessageBox &) { QTest::keyClick(QApplication::focusWidget(), key); };
}

void click(const QMessageBox &box, const QString &text)
{
    const auto buttons = box.buttons();
    for (QAbstractButton *button : buttons)
        if (button->text() == text)
            return QTest::mouseClick(button, Qt::LeftButton);
    QFAIL(qPrintable(u"no button "_s + text));
}

QStringList visibleTexts(const QMessageBox &box)
{
    QStringList texts;
    const auto labels = box.findChildren<QLabel *>();
    for (const QLabel *label : labels)
        if (label->isVisible() && !label->text().isEmpty())
            texts += QString(label->text()).remove(QChar(0x200B));
    return texts;
}

}

void TestAlerts::question_isYesOnlyForYes_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<bool>("isYes");

    QTest::newRow("Return") << key(Qt::Key_Return) << false;
    QTest::newRow("Enter") << key(Qt::Key_Enter) << false;
    QTest::newRow("Space") << key(Qt::Key_Space) << false;
    QTest::newRow("Escape") << key(Qt::Key_Escape) << false;
    QTest::newRow("closed") << Answer([](QMessageBox &box) { box.close(); }) << false;
    QTest::newRow("No") << Answer([](QMessageBox &box) { click(box, u"No"_s); }) << false;
    QTest::newRow("Yes") << Answer([](QMessageBox &box) { click(box, u"Yes"_s); }) << true;
    QTest::newRow("Yes by keyboard") << Answer([](QMessageBox &) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    }) << true;
}

void TestAlerts::question_isYesOnlyForYes()
{
    QFETCH(Answer, answer);
    const Answering answering(answer);
    QTEST(displayQuestion(u"Stop?"_s), "isYes");
    QVERIFY(answering.wasShown);
}

void TestAlerts::question_looksAsItShould()
{
    const Answering answering([](QMessageBox &box) {
        QCOMPARE(box.windowModality(), Qt::ApplicationModal);
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(visibleTexts(box), QStringList{ u"<i>100%d</i>\nnext"_s });
        QCOMPARE(box.textFormat(), Qt::PlainText);
        QVERIFY(box.defaultButton()->hasFocus());
        box.close();
    });
    QVERIFY(!displayQuestion(u"<i>100%d</i>\nnext"_s));
}

void TestAlerts::error_showsPlainText_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("details");

    QTest::newRow("message only") << u"Video not supported"_s << QString();
    QTest::newRow("details") << u"Video not supported"_s << u"No such file"_s;
    QTest::newRow("mark-up") << u"<b>a</b>.mp4"_s << u"<a href='x'>100%d</a>\nnext"_s;
    QTest::newRow("long names") << QString(250, u'm') << u"🎬"_s.repeated(250);
}

void TestAlerts::error_showsPlainText()
{
    QFETCH(QString, message);
    QFETCH(QString, details);
    const Answering answering([&](QMessageBox &box) {
        QCOMPARE(box.windowModality(), Qt::ApplicationModal);
        QCOMPARE(box.icon(), QMessageBox::Warning);
        QCOMPARE(visibleTexts(box),
            details.isEmpty() ? QStringList{ message } : QStringList({ message, details }));
        const auto labels = box.findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (label->text().isEmpty())
                continue;
            QCOMPARE(label->textFormat(), Qt::PlainText);
            QVERIFY(label->fontMetrics()
                        .boundingRect(label->rect(), Qt::TextWordWrap, label->text())
                        .width()
                <= label->width());
        }
        QCOMPARE(box.buttons().size(), 1);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    if (details.isEmpty())
        displayError(message);
    else
        displayError(message, details);
    QVERIFY(answering.wasShown);
}

QTEST_MAIN(TestAlerts)
#include "tst_alerts.moc"
