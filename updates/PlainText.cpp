// SPDX-License-Identifier: MIT
#include "updates/PlainText.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype textLimit = 4000;

QStringView tagName(QStringView tag)
{
    const QChar *end = std::find_if(
        tag.begin(), tag.end(), [](QChar c) { return !c.isLetterOrNumber() && c != u'/'; });
    return tag.first(end - tag.begin());
}

bool startsLine(QStringView tag)
{
    static const QStringList names{ u"p"_s, u"br"_s, u"br/"_s, u"li"_s, u"div"_s, u"tr"_s, u"ul"_s,
        u"ol"_s, u"h1"_s, u"h2"_s, u"h3"_s, u"h4"_s, u"/p"_s, u"/div"_s, u"/h1"_s, u"/h2"_s,
        u"/h3"_s, u"/h4"_s, u"/ul"_s, u"/ol"_s };
    return names.contains(tag, Qt::CaseInsensitive);
}

// Where the text goes on after the tag at `start`; the insides of programs and style sheets are no
// text.
qsizetype afterTag(const QString &html, qsizetype start, QStringView tag)
{
    qsizetype end = start;
    for (const QString &name : { u"script"_s, u"style"_s }) {
        if (tag.compare(name, Qt::CaseInsensitive) == 0)
            end = html.indexOf(u"</"_s + name, start, Qt::CaseInsensitive);
    }
    const qsizetype close = end < 0 ? -1 : html.indexOf(u'>', end);
    return close < 0 ? html.size() : close + 1;
}

QString withoutTags(const QString &html)
{
    QString text;
    qsizetype position = 0;
    while (position < html.size() && text.size() <= 4 * textLimit) {
        const QChar next = position + 1 < html.size() ? html[position + 1] : QChar();
        const bool isTag
            = html[position] == u'<' && (next.isLetter() || next == u'/' || next == u'!');
        if (!isTag) {
            text += html[position++];
            continue;
        }
        const QStringView tag = tagName(QStringView(html).mid(position + 1, 10));
        if (startsLine(tag))
            text += u'\n';
        position = afterTag(html, position, tag);
    }
    return text;
}

QString withoutEntities(QString text)
{
    text.replace(u"&lt;"_s, u"<"_s).replace(u"&gt;"_s, u">"_s).replace(u"&quot;"_s, u"\""_s);
    text.replace(u"&#39;"_s, u"'"_s).replace(u"&nbsp;"_s, u" "_s);
    return text.replace(u"&amp;"_s, u"&"_s);
}

}

QString plainText(const QString &html)
{
    QStringList lines;
    const QStringList all = withoutEntities(withoutTags(html)).split(u'\n');
    for (const QString &line : all) {
        QString shown = line.simplified();
        shown.removeIf([](QChar c) { return !c.isPrint() && !c.isSurrogate(); });
        if (!shown.isEmpty())
            lines.append(shown);
    }
    return lines.join(u'\n').left(textLimit);
}
