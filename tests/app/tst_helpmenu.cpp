// SPDX-License-Identifier: MIT
#include "app/HelpMenu.h"
#include "tests/ui/WindowTest.h"
#include "updates/Updater.h"

#include <QMenu>
#include <QPlainTextEdit>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

class tst_helpmenu : public WindowTest {
    Q_OBJECT

private:
    /// Opens the menu and clicks its command there; false when the command can't be clicked.
    bool click(const QString &title) const
    {
        auto *menu = m_user->find<QMenu>("helpMenu");
        menu->popup(QPoint(100, 100));
        for (QAction *command : menu->actions()) {
            if (command->text() != title)
                continue;
            const bool enabled = command->isEnabled();
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(command).center());
            menu->hide();
            return enabled;
        }
        return false;
    }

private Q_SLOTS:
    void commands_actOnTheirClicks()
    {
        Updater updater({ .version = u"1.0"_s });
        const HelpMenu menu(*m_delegate, updater);
        QSignalSpy checks(&updater, &Updater::checked);
        QVERIFY(click(u"Check for Updates…"_s));
        QTRY_COMPARE(checks.size(), 1);
        QVERIFY(checks.at(0).at(0).value<UpdateCheck>().byUser);

        QVERIFY(!click(u"Show Conversion Log"_s));
        QVERIFY(convert("print:<b>100%\\n|reports:100:100", WindowUIState::ConversionIsDone));
        QTRY_VERIFY(!m_delegate->lastToolOutput().isEmpty());
        QVERIFY(click(u"Show Conversion Log"_s));
        QTRY_VERIFY(m_delegate->window()->findChild<QPlainTextEdit *>());
        const auto *log = m_delegate->window()->findChild<QPlainTextEdit *>();
        QVERIFY(log->isVisible() && log->isReadOnly());
        const QString text = log->toPlainText();
        QVERIFY2(text.contains(u"start: 0.000000\n<b>100%\n"_s), qPrintable(text));
    }
};

QTEST_MAIN(tst_helpmenu)
#include "tst_helpmenu.moc"
