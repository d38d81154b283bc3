// SPDX-License-Identifier: MIT
#include "ui/window/FormatEntries.h"

#include "planning/ConversionDescriptor.h"
#include "planning/PlannedWork.h"
#include "support/Defaults.h"
#include "support/Localized.h"
#include "ui/window/VideoWords.h"
#include "ui_MainWindow.h"

#include <QAccessibleObject>

using namespace Qt::StringLiterals;

namespace {

const QString lastEntryKey = u"LastEntry"_s;
constexpr auto describedKey = "isDescribed";

/// Some desktops mark a letter of a menu item as its key.
QString title(const QAction *item) { return item->text().remove(u'&'); }

/// Tells screen readers the tool tip as a description; the toolkit's own tells none.
class EntryInterface : public QAccessibleObject, public QAccessibleActionInterface {
public:
    using QAccessibleObject::QAccessibleObject;

    QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(menu());
    }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name)
            return title(entry());
        return kind == QAccessible::Description ? entry()->toolTip() : QString();
    }
    QRect rect() const override
    {
        const QRect place = menu()->actionGeometry(entry());
        return { menu()->mapToGlobal(place.topLeft()), place.size() };
    }
    QAccessible::Role role() const override { return QAccessible::MenuItem; }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.focusable = true;
        state.disabled = !entry()->isEnabled();
        state.invisible = !menu()->isVisible();
        state.focused = menu()->activeAction() == entry();
        state.hotTracked = state.focused;
        return state;
    }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface
            ? static_cast<QAccessibleActionInterface *>(this)
            : nullptr;
    }
    QStringList actionNames() const override { return { pressAction() }; }
    void doAction(const QString &name) override
    {
        if (name == pressAction())
            entry()->trigger();
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    [[nodiscard]] QAction *entry() const { return static_cast<QAction *>(object()); }
    [[nodiscard]] QMenu *menu() const
    {
        return qobject_cast<QMenu *>(entry()->associatedObjects().constFirst());
    }
};

QAccessibleInterface *entryInterface(const QString &, QObject *object)
{
    const bool isEntry = object->property(describedKey).toBool();
    return isEntry ? new EntryInterface(object) : nullptr;
}

/// Two arrow heads, as on the key that winds forward.
QIcon quickMark(const QMenu &menu)
{
    const double side = menu.fontMetrics().height() * menu.devicePixelRatioF();
    QPixmap pixmap = tintedArtwork(u":/artwork/quick.svg"_s, QSizeF(side, side).toSize(),
        menu.palette().color(QPalette::Text));
    pixmap.setDevicePixelRatio(menu.devicePixelRatioF());
    QIcon mark;
    for (const QIcon::Mode mode : { QIcon::Normal, QIcon::Active, QIcon::Selected })
        mark.addPixmap(pixmap, mode);
    return mark;
}

/// Of an entry, or why it is not offered.
QString explanation(const PlannedWork &work, const VideoConstraints &constraints)
{
    if (!work.isEmpty())
        return VideoWords::willDo(work);
    const bool wantsSound = conversionDescriptor(constraints.format).vName.isEmpty();
    return wantsSound ? localized(QT_TRANSLATE_NOOP3("Localizable", "The video has no sound",
               "why an entry of the format menu is not offered"))
                      : localized(QT_TRANSLATE_NOOP3("Localizable", "The video has no picture",
                          "why an entry of the format menu is not offered"));
}

}

void FormatEntries::prepare(QMenu &menu)
{
    const QString last = Defaults::value(lastEntryKey).toString();
    for (QAction *entry : menu.actions()) {
        entry->setProperty(describedKey, !entry->isSeparator());
        if (!last.isEmpty() && entry->objectName() == last)
            menu.setDefaultAction(entry);
    }
    QAccessible::installFactory(entryInterface);
}

void FormatEntries::remember(QMenu &menu, QAction &entry)
{
    menu.setDefaultAction(&entry);
    Defaults::setValue(lastEntryKey, entry.objectName());
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
    for (QAction *item : outlets.formatMenu->actions()) {
        const auto constraints = constraintsOf(outlets, item);
        if (!constraints)
            continue;
        const PlannedWork work = plannedWork(*constraints, info);
        item->setEnabled(!work.isEmpty());
        item->setIcon(work.isCopy() ? quick : QIcon());
        item->setIconVisibleInMenu(true);
        const QString ext = conversionDescriptor(constraints->format).ext.toUpper();
        const bool namesIt = title(item).contains(ext, Qt::CaseInsensitive);
        item->setToolTip(
            VideoWords::joined({ namesIt ? QString() : ext, explanation(work, *constraints) }));
    }
}
