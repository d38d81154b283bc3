// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;

/// What the user may set; written when it is accepted.
class SettingsDialog : public QDialog {
    Q_OBJECT

public:
    explicit SettingsDialog(QWidget *parent);

    void accept() override;

private:
    QCheckBox *m_usage;
    QCheckBox *m_updates;
    QComboBox *m_language;
};
