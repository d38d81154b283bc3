// SPDX-License-Identifier: MIT
#include "SheetTest.h"
#include "tests/ui/desktop/DesktopStandIn.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QDir>
#include <QLibraryInfo>
#include <QThread>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

const QString service = u"org.freedesktop.portal.Desktop"_s;
const QString request = u"/request"_s;

}

/// Sheets drawn by the desktop's dialog service.
class TestNativeSheet : public SheetTest {
    Q_OBJECT

private:
    void awaitDialog(const QString &name)
    {
        ++m_dialogs;
        QTRY_COMPARE(m_desktop.calls(u"SaveFile"_s).size(), m_dialogs);
        m_call = m_desktop.calls(u"SaveFile"_s).constLast();
        QCOMPARE(m_call.arguments().at(1).toString(), u"Convert"_s);
        const auto options = qdbus_cast<QVariantMap>(m_call.arguments().at(2));
        QCOMPARE(options[u"accept_label"_s].toString(), u"Convert"_s);
        QCOMPARE(options[u"current_name"_s].toString(), name);
        // The dialog hears its answer only after it has read the reply to its request. That comes
        // before the reply to a later call.
        const QDBusPendingCall later = QDBusConnection::sessionBus().asyncCall(
            QDBusMessage::createMethodCall(service, u"/"_s, {}, u"Later"_s));
        QTRY_VERIFY(later.isFinished());
        QCoreApplication::processEvents();
    }

    void answer(const QString &name)
    {
        QDBusMessage response = QDBusMessage::createTargetedSignal(
            m_call.service(), request, u"org.freedesktop.portal.Request"_s, u"Response"_s);
        const QString url = QUrl::fromLocalFile(path(name)).toString(QUrl::FullyEncoded);
        m_desktop.send(response, { 0U, QVariantMap{ { u"uris"_s, QStringList(url) } } });
    }

    DesktopStandIn m_desktop{ { service },
        { { u"SaveFile"_s, { QVariant::fromValue(QDBusObjectPath(request)) } } } };
    QDBusMessage m_call;
    qsizetype m_dialogs = 0;

private Q_SLOTS:
    void initTestCase()
    {
        const QDir plugins(QLibraryInfo::path(QLibraryInfo::PluginsPath) + "/platformthemes"_L1);
        QVERIFY(!plugins.entryList({ u"*xdgdesktopportal*"_s }).isEmpty());
    }

    void init()
    {
        setUp();
        folder->write(u"video.mp4"_s, {});
        runSave(u"proposed"_s);
        awaitDialog(u"proposed.mp4"_s);
    }

    void typedName_isTakenAsItIs()
    {
        // The desktop has asked about the existing file itself.
        const Answering answering(&QMessageBox::close);
        answer(u"video.mp4"_s);
        QTRY_COMPARE(paths, QStringList{ path(u"video.mp4"_s) });
        QVERIFY(answering.text.isEmpty());
    }

    void appendedExtension_isAskedAbout()
    {
        const Answering refusal(Answering::no());
        answer(u"video"_s);
        awaitDialog(u"video.mp4"_s);
        QVERIFY(!refusal.text.isEmpty());
        QVERIFY(paths.isEmpty());

        const Answering agreement(Answering::yes());
        answer(u"video"_s);
        QTRY_COMPARE(paths, QStringList{ path(u"video.mp4"_s) });
        QVERIFY(!agreement.text.isEmpty());
        QTRY_VERIFY(!QApplication::activeModalWidget());
    }
};

int main(int argc, char *argv[])
{
    // The desktop's theme asks for the service's version while it is loaded, and does not go on
    // without an answer. So another thread gives it.
    auto *early = new DesktopStandIn(
        { service }, { { u"Get"_s, { QVariant::fromValue(QDBusVariant(3U)) } } });
    QThread thread;
    early->moveToThread(&thread);
    QObject::connect(&thread, &QThread::finished, early, &QObject::deleteLater);
    thread.start();
    qputenv("QT_QPA_PLATFORMTHEME", "xdgdesktopportal");
    const QApplication app(argc, argv);
    thread.quit();
    thread.wait();

    TestNativeSheet test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_nativesheet.moc"
