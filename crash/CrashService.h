// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>

#include <functional>

/// Thread: main.
class CrashService : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// An address is built in, and the user has not asked to be left alone.
    [[nodiscard]] static bool isConfigured();
    [[nodiscard]] static bool mayAlwaysSend();
    static void setMayAlwaysSend();

    /// Posts one text and tells whether the service took it, after 20 s at most.
    void post(const QByteArray &text, std::function<void(bool taken)> done);

private:
    QNetworkAccessManager m_network;
};
