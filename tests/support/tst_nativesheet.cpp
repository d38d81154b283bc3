// SPDX-License-Identifier: MIT
#include "SheetTest.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QLibraryInfo>
#include <QSocketNotifier>
#include <QUrl>

#include <sys/socket.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

/// The desktop's dialog service, which runs file dialogs in a process of its own. It keeps what it
/// is asked and answers when it is told to.
class Portal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.FileChooser")
    Q_PROPERTY(uint version MEMBER m_version CONSTANT)

public:
    static int run(int argc, char *argv[], int connectedToTest)
    {
        const QCoreApplication app(argc, argv);
        Portal portal;
        auto bus = QDBusConnection::sessionBus();
        bus.registerObject(objectPath, &portal,
            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllProperties);
        bus.registerService(service);
        const bool isReported = ::write(connectedToTest, "r", 1) == 1;
        const QSocketNotifier testsEnd(connectedToTest, QSocketNotifier::Read);
        connect(&testsEnd, &QSocketNotifier::activated, &app, &QCoreApplication::quit);
        return isReported ? QCoreApplication::exec() : 1;
    }

    static inline const QString service = u"org.freedesktop.portal.Desktop"_s;
    static inline const QString objectPath = u"/org/freedesktop/portal/desktop"_s;

public Q_SLOTS:
    QDBusObjectPath SaveFile(const QString & /*parentWindow*/, const QString &title,
        const QVariantMap &options, const QDBusMessage &message)
    {
        m_caller = message.service();
        m_call = options;
        m_call[u"title"_s] = title;
        return QDBusObjectPath(m_request);
    }

    /// What the last dialog was asked with, once.
    QVariantMap TakeCall() { return std::exchange(m_call, {}); }

    /// No address means that the user cancelled.
    void Answer(const QString &url) const
    {
        auto signal = QDBusMessage::createTargetedSignal(
            m_caller, m_request, u"org.freedesktop.portal.Request"_s, u"Response"_s);
        signal << (url.isEmpty() ? 1U : 0U) << QVariantMap{ { u"uris"_s, QStringList{ url } } };
        QDBusConnection::sessionBus().send(signal);
    }

private:
    const uint m_version = 3;
    const QString m_request = u"/request"_s;
    QString m_caller;
    QVariantMap m_call;
};

/// Sheets drawn by the desktop's dialog service.
class TestNativeSheet : public SheetTest {
    Q_OBJECT

private:
    static QVariant portal(const QString &method, const QVariantList &arguments = {})
    {
        QDBusInterface chooser(Portal::service, Portal::objectPath,
            u"org.freedesktop.portal.FileChooser"_s, QDBusConnection::sessionBus());
        return chooser.callWithArgumentList(QDBus::Block, method, arguments).arguments().value(0);
    }

    void answer(const QString &name) const
    {
        portal(u"Answer"_s, { QUrl::fromLocalFile(path(name)).toString(QUrl::FullyEncoded) });
    }

    // The dialog hears its answer only after it has read the reply to its request; so let it.
    static void awaitDialog(const QString &name)
    {
        QVariantMap call;
        QVERIFY(QTest::qWaitFor([&] {
            call = qdbus_cast<QVariantMap>(portal(u"TakeCall"_s));
            return !call.isEmpty();
        }));
        QCOMPARE(call[u"title"_s].toString(), u"Convert"_s);
        QCOMPARE(call[u"accept_label"_s].toString(), u"Convert"_s);
        QCOMPARE(call[u"current_name"_s].toString(), name);
        for (int i = 0; i < 3; ++i) {
            portal(u"TakeCall"_s);
            QCoreApplication::processEvents();
        }
    }

private Q_SLOTS:
    void initTestCase()
    {
        const QDir plugins(QLibraryInfo::path(QLibraryInfo::PluginsPath) + "/platformthemes"_L1);
        if (plugins.entryList({ u"*xdgdesktopportal*"_s }).isEmpty())
            QSKIP("The toolkit's theme for the desktop portal is not installed");
    }

    void init()
    {
        setUp();
        write(u"video.mp4"_s);
        runSave(u"proposed"_s);
        awaitDialog(u"proposed.mp4"_s);
    }

    void typedName_isTakenAsItIs()
    {
        // The desktop has asked about the existing file itself.
        const Answering answering(&QMessageBox::close);
        answer(u"video.mp4"_s);
        QTRY_COMPARE(paths, QStringList{ path(u"video.mp4"_s) });
        QVERIFY(!answering.wasShown);
    }

    void appendedExtension_isAskedAbout()
    {
        const Answering refusal(Answering::no());
        answer(u"video"_s);
        awaitDialog(u"video.mp4"_s);
        QVERIFY(refusal.wasShown);
        QVERIFY(paths.isEmpty());

        const Answering agreement(Answering::yes());
        answer(u"video"_s);
        QTRY_COMPARE(paths, QStringList{ path(u"video.mp4"_s) });
        QVERIFY(agreement.wasShown);
        QTRY_VERIFY(!QApplication::activeModalWidget());
    }

    void cancelledDialog_callsNothing()
    {
        portal(u"Answer"_s, { QString() });
        QTRY_VERIFY(!QApplication::activeModalWidget());
        QVERIFY(paths.isEmpty());
    }
};

int main(int argc, char *argv[])
{
    // The service has to be there before the desktop's theme is loaded, and ends with this process.
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, ends) != 0)
        return 1;
    if (::fork() == 0) {
        ::close(ends[0]);
        return Portal::run(argc, argv, ends[1]);
    }
    ::close(ends[1]);
    char ready = 0;
    if (::read(ends[0], &ready, 1) != 1)
        return 1;

    qputenv("QT_QPA_PLATFORMTHEME", "xdgdesktopportal");
    const QApplication app(argc, argv);
    TestNativeSheet test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_nativesheet.moc"
