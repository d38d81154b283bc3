// SPDX-License-Identifier: MIT
#include "app/HelpMenu.h"
#include "support/Preferences.h"
#include "support/dialogs/Static.h"
#include "tests/ui/WindowTest.h"
#include "updates/Updater.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QPlainTextEdit>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

class tst_helpmenu : public WindowTest {
    Q_OBJECT

private:
    bool click(const QString &title) const
    {
        auto *menu = find<QMenu>("helpMenu");
        menu->popup(QPoint(100, 100));
        const bool clicked = clickCommand(menu, title);
        menu->hide();
        return clicked;
    }

private Q_SLOTS:
    void commands_actOnTheirClicks()
    {
        Updater updater({ .version = u"1.0"_s });
        addHelpMenu(*m_delegate, updater);
        QSignalSpy checks(&updater, &Updater::checked);
        QVERIFY(click(u"Check for Updates…"_s));
        QTRY_COMPARE(checks.size(), 1);
        QVERIFY(checks.at(0).at(0).value<UpdateCheck>().byUser);

        QVERIFY(click(u"&About Video Converter"_s));
        QVERIFY(Static::aboutWindow().isVisible());
        Static::aboutWindow().close();

        QVERIFY(!click(u"Show Conversion Log"_s));
        QVERIFY(convert("print:<b>100%\\n|reports:100:100", WindowUIState::ConversionIsDone));
        QTRY_VERIFY(!m_delegate->lastToolOutput().isEmpty());
        QVERIFY(click(u"Show Conversion Log"_s));
        QTRY_VERIFY(m_delegate->window()->findChild<QPlainTextEdit *>());
        const auto *log = m_delegate->window()->findChild<QPlainTextEdit *>();
        QVERIFY(log->isVisible() && log->isReadOnly());
        QVERIFY(log->toPlainText().contains(u"start: 0.000000\n<b>100%\n"_s));
    }

    void settings_areKept()
    {
        Updater updater({ .version = u"1.0"_s });
        addHelpMenu(*m_delegate, updater);
        qputenv("VIDEO_CONVERTER_COLLECTOR_URL", "http://localhost:9");
        // A run that failed may have left others.
        Preferences::setSendsUsage(true);
        Preferences::setLanguage({});
        const auto change = [this](Qt::Key end) {
            QTest::keyClick(m_delegate->window(), Qt::Key_Comma, Qt::ControlModifier);
            auto *dialog = m_delegate->window()->findChild<QDialog *>();
            const auto boxes = dialog->findChildren<QCheckBox *>();
            // The feed has no address.
            QVERIFY(boxes[0]->isEnabled() && boxes[0]->isChecked() && !boxes[1]->isEnabled());
            QTest::keyClick(boxes[0], Qt::Key_Space);
            QTest::keyClick(dialog->findChild<QComboBox *>(), Qt::Key_Down);
            QTest::keyClick(dialog, end);
            QTRY_VERIFY(!m_delegate->window()->findChild<QDialog *>());
        };
        change(Qt::Key_Escape);
        QVERIFY(Preferences::sendsUsage() && Preferences::language().isEmpty());
        change(Qt::Key_Return);
        qunsetenv("VIDEO_CONVERTER_COLLECTOR_URL");
        QVERIFY(!Preferences::sendsUsage() && Preferences::checksForUpdates());
        QVERIFY(!Preferences::language().isEmpty());
    }
};

QTEST_MAIN(tst_helpmenu)
#include "tst_helpmenu.moc"
