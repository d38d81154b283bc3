// SPDX-License-Identifier: MIT
#include "cli/Inputs.h"

#include "cli/arguments/EntryName.h"
#include "planning/ConversionDescriptor.h"
#include "support/Path.h"
#include "support/StandardInput.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QRegularExpression>
#include <QSet>
#include <QtEndian>

#include <algorithm>
#include <filesystem>
#include <numeric>
#include <set>
#include <unistd.h>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace {

constexpr auto listLimit = qint64{ 256 } * 1024 * 1024;

/// The path, numbered until it differs from all others in more than letter case.
QString uniquePath(const QString &base, const QString &ext, QSet<QString> &taken)
{
    QString path = base + u'.' + ext;
    for (int number = 2; taken.contains(path.toCaseFolded()); ++number)
        path = base + u' ' + QString::number(number) + u'.' + ext;
    taken.insert(path.toCaseFolded());
    return path;
}

/// With a slash at its end.
QString identityOfFolder(const QString &path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return absolutePath((canonical.isEmpty() ? path : canonical) + u'/');
}

Input named(const QString &name)
{
    const QString path = absolutePath(name);
    return { .name = name,
        .path = path,
        .identity = identityOfFolder(Path::stringByDeletingLastPathComponent(path))
            + Path::lastPathComponent(path) };
}

/// The same on every machine, whatever else is in the list.
bool isInShard(const QString &name, const Shard &shard)
{
    const QByteArray hash
        = QCryptographicHash::hash(QFile::encodeName(name), QCryptographicHash::Sha256);
    const auto number = qFromBigEndian<quint64>(hash.constData());
    return number % static_cast<quint64>(shard.parts) == static_cast<quint64>(shard.part - 1);
}

/// Leaves out what earlier runs into the same tree have made or kept: the names that this run would
/// write. Any other file of the output's format is a video like the rest.
void dropEarlierResults(std::vector<Input> &inputs, CommandLine line)
{
    const QString extension = extensionOf(line.entries.front());
    std::vector<Input> sources = inputs;
    std::erase_if(
        sources, [&](const Input &input) { return Path::pathExtension(input.path) == extension; });
    // Results of the other parts of a divided list are results too.
    line.shard = {};
    line.folder = identityOfFolder(line.folder);
    QSet<QString> results;
    for (const ConversionItem &item : conversionItems(line, sources))
        results << item.destPath;
    static const QRegularExpression kept(uR"( \(earlier(?: \d+)?\)(?=\.[^./]*\z))"_s);
    std::erase_if(inputs,
        [&](const Input &input) { return results.contains(QString(input.identity).remove(kept)); });
}

std::vector<Input> inputsIn(const CommandLine &line)
{
    const QString root = identityOfFolder(line.tree);
    const QString results = identityOfFolder(line.folder);
    std::vector<Input> inputs;
    std::error_code end;
    std::error_code error;
    // Links to folders are not followed: they may lead in a circle.
    for (fs::recursive_directory_iterator files(QFile::encodeName(line.tree).constData(), end);
         files != fs::end(files); files.increment(end)) {
        Input input = named(QFile::decodeName(files->path().c_str()));
        const bool isHidden = Path::lastPathComponent(input.path).startsWith(u'.');
        const bool isResult = results.size() > root.size() && input.identity.startsWith(results);
        const bool isFolder = files->is_directory(error) && !files->is_symlink(error);
        const bool isClosed = isFolder && ::access(files->path().c_str(), R_OK | X_OK) != 0;
        if (isFolder && (isHidden || isClosed))
            files.disable_recursion_pending();
        input.isFound = true;
        if (isClosed)
            input.refusal = { Reason::TreeNotReadable };
        if (!isHidden && !isResult && (isClosed || files->is_regular_file(error)))
            inputs.push_back(input);
    }
    dropEarlierResults(inputs, line);
    if (end) {
        inputs.push_back(named(line.tree));
        inputs.back().refusal = { Reason::TreeNotReadable };
    }
    std::ranges::sort(inputs, {}, &Input::identity);
    return inputs;
}

}

