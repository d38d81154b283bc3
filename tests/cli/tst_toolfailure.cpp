// SPDX-License-Identifier: MIT
#include "cli/ToolFailure.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// Captured last lines of the tool and what the user is told.
class TestToolFailure : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void output_givesASentence_data();
    void output_givesASentence();
};

void TestToolFailure::output_givesASentence_data()
{
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<QString>("sentence");
    const QByteArray report = "frame=   24 fps= 24 q=0.0 size=       0kB time=00:00:00.00 "
                              "bitrate=N/A speed=   0x    \r";
    const QByteArray statistics = "[AVIOContext @ 0x555] Statistics: 70164 bytes read, 2 seeks\n";
    const QString noSpace = u"There is no space left on the destination's disk."_s;
    QTest::newRow("disk full in the middle") << report
            + "av_interleaved_write_frame(): No space left on device\n" + statistics
            + "Conversion failed!\n" << noSpace;
    QTest::newRow("disk full, then an encoder that can't start")
        << QByteArray("Could not write header for output file #0 (incorrect codec parameters ?): "
                      "No space left on device\n"
                      "Error initializing output stream 0:0 -- \nConversion failed!\n")
        << noSpace;
    QTest::newRow("a name that sounds like a reason")
        << "Input #0, mov, from '/x/No space left on device':\n/x/a: Permission denied\n"
            + statistics
        << u"Permission was denied to read the film or to write the result."_s;
    QTest::newRow("damaged frames on the way, then no space")
        << "Error while decoding stream #0:0: Invalid data found when processing input\n" + report
            + "av_interleaved_write_frame(): No space left on device\n"
        << noSpace;
    QTest::newRow("encoder") << "Unknown encoder 'libxvid'\n" + statistics
                             << u"The installed tool has no encoder libxvid."_s;
    QTest::newRow("muxer") << QByteArray(
        "[NULL @ 0x56] Unable to find a suitable output format for 'x'\n"
        "Requested output format 'webm' is not a suitable output format\n")
                           << u"The installed tool can't write the format webm."_s;
    QTest::newRow("gone") << QByteArray("/x/gone.mov: No such file or directory\n")
                          << u"The film or the destination's folder has gone."_s;
    QTest::newRow("nothing to take")
        << "Output #0, mp3, to 'x.mp3':\nOutput file #0 does not contain any stream\n" + statistics
        << u"The film holds nothing that this output can take."_s;
    QTest::newRow("encoder options")
        << "[libmp3lame @ 0x56] Specified sample rate 12345 is not supported\n"
           "Error initializing output stream 0:0 -- Error while opening encoder for output stream "
           "#0:0\n"
            + statistics + "Conversion failed!\n"
        << u"The encoder does not take the film's picture or sound as it is."_s;
    QTest::newRow("damaged") << "[mov,mp4 @ 0x56] moov atom not found\n" + statistics
            + "a.mov: Invalid data found when processing input\n"
                             << u"The film's data is damaged."_s;
    QTest::newRow("silent") << QByteArray(
        "\nThe tool has been silent for too long and was stopped.\n")
                            << u"The tool was silent for too long and was stopped."_s;
    QTest::newRow("asked to end") << QByteArray("Exiting normally, received signal 15.\n")
                                  << u"The tool was stopped from outside."_s;
    const QString killed = u"The tool was killed before it was done."_s;
    QTest::newRow("killed") << "  Metadata:\n" + report + report << killed;
    QTest::newRow("killed, sound only")
        << QByteArray("size=       0kB time=00:00:01.00 bitrate= 128.0kbits/s speed=1x    \r")
        << killed;
    QTest::newRow("killed at once") << QByteArray("Press [q] to stop, [?] for help\n") << killed;
    QTest::newRow("nothing said") << QByteArray() << killed;
    QTest::newRow("unknown reason")
        << "  Metadata:\nToo many cooks.\r[libx264 @ 0x55] kb/s:128.50\n" + statistics
            + "Conversion failed!\n"
        << u"The tool failed: Too many cooks."_s;
    QTest::newRow("chatter alone") << statistics + "Conversion failed!\n"
                                   << u"The tool failed: Conversion failed!"_s;
    QTest::newRow("percent signs, control characters, bad bytes") << QByteArray(
        "100%d %s \x1b[31mred \xff\n") << u"The tool failed: 100%d %s ?[31mred \ufffd"_s;
    QTest::newRow("long ago") << ": No space left on device\n"
            + QByteArray("chatter\n").repeated(300)
                              << u"The tool failed: chatter"_s;
}

void TestToolFailure::output_givesASentence()
{
    QFETCH(QByteArray, output);
    QTEST(toolFailureSentence(output), "sentence");
}

QTEST_GUILESS_MAIN(TestToolFailure)
#include "tst_toolfailure.moc"
