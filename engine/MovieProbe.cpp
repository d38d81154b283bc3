// SPDX-License-Identifier: MIT
#include "engine/MovieProbe.h"

#include "support/FileSystem.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <array>
#include <cerrno>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

struct OffsetRow {
    qint64 (DurationInfo::*field)() const;
    qint64 atLeast;
    QStringView offset;
};

constexpr std::array offsetRows{
    OffsetRow{ &DurationInfo::hours, 1, u"00:40:00" },
    OffsetRow{ &DurationInfo::minutes, 1, u"00:00:40" },
    OffsetRow{ &DurationInfo::seconds, 10, u"00:00:20" },
    OffsetRow{ &DurationInfo::seconds, 1, u"00:00:02" },
};

struct BucketRow {
    qint64 firstMinute;
    qint64 endMinute;
    QStringView label;
};

constexpr std::array bucketRows{
    BucketRow{ 0, 1, u"0-1" },
    BucketRow{ 1, 5, u"1-5" },
    BucketRow{ 5, 10, u"5-10" },
    BucketRow{ 10, 20, u"10-20" },
    BucketRow{ 20, 40, u"20-40" },
};

}

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
    if (!isRegularFile(path))
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
    const std::optional<QString> durationText = format[u"duration"_s].string();
    if (!durationText)
        return Outcome{ Reason::NoDuration };
    bool isNumber = false;
    const double duration = durationText->toDouble(&isNumber);
    if (!isNumber)
        return Outcome{ Reason::NoDuration };
    const std::optional<QString> sizeText = format[u"size"_s].string();
    if (!sizeText)
        return Outcome{ Reason::NoSize };
    const auto seconds = static_cast<qint64>(duration);
    if (seconds == 0)
        return Outcome{ Reason::TooShort };
    const quint64 size = sizeText->toULongLong(&isNumber);
    if (!isNumber || size != sizeOnDisk)
        return Outcome{ Reason::SizeDiffers };
    return seconds;
}

QString coverOffset(const DurationInfo &duration)
{
    for (const OffsetRow &row : offsetRows) {
        if ((duration.*row.field)() >= row.atLeast)
            return row.offset.toString();
    }
    return u"00:00:00"_s;
}

QString lengthBucket(qint64 seconds)
{
    const qint64 minute = seconds / 60;
    for (const BucketRow &row : bucketRows) {
        if (minute >= row.firstMinute && minute < row.endMinute)
            return row.label.toString();
    }
    return u">40"_s;
}

}
