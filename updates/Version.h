// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QVersionNumber>

#include <compare>
#include <optional>

/// A version such as "1.10.2", "2.0-rc.1" or "3.0b2"; a pre-release comes before its release.
class Version {
public:
    /// Absent when the text is no version; a leading "v" and build details are overlooked.
    [[nodiscard]] static std::optional<Version> parse(const QString &text);

    // NOLINTNEXTLINE(modernize-use-nullptr): a hidden comparison with 0.
    std::weak_ordering operator<=>(const Version &other) const = default;

private:
    QVersionNumber m_numbers;
    QStringList m_preRelease; // Words and padded numbers that sort as text does.
};
