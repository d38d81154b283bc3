// SPDX-License-Identifier: MIT
#include "support/Path.h"

using namespace Qt::StringLiterals;

namespace {

QString withoutTrailingSeparators(QString path)
{
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return path;
}

}

namespace Path {

QString lastPathComponent(const QString &path)
{
    const QString trimmed = withoutTrailingSeparators(path);
    return trimmed == u"/" ? trimmed : trimmed.sliced(trimmed.lastIndexOf(u'/') + 1);
}

QString pathExtension(const QString &path)
{
    const QString name = lastPathComponent(path);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.sliced(dot + 1) : QString();
}

QString stringByDeletingLastPathComponent(const QString &path)
{
    const QString trimmed = withoutTrailingSeparators(path);
    const qsizetype separator = trimmed.lastIndexOf(u'/');
    return separator < 0
        ? QString()
        : withoutTrailingSeparators(trimmed.first(std::max<qsizetype>(separator, 1)));
}

QString stringByDeletingPathExtension(const QString &path)
{
    const QString trimmed = withoutTrailingSeparators(path);
    const QString name = lastPathComponent(trimmed);
    // A closing dot is what an empty extension leaves: it goes too.
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 && name != u".." ? trimmed.chopped(name.size() - dot) : trimmed;
}

QStringList pathComponents(const QString &path)
{
    QStringList components = path.split(u'/', Qt::SkipEmptyParts);
    if (path.startsWith(u'/'))
        components.prepend(u"/"_s);
    if (path.endsWith(u'/') && components.last() != u"/")
        components.append(u"/"_s);
    return components;
}

QString stringByAppendingPathComponent(const QString &path, const QString &component)
{
    QString name = withoutTrailingSeparators(component);
    if (path.isEmpty())
        return name;
    while (name.startsWith(u'/'))
        name.remove(0, 1);
    const QString folder = withoutTrailingSeparators(path);
    return name.isEmpty() ? folder : folder + (folder.endsWith(u'/') ? u""_s : u"/"_s) + name;
}

std::optional<QString> stringByAppendingPathExtension(const QString &path, const QString &extension)
{
    const QString trimmed = withoutTrailingSeparators(path);
    if (extension.isEmpty() || extension.contains(u'/') || trimmed.isEmpty() || trimmed == u"/"
        || lastPathComponent(trimmed).startsWith(u'~'))
        return std::nullopt;
    return trimmed + u'.' + extension;
}

}
