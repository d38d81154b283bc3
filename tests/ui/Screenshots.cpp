// SPDX-License-Identifier: MIT
// Saves a picture of each state of the window in one look. Run by scripts/screenshots only.
// Usage: window-screenshots FOLDER LOOK LANGUAGE TEXT_PERCENT
#include "app/SettingsDialog.h"
#include "support/Preferences.h"
#include "support/Translation.h"
#include "tests/ui/WindowTest.h"
#include "ui/widgets/Appearance.h"

#include <QAction>
#include <QScreen>

using namespace Qt::StringLiterals;

class Screenshots : public WindowTest {
    Q_OBJECT

public:
    explicit Screenshots(QString folder)
        : m_pictures(std::move(folder))
    {
    }

private:
    /// The whole screen, as menus and dialogs are windows of their own.
    void take(const QString &name)
    {
        QMainWindow *window = m_delegate->window();
        window->move(window->screen()->geometry().center() - window->rect().center());
        QTest::qWait(250);
        QVERIFY(window->screen()->grabWindow(0).save(m_pictures + u'/' + name + u".png"_s));
    }
    QString m_pictures;

private Q_SLOTS:
    void states()
    {
        take(u"1-initial"_s);
        m_user.whileDragging = [this] { take(u"1-dragged-link"_s); };
        drop({ u"http://localhost/page"_s });
        m_user.whileDragging = [this] { take(u"1-dragged-file"_s); };
        m_user.whileReading = [this] { take(u"6-refused-alert"_s); };
        QVERIFY(QFile(path(u"empty.mov"_s)).open(QIODevice::WriteOnly));
        drop({ url(u"empty.mov"_s) });
        QTRY_COMPARE(m_user.read.size(), 1);
        take(u"6-refused"_s);
        m_user.whileDragging = [] {};
        m_swap = std::make_unique<ToolSwap>(
            u"ffprobe"_s, ToolSwap::With::FakeTool, "sleep:1500|exit:1");
        drop({ url(u"video.mov"_s) });
        take(u"2-examining"_s);
        QTest::keyClick(m_delegate->window(), Qt::Key_Escape);
        m_swap.reset();

        const QString name = u"A holiday by the sea with rather a long name, 2024-07-21.mov"_s;
        QVERIFY(QFile::copy(m_video, path(name)));
        QVERIFY(open(name));
        take(u"3-ready"_s);
        QTimer::singleShot(0, this, [this] {
            auto *menu = find<QMenu>("formatMenu");
            take(u"3-menu"_s);
            QTest::keyClick(menu, Qt::Key_End);
            take(u"3-menu-end"_s);
            QTest::keyClicks(menu, u"ipad"_s);
            take(u"3-menu-typed"_s);
            menu->close();
        });
        click("convertToButton");
        Media::ffmpeg(
            { u"-f"_s, u"lavfi"_s, u"-i"_s, u"sine"_s, u"-t"_s, u"3"_s, path(u"sound.wav"_s) });
        QVERIFY(open(u"sound.wav"_s));
        take(u"3-sound-only"_s);

        QVERIFY(convert("reports:10:500000", WindowUIState::Converting, name));
        m_delegate->takeFiles({ m_video });
        QTest::qWait(2000);
        take(u"4-converting"_s);
        m_user.whileReading = [this] { take(u"4-cancel-question"_s); };
        m_user.saysYes = true;
        click("cancelProgressButton");
        QVERIFY(waitFor(WindowUIState::CoverIsSet));
        m_user.names << u"done"_s;
        QVERIFY(convert("copy|reports:100:100", WindowUIState::ConversionIsDone, name));
        take(u"5-done"_s);
        openSettings(m_delegate->window());
        take(u"7-settings"_s);
    }

    void outcomes()
    {
        Media::video(path(u"cut.mkv"_s), 9);
        QVERIFY(QFile::resize(path(u"cut.mkv"_s), QFileInfo(path(u"cut.mkv"_s)).size() * 3 / 4));
        QVERIFY(QFile::copy(m_video, path(u"result.mkv"_s)));
        QVERIFY(drop({ url(u"cut.mkv"_s), url(u"video.mov"_s), url(u"result.mkv"_s) }));
        QVERIFY(waitFor(WindowUIState::CoverIsSet));
        take(u"3-several"_s);
        m_user.whileAnswering = [this] { take(u"3-sheet"_s); };
        m_user.names << u"result"_s;
        m_user.saysYes = true;
        choose(u"MKV"_s);
        QVERIFY(waitFor(WindowUIState::ConversionIsDone, 90000));
        take(u"5-short"_s);
        m_user.whileAnswering = [] {};

        Media::ffmpeg({ u"-f"_s, u"lavfi"_s, u"-i"_s, u"testsrc=s=321x241:d=60:r=60"_s, u"-c:v"_s,
            u"mpeg4"_s, path(u"odd.avi"_s) });
        QVERIFY(open(u"odd.avi"_s));
        m_user.names << u"odd"_s;
        choose(u"MP4"_s);
        QVERIFY(QTest::qWaitFor([this] { return view("secondTryLabel")->isVisible(); }));
        take(u"4-second-try"_s);
        QVERIFY(waitFor(WindowUIState::ConversionIsDone, 90000));
        take(u"5-repaired"_s);

        QVERIFY(convert("reports:3000:100000"));
        QTest::qWait(6000);
        take(u"4-time-left"_s);
        click("cancelProgressButton");
        QVERIFY(waitFor(WindowUIState::InitialState));
        take(u"1-cancelled"_s);
        QVERIFY(convert("print:no luck\\n|exit:1", WindowUIState::InitialState));
        QTRY_VERIFY(m_user.read.last().contains(u"no luck"_s));
        take(u"6-failed"_s);
        click("logLabel");
        take(u"6-log"_s);
    }
};

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 5)
        return 2;
    const QString &look = arguments[2];
    const Appearance appearance;
    Appearance::apply({ look.contains(u"dark"), look.contains(u"contrast") });
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * arguments[4].toDouble() / 100);
    QApplication::setFont(font);
    Preferences::setLanguage(arguments[3]);
    QApplication::setLayoutDirection(
        QLocale(Translation::install(Bundle(QStringLiteral(VC_PROGRAM_BUNDLE)))).textDirection());
    Screenshots screenshots(arguments[1]);
    return QTest::qExec(&screenshots, QStringList(arguments[0]));
}
#include "Screenshots.moc"
