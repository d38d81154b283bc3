// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

/// One notification of the desktop, which the user may click; none where there are none.
class DesktopNotification : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Shows two plain texts; a later notification takes the place of the earlier one.
    void show(const QString &title, const QString &text);
    void close();

Q_SIGNALS:
    void activated();

private Q_SLOTS:
    void actionInvoked(uint id, const QString &action);

private:
    bool m_listening = false;
    uint m_id = 0;
    int m_generation = 0; // tells the answer to the latest call from late ones
};
