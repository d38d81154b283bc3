// SPDX-License-Identifier: MIT
#include "cli/report/ProgressLine.h"

#include "cli/report/ShownText.h"
#include "support/DurationInfo.h"
#include "support/Localized.h"

#include <QLocale>

#include <algorithm>
#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QString bar(const ProgressSample &sample, int width)
{
    if (const std::optional<int> percent = sample.percent())
        return QString(qsizetype{ *percent } * width / 100, u'#').leftJustified(width, u'-');
    constexpr int blockWidth = 3;
    const int way = std::max(1, width - blockWidth);
    const auto step = static_cast<int>(sample.elapsed / 200ms % (2L * way));
    return QString(way - std::abs(way - step), u'-') + QString(blockWidth, u'#')
        + QString(std::abs(way - step), u'-');
}

}

std::optional<int> ProgressSample::percent() const
{
    if (total <= 0)
        return std::nullopt;
    // In this order: 29 of 100 is not quite 0.29.
    const double percent = static_cast<double>(completed) * 100 / static_cast<double>(total);
    return static_cast<int>(std::clamp(percent, 0.0, 100.0));
}

std::optional<double> ProgressSample::speed() const
{
    if (completed <= 0 || elapsed < 1s)
        return std::nullopt;
    return static_cast<double>(completed) * 1000 / static_cast<double>(elapsed.count());
}

QString progressText(const ProgressSample &sample)
{
    QStringList parts;
    if (const auto percent = sample.percent())
        parts << QLocale().toString(*percent).rightJustified(3) + u'%';
    else
        parts << formatted(QT_TRANSLATE_NOOP3("Localizable", "%@ so far",
                               "Time that a conversion of unknown length has taken"),
            { DurationInfo(sample.elapsed / 1s).toString() });
    if (const auto speed = sample.speed())
        parts << QLocale().toString(*speed, 'f', *speed < 10 ? 1 : 0) + u'x';
    if (const auto left = sample.left)
        parts << formatted(
            QT_TRANSLATE_NOOP3("Localizable", "%@ left", "Time that a conversion still needs"),
            { DurationInfo(*left).toString() });
    return parts.join(u"  "_s);
}

QString progressBar(const QString &video, const ProgressSample &sample, int columns)
{
    const QString text = progressText(sample);
    const int nameWidth = std::clamp(columns / 4, 8, 24);
    const QString name = leftJustified(elided(printable(video), nameWidth), nameWidth);
    // Leaves room for a long text, so that the bar keeps its width, and the last column free.
    const ProgressSample longest{ .completed = 1, .total = 86'400, .elapsed = 1s, .left = 86'399 };
    const int barWidth = std::min(40, columns - nameWidth - columnsOf(progressText(longest)) - 4);
    if (barWidth < 8)
        return elided(name + u' ' + text, columns - 1);
    return elided(name + u" ["_s + bar(sample, barWidth) + u"] "_s + text, columns - 1);
}
