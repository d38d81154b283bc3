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

    /// What another run of the program would read.
    static QString settings()
    {
        QFile file(QSettings(u"VideoConverter"_s, u"VideoConverter"_s).fileName());
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

private Q_SLOTS:
    void movedBundle_isFound()
    {
        const QTemporaryDir temporary;
        const QDir folder(QFileInfo(temporary.path()).canonicalFilePath());
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

    void registeredDefault_isNeverWritten()
    {
        Preferences::registerDefaults();
        Defaults::remove(u"IsFirstRun"_s);
        QVERIFY(Preferences::isFirstRun());
        QVERIFY2(!settings().contains(u"IsFirstRun"_s), qPrintable(settings()));
        Preferences::setFirstRun(false);
        QVERIFY(!Preferences::isFirstRun());
        QVERIFY2(settings().contains(u"IsFirstRun=false"_s), qPrintable(settings()));
        Defaults::remove(u"IsFirstRun"_s);
        QVERIFY(Preferences::isFirstRun());
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
