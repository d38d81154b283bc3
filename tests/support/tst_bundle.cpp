// SPDX-License-Identifier: MIT
#include "support/Bundle.h"
#include "support/Configuration.h"
#include "support/Localized.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <cstdio>

using namespace Qt::StringLiterals;

class TestBundle : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void info_isReadFromThePropertyList_data();
    void info_isReadFromThePropertyList();
    void localizations_areThoseOfTheResources();
    void movedBundle_isFound_data();
    void movedBundle_isFound();
    void address_isReplacedByLoopbackOnly_data();
    void address_isReplacedByLoopbackOnly();
    void doNotTrack_isObeyed_data();
    void doNotTrack_isObeyed();
    void text_hasTranslationOrEnglish_data();
    void text_hasTranslationOrEnglish();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

class OneText : public QTranslator {
public:
    QString translate(const char *context, const char *source, const char * /*comment*/,
        int /*count*/) const override
    {
        const bool isKnown
            = qstrcmp(context, "Localizable") == 0 && qstrcmp(source, "Known.key") == 0;
        return isKnown ? u"Да"_s : QString();
    }
    bool isEmpty() const override { return false; }
};

}

void TestBundle::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkpath(u"Contents/Resources"_s));
}

void TestBundle::info_isReadFromThePropertyList_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<std::optional<QString>>("value");

    using Text = std::optional<QString>;
    const auto row = [](const char *name, const QByteArray &entries, const Text &value) {
        QTest::newRow(name) << "<plist version=\"1.0\"><dict>" + entries + "</dict></plist>"
                            << value;
    };
    row("text", "<key>A</key><string>x</string><key>K</key>\n\t<string>1 &lt; 2</string>",
        u"1 < 2"_s);
    row("empty text", "<key>K</key><string/>", u""_s);
    row("number", "<key>K</key><integer>1</integer><key>A</key><string>x</string>", {});
    row("flag", "<key>K</key><true/>", {});
    row("no such key", "<key>A</key><string>K</string><key>k</key><string>x</string>", {});
    row("key without value", "<key>K</key>", {});
    QTest::newRow("cut off") << QByteArray("<plist><dict><key>K</key><str") << Text();
    QTest::newRow("no property list") << QByteArray("bplist00\x01\x02") << Text();
    QTest::newRow("no file") << QByteArray() << Text();
}

void TestBundle::info_isReadFromThePropertyList()
{
    QFETCH(QByteArray, list);
    if (!list.isEmpty()) {
        QFile file(m_folder->filePath(u"Contents/Info.plist"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(list);
    }
    QTEST(Bundle(m_folder->path()).infoString(u"K"_s), "value");
}

void TestBundle::localizations_areThoseOfTheResources()
{
    const Bundle bundle(m_folder->path());
    QCOMPARE(bundle.localizations(), QStringList());
    for (const QString &name : { u"ru.lproj"_s, u"de.lproj"_s, u"zh_CN.lproj"_s, u"images"_s })
        QVERIFY(QDir(m_folder->path()).mkpath(u"Contents/Resources/"_s + name));
    QFile file(m_folder->filePath(u"Contents/Resources/xx.lproj"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));

    QCOMPARE(bundle.localizations(), QStringList({ u"de"_s, u"ru"_s, u"zh_CN"_s }));
    QVERIFY(QFileInfo(bundle.localizationPath(u"zh_CN"_s)).isDir());
}

void TestBundle::movedBundle_isFound_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("spaces and accents") << u"Ä b%d.app"_s;
    QTest::newRow("nested") << u"Contents/MacOS/x.app"_s;
}

void TestBundle::movedBundle_isFound()
{
    QFETCH(QString, name);
    const QDir folder(QFileInfo(m_folder->path()).canonicalFilePath());
    const QString programs = name + "/Contents/MacOS"_L1;
    QVERIFY(folder.mkpath(programs));
    const QString program = folder.filePath(programs + "/program"_L1);
    QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), program));
    QVERIFY(QFile::link(program, folder.filePath(u"link"_s)));

    QProcess process;
    process.start(folder.filePath(u"link"_s), { u"--print-bundle"_s });
    QVERIFY(process.waitForFinished());
    QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()), folder.filePath(name));
}

void TestBundle::address_isReplacedByLoopbackOnly_data()
{
    QTest::addColumn<bool>("isObeyed");

    for (const char *address :
        { "http://127.0.0.1:8080/a", "http://localhost/", "https://[::1]:1/" })
        QTest::newRow(address) << true;
    for (const char *address : { "http://example.org/", "http://127.0.0.1.example.org/",
             "http://localhost@example.org/", "http://example.org/127.0.0.1", "//127.0.0.1",
             "127.0.0.1:80", "file://localhost/etc/passwd", "" })
        QTest::newRow(address) << false;
}

void TestBundle::address_isReplacedByLoopbackOnly()
{
    QFETCH(bool, isObeyed);
    const QString address = QString::fromUtf8(QTest::currentDataTag());
    const std::pair<const char *, QString (*)()> addresses[]{
        { "VIDEO_CONVERTER_COLLECTOR_URL", Configuration::collectorUrl },
        { "VIDEO_CONVERTER_FEED_URL", Configuration::feedUrl },
        { "VIDEO_CONVERTER_CRASH_URL", Configuration::crashUrl },
    };
    for (const auto &[variable, value] : addresses) {
        qunsetenv(variable);
        const QString built = value();
        qputenv(variable, address.toUtf8());
        QCOMPARE(value(), isObeyed ? address : built);
        qunsetenv(variable);
    }
}

void TestBundle::doNotTrack_isObeyed_data()
{
    QTest::addColumn<bool>("isObeyed");

    QTest::newRow("1") << true;
    QTest::newRow("true") << true;
    QTest::newRow("0") << false;
    QTest::newRow("") << false;
}

void TestBundle::doNotTrack_isObeyed()
{
    qputenv("DO_NOT_TRACK", QTest::currentDataTag());
    QTEST(Configuration::doNotTrack(), "isObeyed");
    qunsetenv("DO_NOT_TRACK");
}

void TestBundle::text_hasTranslationOrEnglish_data()
{
    QTest::addColumn<LocalizedText>("text");
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("translated");

    QTest::newRow("key is the text")
        << LocalizedText{ "%dm – %ds", "" } << u"%dm – %ds"_s << u"%dm – %ds"_s;
    QTest::newRow("translated") << LocalizedText{ "Known.key", "", "Yes" } << u"Yes"_s << u"Да"_s;
    QTest::newRow("not translated") << LocalizedText{ "Other.key", "", "Nö" } << u"Nö"_s << u"Nö"_s;
}

void TestBundle::text_hasTranslationOrEnglish()
{
    QFETCH(LocalizedText, text);
    QTEST(localized(text), "english");
    OneText translator;
    QCoreApplication::installTranslator(&translator);
    QTEST(localized(text), "translated");
}

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    if (app.arguments().value(1) == u"--print-bundle") {
        std::fputs(qUtf8Printable(Bundle::main().bundlePath()), stdout);
        return 0;
    }
    TestBundle test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_bundle.moc"
