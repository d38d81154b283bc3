// SPDX-License-Identifier: MIT
#include "support/dialogs/Sheets.h"

#include "support/Defaults.h"
#include "support/Path.h"
#include "support/dialogs/SaveSheet.h"

#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

const QString lastOpenFolder = u"LastOpenFolder"_s;
const QString lastSaveFolder = u"LastSaveFolder"_s;
const QString lastSourceFolder = u"LastSourceFolder"_s;

QString rememberedFolder(const QString &key, const QString &otherwise)
{
    const QString folder = Defaults::value(key).toString();
    return !folder.isEmpty() && QDir(folder).exists() ? folder : otherwise;
}

void openSaveSheet(QWidget *window, const QString &folder, const QString &name, const QString &ext,
    const std::function<void(const QString &path)> &path, const PathRefusal &refuses,
    const QString &note)
{
    auto *sheet = new SaveSheet(window, folder, name, ext, refuses);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->showNote(note);
    QObject::connect(sheet, &QDialog::accepted, sheet, [sheet, path] { path(sheet->path()); });
    QObject::connect(sheet, &QDialog::rejected, sheet, [=] {
        const QString refused = sheet->refusedPath();
        if (!refused.isEmpty())
            openSaveSheet(window, Path::stringByDeletingLastPathComponent(refused),
                Path::lastPathComponent(refused), ext, path, refuses, note);
    });
    sheet->open();
}

}

void runChooseSheet(
    QWidget *window, bool files, const std::function<void(const QString &path)> &path)
{
    // A folder that is not there would be proposed as the name of a file.
    QString movies = QStandardPaths::writableLocation(QStandardPaths::MoviesLocation);
    if (!QDir(movies).exists())
        movies = QDir::homePath();
    auto *sheet = new QFileDialog(window, {}, rememberedFolder(lastOpenFolder, movies));
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->setAcceptMode(QFileDialog::AcceptOpen);
    sheet->setFileMode(files ? QFileDialog::ExistingFile : QFileDialog::Directory);
    sheet->setOption(QFileDialog::ShowDirsOnly, !files);
    QObject::connect(sheet, &QDialog::accepted, sheet, [sheet, path] {
        const QStringList chosen = sheet->selectedFiles();
        if (chosen.isEmpty())
            return;
        Defaults::setValue(lastOpenFolder, Path::stringByDeletingLastPathComponent(chosen.first()));
        path(chosen.first());
    });
    sheet->open();
}

void runSaveToSheet(QWidget *window, const QString &filename, const QString &ext,
    const std::function<void(const QString &path)> &path, const QString &startFolder,
    const PathRefusal &refuses, const QString &note)
{
    openSaveSheet(window, saveFolder(startFolder), filename + u'.' + ext, ext, path, refuses, note);
}

QString saveFolder(const QString &startFolder)
{
    return Defaults::value(lastSourceFolder).toString() == startFolder
        ? rememberedFolder(lastSaveFolder, startFolder)
        : startFolder;
}

void rememberSaveFolder(const QString &startFolder, const QString &folder)
{
    Defaults::setValue(lastSourceFolder, startFolder);
    Defaults::setValue(lastSaveFolder, folder);
}
