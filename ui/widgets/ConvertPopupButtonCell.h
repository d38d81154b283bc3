// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QRectF>
#include <QString>

#include <optional>

/// The face of the convert button: the same word whatever menu item is chosen. Units: points.
class ConvertPopupButtonCell {
public:
    /// The text is not shown. A pull-down cell's indicator points down, another's both ways.
    ConvertPopupButtonCell(const QString &text, bool pullsDown);

    [[nodiscard]] const QString &overridenTitle() const { return m_overridenTitle; }
    [[nodiscard]] QString title() const { return m_overridenTitle; }
    void setTitle(const QString &) { }
    [[nodiscard]] bool pullsDown() const { return m_pullsDown; }

    [[nodiscard]] const std::optional<QFont> &font() const { return m_font; }
    void setFont(const std::optional<QFont> &font) { m_font = font; }

    /// Where the word stands; the bounds themselves when they are not higher than the word.
    [[nodiscard]] QRectF titleRectForBounds(const QRectF &bounds) const;

private:
    QString m_overridenTitle;
    std::optional<QFont> m_font;
    bool m_pullsDown;
};
