// SPDX-License-Identifier: MIT
#include "support/JSON.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

std::optional<qint64> truncated(double number)
{
    constexpr double limit = 9223372036854775808.0;
    if (!(number > -limit && number < limit))
        return std::nullopt;
    return static_cast<qint64>(number);
}

qint64 leadingNumber(const QString &text)
{
    static const QRegularExpression number(uR"(^\s*[+-]?\d+(?:\.\d*)?(?:[eE][+-]?\d+)?)"_s);
    const QString digits = number.match(text).captured();
    bool isWhole = false;
    const qint64 whole = digits.toLongLong(&isWhole);
    return isWhole ? whole : truncated(digits.toDouble()).value_or(0);
}

}

JSON::JSON(QJsonValue value)
    : m_value(std::move(value))
{
}

JSON JSON::parse(const QByteArray &bytes)
{
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    if (document.isObject())
        return JSON(document.object());
    return document.isArray() ? JSON(document.array()) : JSON();
}

JSON JSON::operator[](const QString &key) const
{
    const QJsonValue member = m_value[key];
    return member.isUndefined() ? JSON() : JSON(member);
}

std::vector<JSON> JSON::array() const
{
    const QJsonArray values = m_value.toArray();
    return { values.begin(), values.end() };
}

std::optional<QString> JSON::string() const
{
    return m_value.isString() ? std::optional(m_value.toString()) : std::nullopt;
}

std::optional<qint64> JSON::integer() const
{
    if (!m_value.isDouble())
        return std::nullopt;
    // The parser keeps whole numbers exactly; toInteger falls back for what has no 64-bit form.
    const qint64 exact = m_value.toInteger(0);
    return exact != 0 ? std::optional(exact) : truncated(m_value.toDouble());
}

qint64 JSON::intValue() const
{
    if (m_value.isString())
        return leadingNumber(m_value.toString());
    if (m_value.isBool())
        return m_value.toBool() ? 1 : 0;
    return integer().value_or(0);
}
