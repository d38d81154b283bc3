// SPDX-License-Identifier: MIT
#include "tests/fixtures/Rows.h"
#include "tests/ui/desktop/DesktopStandIn.h"
#include "ui/desktop/DesktopNotification.h"
#include "ui/desktop/FileBrowser.h"
#include "ui/desktop/KeepAwake.h"
#include "ui/desktop/LauncherProgress.h"

#include <QDBusConnectionInterface>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QProcess>
#include <QTest>

#include <array>
#include <poll.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString fileManager = u"org.freedesktop.FileManager1"_s;
const QString portal = u"org.freedesktop.portal.Desktop"_s;
const QString loginManager = u"org.freedesktop.login1"_s;
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

Q_SIGNALS:
    void opened();

public Q_SLOTS:
    void open(const QUrl &url)
    {
        folders.append(url.toLocalFile());
        Q_EMIT opened();
    }
};

/// Records what the task bar is told.
class LauncherRecorder : public QObject {
    Q_OBJECT

public:
    QList<QVariantMap> updates;
    QStringList programs;

public Q_SLOTS:
    void update(const QString &program, const QVariantMap &properties)
    {
        programs.append(program);
        updates.append(properties);
    }
};

/// A pipe whose read end tells when the last holder of the write end let go.
class Leash {
public:
    Leash() { m_valid = ::pipe(m_ends.data()) == 0; }
    ~Leash() { ::close(m_ends[0]); }
    Q_DISABLE_COPY_MOVE(Leash)

    QDBusUnixFileDescriptor takeEnd()
    {
        QDBusUnixFileDescriptor descriptor;
        descriptor.giveFileDescriptor(m_ends[1]);
        return descriptor;
    }
    [[nodiscard]] bool isHeld() const
    {
        pollfd end{ .fd = m_ends[0], .events = 0, .revents = 0 };
        return m_valid && ::poll(&end, 1, 0) == 0;
    }

private:
    std::array<int, 2> m_ends{};
    bool m_valid = false;
};

/// Uses every service where there is no bus at all; ends when the folder is opened.
int runWithoutBus(const QCoreApplication &app)
{
    FolderOpener opener;
    QObject::connect(
        &opener, &FolderOpener::opened, &app, [] { QCoreApplication::exit(7); },
        Qt::QueuedConnection);
    KeepAwake awake;
    awake.start(u"converting"_s);
    LauncherProgress launcher;
    launcher.show(0.5);
    DesktopNotification notification;
    notification.show(u"Done"_s, u"clip.mp4"_s);
    FileBrowser::reveal(u"/videos/clip.mp4"_s);
    return QCoreApplication::exec();
}

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

    void reveal_opensFolderWithoutFileManager_data()
    {
        addRows<bool>({ "offered" }, { { "absent", false }, { "failing", true } });
    }
    void reveal_opensFolderWithoutFileManager()
    {
        QFETCH(bool, offered);
        FolderOpener opener;
        DesktopStandIn desktop;
        const QDBusConnectionInterface *bus = QDBusConnection::sessionBus().interface();
        if (!offered && bus->activatableServiceNames().value().contains(fileManager))
            QSKIP("this machine would start its own file manager");
        QVERIFY(!offered || desktop.offer(fileManager));
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

    void keepAwake_fallsBackToLoginManager_data() { keepAwake_releasesPortalRequest_data(); }
    void keepAwake_fallsBackToLoginManager()
    {
        QFETCH(bool, stoppedBeforeTheAnswer);
        Leash leash;
        DesktopStandIn desktop;
        QVERIFY(desktop.offer(portal)); // has no inhibitor: answers with an error
        QVERIFY(desktop.offer(loginManager));
        KeepAwake awake;
        desktop.hold();
        awake.start(u"Converting"_s);
        QTRY_COMPARE(desktop.calls(u"Inhibit"_s).size(), 1);
        desktop.release();
        desktop.hold();
        QTRY_COMPARE(desktop.calls(u"Inhibit"_s).size(), 2);
        desktop.answer(u"Inhibit"_s, { QVariant::fromValue(leash.takeEnd()) });
        QCOMPARE(desktop.calls(u"Inhibit"_s).constLast().arguments().value(0),
            QVariant(u"sleep:idle"_s));
        if (stoppedBeforeTheAnswer)
            awake.stop();
        desktop.release();
        desktop.answer(u"Inhibit"_s, {}); // from here on only the program holds the end
        QTest::qWait(0);
        if (!stoppedBeforeTheAnswer)
            QVERIFY(leash.isHeld());
        awake.stop();
        QTRY_VERIFY(!leash.isHeld());
    }

    void launcher_tellsWholePercentagesOnce()
    {
        LauncherRecorder recorder;
        QVERIFY(QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"task bar"_s)
                    .connect({}, {}, u"com.canonical.Unity.LauncherEntry"_s, u"Update"_s, &recorder,
                        SLOT(update(QString, QVariantMap))));
        {
            LauncherProgress launcher;
            launcher.clear();
            for (int step = -10; step <= 2000; ++step)
                launcher.show(step / 1000.0);
            launcher.show(qQNaN());
            launcher.finish();
        }
        QTRY_COMPARE(recorder.updates.size(), 104); // 0 to 100 %, unknown, finished, cleared
        QCOMPARE(
            recorder.programs.constFirst(), u"application://org.example.VideoConverter.desktop"_s);
        const auto properties = [](double progress, bool visible, bool urgent) {
            return QVariantMap{ { u"progress"_s, progress }, { u"progress-visible"_s, visible },
                { u"urgent"_s, urgent } };
        };
        QCOMPARE(recorder.updates.value(0), properties(0, true, false));
        QCOMPARE(recorder.updates.value(57), properties(0.57, true, false));
        QCOMPARE(recorder.updates.value(100), properties(1, true, false));
        QCOMPARE(recorder.updates.value(102), properties(0, false, true));
        QCOMPARE(recorder.updates.value(103), properties(0, false, false));
        QDBusConnection::disconnectFromBus(u"task bar"_s);
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

    void notification_closesWhenAnswerComesLate()
    {
        DesktopStandIn desktop;
        QVERIFY(desktop.offer(notifications));
        desktop.answer(u"Notify"_s, { 7U });
        desktop.hold();
        DesktopNotification notification;
        notification.show(u"Done"_s, u"clip.mp4"_s);
        QTRY_COMPARE(desktop.calls(u"Notify"_s).size(), 1);
        notification.close();
        desktop.release();
        QTRY_COMPARE(desktop.calls(u"CloseNotification"_s).size(), 1);
        QCOMPARE(
            desktop.calls(u"CloseNotification"_s).constFirst().arguments().value(0), QVariant(7U));
    }

    void services_doNothingWithoutBus()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/nonexistent"_s);
        environment.insert(u"DBUS_SYSTEM_BUS_ADDRESS"_s, u"unix:path=/nonexistent"_s);
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(QCoreApplication::applicationFilePath(), { u"--without-bus"_s });
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 7);
    }
};

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("DBUS_SYSTEM_BUS_ADDRESS"))
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", qgetenv("DBUS_SESSION_BUS_ADDRESS"));
    QGuiApplication::setDesktopFileName(u"org.example.VideoConverter"_s);
    const QGuiApplication app(argc, argv);
    if (QCoreApplication::arguments().contains(u"--without-bus"_s))
        return runWithoutBus(app);
    TestDesktopServices test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_desktop_services.moc"
