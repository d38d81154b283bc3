// SPDX-License-Identifier: MIT
#include "LoopbackServer.h"
#include "support/Defaults.h"
#include "tests/fixtures/Rows.h"
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
using Answer = LoopbackServer::Answer;
using Outcome = UpdateCheck::Outcome;

namespace {

struct Keys {
    explicit Keys(char letter)
    {
        const QByteArray seed(crypto_sign_SEEDBYTES, letter);
        crypto_sign_seed_keypair(data(publicKey), data(secretKey), data(seed));
    }

    static unsigned char *data(const QByteArray &bytes)
    {
        return reinterpret_cast<unsigned char *>(const_cast<char *>(bytes.constData()));
    }

    [[nodiscard]] QByteArray sign(const QByteArray &message) const
    {
        QByteArray signature(crypto_sign_BYTES, '\0');
        crypto_sign_detached(data(signature), nullptr, data(message),
            static_cast<unsigned long long>(message.size()), data(secretKey));
        return signature;
    }

    QByteArray publicKey = QByteArray(crypto_sign_PUBLICKEYBYTES, '\0');
    QByteArray secretKey = QByteArray(crypto_sign_SECRETKEYBYTES, '\0');
};

constexpr char package[] = "the new package";

Answer feed(const QByteArray &items)
{
    return { .body
        = "<rss xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle'><channel>"
            + items + "</channel></rss>" };
}

Answer redirection(const QByteArray &address)
{
    return { .status = "302 Found", .headers = "Location: " + address + "\r\n" };
}

QByteArray ownFile(const QByteArray &contents)
{
    static QTemporaryFile file;
    file.open();
    file.write(contents);
    file.flush();
    return file.fileName().toLatin1();
}

}

class tst_Updater : public QObject {
    Q_OBJECT

private:
    QByteArray item(const QByteArray &version, const QByteArray &signature,
        const QByteArray &versionSignature) const
    {
        return "<item><enclosure url='" + m_server.address(u"/new.deb"_s).toLatin1()
            + "' sparkle:version='" + version + "' sparkle:edSignature='" + signature.toBase64()
            + "' sparkle:versionSignature='" + versionSignature.toBase64() + "'/></item>";
    }

    QByteArray signedItem(const QByteArray &version) const
    {
        const QByteArray signature = m_keys.sign(package);
        return item(version, signature, m_keys.sign(signature + version));
    }

    UpdateCheck checkNow()
    {
        Updater updater(m_settings);
        updater.setDelegate(&m_delegate);
        QSignalSpy spy(&updater, &Updater::checked);
        updater.checkForUpdates();
        if (spy.isEmpty() && !spy.wait(5000))
            qFatal("no answer");
        return spy.first().first().value<UpdateCheck>();
    }

