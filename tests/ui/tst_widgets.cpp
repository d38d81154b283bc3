// SPDX-License-Identifier: MIT
#include "tests/fixtures/Rows.h"
#include "ui/widgets/Appearance.h"
#include "ui/widgets/Color.h"
#include "ui/widgets/ProgressBar.h"
#include "ui/window/ProposedName.h"

#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

class tst_widgets : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void colours_standOut_data()
    {
        using enum QPalette::ColorRole;
        using Group = QPalette::ColorGroup;
        addRows<Group, QPalette::ColorRole, QPalette::ColorRole, double>(
            { "group", "ink", "ground", "least" },
            { { "text", Group::Active, WindowText, Window, 7 },
                { "text on the stage", Group::Active, Text, Base, 7 },
                { "convert button", Group::Active, HighlightedText, Highlight, 4.5 },
                { "button", Group::Active, ButtonText, Button, 7 },
                { "link, focus ring", Group::Active, Link, Base, 4.5 },
                { "dimmed text, dashes", Group::Active, PlaceholderText, Base, 4.5 },
                { "dimmed label", Group::Active, PlaceholderText, Window, 4.5 },
                { "tool tip", Group::Active, ToolTipText, ToolTipBase, 4.5 },
                { "face of the convert button", Group::Active, Highlight, Window, 3 },
                { "progress", Group::Active, Link, Mid, 3 },
                { "headings of menus", Group::Disabled, Text, Base, 4.5 },
                { "disabled text", Group::Disabled, WindowText, Window, 4.5 },
                { "disabled button", Group::Disabled, ButtonText, Button, 4.5 } });
    }
    void colours_standOut()
    {
        QFETCH(const QPalette::ColorRole, ink);
        QFETCH(const QPalette::ColorRole, ground);
        QFETCH(const double, least);
        const auto luminance = [](const QColor &color) {
            const auto linear = [](double part) {
                return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
            };
            return 0.05 + 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
                + 0.0722 * linear(color.blueF());
        };
        for (const bool isDark : { false, true }) {
            for (const bool hasHighContrast : { false, true }) {
                const QPalette colors = Appearance::palette({ isDark, hasHighContrast });
                QFETCH(const QPalette::ColorGroup, group);
                const auto [low, high] = std::minmax({ luminance(colors.color(group, ink)),
                    luminance(colors.color(group, ground)) });
                QVERIFY2(high / low >= least, qPrintable(QString::number(high / low)));
            }
        }
    }

    void bar_fillsFromItsStart()
    {
        for (const Qt::LayoutDirection direction : { Qt::LeftToRight, Qt::RightToLeft }) {
            ProgressBar bar;
            bar.setLayoutDirection(direction);
            bar.resize(200, bar.sizeHint().height());
            bar.setFraction(0.25);
            const QImage image = bar.grab().toImage();
            const auto isFilled = [&](int x) {
                return image.pixelColor(x, image.height() / 2)
                    == bar.palette().color(QPalette::Link);
            };
            QCOMPARE(isFilled(40), direction == Qt::LeftToRight);
            QCOMPARE(isFilled(160), direction == Qt::RightToLeft);
            QVERIFY(!isFilled(60) && !isFilled(140));
        }
        QCOMPARE(Color::rgb(1, 2, 255), QColor::fromRgbF(1, 0, 0));
    }

    void proposedName_isNeverTheSource_data()
    {
        addRows<Utf8, Utf8, Utf8>({ "source", "ext", "name" },
            { { "the source", "video.mp4", "mp4", "video 3" },
                { "another video's name", "clip.mov", "avi", "clip" },
                { "long", "123456789012345678901234567890.mp4", "mp4",
                    "123456789012345678901234…" },
                { "dots", "a.b.c.mov", "mkv", "a.b.c" } });
    }
    void proposedName_isNeverTheSource()
    {
        QTemporaryDir folder;
        for (const auto &name : { u"video.mp4"_s, u"video 2.mp4"_s, u"clip.mov"_s, u"clip.avi"_s })
            QVERIFY(QFile(folder.filePath(name)).open(QIODevice::WriteOnly));
        QFETCH(const QString, source);
        QFETCH(const QString, ext);
        QTEST(proposedName(folder.filePath(source), folder.path(), ext), "name");
    }
};

QTEST_MAIN(tst_widgets)
#include "tst_widgets.moc"
