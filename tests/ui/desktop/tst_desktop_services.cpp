// SPDX-License-Identifier: MIT
#include "tests/fixtures/Rows.h"
#include "tests/ui/desktop/DesktopStandIn.h"
#include "ui/desktop/DesktopNotification.h"
#include "ui/desktop/FileBrowser.h"
#include "ui/desktop/KeepAwake.h"

#include <QDBusObjectPath>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString fileManager = u"org.freedesktop.FileManager1"_s;
const QString portal = u"org.freedesktop.portal.Desktop"_s;
const QString notifications = u"org.freedesktop.Notifications"_s;
const QString notificationsPath = u"/org/freedesktop/Notifications"_s;

/// Stands for the program that opens folders.
class FolderOpener : public QObject {
    Q_OBJECT

public:
    FolderOpener() { QDesktopServices::setUrlHandler(u"file"_s, this, "open"); }
    ~FolderOpener() override { QDesktopServices::unsetUrlHandler(u"file"_s); }
    Q_DISABLE_COPY_MOVE(FolderOpener)

    QStringList folders;

public Q_SLOTS:
    void open(const QUrl &url) { folders.append(url.toLocalFile()); }
};

}

class TestDesktopServices : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void reveal_asksFileManagerForTheFile_data()
    {
        addRows<Utf8, Utf8>({ "path", "uri" },
            { { "plain", "/videos/clip.mp4", "file:///videos/clip.mp4" },
                { "percent", "/videos/100%d %41.mp4", "file:///videos/100%25d%20%2541.mp4" },
                { "url letters", "/videos/a?b#c.mp4", "file:///videos/a%3Fb%23c.mp4" },
                { "line end", "/videos/new\nline.mp4", "file:///videos/new%0Aline.mp4" },
                { "two slashes", "//videos/clip.mp4", "file:///videos/clip.mp4" },
                { "umlaut", "/videos/\u00fc.mp4", "file:///videos/%C3%BC.mp4" } });
    }
    void reveal_asksFileManagerForTheFile()
    {
        QFETCH(QString, path);
        FolderOpener opener;
        DesktopStandIn desktop;
        QVERIFY(desktop.offer(fileManager));
        desktop.answer(u"ShowItems"_s, {});
        FileBrowser::reveal(path);
        QTRY_COMPARE(desktop.calls(u"ShowItems"_s).size(), 1);
        const QVariantList arguments = desktop.calls(u"ShowItems"_s).constFirst().arguments();
        QTEST(arguments.value(0).toStringList().join(u' '), "uri");
        QCOMPARE(opener.folders, QStringList());
    }

    void reveal_opensFolderWhenTheFileManagerFails()
    {
        FolderOpener opener;
        DesktopStandIn desktop;
        QVERIFY(desktop.offer(fileManager));
        FileBrowser::reveal(u"/videos/100%d/clip.mp4"_s);
        QTRY_COMPARE(opener.folders, QStringList(u"/videos/100%d"_s));
    }

    void keepAwake_releasesPortalRequest_data()
    {
        addRows<bool>({ "stoppedBeforeTheAnswer" },
            { { "after the answer", false }, { "before the answer", true } });
    }
    void keepAwake_releasesPortalRequest()
    {
        QFETCH(bool, stoppedBeforeTheAnswer);
        const QString request = u"/org/freedesktop/portal/desktop/request/1/t"_s;
        DesktopStandIn desktop;
        QVERIFY(desktop.offer(portal));
        desktop.answer(u"Inhibit"_s, { QVariant::fromValue(QDBusObjectPath(request)) });
        desktop.answer(u"Close"_s, {});
        if (stoppedBeforeTheAnswer)
            desktop.hold();
        KeepAwake awake;
        awake.start(u"Converting"_s);
        QTRY_COMPARE(desktop.calls(u"Inhibit"_s).size(), 1);
        QCOMPARE(desktop.calls(u"Inhibit"_s).constFirst().arguments().value(1), QVariant(4U | 8U));
        QVERIFY(desktop.calls(u"Close"_s).isEmpty());
        awake.stop();
        desktop.release();
        QTRY_COMPARE(desktop.calls(u"Close"_s).size(), 1);
        QCOMPARE(desktop.calls(u"Close"_s).constFirst().path(), request);
    }

    void notification_escapesTextAndReportsClick()
    {
        DesktopStandIn desktop;
        QVERIFY(desktop.offer(notifications));
        desktop.answer(u"Notify"_s, { 42U });
        DesktopNotification notification;
        int clicks = 0;
        connect(&notification, &DesktopNotification::activated, this, [&clicks] { ++clicks; });
        notification.show(u"Done"_s, u"<b>100%d</b> & \"x\".mp4"_s);
        QTRY_COMPARE(desktop.calls(u"Notify"_s).size(), 1);
        const QVariantList arguments = desktop.calls(u"Notify"_s).constFirst().arguments();
        QCOMPARE(
            arguments.value(4).toString(), u"&lt;b&gt;100%d&lt;/b&gt; &amp; &quot;x&quot;.mp4"_s);
        QCOMPARE(arguments.value(5).toStringList().value(0), u"default"_s);

        const auto click = [&desktop](uint id, const QString &action) {
            QDBusMessage signal
                = QDBusMessage::createSignal(notificationsPath, notifications, u"ActionInvoked"_s);
            signal << id << action;
            desktop.send(signal);
        };
        click(41, u"default"_s);
        click(42, u"other"_s);
        click(42, u"default"_s);
        QTRY_COMPARE(clicks, 1);
        notification.show(u"Done"_s, u"next.mp4"_s);
        QTRY_COMPARE(desktop.calls(u"Notify"_s).size(), 2);
        QCOMPARE(desktop.calls(u"Notify"_s).constLast().arguments().value(1), QVariant(42U));
    }
};

QTEST_MAIN(TestDesktopServices)
#include "tst_desktop_services.moc"
