// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonValue>
#include <QString>

#include <optional>
#include <vector>

/// A read-only JSON value: a missing member, a wrong type or no JSON read as null. Thread: any.
class JSON {
public:
    JSON() = default;
    explicit JSON(QJsonValue value);
    /// The value that the bytes describe; null when they are not JSON.
    static JSON parse(const QByteArray &bytes);

    [[nodiscard]] JSON operator[](const QString &key) const;
    [[nodiscard]] std::vector<JSON> array() const;
    [[nodiscard]] std::optional<QString> string() const;
    [[nodiscard]] QString stringValue() const { return m_value.toVariant().toString(); }
    /// The value if it is a number, cut toward zero; absent outside the signed 64-bit range.
    [[nodiscard]] std::optional<qint64> integer() const;
    /// As integer(), also of text that begins with a number and of flags; 0 otherwise.
    [[nodiscard]] qint64 intValue() const;

    [[nodiscard]] const QJsonValue &value() const { return m_value; }
    bool operator==(const JSON &) const = default;

private:
    QJsonValue m_value;
};
