// SPDX-License-Identifier: MIT
#include "engine/DurationScanner.h"

#include "engine/ToolOutput.h"
#include "support/Pattern.h"
#include "support/Text.h"

namespace {

// "    title           : Duration: 09:00:00.00, start: 0": the tool's own line has two spaces in
// front.
bool isVideosOwnText(QStringView text, qsizetype position)
{
    const QStringView before = text.first(position);
    const qsizetype lineStart = std::max(before.lastIndexOf(u'\n'), before.lastIndexOf(u'\r')) + 1;
    return before.sliced(lineStart).startsWith(u"    ");
}

}

void DurationScanner::append(const QString &block)
{
    if (m_decided || block.isEmpty())
        return;
    m_tail += block;
    m_searched = false;
}

std::optional<qint64> DurationScanner::duration()
{
    if (m_decided || m_searched)
        return m_duration;
    m_searched = true;
    // A search covers as many UTF-16 units as the whole text has characters.
    const qsizetype searchedEnd = std::max<qsizetype>(Text::characterCount(m_tail) - m_surplus, 0);
    const QStringView searched = Pattern::searchRange(m_tail, searchedEnd);
    QRegularExpressionMatch match;
    for (auto matches = ToolOutput::regexprDuration().globalMatch(searched); matches.hasNext();) {
        match = matches.next();
        if (!isVideosOwnText(searched, match.capturedStart()))
            break;
        match = {};
    }
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
