// SPDX-License-Identifier: MIT
#include "support/Bundle.h"
#include "support/Configuration.h"
#include "support/Defaults.h"
#include "support/Preferences.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

using namespace Qt::StringLiterals;

/// What the program finds on the disk and in its environment.
class TestEnvironment : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

    /// What another run of the program would read.
    static QString settings()
    {
        QFile file(QSettings(u"VideoConverter"_s, u"VideoConverter"_s).fileName());
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        Preferences::registerDefaults();
        Defaults::remove(u"IsFirstRun"_s);
        Defaults::remove(u"FirstLaunch"_s);
    }

    void info_isReadFromThePropertyList()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(u"Contents"_s));
        QFile file(m_folder->filePath(u"Contents/Info.plist"_s));
        const auto info = [&](const QByteArray &list) {
            if (file.open(QIODevice::WriteOnly))
                file.write(list);
            file.close();
            return Bundle(m_folder->path()).infoString(u"K"_s);
        };
        const QByteArray start = "<plist><dict><key>A</key><string>K</string><key>K</key>\n\t";
        const QByteArray end = "<key>B</key><string>x</string></dict></plist>";
        QCOMPARE(info(start + "<string>1 &lt; 2</string>" + end), u"1 < 2"_s);
        QCOMPARE(info(start + "<string/>" + end), u""_s);
        for (const QByteArray &other : { start + "<integer>1</integer>" + end, start + end,
                 start + "<str", QByteArray("bplist00\x01\x02") })
            QCOMPARE(info(other), std::nullopt);
        QCOMPARE(Bundle(u"/nowhere"_s).infoString(u"K"_s), std::nullopt);
    }

    void movedBundle_isFound()
    {
        const QDir folder(QFileInfo(m_folder->path()).canonicalFilePath());
        const QString bundle = folder.filePath(u"Contents/MacOS/Ä b%d.app"_s);
        QVERIFY(folder.mkpath(bundle + "/Contents/MacOS"_L1));
        const QString program = bundle + "/Contents/MacOS/program"_L1;
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), program));
        QVERIFY(QFile::link(program, folder.filePath(u"link"_s)));

        QProcess process;
        process.start(folder.filePath(u"link"_s), { u"--print-bundle"_s });
        QVERIFY(process.waitForFinished());
        QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()), bundle);
    }

    void address_isReplacedByLoopbackOnly()
    {
        using namespace Configuration;
        for (const auto &[variable, value] :
            { std::pair{ "VIDEO_CONVERTER_COLLECTOR_URL", &collectorUrl },
                std::pair{ "VIDEO_CONVERTER_FEED_URL", &feedUrl },
                std::pair{ "VIDEO_CONVERTER_CRASH_URL", &crashUrl } }) {
            const QString built = value();
            for (const char *own : { "http://127.0.0.1:8080/a", "https://[::1]:1/" }) {
                qputenv(variable, own);
                QCOMPARE(value(), QString::fromUtf8(own));
            }
            for (const char *other : { "http://127.0.0.1.example.org/",
                     "http://localhost@example.org/", "http://example.org/127.0.0.1", "//127.0.0.1",
                     "127.0.0.1:80", "file://localhost/etc/passwd" }) {
                qputenv(variable, other);
                QVERIFY2(value() == built, other);
            }
            qunsetenv(variable);
        }
    }

    void doNotTrack_isObeyed()
    {
        for (const auto &[value, obeyed] : { std::pair{ "1", true }, std::pair{ "true", true },
                 std::pair{ "0", false }, std::pair{ "", false } }) {
            qputenv("DO_NOT_TRACK", value);
            QCOMPARE(Configuration::doNotTrack(), obeyed);
        }
        qunsetenv("DO_NOT_TRACK");
    }

    void registeredDefault_isNeverWritten()
    {
        QVERIFY(Preferences::isFirstRun());
        QVERIFY2(!settings().contains(u"IsFirstRun"_s), qPrintable(settings()));
        Preferences::setFirstRun(false);
        QVERIFY(!Preferences::isFirstRun());
        QVERIFY2(settings().contains(u"IsFirstRun=false"_s), qPrintable(settings()));
        Defaults::remove(u"IsFirstRun"_s);
        QVERIFY(Preferences::isFirstRun());
    }

    void firstLaunch_isRecordedOnce()
    {
        for (const QVariant &notAMoment :
            { QVariant(), QVariant(5), QVariant(u"2020-01-02T03:04:05"_s) }) {
            Defaults::setValue(u"FirstLaunch"_s, notAMoment);
            const QDateTime before = QDateTime::currentDateTime();
            QVERIFY(Preferences::firstLaunchDate() >= before);
            const QDateTime kept = Preferences::firstLaunchDate();
            QVERIFY(kept >= before && kept <= QDateTime::currentDateTime());
            QTest::qWait(2);
            QCOMPARE(Preferences::firstLaunchDate(), kept);
            QVERIFY2(settings().contains(u"@DateTime"_s), qPrintable(settings()));
        }
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    if (QCoreApplication::arguments().value(1) == u"--print-bundle") {
        std::fputs(qPrintable(Bundle::main().bundlePath()), stdout);
        return 0;
    }
    TestEnvironment test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_environment.moc"
