// SPDX-License-Identifier: MIT
#include "updates/Appcast.h"

#include <QHash>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

constexpr auto sparkle = "http://www.andymatuschak.org/xml-namespaces/sparkle"_L1;

// The element's text with that of those inside it. A loop, as a hostile document may be deep.
QString readText(QXmlStreamReader &xml)
{
    QString text;
    for (int depth = 1; depth > 0 && !xml.atEnd();) {
        xml.readNext();
        if (xml.isStartElement())
            ++depth;
        else if (xml.isEndElement())
            --depth;
        else if (xml.isCharacters())
            text += xml.text();
    }
    return text;
}

QByteArray signatureOf(const QXmlStreamAttributes &attributes, QLatin1String name)
{
    const auto decoded = QByteArray::fromBase64Encoding(
        attributes.value(sparkle, name).toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? *decoded : QByteArray();
}

QUrl webAddress(const QString &text)
{
    const QUrl url(text, QUrl::StrictMode);
    const bool isWeb = url.scheme() == u"http" || url.scheme() == u"https";
    return isWeb && !url.host().isEmpty() ? url : QUrl();
}

std::optional<AppcastItem> readItem(QXmlStreamReader &xml, const QString &system)
{
    std::optional<QXmlStreamAttributes> enclosure;
    QHash<QString, QString> texts;
    while (xml.readNextStartElement()) {
        const bool isSparkle = xml.namespaceUri() == sparkle;
        const QString name = (isSparkle ? "sparkle:"_L1 : ""_L1) + xml.name().toString();
        const QXmlStreamAttributes attributes = xml.attributes();
        const QStringView itsSystem = attributes.value(sparkle, "os"_L1);
        const bool suits = itsSystem.isEmpty() || itsSystem == system;
        if (name == u"enclosure" && suits && !enclosure)
            enclosure = attributes;
        texts[name] = readText(xml);
    }
    if (!enclosure || !texts[u"sparkle:channel"_s].trimmed().isEmpty())
        return std::nullopt;
    const auto textOf = [&](QLatin1StringView name) {
        return enclosure->hasAttribute(sparkle, name) ? enclosure->value(sparkle, name).toString()
                                                      : texts.value("sparkle:"_L1 + name).trimmed();
    };
    const QString versionText = textOf("version"_L1);
    const QString displayVersion = textOf("shortVersionString"_L1);
    const auto version = Version::parse(versionText);
    if (!version)
        return std::nullopt;
    return AppcastItem{ .version = *version,
        .versionText = versionText,
        .displayVersion = Version::parse(displayVersion) ? displayVersion : versionText,
        .notes = texts[u"description"_s],
        .url = webAddress(enclosure->value("url"_L1).toString()),
        .signature = signatureOf(*enclosure, "edSignature"_L1),
        .versionSignature = signatureOf(*enclosure, "versionSignature"_L1) };
}

}

std::optional<std::vector<AppcastItem>> parseAppcast(const QByteArray &xml, const QString &system)
{
    std::vector<AppcastItem> items;
    QXmlStreamReader reader(xml);
    bool isRss = false;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isDTD())
            return std::nullopt;
        if (reader.isStartElement() && reader.name() == u"rss")
            isRss = true;
        if (!isRss || !reader.isStartElement() || reader.name() != u"item")
            continue;
        if (auto item = readItem(reader, system))
            items.push_back(std::move(*item));
    }
    if (reader.hasError() || !isRss)
        return std::nullopt;
    return items;
}
