// SPDX-License-Identifier: MIT
#include "LoopbackServer.h"
#include "support/Defaults.h"
#include "tests/fixtures/Folder.h"
#include "tests/fixtures/Rows.h"
#include "updates/Updater.h"
#include "updates/dialog/UpdateDialogs.h"

#include <QDateTime>
#include <QDir>
#include <QMessageBox>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <sodium.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Answer = LoopbackServer::Answer;

namespace {

struct Keys {
    Keys() { crypto_sign_keypair(data(publicKey), data(secretKey)); }

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

    QByteArray good(const QByteArray &version) const
    {
        const QByteArray signature = m_keys.sign(package);
        return item(version, signature, m_keys.sign(signature + version));
    }

    void makeUpdater()
    {
        m_updater = std::make_unique<Updater>(m_settings);
        m_checks = std::make_unique<QSignalSpy>(m_updater.get(), &Updater::checked);
    }

    UpdateCheck checkNow()
    {
        makeUpdater();
        m_updater->checkForUpdates();
        if (m_checks->isEmpty() && !m_checks->wait(5000))
            qFatal("no answer");
        return m_checks->first().first().value<UpdateCheck>();
    }

    Keys m_keys;
    LoopbackServer m_server;
    Folder m_folder;
    UpdaterSettings m_settings;
    std::unique_ptr<Updater> m_updater;
    std::unique_ptr<QSignalSpy> m_checks;

private Q_SLOTS:
    void init()
    {
        m_server.answers = { { "/update.xml", feed(good("1.6")) } };
        m_server.requests.clear();
        m_settings = { .version = u"1.5"_s,
            .publicKey = QString::fromLatin1(m_keys.publicKey.toBase64()),
            .downloadFolder = m_folder.path(u"Downloads"_s) };
        qputenv("VIDEO_CONVERTER_FEED_URL", m_server.address(u"/update.xml"_s).toLatin1());
        for (const QString &key :
            { u"LastUpdateCheck"_s, u"SkippedVersion"_s, u"ChecksForUpdates"_s })
            Defaults::remove(key);
    }

    void check_judgesTheFeed_data()
    {
        using enum UpdateCheck::Outcome;
        const QByteArray right = m_keys.sign(package);
        const auto signedAs
            = [&](const QByteArray &signature) { return feed(item("1.6", right, signature)); };
        addRows<Answer, UpdateCheck::Outcome>({ "answer", "outcome" },
            { { "newest", feed(good("1.9") + good("1.10") + good("1.10-rc1")), Available },
                { "newer unsigned", feed(good("1.10") + item("1.11", right, right)), Available },
                { "nothing newer", feed(good("1.5.0") + good("1.5-rc1")), UpToDate },
                { "nothing", feed({}), UpToDate },
                { "unsigned", feed(item("1.6", {}, {})), Untrusted },
                { "version unsigned", signedAs({}), Untrusted },
                { "old file as a new one", signedAs(m_keys.sign(right + "1.4")), Untrusted },
                { "for another file", signedAs(m_keys.sign(m_keys.sign("other") + "1.6")),
                    Untrusted },
                { "another key", signedAs(Keys().sign(right + "1.6")), Untrusted },
                { "malformed", { .body = "<rss><item>" }, Failed },
                { "huge", { .body = "<rss>" + QByteArray(2 << 20, ' ') + "</rss>" }, Failed },
                { "never ends", { .body = "<rss>", .isEndless = true }, Failed },
                { "missing", { .status = "404 Not Found", .body = "<rss/>" }, Failed },
                { "redirected in a circle", redirection("/update.xml"), Failed },
                { "redirected out of the web", redirection("data:text/xml,<rss/>"), Failed } });
    }
    void check_judgesTheFeed()
    {
        QFETCH(Answer, answer);
        m_server.answers["/update.xml"] = answer;
        m_settings.feedLimits.time = 500ms;
        const UpdateCheck check = checkNow();
        QTEST(check.outcome, "outcome");
        QVERIFY(check.byUser);
        const bool isAvailable = check.outcome == UpdateCheck::Outcome::Available;
        QCOMPARE(check.item.versionText, isAvailable ? u"1.10"_s : QString());
        // Five redirections, and requests repeated on closed connections.
        QVERIFY(m_server.requests.size() < 20);
    }

    void check_needsKeyAndFeed()
    {
        m_settings.publicKey.clear();
        QCOMPARE(checkNow().outcome, UpdateCheck::Outcome::Available);
        m_settings.publicKey = u"rubbish"_s;
        QCOMPARE(checkNow().outcome, UpdateCheck::Outcome::Untrusted);
        qunsetenv("VIDEO_CONVERTER_FEED_URL");
        QCOMPARE(checkNow().outcome, UpdateCheck::Outcome::NotConfigured);
    }

    void backgroundCheck_isDailyAndDiscreet_data()
    {
        using List = QStringList;
        addRows<qint64, Utf8, QStringList, int, bool>(
            { "hoursAgo", "version", "setting", "requests", "isReported" },
            { { "an hour ago", 1, "1.6", List(), 0, false },
                { "a day ago", 24, "1.6", List(), 1, true },
                { "in a far future", -10000, "1.6", List(), 1, true },
                { "no news", 24, "1.5", List(), 1, false },
                { "skipped", 24, "1.6", List{ u"SkippedVersion"_s, u"1.6"_s }, 1, false },
                { "another skipped", 24, "1.6", List{ u"SkippedVersion"_s, u"1.5.9"_s }, 1, true },
                { "unwanted", 24, "1.6", List{ u"ChecksForUpdates"_s, u"false"_s }, 0, false } });
    }
    void backgroundCheck_isDailyAndDiscreet()
    {
        QFETCH(qint64, hoursAgo);
        QFETCH(QString, version);
        QFETCH(bool, isReported);
        QFETCH(const QStringList, setting);
        if (!setting.isEmpty())
            Defaults::setValue(setting[0], setting[1]);
        m_server.answers["/update.xml"] = feed(good(version.toLatin1()));
        Defaults::setValue(
            u"LastUpdateCheck"_s, QDateTime::currentDateTimeUtc().addSecs(-3600 * hoursAgo));
        makeUpdater();
        m_updater->checkInBackground();
        QCOMPARE(m_checks->wait(isReported ? 5000 : 300), isReported);
        m_updater->checkInBackground();
        QVERIFY(!m_checks->wait(200));
        QTEST(static_cast<int>(m_server.requests.size()), "requests");
    }

