// SPDX-License-Identifier: MIT
#include "cli/Destination.h"

#include "cli/Examination.h"
#include "engine/Obstacle.h"
#include "planning/ConversionDescriptor.h"
#include "support/FileSystem.h"
#include "support/Localized.h"
#include "support/Path.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

Failure refused(const LocalizedText &text)
{
    return { ExitCode::DestinationRefused, localized(text) };
}

Failure existsAlready()
{
    return refused(QT_TRANSLATE_NOOP3("Localizable",
        "The destination exists already; --overwrite replaces it.",
        "Why a conversion's result can't be written"));
}

bool mayWrite(const QString &path, int mode)
{
    return ::access(QFile::encodeName(path).constData(), mode) == 0;
}

/// The name, numbered until it differs from all others also where letter case does not count.
QString uniqueName(const QString &base, const QString &ext, QSet<QString> &taken)
{
    QString name = base + u'.' + ext;
    for (int number = 2; taken.contains(name.toCaseFolded()); ++number)
        name = base + u' ' + QString::number(number) + u'.' + ext;
    taken.insert(name.toCaseFolded());
    return name;
}

}

std::vector<ConversionItem> conversionItems(const CommandLine &line)
{
    const QString ext = conversionDescriptor(line.entries.front().format).ext;
    QSet<QString> taken;
    std::vector<ConversionItem> items;
    for (const QString &video : line.inputs) {
        const QString base = Path::stringByDeletingPathExtension(Path::lastPathComponent(video));
        const QString destPath = line.folder.isEmpty()
            ? line.output
            : line.folder + u'/' + uniqueName(base, ext, taken);
        items.push_back({ video, absolutePath(video), absolutePath(destPath) });
    }
    return items;
}

std::optional<Failure> folderRefusal(const QString &folder)
{
    const QFileInfo info(folder);
    if (!info.exists())
        return refused(QT_TRANSLATE_NOOP3("Localizable", "The destination's folder does not exist.",
            "Why a conversion's result can't be written"));
    if (!info.isDir())
        return refused(QT_TRANSLATE_NOOP3("Localizable", "The destination's folder is a file.",
            "Why a conversion's result can't be written"));
    if (!mayWrite(folder, W_OK | X_OK))
        return refused(
            QT_TRANSLATE_NOOP3("Localizable", "The destination's folder may not be written to.",
                "Why a conversion's result can't be written"));
    return std::nullopt;
}

std::optional<Failure> sourceRefusal(
    const QString &destPath, const std::vector<ConversionItem> &items)
{
    const auto isDestination
        = [&](const ConversionItem &item) { return isSameFile(item.path, destPath); };
    if (std::any_of(items.begin(), items.end(), isDestination))
        return refused(QT_TRANSLATE_NOOP3("Localizable",
            "The result can't replace a video that is to be converted.",
            "Why a conversion's result can't be written"));
    return std::nullopt;
}

std::optional<Failure> destinationRefusal(
    const QString &destPath, const std::vector<ConversionItem> &items, bool overwrite)
{
    const QFileInfo info(destPath);
    if (auto refusal = sourceRefusal(destPath, items))
        return refusal;
    if (const auto obstacle = obstacleAt(destPath))
        return Failure{ ExitCode::DestinationRefused, *obstacle };
    if (!info.exists())
        return folderRefusal(Path::stringByDeletingLastPathComponent(destPath));
    const auto meetsHere = [&](const ConversionItem &item) {
        return item.destPath != destPath && isSameFile(item.destPath, destPath);
    };
    if (std::any_of(items.begin(), items.end(), meetsHere))
        return refused(
            QT_TRANSLATE_NOOP3("Localizable", "The result would replace another one of this run.",
                "Why a conversion's result can't be written"));
    if (!overwrite)
        return existsAlready();
    if (!mayWrite(destPath, W_OK))
        return refused(QT_TRANSLATE_NOOP3("Localizable", "The destination may not be written to.",
            "Why a conversion's result can't be written"));
    // An unfinished file could not be removed.
    return folderRefusal(Path::stringByDeletingLastPathComponent(linkTarget(destPath)));
}

std::optional<Failure> takenMeanwhile(const QString &destPath)
{
    const QByteArray path = QFile::encodeName(destPath);
    const int fd = ::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd >= 0)
        ::close(fd);
    // What else may hinder, the tool meets too and tells.
    return fd < 0 && errno == EEXIST ? std::optional(existsAlready()) : std::nullopt;
}
