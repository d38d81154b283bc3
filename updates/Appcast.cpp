// SPDX-License-Identifier: MIT
#include "updates/Appcast.h"

#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

constexpr auto sparkle = "http://www.andymatuschak.org/xml-namespaces/sparkle"_L1;

// The element's text with that of the elements inside it. A loop: the depth of a hostile document
// knows no bounds.
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

void readEnclosure(const QXmlStreamAttributes &attributes, AppcastItem &item)
{
    item.url = webAddress(attributes.value("url"_L1).toString());
    item.signature = signatureOf(attributes, "edSignature"_L1);
    item.versionSignature = signatureOf(attributes, "versionSignature"_L1);
    if (attributes.hasAttribute(sparkle, "version"_L1))
        item.versionText = attributes.value(sparkle, "version"_L1).toString();
    if (attributes.hasAttribute(sparkle, "shortVersionString"_L1))
        item.displayVersion = attributes.value(sparkle, "shortVersionString"_L1).toString();
}

std::optional<AppcastItem> readItem(QXmlStreamReader &xml, const QString &system)
{
    AppcastItem item;
    bool suits = false;
    bool isRelease = true;
    while (xml.readNextStartElement()) {
        const QStringView name = xml.name();
        const bool isSparkle = xml.namespaceUri() == sparkle;
        if (name == u"enclosure") {
            const QXmlStreamAttributes attributes = xml.attributes();
            const QStringView itsSystem = attributes.value(sparkle, "os"_L1);
            if (!suits && (itsSystem.isEmpty() || itsSystem == system)) {
                readEnclosure(attributes, item);
                suits = true;
            }
            xml.skipCurrentElement();
        } else if (isSparkle && name == u"version") {
            item.versionText = readText(xml).trimmed();
        } else if (isSparkle && name == u"shortVersionString") {
            item.displayVersion = readText(xml).trimmed();
        } else if (isSparkle && name == u"channel") {
            isRelease = readText(xml).trimmed().isEmpty();
        } else if (!isSparkle && name == u"description") {
            item.notes = readText(xml);
        } else {
            xml.skipCurrentElement();
        }
    }
    const auto version = Version::parse(item.versionText);
    if (!version || !suits || !isRelease)
        return std::nullopt;
    item.version = *version;
    item.displayVersion
        = Version::parse(item.displayVersion) ? item.displayVersion : item.versionText;
    return item;
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
        if (!reader.isStartElement())
            continue;
        if (reader.name() == u"rss") {
            isRss = true;
        } else if (isRss && reader.name() == u"item") {
            if (auto item = readItem(reader, system))
                items.push_back(std::move(*item));
        }
    }
    if (reader.hasError() || !isRss)
        return std::nullopt;
    return items;
}
