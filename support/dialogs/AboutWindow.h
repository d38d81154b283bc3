// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <functional>

class QLabel;
class QPushButton;

/// The about box. Open, it does not keep the program from ending with its main window.
class AboutWindow : public QDialog {
    Q_OBJECT

public:
    AboutWindow();

    /// Plain text below the version; empty text takes no room.
    void setCredits(const QString &credits);
    /// What the web-site button does. The button shows only when there are a handler and a site.
    void setOpenWebsiteHandler(const std::function<void()> &handler);
    void showWindow();

private:
    QLabel *m_credits;
    QPushButton *m_website;
    std::function<void()> m_openWebsite;
};
