// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QStringList>

class QMimeData;

/// Whether a widget takes drops; false until it is set, and where what is set is no flag.
[[nodiscard]] bool allowDragDrop(const QWidget *view);
void setAllowDragDrop(QWidget *view, bool allow);

/// The window's drop target: gates drops by allowDragDrop() and hands them on.
class DropBox : public QFrame {
    Q_OBJECT

public:
    using QFrame::QFrame;

    /// Only drags that offer one of these MIME types are heard of at all.
    void registerForDraggedTypes(const QStringList &mimeTypes);

Q_SIGNALS:
    /// The data lives only during the call.
    void performDragOperation(const QMimeData *data);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void answer(QDropEvent *event);
    void setHovered(bool hovered);

    QStringList m_draggedTypes;
    bool m_hovered = false;
};
