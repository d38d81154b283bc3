// SPDX-License-Identifier: MIT
#include "engine/ExistingResult.h"

#include "engine/Verdict.h"

#include <QDateTime>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

// Raw streams have no header that says how long they play: the tool's guess says nothing.
bool lengthIsGuessed(const JSON &info)
{
    static const QStringList rawFormats{ u"aac"_s, u"mp3"_s, u"ac3"_s, u"h264"_s, u"hevc"_s };
    return rawFormats.contains(info[u"format"_s][u"format_name"_s].stringValue());
}

}

bool holdsWholeResult(const ConversionJob &job, const Progress &progress)
{
    const QFileInfo result(job.destPath);
    if (!result.isFile() || result.lastModified() < QFileInfo(job.path).lastModified())
        return false;
    Lengths expected = expectedOf(job);
    expected.isGuessed = lengthIsGuessed(job.conversionInfo);
    const auto outcome = inspected(job, expected, Reading::Packets, progress);
    return outcome && outcome->isDone();
}
