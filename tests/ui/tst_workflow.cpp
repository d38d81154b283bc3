// SPDX-License-Identifier: MIT
#include "LoopbackServer.h"
#include "analytics/Analytics.h"
#include "support/Preferences.h"
#include "tests/ui/WindowTest.h"
#include "ui/widgets/ImageView.h"

#include <QAccessible>
#include <QClipboard>
#include <QDBusConnectionInterface>
#include <QFileOpenEvent>
#include <QMimeData>
#include <QRegularExpression>
#include <QScreen>

using namespace Qt::StringLiterals;

const bool hasScreenReader = qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");

/// From a file that arrives to a result that stands.
class tst_workflow : public WindowTest {
    Q_OBJECT

private Q_SLOTS:
    void video_becomesAnother()
    {
        Media::ffmpeg({ u"-i"_s, m_video, u"-c"_s, u"copy"_s, u"-an"_s, path(u"silent.mov"_s) });
        find<QMenu>("formatMenu")->setDefaultAction(find<QAction>("audioMenuItem"));
        QVERIFY(open(u"silent.mov"_s));
        QVERIFY(!find<QAction>("audioMenuItem")->isEnabled());
        QVERIFY(!find<QAction>("repeatAction")->isEnabled());
        QCOMPARE(find<QAction>("audioMenuItem")->toolTip().sliced(1).chopped(1),
            u"The video has no sound"_s);
        QVERIFY(open());
        QCOMPARE(find<QLabel>("movieNameLabel")->text(), u"video.mov"_s);
        QCOMPARE(find<QLabel>("movieDurationLabel")->text(), u"3s"_s);
        QVERIFY(!find<ImageView>("movieCoverImageView")->image().isNull());
        QCOMPARE(m_delegate->selectedFileExt(), u"mov"_s);

        QVERIFY2(said("factsLabel").endsWith(u" · 160 × 120 · H.264 · AAC"_s),
            qPrintable(said("factsLabel")));
        const std::pair<const char *, QString> entries[] = {
            { "mKVMenuItem", u"Copies picture and sound, takes seconds"_s },
            { "audioMenuItem", u"Encodes the sound anew"_s },
            { "webMMenuItem", u"Encodes picture and sound anew"_s },
            { "linuxMenuItem", u"MP4 · Copies picture and sound, takes seconds"_s },
            { "windowsMenuItem", u"AVI · Encodes picture and sound anew"_s },
        };
        for (const auto &[name, work] : entries) {
            auto *entry = find<QAction>(name);
            auto *menu = QAccessible::queryAccessibleInterface(find<QMenu>("formatMenu"));
            auto *read = menu->child(int(find<QMenu>("formatMenu")->actions().indexOf(entry)));
            QCOMPARE(read->text(QAccessible::Name), entry->text());
            QString description = read->text(QAccessible::Description);
            QCOMPARE(description.remove(QChar(0x2068)).remove(QChar(0x2069)), work);
            QCOMPARE(entry->icon().isNull(), !work.contains(u"seconds"_s));
            QVERIFY(entry->isEnabled());
        }

        m_user.names << QString();
        choose(u"WebM"_s);
        QVERIFY(waitFor(WindowUIState::ConversionIsDone));
        QCOMPARE(m_user.proposal, u"video.webm"_s);
        QCOMPARE(m_delegate->resultFilePath(), path(u"video.webm"_s));
        QVERIFY2(said("resultLabel").startsWith(u"video.webm · "_s)
                && said("resultLabel").endsWith(u" · 3s"_s),
            qPrintable(said("resultLabel")));
        QTRY_COMPARE(Processes::children(), QStringList());
        QCOMPARE(Media::streamEntry(path(u"video.webm"_s), u"v:0"_s, u"codec_name"_s), u"vp8"_s);
        QCOMPARE(m_user.read, QStringList());
        QVERIFY(open(u"video.webm"_s));
    }

