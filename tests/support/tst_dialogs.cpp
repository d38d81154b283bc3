// SPDX-License-Identifier: MIT
#include "Answering.h"
#include "support/Bundle.h"
#include "support/dialogs/Alerts.h"
#include "support/dialogs/Static.h"
#include "tests/fixtures/Rows.h"

#include <QFile>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

/// Alerts, questions and the about box.
class TestDialogs : public QObject {
    Q_OBJECT

private:
    /// The texts on the screen, each plain and within its place.
    static QStringList plainTexts(const QDialog &box)
    {
        QStringList texts;
        for (const QLabel *label : box.findChildren<QLabel *>()) {
            if (!label->isVisible() || label->text().isEmpty())
                continue;
            const QRect needed
                = label->fontMetrics().boundingRect(label->rect(), Qt::TextWordWrap, label->text());
            const bool isGood
                = label->textFormat() == Qt::PlainText && needed.width() <= label->width();
            texts += isGood ? label->text().remove(QChar(0x200B)) : u"not plain or cut off"_s;
        }
        return texts;
    }

private Q_SLOTS:
    void question_isYesOnlyForYes()
    {
        const std::pair<Answering::Answer, bool> answers[]{ { Answering::no(), false },
            { Answering::keys({ Qt::Key_Escape }), false }, { &QMessageBox::close, false },
            { Answering::yes(), true } };
        for (const auto &[answer, isYes] : answers) {
            const Answering answering(answer);
            QCOMPARE(displayQuestion(u"Stop?"_s), isYes);
            QVERIFY(!answering.text.isEmpty());
        }
    }

    void alert_showsPlainText_data()
    {
        addRows<bool, QStringList>({ "isQuestion", "texts" },
            { { "question", true, { u"<i>100%d</i>\nnext"_s } },
                { "mark-up", false, { u"<b>a</b>.mp4"_s, u"<a href='x'>100%d</a>\nnext"_s } },
                { "long names", false, { QString(250, u'm'), u"🎬"_s.repeated(250) } } });
    }
    void alert_showsPlainText()
    {
        QFETCH(bool, isQuestion);
        QFETCH(QStringList, texts);
        const Answering answering([&](QMessageBox &box) {
            QCOMPARE(box.windowModality(), Qt::ApplicationModal);
            QCOMPARE(box.icon(), isQuestion ? QMessageBox::Information : QMessageBox::Warning);
            QCOMPARE(plainTexts(box), texts);
            QCOMPARE(box.buttons().size(), isQuestion ? 2 : 1);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        });
        if (isQuestion)
            QVERIFY(!displayQuestion(texts[0]));
        else
            displayError(texts[0], texts.value(1));
        QVERIFY(!answering.text.isEmpty());
    }

    void aboutBox_showsThisProgram()
    {
        QFile info(Bundle::main().bundlePath() + "/Contents/Info.plist"_L1);
        QVERIFY(info.open(QIODevice::WriteOnly));
        info.write("<plist><dict><key>CFBundleName</key><string>Video &lt;b&gt;Turner</string>"
                   "<key>CFBundleShortVersionString</key><string>7.8</string></dict></plist>");
        info.close();
        QDialog &window = Static::aboutWindow();
        QVERIFY(info.remove());
        window.show();

        QCOMPARE(window.windowTitle(), u"About Video <b>Turner"_s);
        QCOMPARE(plainTexts(window).join(u'|'), u"Video <b>Turner|Version 7.8"_s);
        static_cast<QMessageBox &>(window).button(QMessageBox::Close)->click();
        QVERIFY(!window.isVisible());
    }
};

QTEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