    void question_joinsACheckThatRuns()
    {
        m_server.answers.clear();
        makeUpdater();
        m_updater->checkInBackground();
        m_updater->checkForUpdates();
        QVERIFY(m_checks->wait(5000));
        QVERIFY(m_checks->first().first().value<UpdateCheck>().byUser);
        QCOMPARE(m_server.requests.size(), 1);
    }

    void download_keepsOnlyWhatWasSigned_data()
    {
        using enum UpdateDownload::End;
        addRows<Answer, UpdateDownload::End>({ "answer", "end" },
            { { "rightly signed", { .body = package }, Saved },
                { "redirected once", redirection("/moved"), Saved },
                { "one byte changed", { .body = "the new packagf" }, Forged },
                { "one byte more", { .body = QByteArray(package) + "\n" }, Forged },
                { "empty", {}, Failed },
                { "huge", { .body = QByteArray(2 << 20, 'x') }, Failed } });
    }
    void download_keepsOnlyWhatWasSigned()
    {
        QFETCH(Answer, answer);
        QFETCH(UpdateDownload::End, end);
        m_settings.fileLimits = { .bytes = 1 << 20, .time = 500ms };
        m_server.answers["/new.deb"] = answer;
        m_server.answers["/moved"].body = package;
        const AppcastItem item = checkNow().item;
        QDir(m_settings.downloadFolder).removeRecursively();

        // When the second file comes, the first one is the user's.
        QStringList files;
        for (const QString &name : { u"VideoConverter-1.6.deb"_s, u"VideoConverter-1.6 2.deb"_s }) {
            UpdateDownload download(item, m_settings);
            QSignalSpy ends(&download, &UpdateDownload::ended);
            download.start();
            QTRY_COMPARE(ends.size(), 1);
            QCOMPARE(ends[0][0].value<UpdateDownload::End>(), end);
            const bool isSaved = end == UpdateDownload::End::Saved;
            const QString path = isSaved ? u"Downloads/"_s + name : QString();
            QCOMPARE(ends[0][1].toString(), isSaved ? m_folder.path(path) : QString());
            QCOMPARE(m_folder.contents(path), isSaved ? package : "");
            if (isSaved)
                files.prepend(name);
            QCOMPARE(m_folder.files(u"Downloads"_s), files.join(u'|'));
        }
    }

    void offer_downloads()
    {
        m_server.answers["/new.deb"].body = package;
        const UpdateCheck check = checkNow();
        QWidget window;
        const UpdateDialogs dialogs(*m_updater, &window, {});
        Q_EMIT m_updater->checked(check);
        const auto *offer = window.findChild<QMessageBox *>();
        QVERIFY(offer);
        for (QAbstractButton *button : offer->buttons()) {
            if (button->text() == u"Download")
                button->click();
        }
        const QPointer progress = window.findChild<QProgressDialog *>();
        QVERIFY(progress);
        QCOMPARE(progress->labelText(), u"Downloading version 1.6"_s);
        QVERIFY(progress->isVisible() && progress->maximum() == 0);
        QSignalSpy steps(progress->findChild<QProgressBar *>(), &QProgressBar::valueChanged);
        QTRY_VERIFY(!progress);
        QVERIFY(!steps.isEmpty() && steps.last().first().toInt() == 1000);
        QVERIFY(window.findChild<QMessageBox *>()->text().contains(u"VideoConverter-1.6"_s));
    }

    void offer_isPlainTextAndNoDownloadWithoutKey()
    {
        m_settings.publicKey.clear();
        makeUpdater();
        QWidget window;
        const UpdateDialogs dialogs(*m_updater, &window, QUrl(u"https://example.org/"_s));
        AppcastItem item;
        item.displayVersion = u"9.0"_s;
        item.notes = u"<script>x()</script><ul><li><b>Faster</b> st\u202eart<li>See "
                     "http://evil.example/</ul>"_s;
        Q_EMIT m_updater->checked({ .outcome = UpdateCheck::Outcome::Available, .item = item });

        auto *offer = window.findChild<QMessageBox *>();
        QCOMPARE(offer->text(), u"Video Converter 9.0 is available. You have 1.5."_s);
        QCOMPARE(offer->textFormat(), Qt::PlainText);
        QCOMPARE(offer->detailedText(), u"•  Faster start\n•  See http://evil.example/"_s);
        QVERIFY(!offer->isModal() && offer->testAttribute(Qt::WA_ShowWithoutActivating));
        QStringList buttons;
        for (const QAbstractButton *button : offer->buttons())
            buttons.append(button->text());
        QVERIFY(buttons.contains(u"Open Web Site"_s) && !buttons.contains(u"Download"_s));
        QTest::keyClick(offer, Qt::Key_Escape);
        QVERIFY(!offer->isVisible() && !Defaults::value(u"SkippedVersion"_s).isValid());
    }
};

QTEST_MAIN(tst_Updater)
#include "tst_updater.moc"