    void usage_isReported()
    {
        const LoopbackServer collector;
        qputenv("VIDEO_CONVERTER_COLLECTOR_URL", collector.address({}).toUtf8());
        Analytics::start();
        Preferences::setFirstRun(true);
        m_delegate->applicationDidFinishLaunching();
        m_user.names << m_video;
        click("openFromFolderLabel");
        QVERIFY(waitFor(WindowUIState::CoverIsSet));
        m_delegate->takeFiles({ m_video });
        QVERIFY(waitFor(WindowUIState::WaitingForCover) && waitFor(WindowUIState::CoverIsSet));
        QVERIFY(convert("reports:3000:20000"));
        m_user.saysYes = true;
        click("cancelProgressButton");
        QVERIFY(waitFor(WindowUIState::InitialState));
        QVERIFY(convert("reports:100:100", WindowUIState::ConversionIsDone));
        click("startOverButton");

        // Each comes on a connection of its own, in any order.
        const QStringList reported{ u"adding_video click true"_s, u"adding_video drag true"_s,
            u"adding_video drag true"_s, u"adding_video size 0-1"_s, u"adding_video size 0-1"_s,
            u"adding_video size 0-1"_s, u"adding_video size 0-1"_s, u"behavior firstrun true"_s,
            u"convert abort true"_s, u"convert convert_another true"_s,
            u"convert from_to mkv_MKV"_s, u"convert from_to mkv_MKV"_s };
        QTRY_COMPARE(collector.requests.size(), reported.size());
        qunsetenv("VIDEO_CONVERTER_COLLECTOR_URL");
        QFile page(QStringLiteral(VC_PRIVACY_PAGE));
        QVERIFY(page.open(QIODevice::ReadOnly));
        QStringList rows = QString::fromUtf8(page.readAll()).split(u'\n');
        rows = rows.filter(QRegularExpression(u"^\\| `\\w+` \\| `\\w+` \\|"_s));
        QStringList events;
        QSet<QString> announced;
        for (const LoopbackServer::Request &request : collector.requests) {
            const QJsonObject hit = request.hit();
            const QString label = hit[u"el"_s].toVariant().toString();
            const QString category = hit[u"ec"_s].toString();
            const QString action = hit[u"ea"_s].toString();
            events << category + u' ' + action + u' ' + label;
            const QString row = rows.filter(u"| `%1` | `%2` |"_s.arg(category, action)).value(0);
            QVERIFY2(row.contains(label == u"true"_s ? u"| true |"_s : u'`' + label + u'`'),
                qPrintable(events.last()));
            announced << row;
        }
        events.sort();
        QCOMPARE(events, reported);
        QCOMPARE(announced.size(), rows.size());
    }

    void screenReader_hearsEachState()
    {
        QVERIFY(hasScreenReader);
        QVERIFY(
            QDBusConnection::sessionBus().interface()->startService(u"org.a11y.Bus"_s).isValid());
        QTRY_VERIFY(QAccessible::isActive());
        static QStringList heard;
        heard.clear();
        const auto former = QAccessible::installUpdateHandler([](QAccessibleEvent *event) {
            QAccessibleInterface *shown = event->accessibleInterface();
            if (event->type() == QAccessible::ObjectShow && shown
                && shown->role() == QAccessible::Notification)
                heard << shown->text(QAccessible::Name);
        });
        QFile notes(path(u"notes.mkv"_s));
        QVERIFY(notes.open(QIODevice::WriteOnly) && notes.write("no video") > 0);
        notes.close();
        m_delegate->takeFiles({ notes.fileName() });
        QTRY_VERIFY(!m_user.read.isEmpty());
        m_user.whileAnswering = [&] { m_delegate->takeFiles({ notes.fileName() }); };
        QVERIFY(convert("reports:100:100", WindowUIState::ConversionIsDone));
        QTRY_COMPARE(heard,
            (QStringList{ u"Examining “notes.mkv”"_s, u"Drag a video here"_s,
                u"The file is not a video, or it is damaged or incomplete."_s,
                u"Examining “video.mov”"_s, u"video.mov"_s, u"Next: “notes.mkv”"_s,
                u"Converting…"_s,
                u"The result has no moving picture, although the video has one."_s,
                u"Conversion complete"_s }));
        QAccessible::installUpdateHandler(former);
    }

