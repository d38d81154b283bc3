// SPDX-License-Identifier: MIT
#include "analytics/Analytics.h"
#include "app/HelpMenu.h"
#include "crash/Crash.h"
#include "crash/CrashReports.h"
#include "crash/dialog/CrashQuestion.h"
#include "engine/Async.h"
#include "engine/FFMPEG.h"
#include "engine/StagedList.h"
#include "support/Configuration.h"
#include "support/Interruption.h"
#include "support/Localized.h"
#include "support/StandardInput.h"
#include "support/Translation.h"
#include "ui/desktop/Fonts.h"
#include "ui/desktop/SingleInstance.h"
#include "ui/widgets/Appearance.h"
#include "ui/widgets/ImageView.h"
#include "ui/window/AppDelegate.h"
#include "updates/Updater.h"
#include "updates/dialog/UpdateDialogs.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFontDatabase>
#include <QIcon>
#include <QTimer>

#include <chrono>
#include <cstdlib>
#include <future>
#include <optional>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

void describe()
{
    QApplication::setApplicationName(u"VideoConverter"_s);
    QApplication::setApplicationDisplayName(u"Video Converter"_s);
    QApplication::setApplicationVersion(Configuration::version());
    QApplication::setDesktopFileName(u"org.example.VideoConverter"_s);
}

/// Ends the program when only help or the version is asked for.
QStringList filesOnCommandLine(const QApplication &application)
{
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(u"video"_s,
        localized(QT_TRANSLATE_NOOP3("Localizable", "Video to open.", "help on the command line")),
        u"[video]"_s);
    parser.process(application);
    QStringList paths = parser.positionalArguments();
    for (QString &path : paths)
        path = QDir::cleanPath(path.startsWith(u'/') ? path : QDir::currentPath() + u'/' + path);
    return paths;
}

class Services {
public:
    explicit Services(AppDelegate &delegate)
        : m_updater(UpdaterSettings::configured())
        , m_dialogs(m_updater, delegate.window(), QUrl(Configuration::siteUrl()))
    {
        addHelpMenu(delegate, m_updater);
        m_crashReports.beginSession();
        m_crashReports.uploadPending([window = delegate.window()](const QString &report) {
            return askToSendReport(window, report);
        });
        m_updater.checkInBackground();
    }

private:
    Updater m_updater;
    UpdateDialogs m_dialogs;
    CrashReports m_crashReports;
};

int runWindow(SingleInstance &instance, const QStringList &videos)
{
    // Not by its file name, for which Qt would load plugins that nothing else needs at the start.
    QIcon icon;
    for (const int side : { 16, 32, 64, 128 })
        icon.addPixmap(drawnArtwork(u":/icons/video-converter.svg"_s, { side, side }));
    QApplication::setWindowIcon(icon);
    const Appearance appearance;
    AppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    delegate.window()->show();
    QObject::connect(&instance, &SingleInstance::filesReceived, &delegate,
        [&delegate](const QStringList &paths) {
            delegate.applicationShouldHandleReopen(false);
            delegate.takeFiles(paths);
        });
    delegate.takeFiles(videos);
    Async::background(StagedList::removeAbandoned);
    std::optional<Services> services;
    // Once the window stands: it may ask about an earlier crash, and the network takes its time.
    QTimer::singleShot(100ms, &delegate, [&] { services.emplace(delegate); });
    // Where the display is lost, Qt calls exit() while blocks still run.
    std::atexit([] { QCoreApplication::instance() ? ::_exit(EXIT_FAILURE) : void(); });
    return QApplication::exec();
}

}

int main(int argc, char *argv[])
{
    StandardInput::setAside();
    CrashReporter::start();
    readFontsAhead();
    const QApplication application(argc, argv);
    // Without a question, as the desktop's session or the user's shell does not wait for an answer.
    const Interruption interruption;
    QObject::connect(&interruption, &Interruption::arrived, &application,
        [] { QApplication::exit(128 + Interruption::signal()); });
    describe();
    const QLocale language(Translation::install(Bundle::main()));
    QApplication::setLayoutDirection(language.textDirection());
    const QStringList videos = filesOnCommandLine(application);
    // Read before the first text asks; the application must not end meanwhile.
    const auto fonts = std::async(std::launch::async, [] { return QFontDatabase::families(); });
    SingleInstance instance;
    if (instance.handOver(videos))
        return 0;
    Analytics::start();
    const int status = runWindow(instance, videos);
    FFMPEG::shutDown();
    return status;
}
