// SPDX-License-Identifier: MIT
#include "ui/widgets/Appearance.h"

#include <QApplication>
#include <QPointer>
#include <QProxyStyle>
#ifdef Q_OS_LINUX
#include "ui/desktop/DesktopBus.h"

#include <QDBusVariant>
#endif

using namespace Qt::StringLiterals;

namespace {

struct Shade {
    QPalette::ColorRole role;
    QRgb light;
    QRgb dark;
};

// clang-format off
constexpr Shade shades[] = {
    {QPalette::Window,          0xfff6f7fa, 0xff1e2026},
    {QPalette::WindowText,      0xff1d2130, 0xffeceef5},
    {QPalette::Base,            0xffffffff, 0xff272a32},
    {QPalette::AlternateBase,   0xfff0f2f7, 0xff2d3039},
    {QPalette::Text,            0xff1d2130, 0xffeceef5},
    {QPalette::PlaceholderText, 0xff5c6275, 0xffa7adbd},
    {QPalette::BrightText,      0xffffffff, 0xffffffff},
    {QPalette::Button,          0xffeceef4, 0xff343843},
    {QPalette::ButtonText,      0xff1d2130, 0xffeceef5},
    {QPalette::Light,           0xffffffff, 0xff474c5a},
    {QPalette::Midlight,        0xfff3f4f8, 0xff3c404d},
    {QPalette::Mid,             0xffccd0dc, 0xff464b59},
    {QPalette::Dark,            0xffa5abbd, 0xff15171b},
    {QPalette::Shadow,          0xff7c8397, 0xff0b0c0e},
    {QPalette::Highlight,       0xff4d5bd8, 0xff5d6ae4},
    {QPalette::HighlightedText, 0xffffffff, 0xffffffff},
    {QPalette::Link,            0xff4350cc, 0xff9aa5ff},
    {QPalette::ToolTipBase,     0xff2a2d36, 0xff3a3e4a},
    {QPalette::ToolTipText,     0xffffffff, 0xfff2f4fa},
};
// clang-format on

/// The desktop's style without the arrow of a menu bar that is too narrow, which ours never is: Qt
/// would load each of its image plugins for it.
class Style : public QProxyStyle {
public:
    QIcon standardIcon(
        StandardPixmap icon, const QStyleOption *option, const QWidget *widget) const override
    {
        return icon == SP_ToolBarHorizontalExtensionButton
            ? QIcon()
            : QProxyStyle::standardIcon(icon, option, widget);
    }
};

constexpr auto appearanceSpace = "org.freedesktop.appearance"_L1;
constexpr auto schemeKey = "color-scheme"_L1;
constexpr auto contrastKey = "contrast"_L1;

}

QPalette Appearance::palette(Look look)
{
    QPalette palette;
    for (const Shade &shade : shades)
        palette.setColor(shade.role, QColor::fromRgba(look.isDark ? shade.dark : shade.light));
    for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText }) {
        // The menu's headings are such texts, and have to be read.
        palette.setColor(QPalette::Disabled, role, palette.color(QPalette::PlaceholderText));
    }
    if (!look.hasHighContrast)
        return palette;
    for (const auto role : { QPalette::Window, QPalette::Base, QPalette::AlternateBase })
        palette.setColor(role, look.isDark ? Qt::black : Qt::white);
    for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
             QPalette::PlaceholderText, QPalette::Dark }) {
        for (const auto group : { QPalette::Active, QPalette::Inactive })
            palette.setColor(group, role, look.isDark ? Qt::white : Qt::black);
    }
    return palette;
}

void Appearance::apply(Look look)
{
    QPalette colors = palette(look);
    QApplication::setPalette(colors);
    // The style draws the border of a box to tick a little darker than what is around it.
    if (look.isDark && look.hasHighContrast)
        colors.setColor(QPalette::Base, QColor(0x59, 0x59, 0x59));
    QApplication::setPalette(colors, "QCheckBox");
}

Appearance::Appearance()
{
    // The style's own plain colours mean that no desktop has set any.
    const QStyle &style = *QApplication::style();
    const QColor plain = style.standardPalette().color(QPalette::Window);
    const bool isPlain
        = style.name() == "fusion"_L1 && QApplication::palette().color(QPalette::Window) == plain;
    QApplication::setStyle(new Style);
    if (!isPlain)
        return;
    apply(m_look);
#ifdef Q_OS_LINUX
    const DesktopBus::Object settings{ u"org.freedesktop.portal.Desktop"_s,
        u"/org/freedesktop/portal/desktop"_s, u"org.freedesktop.portal.Settings"_s };
    QDBusConnection::sessionBus().connect(settings.service, settings.path, settings.interface,
        u"SettingChanged"_s, this, SLOT(settingChanged(QString, QString, QDBusVariant)));
    for (const QString &key : { QString(schemeKey), QString(contrastKey) }) {
        DesktopBus::call(settings, u"Read"_s, { QString(appearanceSpace), key },
            [self = QPointer(this), key](const QDBusMessage &answer) {
                if (!self || answer.type() != QDBusMessage::ReplyMessage)
                    return;
                // The portal wraps the value twice.
                auto value = answer.arguments().value(0).value<QDBusVariant>();
                if (value.variant().canConvert<QDBusVariant>())
                    value = value.variant().value<QDBusVariant>();
                self->settingChanged(appearanceSpace, key, value);
            });
    }
#endif
}

#ifdef Q_OS_LINUX
void Appearance::settingChanged(const QString &space, const QString &key, const QDBusVariant &value)
{
    const bool isOne = value.variant().toUInt() == 1;
    if (space == appearanceSpace && key == schemeKey)
        m_look.isDark = isOne;
    else if (space == appearanceSpace && key == contrastKey)
        m_look.hasHighContrast = isOne;
    else
        return;
    apply(m_look);
}
#endif
