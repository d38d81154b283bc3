// SPDX-License-Identifier: MIT
#include "LoopbackServer.h"
#include "support/Defaults.h"
#include "updates/UpdateDownload.h"
#include "updates/Updater.h"
#include "updates/UpdaterDelegate.h"

#include <QDateTime>
#include <QDir>
#include <QNetworkProxyFactory>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>

#include <sodium.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Outcome = UpdateCheck::Outcome;

namespace {

struct Keys {
    Keys()
    {
        const QByteArray seed(crypto_sign_SEEDBYTES, 's');
        crypto_sign_seed_keypair(data(publicKey), data(secretKey), data(seed));
    }

    static unsigned char *data(const QByteArray &bytes)
    {
        return reinterpret_cast<unsigned char *>(const_cast<char *>(bytes.constData()));
    }

    [[nodiscard]] QByteArray sign(const QByteArray &message) const
    {
        const QByteArray signature(crypto_sign_BYTES, '\0');
        crypto_sign_detached(data(signature), nullptr, data(message),
            static_cast<unsigned long long>(message.size()), data(secretKey));
        return signature;
    }

    QByteArray publicKey = QByteArray(crypto_sign_PUBLICKEYBYTES, '\0');
    QByteArray secretKey = QByteArray(crypto_sign_SECRETKEYBYTES, '\0');
};

const QByteArray package = "the new package";

}

class tst_Updater : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void check_comparesVersions_data();
    void check_comparesVersions();
    void check_believesSignedAnnouncementsOnly_data();
    void check_believesSignedAnnouncementsOnly();
    void check_endsWithUnreadableFeeds_data();
    void check_endsWithUnreadableFeeds();
    void check_withoutFeedSaysSo();
    void backgroundCheck_isDaily_data();
    void backgroundCheck_isDaily();
    void backgroundCheck_isSilentUnlessSomethingIsNew();
    void download_keepsOnlyWhatWasSigned_data();
    void download_keepsOnlyWhatWasSigned();
    void download_replacesNothing();

private:
    [[nodiscard]] QByteArray item(
        const QByteArray &version, const QByteArray &attributes = {}) const;
    [[nodiscard]] QByteArray signedItem(const QByteArray &version) const;
    void serveFeed(const QByteArray &items);
    [[nodiscard]] UpdateCheck checkNow();

    Keys m_keys;
    std::unique_ptr<LoopbackServer> m_server;
    std::unique_ptr<QTemporaryDir> m_folder;
    UpdaterSettings m_settings;
    UpdaterDelegate m_delegate;
    QTemporaryFile m_feedFile;
};

void tst_Updater::initTestCase()
{
    QVERIFY(sodium_init() >= 0);
    QNetworkProxyFactory::setUseSystemConfiguration(false);
    QVERIFY(m_feedFile.open() && m_feedFile.write("<rss/>") > 0 && m_feedFile.flush());
}

void tst_Updater::init()
{
    m_server = std::make_unique<LoopbackServer>();
    m_folder = std::make_unique<QTemporaryDir>();
    m_settings = { .version = u"1.5"_s,
        .publicKey = QString::fromLatin1(m_keys.publicKey.toBase64()),
        .downloadFolder = m_folder->filePath(u"Downloads"_s) };
    qputenv("VIDEO_CONVERTER_FEED_URL", m_server->address(u"/update.xml"_s).toLatin1());
    Defaults::remove(u"LastUpdateCheck"_s);
}

QByteArray tst_Updater::item(const QByteArray &version, const QByteArray &attributes) const
{
    return "<item><description>Notes</description><enclosure url='"
        + m_server->address(u"/new.deb"_s).toLatin1() + "' sparkle:version='" + version + "' "
        + attributes + "/></item>";
}

QByteArray tst_Updater::signedItem(const QByteArray &version) const
{
    const QByteArray signature = m_keys.sign(package);
    return item(version,
        "sparkle:edSignature='" + signature.toBase64() + "' sparkle:versionSignature='"
            + m_keys.sign(signature + version).toBase64() + "'");
}

void tst_Updater::serveFeed(const QByteArray &items)
{
    m_server->answers["/update.xml"].body
        = "<rss xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle'><channel>"
        + items + "</channel></rss>";
}

UpdateCheck tst_Updater::checkNow()
{
    Updater updater(m_settings);
    updater.setDelegate(&m_delegate);
    QSignalSpy spy(&updater, &Updater::checked);
    updater.checkForUpdates();
    if (spy.isEmpty() && !spy.wait(5000))
        qFatal("no answer");
    return spy.first().first().value<UpdateCheck>();
}

