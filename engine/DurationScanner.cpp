// SPDX-License-Identifier: MIT
#include "engine/DurationScanner.h"

#include "engine/ToolOutput.h"
#include "support/Text.h"

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
