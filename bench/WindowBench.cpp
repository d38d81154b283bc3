// SPDX-License-Identifier: MIT
// Drives the real window inside this process. Usage: bench-window cover VIDEO | bench-window
// progress VIDEO FOLDER
//   cover     prints the milliseconds from the arrival of a video to its painted cover
//   progress  converts with whatever tool the bundle has; prints the longest stall of the event
//   loop in milliseconds and the
//             share of one core that the process used
#include "engine/FFMPEG.h"
#include "support/Console.h"
#include "ui/window/AppDelegate.h"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QTimer>

#include <cstdio>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

class PaintWatch : public QObject {
public:
    using QObject::QObject;
    bool painted = false;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        painted = painted || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }
};

double processorMilliseconds()
{
    timespec now{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

void spinUntil(const std::function<bool()> &condition)
{
    while (!condition())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void takeVideo(AppDelegate &delegate, const QString &video)
{
    PaintWatch watch;
    auto *cover = delegate.window()->findChild<QWidget *>(u"movieCoverImageView"_s);
    delegate.takeFiles({ video });
    spinUntil([&] { return delegate.uiState() == WindowUIState::CoverIsSet; });
    cover->installEventFilter(&watch);
    spinUntil([&] { return watch.painted; });
}

void startConversion(AppDelegate &delegate, const QString &folder)
{
    for (QAction *action : delegate.window()->findChildren<QAction *>()) {
        if (action->text() == u"MP4")
            delegate.rawFormatMenuItemPressed(action);
    }
    QFileDialog *sheet = nullptr;
    spinUntil([&] { return (sheet = delegate.window()->findChild<QFileDialog *>()) != nullptr; });
    sheet->selectFile(folder + u"/result.mp4"_s);
    QMetaObject::invokeMethod(sheet, "accept");
    spinUntil([&] { return delegate.uiState() == WindowUIState::Converting; });
}

void measureProgress(AppDelegate &delegate)
{
    QTimer ticks;
    QElapsedTimer sinceTick;
    qint64 longest = 0;
    QObject::connect(
        &ticks, &QTimer::timeout, [&] { longest = std::max(longest, sinceTick.restart()); });
    sinceTick.start();
    // Often enough to see the stalls that matter: each tick is work of the measured process too.
    ticks.start(std::chrono::milliseconds(5));
    QElapsedTimer clock;
    clock.start();
    const double before = processorMilliseconds();
    spinUntil([&] { return delegate.uiState() != WindowUIState::Converting; });
    const double used = processorMilliseconds() - before;
    std::printf("%lld %.1f\n", longest, used / static_cast<double>(clock.elapsed()) * 100);
}

}

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    Console::setSink([](const QString &) {});
    const QStringList arguments = QApplication::arguments();
    {
        AppDelegate delegate;
        delegate.applicationDidFinishLaunching();
        delegate.window()->show();
        QCoreApplication::processEvents();
        QElapsedTimer clock;
        clock.start();
        takeVideo(delegate, arguments.at(2));
        if (arguments.at(1) == u"cover") {
            std::printf("%lld\n", clock.elapsed());
        } else {
            startConversion(delegate, arguments.at(3));
            measureProgress(delegate);
        }
        std::fflush(stdout);
    }
    FFMPEG::shutDown();
    return 0;
}
