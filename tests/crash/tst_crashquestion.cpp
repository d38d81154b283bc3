// SPDX-License-Identifier: MIT
#include "crash/dialog/CrashQuestion.h"
#include "tests/fixtures/Rows.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

class tst_CrashQuestion : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void answer_isThatOfTheButton_data()
    {
        addRows<Utf8, SendReport>({ "button", "answer" },
            { { "send", "Send", SendReport::Yes }, { "always", "Always Send", SendReport::Always },
                { "don't", "Don't Send", SendReport::No }, { "escape", "", SendReport::No } });
    }
    void answer_isThatOfTheButton()
    {
        QFETCH(QString, button);
        QTimer::singleShot(0, this, [button] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return; // The test then hangs in the question and is ended.
            const auto buttons = box->buttons();
            const auto pressed = std::ranges::find(buttons, button, &QAbstractButton::text);
            if (pressed != buttons.end())
                (*pressed)->click();
            else
                QTest::keyClick(box, Qt::Key_Escape);
        });
        QTEST(askToSendReport(nullptr, u"Reason: SIGSEGV\nStack:\n  0 program+0x1\n"_s), "answer");
    }
};

QTEST_MAIN(tst_CrashQuestion)
#include "tst_crashquestion.moc"
