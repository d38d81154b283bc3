// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QStringList>

class DropVeil;
class QMimeData;

/// Whether a widget takes drops; false until it is set, and where what is set is no flag.
[[nodiscard]] bool allowDragDrop(const QWidget *view);
void setAllowDragDrop(QWidget *view, bool allow);

/// The files of this machine among what is dragged or copied; addresses of others are left out.
[[nodiscard]] QStringList localFiles(const QMimeData *data);

/// The window's drop target: says over its whole area whether a drag is welcome, hands drops on.
class DropBox : public QFrame {
    Q_OBJECT

public:
    explicit DropBox(QWidget *parent = nullptr);

Q_SIGNALS:
    void performDragOperation(const QStringList &paths);

protected:
    bool event(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void answer(QDropEvent *event);

    DropVeil *m_veil;
};
