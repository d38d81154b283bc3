// SPDX-License-Identifier: MIT
#include "engine/ToolOutput.h"

#include "support/Text.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace ToolOutput {

const QRegularExpression &regexprDuration()
{
    static const QRegularExpression regexp = Pattern::compiled(u"Duration: (.*?), start:"_s);
    return regexp;
}

const QRegularExpression &regexprProgress()
{
    static const QRegularExpression regexp
        = Pattern::compiled(uR"(time=([\d\:\.]*) bitrate)"_s, Pattern::lineOptions);
    return regexp;
}

std::optional<qint64> getFFMpegDuration(const QString &text)
{
    static const QRegularExpression regexp = Pattern::compiled(uR"((\d+):(\d+):(\d+))"_s);
    const QRegularExpressionMatch match
        = regexp.match(Pattern::searchRange(text, Text::characterCount(text)));
    if (!match.hasMatch())
        return std::nullopt;
    const auto group = [&](int index) {
        return Text::asInt64(Pattern::substringFromCheckingResult(match, index));
    };
    return group(1) * 3600 + group(2) * 60 + group(3);
}

std::optional<qint64> printedSeconds(const QString &text)
{
    // The longest one is "2562047788:00:54.77".
    return text.size() <= 19 ? getFFMpegDuration(text) : std::nullopt;
}

std::optional<qint64> lastReportedPosition(const QString &block)
{
    QRegularExpressionMatch last;
    for (auto matches = regexprProgress().globalMatch(block); matches.hasNext();)
        last = matches.next();
    return printedSeconds(Pattern::substringFromCheckingResult(last, 1));
}

QString decodedBlock(const QByteArray &block)
{
    QString text;
    QByteArray line;
    for (const char byte : block) {
        line += byte;
        if (byte == '\n' || byte == '\r')
            text += Text::stringValue(std::exchange(line, {}));
    }
    return text + Text::stringValue(line);
}

OwnLines::OwnLines(const QStringList &paths)
{
    for (const QString &path : paths)
        m_paths << QFile::encodeName(path);
}

QByteArray OwnLines::in(QByteArray chunk)
{
    constexpr int indentOfTexts = 4;
    for (const QByteArray &path : m_paths)
        chunk.replace(path, QByteArray());
    QByteArray own;
    for (const char byte : chunk) {
        const bool isLineEnd = byte == '\n' || byte == '\r';
        if (isLineEnd)
            m_indent = 0;
        else if (m_isIndenting && byte == ' ' && m_indent < indentOfTexts)
            ++m_indent;
        m_isIndenting = isLineEnd || (m_isIndenting && byte == ' ');
        if (m_indent < indentOfTexts)
            own += byte;
    }
    return own;
}

}

void DurationScanner::append(const QString &block)
{
    if (!m_decided)
        m_tail += block;
}

std::optional<qint64> DurationScanner::duration()
{
    if (m_decided)
        return m_duration;
    // A search covers as many UTF-16 units as the whole text has characters.
    const qsizetype searchedEnd = std::max<qsizetype>(Text::characterCount(m_tail) - m_surplus, 0);
    const QStringView searched = Pattern::searchRange(m_tail, searchedEnd);
    const QRegularExpressionMatch match = ToolOutput::regexprDuration().match(searched);
    if (match.hasMatch()) {
        // Only the first match counts, even when it holds no time ("N/A").
        m_decided = true;
        m_duration = ToolOutput::printedSeconds(Pattern::substringFromCheckingResult(match, 1));
        m_tail.clear();
    } else {
        dropSearchedLines(searchedEnd);
    }
    return m_duration;
}

void DurationScanner::dropSearchedLines(qsizetype searchedEnd)
{
    // A match lies within one line, so searched lines can go.
    const qsizetype lineStart = QStringView(m_tail).first(searchedEnd).lastIndexOf(u'\n') + 1;
    const QStringView dropped = QStringView(m_tail).first(lineStart);
    m_surplus += dropped.size() - Text::characterCount(dropped);
    m_tail.remove(0, lineStart);
}