    Keys m_keys{ 's' };
    LoopbackServer m_server;
    QTemporaryDir m_folder;
    UpdaterSettings m_settings;
    UpdaterDelegate m_delegate;

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(sodium_init() >= 0);
        QNetworkProxyFactory::setUseSystemConfiguration(false);
    }

    void init()
    {
        m_server.answers.clear();
        m_server.paths.clear();
        m_settings = { .version = u"1.5"_s,
            .publicKey = QString::fromLatin1(m_keys.publicKey.toBase64()),
            .downloadFolder = m_folder.filePath(u"Downloads"_s) };
        QDir(m_settings.downloadFolder).removeRecursively();
        qputenv("VIDEO_CONVERTER_FEED_URL", m_server.address(u"/update.xml"_s).toLatin1());
        Defaults::remove(u"LastUpdateCheck"_s);
    }

    void check_judgesTheFeed_data()
    {
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<Outcome>("outcome");
        QTest::addColumn<QString>("offered");
        const auto row = [](const char *name, const Answer &answer, Outcome outcome,
                             const QString &offered = {}) {
            QTest::newRow(name) << answer << outcome << offered;
        };
        row("newer", feed(signedItem("1.6")), Outcome::Available, u"1.6"_s);
        row("newest of many", feed(signedItem("1.6") + signedItem("1.10") + signedItem("1.10-rc1")),
            Outcome::Available, u"1.10"_s);
        row("same", feed(signedItem("1.5.0")), Outcome::UpToDate);
        row("older, rightly signed", feed(signedItem("1.4") + signedItem("0.9")),
            Outcome::UpToDate);
        row("pre-release of this", feed(signedItem("1.5-rc1")), Outcome::UpToDate);
        row("nothing", feed({}), Outcome::UpToDate);

        const QByteArray right = m_keys.sign(package);
        row("unsigned", feed(item("1.6", {}, {})), Outcome::Untrusted);
        row("version unsigned", feed(item("1.6", right, {})), Outcome::Untrusted);
        row("old file as a new one", feed(item("1.6", right, m_keys.sign(right + "1.4"))),
            Outcome::Untrusted);
        row("version of another file",
            feed(item("1.6", right, m_keys.sign(m_keys.sign("other") + "1.6"))),
            Outcome::Untrusted);
        row("another key", feed(item("1.6", right, Keys('x').sign(right + "1.6"))),
            Outcome::Untrusted);
        row("signed older, unsigned newer", feed(signedItem("1.6") + item("1.7", right, right)),
            Outcome::Available, u"1.6"_s);

        row("malformed", { .body = "<rss><item>" }, Outcome::Failed);
        row("entity bomb", { .body = "<!DOCTYPE rss [<!ENTITY a 'aa'>]><rss>&a;</rss>" },
            Outcome::Failed);
        row("huge", { .body = "<rss>" + QByteArray(2 << 20, ' ') + "</rss>" }, Outcome::Failed);
        row("never ends", { .body = "<rss>", .isEndless = true }, Outcome::Failed);
        row("missing", { .status = "404 Not Found", .body = "<rss/>" }, Outcome::Failed);
        row("redirected in a circle", redirection("/update.xml"), Outcome::Failed);
        row("redirected to a file", redirection("file://" + ownFile("<rss/>")), Outcome::Failed);
        row("redirected to data", redirection("data:text/xml,<rss/>"), Outcome::Failed);
        row("compressed", { .body = "\x1f\x8b\x08", .headers = "Content-Encoding: gzip\r\n" },
            Outcome::Failed);
    }
    void check_judgesTheFeed()
    {
        QFETCH(Answer, answer);
        m_server.answers["/update.xml"] = answer;
        m_settings.feedLimits.time = 500ms;
        const UpdateCheck check = checkNow();
        QTEST(check.outcome, "outcome");
        QTEST(check.item.versionText, "offered");
        QVERIFY(check.byUser);
        QCOMPARE(check.isDownloadable, check.outcome == Outcome::Available);
        // Five redirections, and requests repeated on closed connections.
        QVERIFY(m_server.paths.size() < 20);
    }

    void check_withoutKeyOffersNoDownload()
    {
        m_server.answers["/update.xml"] = feed(signedItem("1.6"));
        m_settings.publicKey.clear();
        UpdateCheck check = checkNow();
        QCOMPARE(check.outcome, Outcome::Available);
        QVERIFY(!check.isDownloadable);
        m_settings.publicKey = u"rubbish"_s;
        check = checkNow();
        QCOMPARE(check.outcome, Outcome::Untrusted);
    }

    void check_withoutFeedSaysSo()
    {
        qunsetenv("VIDEO_CONVERTER_FEED_URL");
        if (!m_delegate.feedURLStringForUpdater(nullptr).isEmpty())
            QSKIP("this build has a feed");
        QCOMPARE(checkNow().outcome, Outcome::NotConfigured);
    }

    void backgroundCheck_isDaily_data()
    {
        addRows<qint64, bool>({ "hoursAgo", "isDue" },
            { { "an hour ago", 1, false }, { "a day ago", 24, true },
                { "in a far future", -10000, true } });
    }
    void backgroundCheck_isDaily()
    {
        QFETCH(qint64, hoursAgo);
        QFETCH(bool, isDue);
        m_server.answers["/update.xml"] = feed(signedItem("1.6"));
        Defaults::setValue(
            u"LastUpdateCheck"_s, QDateTime::currentDateTimeUtc().addSecs(-3600 * hoursAgo));
        Updater updater(m_settings);
        updater.setDelegate(&m_delegate);
        QSignalSpy spy(&updater, &Updater::checked);
        updater.checkInBackground();
        QCOMPARE(spy.wait(isDue ? 5000 : 200), isDue);
        updater.checkInBackground();
        QVERIFY(!spy.wait(200));
        QCOMPARE(m_server.paths.size(), isDue ? 1 : 0);
    }

    void backgroundCheck_isSilentUnlessSomethingIsNew()
    {
        Updater updater(m_settings);
        updater.setDelegate(&m_delegate);
        QSignalSpy spy(&updater, &Updater::checked);
        updater.checkInBackground();
        QTRY_COMPARE(m_server.paths.size(), 1);
        QVERIFY(!spy.wait(200));
        // The user's question joins a check that runs and is answered.
        Defaults::remove(u"LastUpdateCheck"_s);
        updater.checkInBackground();
        updater.checkForUpdates();
        QVERIFY(spy.wait(5000));
        QVERIFY(spy.first().first().value<UpdateCheck>().byUser);
        QCOMPARE(m_server.paths.size(), 2);
    }

    void download_keepsOnlyWhatWasSigned_data()
    {
        addRows<Answer, Utf8>({ "answer", "end" },
            { { "rightly signed", { .body = package }, "saved" },
                { "redirected once", redirection("/moved"), "saved" },
                { "one byte changed", { .body = "the new packagf" }, "forged" },
                { "one byte more", { .body = QByteArray(package) + "\n" }, "forged" },
                { "empty", {}, "failed" },
                { "huge", { .body = QByteArray(2 << 20, 'x') }, "failed" },
                { "never ends", { .body = package, .isEndless = true }, "failed" },
                { "missing", { .status = "404 Not Found", .body = package }, "failed" } });
    }
    void download_keepsOnlyWhatWasSigned()
    {
        QFETCH(Answer, answer);
        QFETCH(QString, end);
        m_settings.fileLimits = { .bytes = 1 << 20, .time = 500ms };
        m_server.answers["/new.deb"] = answer;
        m_server.answers["/moved"].body = package;
        m_server.answers["/update.xml"] = feed(signedItem("1.6"));

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

    void download_replacesNothing()
    {
        m_server.answers["/new.deb"].body = package;
        m_server.answers["/update.xml"] = feed(signedItem("1.6"));
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
        QCOMPARE(file.readAll(), QByteArray(package));
        QCOMPARE(saved[0][0].toString(), file.fileName());
    }
};

QTEST_GUILESS_MAIN(tst_Updater)
#include "tst_updater.moc"
