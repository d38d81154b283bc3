// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

class AppDelegate;
class Updater;

/// The help menu's commands that go beyond the window's own: updates and the conversion log.
/// Thread: the main one.
class HelpMenu : public QObject {
    Q_OBJECT
public:
    /// Both outlive this object.
    HelpMenu(AppDelegate &delegate, Updater &updater);

private:
    void showConversionLog();

    AppDelegate &m_delegate;
    QPointer<QWidget> m_log;
};
