// SPDX-License-Identifier: MIT
#include "Translations.h"
#include "analytics/Analytics.h"
#include "engine/FFMPEG.h"
#include "support/Configuration.h"
#include "ui/AppDelegate.h"
#include "ui/Appearance.h"
#include "ui/desktop/SingleInstance.h"

#include <QApplication>
#include <QFileInfo>
#include <QIcon>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// The tools inherit the standard input, and a "q" that waits there would end a run early.
void detachStandardInput()
{
    const int null = open("/dev/null", O_RDONLY);
    if (null < 0)
        return;
    dup2(null, STDIN_FILENO);
    if (null != STDIN_FILENO)
        close(null);
}

void describe()
{
    QApplication::setApplicationName(u"VideoConverter"_s);
    QApplication::setApplicationDisplayName(u"Video Converter"_s);
    QApplication::setApplicationVersion(Configuration::version());
    QApplication::setDesktopFileName(u"org.example.VideoConverter"_s);
    QApplication::setWindowIcon(QIcon(u":/icons/video-converter.svg"_s));
}

QStringList filesOnCommandLine()
{
    QStringList paths = QApplication::arguments().mid(1);
    paths.removeAll(u"--"_s);
    for (QString &path : paths)
        path = QFileInfo(path).absoluteFilePath();
    return paths;
}

int runWindow(SingleInstance &instance)
{
    const Appearance appearance;
    AppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    delegate.window()->show();
    QObject::connect(&instance, &SingleInstance::filesReceived, &delegate,
        [&delegate](const QStringList &paths) {
            delegate.applicationShouldHandleReopen(false);
            delegate.takeFiles(paths);
        });
    delegate.takeFiles(filesOnCommandLine());
    return QApplication::exec();
}

}

int main(int argc, char *argv[])
{
    detachStandardInput();
    QApplication application(argc, argv);
    describe();
    SingleInstance instance;
    if (instance.handOver(filesOnCommandLine()))
        return 0;
    Analytics::start();
    installTranslations(application);
    const int status = runWindow(instance);
    FFMPEG::shutDown();
    return status;
}
