// SPDX-License-Identifier: MIT
#include "ui/window/FormatEntries.h"

#include "planning/ConversionDescriptor.h"
#include "planning/PlannedWork.h"
#include "support/Localized.h"
#include "ui/window/VideoWords.h"
#include "ui_MainWindow.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

/// Some desktops mark a letter of a menu item as its key.
QString title(const QAction *item) { return item->text().remove(u'&'); }

/// Two arrow heads, as on the key that winds forward.
QIcon quickMark(const QMenu &menu)
{
    const double side = menu.fontMetrics().height();
    QPixmap pixmap((QSizeF(side, side) * menu.devicePixelRatioF()).toSize());
    pixmap.setDevicePixelRatio(menu.devicePixelRatioF());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / 16, side / 16);
    painter.setPen(Qt::NoPen);
    painter.setBrush(menu.palette().color(QPalette::Text));
    for (const double left : { 2.0, 8.0 }) {
        const QPointF head[] = { { left, 3.5 }, { left + 6, 8 }, { left, 12.5 } };
        painter.drawConvexPolygon(head, 3);
    }
    painter.end();
    QIcon mark;
    for (const QIcon::Mode mode : { QIcon::Normal, QIcon::Active, QIcon::Selected })
        mark.addPixmap(pixmap, mode);
    return mark;
}

QString reasonAgainst(const PlannedWork &work, const VideoConstraints &constraints)
{
    if (!work.isEmpty())
        return {};
    const bool wantsSound = conversionDescriptor(constraints.format).vName.isEmpty();
    return wantsSound ? localized(QT_TRANSLATE_NOOP3("Localizable", "The video has no sound",
               "why an entry of the format menu is not offered"))
                      : localized(QT_TRANSLATE_NOOP3("Localizable", "The video has no picture",
                          "why an entry of the format menu is not offered"));
}

}

std::optional<VideoConstraints> FormatEntries::constraintsOf(
    const Ui::MainWindow &outlets, const QAction *item)
{
    return videoConstraints(title(item), title(outlets.audioMenuItem),
        title(outlets.mp4LowQualityMenuItem), title(outlets.mp4MeduimQualityMenuItem));
}

void FormatEntries::mark(const Ui::MainWindow &outlets, const JSON &info)
{
    const QIcon quick = quickMark(*outlets.formatMenu);
    outlets.formatMenu->setToolTipsVisible(true);
    for (QAction *item : outlets.formatMenu->actions()) {
        const auto constraints = constraintsOf(outlets, item);
        if (!constraints)
            continue;
        const PlannedWork work = plannedWork(*constraints, info);
        const QString against = reasonAgainst(work, *constraints);
        item->setEnabled(against.isEmpty());
        item->setIcon(work.isCopy() ? quick : QIcon());
        item->setIconVisibleInMenu(true);
        item->setToolTip(against.isEmpty() ? VideoWords::willDo(work) : against);
    }
}
