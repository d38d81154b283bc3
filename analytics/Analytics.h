// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <optional>

/// Anonymous usage events, one web request each. Nothing is sent and no client id made before
/// start(), without a collector's address, or when the user asked not to be tracked. Thread: any.
/// Errors: a hit that can't be delivered is dropped with one diagnostic line.
class Analytics {
public:
    Analytics() = delete;

    /// Lets events leave the program; programs that never call it send none.
    static void start();

    [[nodiscard]] static QString appIdentifier();
    [[nodiscard]] static QString appVersion();
    /// The installation's random id, made when first read; "unknown" if the stored one is empty.
    [[nodiscard]] static QString userId();
    [[nodiscard]] static QString locale();

    /// The label is a text or true; an absent value counts as 0.
    static void send(const QString &screen, const QString &category, const QString &action,
        const QVariant &label, std::optional<qint64> value = std::nullopt);
    /// Sends one hit of any kind; the parameters that all hits share win over `parameters`.
    static void send(const QVariantMap &parameters, const QString &analyticsId);
};
