// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

class AppDelegate;
class Updater;

/// The commands beyond the window's own: updates, the conversion log and the settings.
class HelpMenu : public QObject {
    Q_OBJECT
public:
    HelpMenu(AppDelegate &delegate, Updater &updater);

private:
    void showConversionLog();

    AppDelegate &m_delegate;
    QPointer<QWidget> m_log;
};
