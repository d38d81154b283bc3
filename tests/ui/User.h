// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <functional>

class QDialog;
class QFileDialog;
class QMessageBox;

/// Sits before the window: answers the dialogs that come up with mouse and keyboard, and notes what
/// they said.
class User : public QObject {
public:
    explicit User(QMainWindow &window);

    /// Texts of the alerts and questions so far.
    QStringList read;
    /// Number of file dialogs so far.
    int sheets = 0;
    /// Answers questions with Yes; otherwise they get what Return gives.
    bool saysYes = false;
    /// Before a message is answered.
    std::function<void()> whileReading;
    /// Names typed into the coming file dialogs, in this order; an empty one stands for what the
    /// dialog proposes. Without one the user presses Escape.
    QStringList names;
    /// What the last save sheet proposed.
    QString proposal;

    template <class View> [[nodiscard]] View *find(const char *name) const
    {
        return m_window.findChild<View *>(QLatin1String(name));
    }
    [[nodiscard]] QWidget *view(const char *name) const { return find<QWidget>(name); }
    void click(const char *name) const;
    /// Opens the format menu by a click and clicks the item with this title.
    void choose(const QString &title) const;
    /// Drags the addresses to the middle of the window and drops them there. Returns whether the
    /// window took them.
    bool drop(const QStringList &addresses) const;

private:
    void look();
    void answer(QMessageBox *box);
    void answer(QFileDialog *sheet);

    QMainWindow &m_window;
    QTimer m_timer;
    QPointer<QDialog> m_answered;
};
