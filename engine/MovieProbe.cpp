// SPDX-License-Identifier: MIT
#include "engine/MovieProbe.h"

#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>

#include <cerrno>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace MovieProbe {

std::optional<Outcome> fileRefusal(const QString &path)
{
    const QFileInfo file(path);
    const bool readable = ::access(QFile::encodeName(path).constData(), R_OK) == 0;
    if (!readable && errno != EACCES)
        return Outcome{ path.contains(QChar::ReplacementCharacter) ? Reason::NameNotText
                                                                   : Reason::NoSuchFile };
    if (file.isDir())
        return Outcome{ Reason::IsFolder };
    if (!readable)
        return Outcome{ Reason::PermissionDenied };
    if (!file.isFile())
        return Outcome{ Reason::NotRegularFile };
    if (file.size() == 0)
        return Outcome{ Reason::EmptyFile };
    return std::nullopt;
}

QStringList readPaths(const QString &path)
{
    // HLS, lists of parts, DASH, and formats that keep a part in a file beside.
    static const QRegularExpression list(
        u"\\A(?:\\xef\\xbb\\xbf)?\\s*#EXTM3U|\\Affconcat version|<MPD\\b"_s);
    static const QRegularExpression partName(
        u"\\.(?:idx|mlv)\\z"_s, QRegularExpression::CaseInsensitiveOption);
    QFile file(path);
    const bool hasNeighbours = file.open(QIODevice::ReadOnly)
        && (list.match(QString::fromLatin1(file.read(4096))).hasMatch()
            || partName.match(path).hasMatch());
    return hasNeighbours ? QStringList{ path, QFileInfo(path).path() } : QStringList{ path };
}

JSON description(const QByteArray &output)
{
    constexpr int mostBraces = 20;
    const qsizetype end = output.lastIndexOf('}') + 1;
    qsizetype start = output.indexOf('{');
    for (int i = 0; start >= 0 && start < end && i < mostBraces;
         ++i, start = output.indexOf('{', start + 1)) {
        JSON info = JSON::parse(output.sliced(start, end - start));
        if (!info.value().isNull())
            return info;
    }
    const QStringList lines = QString::fromUtf8(output).split(u'\n', Qt::SkipEmptyParts);
    return lines.isEmpty() ? JSON() : JSON(lines.last().left(300).trimmed());
}

std::variant<qint64, Outcome> checked(const JSON &info, quint64 sizeOnDisk)
{
    if (const auto words = info.string())
        return Outcome{ .reason = Reason::ToolUnusable, .detail = *words };
    const JSON format = info[u"format"_s];
    if (format.value().isNull())
        return Outcome{ Reason::NotMedia };
    bool isNumber = false;
    const double duration = format[u"duration"_s].string().value_or(u""_s).toDouble(&isNumber);
    if (!isNumber)
        return Outcome{ Reason::NoDuration };
    const std::optional<QString> sizeText = format[u"size"_s].string();
    if (!sizeText)
        return Outcome{ Reason::NoSize };
    const auto seconds = static_cast<qint64>(duration);
    if (seconds == 0)
        return Outcome{ Reason::TooShort };
    if (*sizeText != QString::number(sizeOnDisk))
        return Outcome{ Reason::SizeDiffers };
    return seconds;
}

QString coverOffset(const DurationInfo &duration)
{
    if (duration.hours() >= 1)
        return u"00:40:00"_s;
    if (duration.minutes() >= 1)
        return u"00:00:40"_s;
    if (duration.seconds() >= 10)
        return u"00:00:20"_s;
    return duration.seconds() >= 1 ? u"00:00:02"_s : u"00:00:00"_s;
}

QString lengthBucket(qint64 seconds)
{
    // By the minute that each ends before.
    static const QMap<qint64, QString> buckets{ { 0, u">40"_s }, { 1, u"0-1"_s }, { 5, u"1-5"_s },
        { 10, u"5-10"_s }, { 20, u"10-20"_s }, { 40, u"20-40"_s } };
    const auto found = buckets.upperBound(seconds / 60);
    return found == buckets.end() ? u">40"_s : *found;
}

}
