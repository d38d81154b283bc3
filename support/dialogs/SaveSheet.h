// SPDX-License-Identifier: MIT
#pragma once

#include <QFileDialog>
#include <QString>

class QLineEdit;

/// File dialog for one result with one allowed extension; used through runSaveToSheet().
class SaveSheet : public QFileDialog {
    Q_OBJECT

public:
    SaveSheet(QWidget *window, const QString &folder, const QString &filename, QString extension);

    /// The confirmed path, once the dialog has been accepted.
    [[nodiscard]] QString path() const { return m_path; }

protected:
    void accept() override;

private:
    [[nodiscard]] QLineEdit *nameField() const;
    [[nodiscard]] QString typedPath() const;
    void enterFolder(const QString &path);
    void comeAgain(const QString &path);

    QString m_extension;
    QString m_proposed;
    QString m_path;
};
