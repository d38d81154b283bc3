// SPDX-License-Identifier: MIT
#include "LoopbackServer.h"
#include "updates/UpdaterDelegate.h"
#include "updates/dialog/UpdateDialogs.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QWidget>

using namespace Qt::StringLiterals;

class tst_UpdateDialogs : public QObject {
    Q_OBJECT
public Q_SLOTS:
    void openAddress(const QUrl &url) { m_opened.append(url); }

private:
    QList<QUrl> m_opened;

private Q_SLOTS:
    void offer_withoutKeyLeadsToTheSite()
    {
        LoopbackServer server;
        server.answers["/update.xml"].body
            = "<rss "
              "xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/"
              "sparkle'><item><description>"
              "&lt;script>x()&lt;/script>&lt;ul>&lt;li>&lt;b>Faster&lt;/b> st\u202eart&lt;li>See "
              "http://evil.example/&lt;/ul></description>"
              "<enclosure url='http://a/b' sparkle:version='9.0'/></item></rss>";
        qputenv("VIDEO_CONVERTER_FEED_URL", server.address(u"/update.xml"_s).toLatin1());
        QDesktopServices::setUrlHandler(u"https"_s, this, "openAddress");
        QDesktopServices::setUrlHandler(u"http"_s, this, "openAddress");

        const UpdaterDelegate delegate;
        Updater updater({ .version = u"1.0.0"_s });
        updater.setDelegate(&delegate);
        QWidget window;
        const UpdateDialogs dialogs(updater, &window, QUrl(u"https://example.org/"_s));
        updater.checkForUpdates();
        QTRY_VERIFY(window.findChild<QDialog *>());
        auto *dialog = window.findChild<QDialog *>();
        QCOMPARE(dialog->findChild<QLabel *>()->text(),
            u"Video Converter 9.0 is available. You have 1.0.0."_s);
        QCOMPARE(dialog->findChild<QPlainTextEdit *>()->toPlainText(),
            u"Faster start\nSee http://evil.example/"_s);
        QCOMPARE(m_opened, QList<QUrl>());
        const auto buttons = dialog->findChildren<QPushButton *>();
        const auto site = std::ranges::find(buttons, u"Open Web Site"_s, &QPushButton::text);
        QVERIFY(site != buttons.end());
        QTest::mouseClick(*site, Qt::LeftButton);
        QCOMPARE(m_opened, QList<QUrl>{ QUrl(u"https://example.org/"_s) });
        QDesktopServices::unsetUrlHandler(u"https"_s);
        QDesktopServices::unsetUrlHandler(u"http"_s);
    }
};

QTEST_MAIN(tst_UpdateDialogs)
#include "tst_updatedialogs.moc"
