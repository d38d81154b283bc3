// SPDX-License-Identifier: MIT
#include "cli/ConversionItem.h"

#include "planning/ConversionDescriptor.h"
#include "support/Path.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

/// The name, numbered until it differs from all others in more than letter case.
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
    for (const QString &input : line.inputs) {
        const QString base = Path::stringByDeletingPathExtension(Path::lastPathComponent(input));
        const QString destPath = line.folder.isEmpty()
            ? line.output
            : line.folder + u'/' + uniqueName(base, ext, taken);
        items.push_back({ input, absolutePath(input), absolutePath(destPath) });
    }
    return items;
}

QString absolutePath(const QString &path)
{
    static const QRegularExpression nothing(u"/(?:\\.?/)+"_s);
    // A removed current folder has no path; without the dot the path would begin at the root.
    const QString folder = QDir::currentPath().isEmpty() ? u"."_s : QDir::currentPath();
    QString absolute = path.startsWith(u'/') ? path : folder + u'/' + path;
    return absolute.replace(nothing, u"/"_s);
}