void tst_Updater::check_comparesVersions_data()
{
    QTest::addColumn<QByteArrayList>("versions");
    QTest::addColumn<QString>("offered");
    QTest::newRow("newer") << QByteArrayList{ "1.6" } << u"1.6"_s;
    QTest::newRow("newest of many")
        << QByteArrayList{ "1.6", "1.10", "1.9", "1.10-rc1" } << u"1.10"_s;
    QTest::newRow("same") << QByteArrayList{ "1.5.0" } << QString();
    QTest::newRow("older, rightly signed") << QByteArrayList{ "1.4", "0.9" } << QString();
    QTest::newRow("pre-release of this") << QByteArrayList{ "1.5-rc1" } << QString();
    QTest::newRow("none") << QByteArrayList{} << QString();
}

void tst_Updater::check_comparesVersions()
{
    QFETCH(QByteArrayList, versions);
    QByteArray items;
    for (const QByteArray &version : versions)
        items += signedItem(version);
    serveFeed(items);
    const UpdateCheck check = checkNow();
    QTEST(check.item.versionText, "offered");
    QCOMPARE(
        check.outcome, check.item.versionText.isEmpty() ? Outcome::UpToDate : Outcome::Available);
    QCOMPARE(check.isDownloadable, check.outcome == Outcome::Available);
    QVERIFY(check.byUser);
}

void tst_Updater::check_believesSignedAnnouncementsOnly_data()
{
    QTest::addColumn<QByteArray>("items");
    QTest::addColumn<QString>("key");
    QTest::addColumn<Outcome>("outcome");
    const Keys keys;
    const QByteArray signature = keys.sign(package);
    const auto attributes = [&](const QByteArray &versionSignature) {
        return "sparkle:edSignature='" + signature.toBase64() + "' sparkle:versionSignature='"
            + versionSignature.toBase64() + "'";
    };
    init();
    const QString key = m_settings.publicKey;
    QTest::newRow("unsigned") << item("1.6") << key << Outcome::Untrusted;
    QTest::newRow("version unsigned") << item("1.6", attributes({})) << key << Outcome::Untrusted;
    QTest::newRow("old file passed off as new")
        << item("1.6", attributes(keys.sign(signature + "1.4"))) << key << Outcome::Untrusted;
    QTest::newRow("signed for another file")
        << item("1.6", attributes(keys.sign(keys.sign("other") + "1.6"))) << key
        << Outcome::Untrusted;
    QTest::newRow("signed with another key")
        << signedItem("1.6") << QString::fromLatin1(QByteArray(32, 'k').toBase64())
        << Outcome::Untrusted;
    QTest::newRow("key is rubbish") << signedItem("1.6") << u"rubbish"_s << Outcome::Untrusted;
    QTest::newRow("no key: for the site only") << item("1.6") << QString() << Outcome::Available;
}

void tst_Updater::check_believesSignedAnnouncementsOnly()
{
    QFETCH(QByteArray, items);
    QFETCH(QString, key);
    m_settings.publicKey = key;
    serveFeed(items);
    const UpdateCheck check = checkNow();
    QTEST(check.outcome, "outcome");
    QVERIFY(!check.isDownloadable);
}

void tst_Updater::check_endsWithUnreadableFeeds_data()
{
    using Answer = LoopbackServer::Answer;
    QTest::addColumn<LoopbackServer::Answer>("answer");
    QTest::newRow("malformed") << Answer{ .body = "<rss><item>" };
    QTest::newRow("entity bomb") << Answer{ .body
        = "<!DOCTYPE rss [<!ENTITY a 'aa'>]><rss>&a;</rss>" };
    QTest::newRow("huge") << Answer{ .body = "<rss>" + QByteArray(2 << 20, ' ') + "</rss>" };
    QTest::newRow("never ends") << Answer{ .body = "<rss>", .isEndless = true };
    QTest::newRow("missing") << Answer{ .status = "404 Not Found", .body = "<rss/>" };
    QTest::newRow("redirected in a circle")
        << Answer{ .status = "302 Found", .headers = "Location: /update.xml\r\n" };
    QTest::newRow("redirected to a file") << Answer{ .status = "302 Found",
        .headers = "Location: file://" + m_feedFile.fileName().toLatin1() + "\r\n" };
    QTest::newRow("redirected to data")
        << Answer{ .status = "302 Found", .headers = "Location: data:text/xml,<rss/>\r\n" };
    QTest::newRow("compressed") << Answer{ .body = "\x1f\x8b\x08",
        .headers = "Content-Encoding: gzip\r\n" };
}

void tst_Updater::check_endsWithUnreadableFeeds()
{
    QFETCH(LoopbackServer::Answer, answer);
    m_server->answers["/update.xml"] = answer;
    m_settings.feedLimits.time = 500ms;
    QCOMPARE(checkNow().outcome, Outcome::Failed);
    QVERIFY(m_server->paths.size()
        < 20); // Five redirections, and requests repeated on closed connections.
}

void tst_Updater::check_withoutFeedSaysSo()
{
    qunsetenv("VIDEO_CONVERTER_FEED_URL");
    if (!m_delegate.feedURLStringForUpdater(nullptr).isEmpty())
        QSKIP("this build has a feed");
    QCOMPARE(checkNow().outcome, Outcome::NotConfigured);
}

