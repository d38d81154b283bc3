// SPDX-License-Identifier: MIT
#include "tests/ui/desktop/DesktopStandIn.h"
#include "ui/desktop/DesktopNotification.h"
#include "ui/desktop/FileBrowser.h"
#include "ui/desktop/KeepAwake.h"

#include <QDBusObjectPath>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QTest>

using namespace Qt::StringLiterals;

/// What the window asks of the desktop. The usual course is part of a conversion's tests.
class tst_desktop_services : public QObject {
    Q_OBJECT

private:
    QStringList m_opened;

public Q_SLOTS:
    /// Stands for the program that opens folders.
    void open(const QUrl &url) { m_opened << url.toLocalFile(); }

private Q_SLOTS:
    void reveal_needsNoFileManager()
    {
        const QString fileManager = u"org.freedesktop.FileManager1"_s;
        QDesktopServices::setUrlHandler(u"file"_s, this, "open");
        {
            const DesktopStandIn desktop({ fileManager }, { { u"ShowItems"_s, {} } });
            FileBrowser::reveal(u"//videos/a?b#\u00fc/100%d %41\n.mp4"_s);
            QTRY_COMPARE(desktop.calls(u"ShowItems"_s).size(), 1);
            const QVariantList arguments = desktop.calls(u"ShowItems"_s).constFirst().arguments();
            QCOMPARE(arguments.value(0).toStringList(),
                QStringList(u"file:///videos/a%3Fb%23%C3%BC/100%25d%20%2541%0A.mp4"_s));
        }
        const DesktopStandIn desktop({ fileManager }, {});
        FileBrowser::reveal(u"/videos/100%d/clip.mp4"_s);
        QTRY_COMPARE(m_opened, QStringList(u"/videos/100%d"_s));
        QDesktopServices::unsetUrlHandler(u"file"_s);
    }

    void keepAwake_releasesWhatComesTooLate()
    {
        const QString request = u"/org/freedesktop/portal/desktop/request/1/t"_s;
        const DesktopStandIn desktop({ u"org.freedesktop.portal.Desktop"_s },
            { { u"Inhibit"_s, { QVariant::fromValue(QDBusObjectPath(request)) } },
                { u"Close"_s, {} } });
        KeepAwake awake;
        awake.start(u"Converting"_s);
        // No answer arrives before the event loop runs.
        awake.stop();
        QTRY_COMPARE(desktop.calls(u"Close"_s).size(), 1);
        QCOMPARE(desktop.calls(u"Close"_s).constFirst().path(), request);
        QCOMPARE(desktop.calls(u"Inhibit"_s).constFirst().arguments().value(1), QVariant(4U | 8U));
    }

    void notification_escapesTextAndReportsItsClick()
    {
        DesktopStandIn desktop(
            { u"org.freedesktop.Notifications"_s }, { { u"Notify"_s, { 42U } } });
        DesktopNotification notification;
        int clicks = 0;
        connect(&notification, &DesktopNotification::activated, this, [&clicks] { ++clicks; });
        notification.show(u"Done"_s, u"<b>100%d</b> & \"x\".mp4"_s);
        QTRY_COMPARE(desktop.calls(u"Notify"_s).size(), 1);
        const QVariantList arguments = desktop.calls(u"Notify"_s).constFirst().arguments();
        QCOMPARE(
            arguments.value(4).toString(), u"&lt;b&gt;100%d&lt;/b&gt; &amp; &quot;x&quot;.mp4"_s);
        QCOMPARE(arguments.value(5).toStringList().value(0), u"default"_s);

        desktop.click(41);
        desktop.click(42, u"other"_s);
        desktop.click(42);
        QTRY_COMPARE(clicks, 1);
        notification.show(u"Done"_s, u"next.mp4"_s);
        QTRY_COMPARE(desktop.calls(u"Notify"_s).size(), 2);
        QCOMPARE(desktop.calls(u"Notify"_s).constLast().arguments().value(1), QVariant(42U));
    }
};

QTEST_MAIN(tst_desktop_services)
#include "tst_desktop_services.moc"
