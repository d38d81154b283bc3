// SPDX-License-Identifier: MIT
#include "support/dialogs/Sheets.h"

#include "support/Defaults.h"
#include "support/Localized.h"
#include "support/Path.h"
#include "support/dialogs/Alerts.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
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

QString withExtension(const QString &path, const QString &extension)
{
    if (Path::pathExtension(path).compare(extension, Qt::CaseInsensitive) == 0)
        return path;
    return path.endsWith(u'.') ? path + extension : path + u'.' + extension;
}

/// Has no Q_OBJECT: the toolkit takes the desktop's own dialog only for its very own class.
class SaveSheet : public QFileDialog {
public:
    struct Request {
        QString ext;
        std::function<void(const QString &path)> path;
        PathRefusal refusal;
        QString note;
    };

    SaveSheet(QWidget *window, const QString &folder, QString name, Request request)
        : QFileDialog(window,
            localized(
                QT_TRANSLATE_NOOP3("Localizable", "Convert.savePanelTitle", "title for save panel"),
                "Convert"),
            folder)
        , m_proposed(std::move(name))
        , m_request(std::move(request))
    {
        setAttribute(Qt::WA_DeleteOnClose);
        setAcceptMode(AcceptSave);
        setFileMode(AnyFile);
        setNameFilter(u"*."_s + m_request.ext);
        setLabelText(Accept,
            localized(QT_TRANSLATE_NOOP3(
                          "Localizable", "Convert.savePanelPrompt", "prompt for save panel"),
                "Convert"));
        setLabelText(FileName,
            localized(QT_TRANSLATE_NOOP3("Localizable", "Convert.savePanelNameFieldLabel",
                          "name label for save panel (<= 15 symbols)"),
                "Result filename:"));
        selectFile(QDir::cleanPath(folder + u'/' + m_proposed));
        // The desktop's own dialog has no such layout.
        if (auto *grid = qobject_cast<QGridLayout *>(layout()); grid && !m_request.note.isEmpty())
            grid->addWidget(new QLabel(m_request.note, this), grid->rowCount(), 0, 1, -1);
    }

protected:
    void accept() override
    {
        // A dialog of the desktop is hidden by now, and has asked about a file of the typed name.
        const bool isNative = testAttribute(Qt::WA_DontShowOnScreen);
        const QString chosen = isNative ? selectedFiles().value(0) : typedPath();
        if (chosen.isEmpty())
            return;
        if (!isNative && QFileInfo(chosen).isDir()) {
            setDirectory(chosen);
            // That was to be used before the folder's name was typed over it.
            return nameField()->setText(m_proposed);
        }
        const QString path = withExtension(chosen, m_request.ext);
        const bool hasAsked = isNative && path == chosen;
        if (mayUse(path, hasAsked)) {
            QDialog::accept(); // NOLINT(bugprone-parent-virtual-call): QFileDialog would ask again
            m_request.path(path);
        } else if (isNative) {
            // It has closed itself and can't be shown again.
            QDialog::reject();
            auto *again
                = new SaveSheet(parentWidget(), Path::stringByDeletingLastPathComponent(path),
                    Path::lastPathComponent(path), m_request);
            again->open();
        }
    }

    // The extension is given; the name is what may be typed over.
    void showEvent(QShowEvent *event) override
    {
        QFileDialog::showEvent(event);
        if (QLineEdit *field = nameField())
            field->setSelection(
                0, static_cast<int>(field->text().size() - m_request.ext.size() - 1));
    }

private:
    [[nodiscard]] QLineEdit *nameField() const { return findChild<QLineEdit *>(u"fileNameEdit"_s); }

    // The dialog's own reading of the field takes quotation marks for separators of several names.
    [[nodiscard]] QString typedPath() const
    {
        const QString name = nameField()->text();
        if (name.isEmpty())
            return {};
        if (name.startsWith("~/"_L1))
            return QDir::homePath() + name.sliced(1);
        return QDir::cleanPath(name.startsWith(u'/') ? name : directory().path() + u'/' + name);
    }

    [[nodiscard]] bool mayUse(const QString &path, bool hasAsked) const
    {
        if (const QString refusal = m_request.refusal(path); !refusal.isEmpty()) {
            displayError(refusal);
            return false;
        }
        return hasAsked || !QFileInfo::exists(path)
            || displayQuestion(formatted(
                QT_TRANSLATE_NOOP3("Localizable", "“%@” already exists. Do you want to replace it?",
                    "question of the save panel, with the name of a file"),
                { Path::lastPathComponent(path) }));
    }

    QString m_proposed;
    Request m_request;
};

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
    const PathRefusal &refusal, const QString &note)
{
    auto *sheet = new SaveSheet(
        window, saveFolder(startFolder), filename + u'.' + ext, { ext, path, refusal, note });
    sheet->open();
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
