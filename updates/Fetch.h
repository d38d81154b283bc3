// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <chrono>
#include <functional>

class QIODevice;
class QNetworkAccessManager;
class QNetworkReply;
class QUrl;

struct FetchLimits {
    qint64 bytes;
    std::chrono::milliseconds time;
};

/// Reads a web address into an open, empty device, within limits and five redirections, never to a
/// less safe scheme, and calls `finished` once, later. The device outlives the network object,
/// which owns the reply and ends it without a call. Errors: anything but a complete success is
/// incomplete. Thread: the network object's.
QNetworkReply *fetch(QNetworkAccessManager &network, const QUrl &url, QIODevice &target,
    const FetchLimits &limits, const std::function<void(bool complete)> &finished);