void tst_Updater::backgroundCheck_isDaily_data()
{
    QTest::addColumn<qint64>("hoursAgo");
    QTest::addColumn<bool>("isDue");
    QTest::newRow("an hour ago") << qint64{ 1 } << false;
    QTest::newRow("a day ago") << qint64{ 24 } << true;
    QTest::newRow("in a far future") << qint64{ -10000 } << true;
}

void tst_Updater::backgroundCheck_isDaily()
{
    QFETCH(qint64, hoursAgo);
    QFETCH(bool, isDue);
    serveFeed(signedItem("1.6"));
    Defaults::setValue(
        u"LastUpdateCheck"_s, QDateTime::currentDateTimeUtc().addSecs(-3600 * hoursAgo));
    Updater updater(m_settings);
    updater.setDelegate(&m_delegate);
    QSignalSpy spy(&updater, &Updater::checked);
    updater.checkInBackground();
    QCOMPARE(spy.wait(isDue ? 5000 : 200), isDue);
    updater.checkInBackground();
    QVERIFY(!spy.wait(200));
    QCOMPARE(m_server->paths.size(), isDue ? 1 : 0);
}

void tst_Updater::backgroundCheck_isSilentUnlessSomethingIsNew()
{
    Updater updater(m_settings);
    updater.setDelegate(&m_delegate);
    QSignalSpy spy(&updater, &Updater::checked);
    updater.checkInBackground();
    QTRY_COMPARE(m_server->paths.size(), 1);
    QVERIFY(!spy.wait(200));
    // The user's question joins a check that runs and is answered.
    Defaults::remove(u"LastUpdateCheck"_s);
    updater.checkInBackground();
    updater.checkForUpdates();
    QVERIFY(spy.wait(5000));
    QVERIFY(spy.first().first().value<UpdateCheck>().byUser);
    QCOMPARE(m_server->paths.size(), 2);
}

void tst_Updater::download_keepsOnlyWhatWasSigned_data()
{
    using Answer = LoopbackServer::Answer;
    QTest::addColumn<LoopbackServer::Answer>("answer");
    QTest::addColumn<QString>("end");
    QTest::newRow("rightly signed") << Answer{ .body = package } << u"saved"_s;
    QTest::newRow("redirected once")
        << Answer{ .status = "302 Found", .headers = "Location: /moved\r\n" } << u"saved"_s;
    QTest::newRow("one byte changed") << Answer{ .body = "the new packagf" } << u"forged"_s;
    QTest::newRow("one byte more") << Answer{ .body = package + "\n" } << u"forged"_s;
    QTest::newRow("empty") << Answer{} << u"failed"_s;
    QTest::newRow("huge") << Answer{ .body = QByteArray(2 << 20, 'x') } << u"failed"_s;
    QTest::newRow("never ends") << Answer{ .body = package, .isEndless = true } << u"failed"_s;
    QTest::newRow("missing") << Answer{ .status = "404 Not Found", .body = package } << u"failed"_s;
}

void tst_Updater::download_keepsOnlyWhatWasSigned()
{
    QFETCH(LoopbackServer::Answer, answer);
    QFETCH(QString, end);
    m_settings.fileLimits = { .bytes = 1 << 20, .time = 500ms };
    m_server->answers["/new.deb"] = answer;
    m_server->answers["/moved"].body = package;
    serveFeed(signedItem("1.6"));

    const auto download = Updater(m_settings).download(checkNow().item);
    QSignalSpy saved(download.get(), &UpdateDownload::saved);
    QSignalSpy failed(download.get(), &UpdateDownload::failed);
    download->start();
    QTRY_COMPARE(saved.size() + failed.size(), 1);
    const QString actual = !saved.isEmpty() ? u"saved"_s
        : failed[0][0].toBool()             ? u"forged"_s
                                            : u"failed"_s;
    QCOMPARE(actual, end);
    const QDir folder(m_settings.downloadFolder);
    QCOMPARE(folder.entryList(QDir::Files | QDir::Hidden),
        end == u"saved" ? QStringList{ u"VideoConverter-1.6.deb"_s } : QStringList());
}

void tst_Updater::download_replacesNothing()
{
    m_server->answers["/new.deb"].body = package;
    serveFeed(signedItem("1.6"));
    QDir().mkpath(m_settings.downloadFolder);
    QFile mine(m_settings.downloadFolder + u"/VideoConverter-1.6.deb"_s);
    QVERIFY(mine.open(QIODevice::WriteOnly));

    const auto download = Updater(m_settings).download(checkNow().item);
    QSignalSpy saved(download.get(), &UpdateDownload::saved);
    download->start();
    QVERIFY(saved.wait(5000));
    QCOMPARE(mine.size(), 0);
    QFile file(m_settings.downloadFolder + u"/VideoConverter-1.6 2.deb"_s);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), package);
    QCOMPARE(saved[0][0].toString(), file.fileName());
}

QTEST_GUILESS_MAIN(tst_Updater)
#include "tst_updater.moc"
