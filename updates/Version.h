// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QVersionNumber>

#include <compare>
#include <optional>

/// A version such as "1.10.2", "2.0-rc.1" or "3.0b2"; a pre-release comes before its release.
class Version {
public:
    Version() = default;

    /// Absent when the text is no version; a leading "v" and build details are overlooked.
    [[nodiscard]] static std::optional<Version> parse(const QString &text);

    friend std::strong_ordering operator<=>(const Version &left, const Version &right);
    friend bool operator==(const Version &left, const Version &right)
    {
        return std::is_eq(left <=> right);
    }

private:
    QVersionNumber m_numbers;
    QStringList m_preRelease; // Runs of digits and of letters: "rc.1" is "rc", "1".
};