Inputs inputsOf(const CommandLine &line)
{
    QStringList names = line.inputs;
    if (!line.list.isEmpty()) {
        const auto list = StandardInput::contentsOf(line.list, listLimit);
        if (!list)
            return { .refusedName = line.list, .refusal = { Reason::ListNotReadable } };
        for (QByteArray name : list->split(line.listIsNullSeparated ? '\0' : '\n')) {
            // Lists from other systems end their lines so.
            if (!line.listIsNullSeparated && name.endsWith('\r'))
                name.chop(1);
            if (!name.isEmpty())
                names << QFile::decodeName(name);
        }
    }
    std::vector<Input> inputs;
    for (const QString &name : names)
        inputs.push_back(named(name));
    if (!line.tree.isEmpty()) {
        const QDir tree(line.tree);
        if (!tree.exists() || !tree.isReadable())
            return { .refusedName = line.tree, .refusal = { Reason::TreeNotReadable } };
        const std::vector<Input> found = inputsIn(line);
        inputs.insert(inputs.end(), found.begin(), found.end());
    }
    std::set<QString> known;
    std::erase_if(inputs, [&](const Input &input) { return !known.insert(input.identity).second; });
    return { .videos = inputs };
}

std::vector<ConversionItem> conversionItems(
    const CommandLine &line, const std::vector<Input> &inputs)
{
    if (line.folder.isEmpty())
        return { { inputs.front(), absolutePath(line.output) } };
    std::vector<std::size_t> order(inputs.size());
    std::iota(order.begin(), order.end(), 0);
    // Of what a folder holds, videos come before the pictures and notes that bear their names.
    std::ranges::sort(order, {}, [&](std::size_t index) {
        const Input &input = inputs[index];
        return std::pair(input.isFound && !isCalledMedia(input.name), input.identity);
    });
    const QString ext = extensionOf(line.entries.front());
    const QString folder = absolutePath(line.folder + u'/');
    const QString root = identityOfFolder(line.tree);
    QSet<QString> taken;
    std::vector<ConversionItem> items(inputs.size());
    for (const std::size_t index : order) {
        const Input &input = inputs[index];
        // What was found keeps its place in the tree.
        const QString name = input.isFound ? input.identity.sliced(root.size())
                                           : Path::lastPathComponent(input.path);
        items[index]
            = { input, uniquePath(folder + Path::stringByDeletingPathExtension(name), ext, taken) };
    }
    std::erase_if(
        items, [&](const ConversionItem &item) { return !isInShard(item.input.name, line.shard); });
    return items;
}

bool isCalledMedia(const QString &name)
{
    const QString type
        = QMimeDatabase().mimeTypeForFile(name, QMimeDatabase::MatchExtension).name();
    // Lists of sound files and notes to play hold no sound themselves.
    static const QStringList lists{ u"audio/x-mpegurl"_s, u"audio/x-scpls"_s, u"audio/x-ms-asx"_s,
        u"audio/midi"_s };
    return (type.startsWith("video/"_L1) || type.startsWith("audio/"_L1)) && !lists.contains(type);
}

bool isVideoOrMusic(const JSON &info)
{
    return info[u"format"_s][u"format_name"_s].stringValue() != u"tty"
        && (firstStream(info, "video"_L1) || firstStream(info, "audio"_L1));
}

QString absolutePath(const QString &path)
{
    static const QRegularExpression nothing(u"/(?:\\.?/)+"_s);
    // A removed current folder has no path; without the dot the path would begin at the root.
    const QString folder = QDir::currentPath().isEmpty() ? u"."_s : QDir::currentPath();
    QString absolute = path.startsWith(u'/') ? path : folder + u'/' + path;
    return absolute.replace(nothing, u"/"_s);
}
