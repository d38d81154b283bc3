// SPDX-License-Identifier: MIT
#include "app/HelpMenu.h"
#include "tests/ui/WindowTest.h"
#include "updates/Updater.h"

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
