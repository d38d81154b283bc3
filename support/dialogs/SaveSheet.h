// SPDX-License-Identifier: MIT
#pragma once

#include <QFileDialog>
#include <QString>

#include <functional>

class QLineEdit;

/// File dialog for one result with one extension; used through runSaveToSheet(). Has no Q_OBJECT:
/// the toolkit takes the desktop's own dialog only for its very own class.
class SaveSheet : public QFileDialog {
public:
    /// `refuses` is asked before the user is asked whether to replace a file; may be empty.
    SaveSheet(QWidget *window, const QString &folder, QString name, QString extension,
        std::function<bool(const QString &path)> refuses);

    /// Below the name, unless the dialog is the desktop's own.
    void showNote(const QString &note);
    [[nodiscard]] QString path() const { return m_path; }
    /// What a dialog of the desktop gave but the user did not want to replace. Such a dialog has
    /// closed itself and can't be shown again.
    [[nodiscard]] QString refusedPath() const { return m_refusedPath; }

protected:
    void accept() override;
    void showEvent(QShowEvent *event) override;

private:
    [[nodiscard]] QLineEdit *nameField() const;
    [[nodiscard]] QString typedPath() const;
    [[nodiscard]] bool mayUse(const QString &path, bool hasAsked) const;
    void enterFolder(const QString &path);

    std::function<bool(const QString &path)> m_refuses;
    QString m_extension;
    QString m_proposed;
    QString m_path;
    QString m_refusedPath;
};
