// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <functional>

/// Answers the alert that the code under test is about to run, once it is on the screen.
class Answering : public QObject {
public:
    using Answer = std::function<void(QMessageBox &)>;

    explicit Answering(Answer answer)
        : m_answer(std::move(answer))
    {
        m_timer.callOnTimeout(this, &Answering::look);
        m_timer.start(5);
    }

    /// Presses the keys one after the other, each where the focus is then.
    static Answer keys(const QList<Qt::Key> &keys)
    {
        return [keys](const QMessageBox &box) {
            for (const Qt::Key key : keys)
                QTest::keyClick(box.focusWidget(), key);
        };
    }
    /// Presses the harmless button.
    static Answer no() { return keys({ Qt::Key_Return }); }
    /// Walks from the harmless button to the other one.
    static Answer yes() { return keys({ Qt::Key_Tab, Qt::Key_Space }); }

    /// What the alert said; empty while none has come.
    QString text;

private:
    void look()
    {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        m_timer.stop();
        text = box->text();
        box->activateWindow();
        if (QTest::qWaitFor([box] { return QApplication::activeWindow() == box; }))
            m_answer(*box);
    }

    Answer m_answer;
    QTimer m_timer;
};
