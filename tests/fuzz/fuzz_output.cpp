// SPDX-License-Identifier: MIT
#include "engine/Remedy.h"
#include "engine/RunReport.h"
#include "engine/ToolOutput.h"
#include "engine/Verdict.h"

using namespace Qt::StringLiterals;

/// What a tool prints, whole and in pieces whose length the first byte says.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const qsizetype piece = bytes.isEmpty() ? 1 : 1 + static_cast<unsigned char>(bytes.front());
    DurationScanner scanner;
    PacketReader packets;
    for (qsizetype start = 0; start < bytes.size(); start += piece) {
        const QByteArray chunk = bytes.mid(start, piece);
        const QString text = ToolOutput::decodedBlock(chunk);
        scanner.append(text);
        static_cast<void>(scanner.duration());
        static_cast<void>(ToolOutput::lastReportedPosition(text));
        packets.append(chunk);
    }
    const Lengths lengths = packets.lengths();
    const QStringList paths{ u"/in.mp4"_s, u"/out.mp4"_s };
    const Outcome failure = toolFailure(bytes);
    static_cast<void>(judged(lengths, { 1e9, 1e9 }));
    static_cast<void>(isInDoubt(failure, reportOf(bytes, paths), lengths));
    static_cast<void>(remedyFor(
        failure, bytes, { paths[0], paths[1], *videoConstraints(u"MKV"_s, {}, {}, {}), {} }));
    static_cast<void>(reportsLostOutput(bytes, paths));
    static_cast<void>(sentenceOf(failure));
    return 0;
}
