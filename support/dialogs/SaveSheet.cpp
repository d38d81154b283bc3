// SPDX-License-Identifier: MIT
#include "support/dialogs/SaveSheet.h"

#include "support/Format.h"
#include "support/Localized.h"
#include "support/Path.h"
#include "support/dialogs/Alerts.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

QString withExtension(const QString &path, const QString &extension)
{
    if (Path::pathExtension(path).compare(extension, Qt::CaseInsensitive) == 0)
        return path;
    return path.endsWith(u'.') ? path + extension : path + u'.' + extension;
}

}

SaveSheet::SaveSheet(QWidget *window, const QString &folder, QString name, QString extension,
    std::function<bool(const QString &path)> refuses)
    : QFileDialog(window,
        localized(
            QT_TRANSLATE_NOOP3("Localizable", "Convert.savePanelTitle", "title for save panel"),
            "Convert"),
        folder)
    , m_refuses(std::move(refuses))
    , m_extension(std::move(extension))
    , m_proposed(std::move(name))
{
    setAcceptMode(AcceptSave);
    setFileMode(AnyFile);
    setNameFilter(u"*."_s + m_extension);
    setLabelText(Accept,
        localized(
            QT_TRANSLATE_NOOP3("Localizable", "Convert.savePanelPrompt", "prompt for save panel"),
            "Convert"));
    setLabelText(FileName,
        localized(QT_TRANSLATE_NOOP3("Localizable", "Convert.savePanelNameFieldLabel",
                      "name label for save panel (<= 15 symbols)"),
            "Result filename:"));
    selectFile(m_proposed);
}

void SaveSheet::showNote(const QString &note)
{
    if (auto *grid = qobject_cast<QGridLayout *>(layout()); grid && !note.isEmpty())
        grid->addWidget(new QLabel(note, this), grid->rowCount(), 0, 1, -1);
}

void SaveSheet::accept()
{
    // A dialog of the desktop is hidden by now and has asked about an existing file of the name as
    // it was typed.
    const bool isNative = testAttribute(Qt::WA_DontShowOnScreen);
    const QString chosen = isNative ? selectedFiles().value(0) : typedPath();
    if (chosen.isEmpty())
        return;
    if (!isNative && QFileInfo(chosen).isDir())
        return enterFolder(chosen);
    const QString path = withExtension(chosen, m_extension);
    const bool hasAsked = isNative && path == chosen;
    if (mayUse(path, hasAsked)) {
        m_path = path;
        QDialog::accept(); // NOLINT(bugprone-parent-virtual-call): QFileDialog would ask again
    } else if (isNative) {
        m_refusedPath = path;
        QDialog::reject();
    }
}

// The extension is given; the name is what may be typed over.
void SaveSheet::showEvent(QShowEvent *event)
{
    QFileDialog::showEvent(event);
    if (QLineEdit *field = nameField())
        field->setSelection(0, static_cast<int>(field->text().size() - m_extension.size() - 1));
}

bool SaveSheet::mayUse(const QString &path, bool hasAsked) const
{
    const QString name = Path::lastPathComponent(path);
    if (QFileInfo(path).isDir()) {
        displayError(
            formatted(QT_TRANSLATE_NOOP3("Localizable", "“%@” is a folder. Choose another name.",
                          "alert of the save panel, with the name of a folder"),
                { name }));
        return false;
    }
    if (m_refuses && m_refuses(path))
        return false;
    return hasAsked || !QFileInfo::exists(path)
        || displayQuestion(formatted(
            QT_TRANSLATE_NOOP3("Localizable", "“%@” already exists. Do you want to replace it?",
                "question of the save panel, with the name of a file"),
            { name }));
}

QLineEdit *SaveSheet::nameField() const { return findChild<QLineEdit *>(u"fileNameEdit"_s); }

// The dialog's own reading of the field takes quotation marks for separators of several names.
QString SaveSheet::typedPath() const
{
    const QString name = nameField()->text();
    if (name.isEmpty())
        return {};
    if (name.startsWith("~/"_L1))
        return QDir::homePath() + name.sliced(1);
    return QDir::cleanPath(directory().absoluteFilePath(name));
}

// Keeps the name that was to be used before the folder's name was typed over it.
void SaveSheet::enterFolder(const QString &path)
{
    setDirectory(path);
    nameField()->setText(m_proposed);
}
