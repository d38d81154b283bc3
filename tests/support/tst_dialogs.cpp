// SPDX-License-Identifier: MIT
#include "Answering.h"
#include "support/Bundle.h"
#include "support/Configuration.h"
#include "support/Console.h"
#include "support/dialogs/AboutWindow.h"
#include "support/dialogs/Alerts.h"
#include "support/dialogs/Static.h"

#include <QFile>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

/// Alerts, questions and the about box.
class TestDialogs : public QObject {
    Q_OBJECT

private:
    static Answering::Answer click(const QString &text)
    {
        return [text](const QMessageBox &box) {
            for (QAbstractButton *button : box.buttons())
                if (button->text() == text)
                    return QTest::mouseClick(button, Qt::LeftButton);
            QFAIL(qPrintable(u"no button "_s + text));
        };
    }

    /// The texts on the screen, each plain and within its place.
    static QStringList plainTexts(const QMessageBox &box)
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
    void question_isYesOnlyForYes_data()
    {
        QTest::addColumn<Answering::Answer>("answer");
        QTest::addColumn<bool>("isYes");
        for (const Qt::Key key : { Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Escape })
            QTest::addRow("key %x", key) << Answering::keys({ key }) << false;
        QTest::newRow("closed") << Answering::Answer(&QMessageBox::close) << false;
        QTest::newRow("No") << click(u"No"_s) << false;
        QTest::newRow("Yes") << click(u"Yes"_s) << true;
        QTest::newRow("Yes by keyboard") << Answering::yes() << true;
    }

    void question_isYesOnlyForYes()
    {
        QFETCH(Answering::Answer, answer);
        const Answering answering(answer);
        QTEST(displayQuestion(u"Stop?"_s), "isYes");
        QVERIFY(answering.wasShown);
    }

    void alert_showsPlainText_data()
    {
        QTest::addColumn<bool>("isQuestion");
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("question") << true << QStringList{ u"<i>100%d</i>\nnext"_s };
        QTest::newRow("message only") << false << QStringList{ u"Video not supported"_s };
        QTest::newRow("mark-up") << false
                                 << QStringList{ u"<b>a</b>.mp4"_s,
                                        u"<a href='x'>100%d</a>\nnext"_s };
        QTest::newRow("long names")
            << false << QStringList{ QString(250, u'm'), u"🎬"_s.repeated(250) };
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
        QVERIFY(answering.wasShown);
    }

    void site_followsTheLanguage()
    {
        // The site's address and the lines printed.
        const auto site = [](const QString &root, const std::optional<QString> &language,
                              const QStringList &localizations) {
            QStringList lines;
            Console::setSink([&](const QString &line) { lines += line; });
            lines.prepend(Static::siteAddress(root, language, localizations));
            Console::setSink([](const QString &) {});
            return lines.join(u" | "_s);
        };
        const QString root = u"https://example.org/"_s;
        const QStringList all{ u"de"_s, u"en"_s, u"ru"_s };
        QCOMPARE(site(root, u"ru"_s, all), u"https://example.org/ru/ | ru 2"_s);
        QCOMPARE(site(root, u"RU"_s, all), u"https://example.org/ru/ | RU 2"_s);
        QCOMPARE(site(root, u"ru"_s, { u"de"_s, u"ru_RU"_s, u"RU"_s }), root);
        QCOMPARE(site(root, u"de"_s, all), u"https://example.org/ | de 0"_s);
        QCOMPARE(site(root, {}, all), root);
        QCOMPARE(site({}, u"ru"_s, all), u" | ru 2"_s);
    }

    void aboutBox_showsThisProgram()
    {
        QFile info(Bundle::main().bundlePath() + "/Contents/Info.plist"_L1);
        QVERIFY(info.open(QIODevice::WriteOnly));
        info.write("<plist><dict><key>CFBundleName</key><string>Video &lt;b&gt;Turner</string>"
                   "<key>CFBundleShortVersionString</key><string>7.8</string></dict></plist>");
        info.close();
        AboutWindow window;
        QVERIFY(info.remove());
        window.setCredits(u"<b>Ada</b>"_s);
        window.showWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));

        const auto label = [&](const QString &name) { return window.findChild<QLabel *>(name); };
        QCOMPARE(window.windowTitle(), u"About Video <b>Turner"_s);
        QCOMPARE(label(u"programName"_s)->text(), u"Video <b>Turner"_s);
        QCOMPARE(label(u"programName"_s)->textFormat(), Qt::PlainText);
        QCOMPARE(label(u"version"_s)->text(), u"Version 7.8"_s);
        QVERIFY(label(u"credits"_s)->isVisible());
        QCOMPARE(label(u"credits"_s)->textFormat(), Qt::PlainText);
        window.setCredits({});
        QVERIFY(!label(u"credits"_s)->isVisible());

        QTest::keyClick(&window, Qt::Key_Escape);
        QVERIFY(!window.isVisible());
    }
};

QTEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
