// SPDX-License-Identifier: MIT
#include "ui/widgets/ConvertPopupButtonCell.h"

#include "support/Localized.h"

#include <QFontDatabase>
#include <QFontMetricsF>

namespace {

QFont systemFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPointSizeF(13.0);
    return font;
}

}

ConvertPopupButtonCell::ConvertPopupButtonCell(const QString &, bool pullsDown)
    : m_overridenTitle(
        localized(QT_TRANSLATE_NOOP3("Localizable", "Convert.buttonTitle", "convert button title"),
            "Convert"))
    , m_pullsDown(pullsDown)
{
}

QRectF ConvertPopupButtonCell::titleRectForBounds(const QRectF &bounds) const
{
    const double height = QFontMetricsF(m_font.value_or(systemFont()))
                              .size(Qt::TextSingleLine, m_overridenTitle)
                              .height();
    const double diff = bounds.height() - height;
    if (diff <= 0)
        return bounds;
    return { bounds.x(), bounds.y() + diff * 0.5 - 2.0, bounds.width(), height };
}
