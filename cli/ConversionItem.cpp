// SPDX-License-Identifier: MIT
#include "cli/ConversionItem.h"

#include "planning/ConversionDescriptor.h"
#include "support/Path.h"

#include <QCryptographicHash>
#include <QFile>
#include <QSet>
#include <QtEndian>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

/// The path, numbered until it differs from all others in more than letter case.
QString uniquePath(const QString &base, const QString &ext, QSet<QString> &taken)
{
    QString path = base + u'.' + ext;
    for (int number = 2; taken.contains(path.toCaseFolded()); ++number)
        path = base + u' ' + QString::number(number) + u'.' + ext;
    taken.insert(path.toCaseFolded());
    return path;
}

/// Of what a folder holds, videos come before the pictures and notes that bear their names.
std::pair<bool, QString> rank(const Input &input)
{
    const bool isOther = input.isFound && !isCalledMedia(input.name);
    return { isOther, input.path };
}

/// The same on every machine, whatever else is in the list.
bool isInShard(const QString &name, const Shard &shard)
{
    const QByteArray hash
        = QCryptographicHash::hash(QFile::encodeName(name), QCryptographicHash::Sha256);
    const auto number = qFromBigEndian<quint64>(hash.constData());
    return number % static_cast<quint64>(shard.parts) == static_cast<quint64>(shard.part - 1);
}

}

std::vector<ConversionItem> conversionItems(
    const CommandLine &line, const VideoConstraints &entry, const std::vector<Input> &inputs)
{
    if (line.folder.isEmpty())
        return { { inputs.front(), absolutePath(line.output) } };
    std::vector<std::size_t> order(inputs.size());
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(), [&](std::size_t left, std::size_t right) {
        return rank(inputs[left]) < rank(inputs[right]);
    });
    const QString ext = conversionDescriptor(entry.format).ext;
    const QString folder = absolutePath(line.folder + u'/');
    QSet<QString> taken;
    std::vector<ConversionItem> items(inputs.size());
    for (const std::size_t index : order) {
        const Input &input = inputs[index];
        const QString name
            = Path::stringByDeletingPathExtension(Path::lastPathComponent(input.path));
        const QString subfolder = input.subfolder.isEmpty() ? QString() : input.subfolder + u'/';
        items[index] = { input, uniquePath(folder + subfolder + name, ext, taken) };
    }
    std::erase_if(
        items, [&](const ConversionItem &item) { return !isInShard(item.input.name, line.shard); });
    return items;
}
