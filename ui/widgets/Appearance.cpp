// SPDX-License-Identifier: MIT
#include "ui/widgets/Appearance.h"

#include <QApplication>
#include <QPointer>
#include <QStyle>
#include <QVariant>
#ifdef Q_OS_LINUX
#include "ui/desktop/DesktopBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
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
    {QPalette::Highlight,       0xff4d5bd8, 0xff6876ee},
    {QPalette::HighlightedText, 0xffffffff, 0xffffffff},
    {QPalette::Link,            0xff4350cc, 0xff9aa5ff},
    {QPalette::LinkVisited,     0xff7048c2, 0xffc3a6ff},
    {QPalette::ToolTipBase,     0xff2a2d36, 0xff3a3e4a},
    {QPalette::ToolTipText,     0xffffffff, 0xfff2f4fa},
};
// clang-format on

QPalette palette(QRgb Shade::*tone)
{
    QPalette palette;
    for (const Shade &shade : shades)
        palette.setColor(shade.role, QColor::fromRgba(shade.*tone));
    for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText }) {
        QColor faded = palette.color(role);
        faded.setAlphaF(0.45F);
        palette.setColor(QPalette::Disabled, role, faded);
    }
    return palette;
}

constexpr auto appearanceSpace = "org.freedesktop.appearance"_L1;
constexpr auto schemeKey = "color-scheme"_L1;
constexpr uint prefersDark = 1;

/// The style's own plain colours mean that no desktop has set any.
bool platformHasColors()
{
    const QStyle &style = *QApplication::style();
    return style.name() != "fusion"_L1
        || QApplication::palette().color(QPalette::Window)
        != style.standardPalette().color(QPalette::Window);
}

}

QPalette Appearance::lightPalette() { return palette(&Shade::light); }

QPalette Appearance::darkPalette() { return palette(&Shade::dark); }

Appearance::Appearance()
{
    if (platformHasColors())
        return;
    setDark(false);
    askDesktop();
}

void Appearance::setDark(bool dark)
{
    QApplication::setPalette(dark ? darkPalette() : lightPalette());
}

#ifdef Q_OS_LINUX
void Appearance::settingChanged(const QString &space, const QString &key, const QDBusVariant &value)
{
    if (space == appearanceSpace && key == schemeKey)
        setDark(value.variant().toUInt() == prefersDark);
}
#endif

void Appearance::askDesktop()
{
#ifdef Q_OS_LINUX
    const QString service = u"org.freedesktop.portal.Desktop"_s;
    const QString path = u"/org/freedesktop/portal/desktop"_s;
    const QString interface = u"org.freedesktop.portal.Settings"_s;
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(service, path, interface, u"SettingChanged"_s, this,
        SLOT(settingChanged(QString, QString, QDBusVariant)));
    DesktopBus::call(bus, { service, path, interface, u"Read"_s },
        { QString(appearanceSpace), QString(schemeKey) },
        [self = QPointer(this)](const QDBusMessage &answer) {
            if (!self || answer.type() != QDBusMessage::ReplyMessage
                || answer.arguments().isEmpty())
                return;
            // The portal wraps the value twice.
            auto value = answer.arguments().constFirst().value<QDBusVariant>();
            if (value.variant().canConvert<QDBusVariant>())
                value = value.variant().value<QDBusVariant>();
            self->settingChanged(appearanceSpace, schemeKey, value);
        });
#endif
}
