// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <functional>

/// Answers the alert that the code under test is about to run, once it is on the screen.
/// An alert that never comes leaves `wasShown` false.
class Answering : public QObject {
public:
    explicit Answering(std::function<void(QMessageBox &)> answer)
        : m_answer(std::move(answer))
    {
        m_timer.callOnTimeout(this, &Answering::look);
        m_timer.start(5);
    }

    bool wasShown = false;

private:
    void look()
    {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        m_timer.stop();
        wasShown = true;
        box->activateWindow();
        const auto giveUp = [box] {
            QTest::qFail("The alert was not answered", __FILE__, __LINE__);
            box->reject();
        };
        QTimer::singleShot(10000, box, giveUp);
        if (QTest::qWaitFor([box] { return QApplication::activeWindow() == box; }))
            m_answer(*box);
    }

    std::function<void(QMessageBox &)> m_answer;
    QTimer m_timer;
};
