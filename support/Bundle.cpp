// SPDX-License-Identifier: MIT
#include "support/Bundle.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

Bundle::Bundle(QString bundlePath)
    : m_bundlePath(std::move(bundlePath))
{
}

const Bundle &Bundle::main()
{
    static const Bundle bundle = [] {
        const QString folder = QFileInfo(QCoreApplication::applicationFilePath()).canonicalPath();
        return Bundle(folder.endsWith("/Contents/MacOS"_L1) ? folder.chopped(15) : folder);
    }();
    return bundle;
}

std::optional<QString> Bundle::infoString(const QString &key) const
{
    QFile file(m_bundlePath + "/Contents/Info.plist"_L1);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QXmlStreamReader xml(&file);
    bool found = false;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (found)
            return xml.name() == u"string" ? std::optional(xml.readElementText()) : std::nullopt;
        found = xml.name() == u"key" && xml.readElementText() == key;
    }
    return std::nullopt;
}

QStringList Bundle::localizations() const
{
    // Patterns of names would load the expressions' library, at each start and for this alone.
    QStringList languages;
    for (const QString &name :
        QDir(m_bundlePath + "/Contents/Resources"_L1).entryList(QDir::Dirs, QDir::Name)) {
        if (name.endsWith(".lproj"_L1))
            languages << name.chopped(6);
    }
    return languages;
}

QString Bundle::localizationPath(const QString &language) const
{
    return m_bundlePath + "/Contents/Resources/"_L1 + language + ".lproj"_L1;
}