    void keyboard_isEnough()
    {
        auto *window = m_delegate->window();
        QTest::keyClick(window, Qt::Key_O, Qt::ControlModifier);
        QTRY_COMPARE(m_user.sheets, 1);
        QVERIFY(QTest::qWaitForWindowActive(window));
        QCOMPARE(m_delegate->uiState(), WindowUIState::InitialState);
        m_user.names << m_video << u"by keyboard"_s;
        QTest::keyClick(window, Qt::Key_O, Qt::ControlModifier);
        QVERIFY(waitFor(WindowUIState::CoverIsSet));
        QCOMPARE(QApplication::focusWidget(), view("convertToButton"));
        bool isInSight = false;
        QStringList found;
        QTimer::singleShot(0, this, [this, &isInSight, &found] {
            auto *menu = find<QMenu>("formatMenu");
            const QWidget *face = view("convertToButton");
            const QRect place(face->mapToGlobal(QPoint()), face->size());
            isInSight = menu->screen()->geometry().contains(menu->geometry())
                && !menu->geometry().intersects(place);
            for (const QString &keys : { u"gif"_s, u"mm"_s, u"mp4"_s }) {
                QTest::qWait(1100);
                QTest::keyClicks(menu, keys);
                found << menu->activeAction()->text();
            }
            QTest::keyClicks(menu, u" 4"_s);
            QTest::keyClick(menu, Qt::Key_Return);
        });
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QVERIFY(isInSight);
        QCOMPARE(found, QStringList({ u"GIF"_s, u"MP4"_s, u"MP4"_s }));
        QVERIFY(waitFor(WindowUIState::ConversionIsDone));
        QCOMPARE(m_delegate->resultFilePath(), path(u"by keyboard.mp4"_s));
        QCOMPARE(QApplication::focusWidget(), view("openFolderImageView"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), view("openResultButton"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCOMPARE(m_delegate->uiState(), WindowUIState::InitialState);
        QVERIFY(view("openFromFolderLabel")->hasFocus());
        m_user.names << m_video << u"once more"_s;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QVERIFY(waitFor(WindowUIState::CoverIsSet));
        QTest::keyClick(window, Qt::Key_T, Qt::ControlModifier);
        QVERIFY(waitFor(WindowUIState::ConversionIsDone));
        QCOMPARE(m_delegate->resultFilePath(), path(u"once more.mp4"_s));
        m_delegate->takeFiles({ m_video });
        QTest::keyClick(window, Qt::Key_Escape);
        QCOMPARE(m_delegate->uiState(), WindowUIState::InitialState);
        QTest::keyClick(window, Qt::Key_W, Qt::ControlModifier);
        QVERIFY(!window->isVisible());
    }

    void file_arrivesOnEveryWay()
    {
        QFileOpenEvent event(m_video);
        auto *copied = new QMimeData;
        copied->setUrls({ QUrl::fromLocalFile(m_video) });
        QApplication::clipboard()->setMimeData(copied);
        const std::pair<const char *, std::function<void()>> ways[] = {
            { "label", [this] { click("openFromFolderLabel"); } },
            { "drop",
                [this] {
                    drop({ u"http://localhost/ignored"_s, url(u"video.mov"_s) });
                } },
            { "paste", [this] { QTest::keyClick(view("stage"), Qt::Key_V, Qt::ControlModifier); } },
            { "open event", [&event] { QApplication::sendEvent(qApp, &event); } },
        };
        for (const auto &[name, bring] : ways) {
            m_user.names = { m_video };
            // Only while drops are taken.
            m_delegate->setUiState(WindowUIState::Converting);
            bring();
            QTest::qWait(20);
            QVERIFY2(m_delegate->uiState() == WindowUIState::Converting, name);
            QVERIFY2(m_user.names.size() == 1, name);
            m_delegate->setUiState(WindowUIState::InitialState);
            bring();
            QVERIFY2(waitFor(WindowUIState::CoverIsSet), name);
        }
        QList<QColor> veils;
        m_user.whileDragging = [&] {
            const QImage veil = view("dropAcceptor")->grab().toImage();
            veils << veil.pixelColor(30, 30) << veil.pixelColor(8, veil.height() / 2);
        };
        QVERIFY(!drop({}) && !drop({ u"http://localhost/video.mov"_s }));
        const auto labels = view("dropAcceptor")->findChildren<QLabel *>(QString());
        QVERIFY(labels.last()->text().contains(u"Only files"_s) && !labels.last()->isVisible());
        QCOMPARE(m_delegate->uiState(), WindowUIState::CoverIsSet);
        QVERIFY(open());
        QVERIFY(veils[0] == veils[2] && veils[0] != veils[4]);
        QCOMPARE(veils[5], QApplication::palette().color(QPalette::Link));
    }

    void severalVideos_areCounted()
    {
        QVERIFY(QFile::copy(m_video, path(u"it's.mp4"_s)));
        QVERIFY(drop({ url(u"video.mov"_s), url(u"it's.mp4"_s) }));
        QVERIFY(waitFor(WindowUIState::CoverIsSet));
        QCOMPARE(said("leftOutLabel"), u"One video is converted at a time here. Left out: 1"_s);
        find<QMenu>("formatMenu")->setDefaultAction(find<QAction>("mp4LowQualityMenuItem"));
        click("copyCommandLabel");
        QCOMPARE(QApplication::clipboard()->text(),
            uR"(mkdir -p %1/mp4 && video-converter-cli convert --to 'MP4 Low Quality' -j 0 -d %1/mp4 -- %1/video.mov '%1/it'\''s.mp4')"_s
                .arg(m_folder->path()));
        QVERIFY(open());
        QVERIFY(view("leftOutLabel")->isHidden() && view("copyCommandLabel")->isHidden());
    }

    void badFile_isRefused()
    {
        QVERIFY(QFile(path(u"empty.mov"_s)).open(QIODevice::WriteOnly));
        QVERIFY(open());
        // Nothing is taken while the message stands, nor the reason after it.
        m_user.whileReading = [this] {
            drop({ url(u"video.mov"_s) });
            m_delegate->takeFiles({ m_video });
        };
        QVERIFY(drop({ url(u"empty.mov"_s) }));
        auto *reason = find<QLabel>("refusalLabel");
        QTRY_COMPARE(reason->text(), u"The file is empty."_s);
        QTest::qWait(50);
        QVERIFY(reason->isVisible() && view("keptLabel")->isVisible());
        QCOMPARE(m_user.read, QStringList(u"Video not supported"_s));
        QCOMPARE(m_delegate->uiState(), WindowUIState::InitialState);
        QCOMPARE(m_delegate->processingFilePath(), m_video);
        QVERIFY(open());
        QVERIFY(!reason->isVisible() && reason->text().isEmpty());
    }

    void source_isNeverTheDestination()
    {
        QVERIFY(QFile::rename(m_video, path(u"video.mp4"_s)));
        QVERIFY(QFile::link(path(u"video.mp4"_s), path(u"link.mp4"_s)));
        const qint64 size = QFileInfo(path(u"video.mp4"_s)).size();
        QVERIFY(open(u"video.mp4"_s));
        m_user.saysYes = true;
        m_user.names << u"video.mp4"_s << u"./link.mp4"_s << u"other"_s;
        choose(u"MP4"_s);
        QVERIFY(waitFor(WindowUIState::ConversionIsDone));
        QCOMPARE(m_user.names, QStringList());
        QCOMPARE(m_user.read,
            QStringList(2, u"The result can't replace a video that is to be converted."_s));
        QCOMPARE(m_delegate->resultFilePath(), path(u"other.mp4"_s));
        QCOMPARE(QFileInfo(path(u"video.mp4"_s)).size(), size);
    }
};

QTEST_MAIN(tst_workflow)
#include "tst_workflow.moc"
