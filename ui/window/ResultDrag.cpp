// SPDX-License-Identifier: MIT
#include "ui/window/ResultDrag.h"

#include "support/Localized.h"
#include "ui/widgets/DropBox.h"
#include "ui/widgets/ImageView.h"

#include <QApplication>
#include <QDrag>
#include <QFileInfo>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>

ResultDrag::ResultDrag(ImageView *picture, QWidget *dropTarget)
    : m_picture(picture)
    , m_dropTarget(dropTarget)
{
    picture->installEventFilter(this);
}

void ResultDrag::setPath(const QString &path)
{
    m_path = path;
    m_picture->setToolTip(path.isEmpty()
            ? QString()
            : localized(QT_TRANSLATE_NOOP3("Localizable",
                "Drag the result from here into a folder or a mail", "tool tip of the picture")));
    m_picture->setCursor(path.isEmpty() ? Qt::ArrowCursor : Qt::OpenHandCursor);
}

bool ResultDrag::eventFilter(QObject *watched, QEvent *event)
{
    const auto *mouse = static_cast<QMouseEvent *>(event);
    if (event->type() == QEvent::MouseButtonPress)
        m_pressedAt = mouse->pos();
    const bool drags = event->type() == QEvent::MouseMove && (mouse->buttons() & Qt::LeftButton)
        && (mouse->pos() - m_pressedAt).manhattanLength() >= QApplication::startDragDistance();
    if (!drags || !QFileInfo::exists(m_path))
        return QObject::eventFilter(watched, event);
    drag();
    return true;
}

void ResultDrag::drag()
{
    constexpr int thumbnailLines = 6;
    auto *data = new QMimeData;
    data->setUrls({ QUrl::fromLocalFile(QFileInfo(m_path).absoluteFilePath()) });
    auto *drag = new QDrag(m_picture);
    drag->setMimeData(data);
    if (!m_picture->image().isNull())
        drag->setPixmap(QPixmap::fromImage(m_picture->image().scaledToHeight(
            m_picture->fontMetrics().height() * thumbnailLines, Qt::SmoothTransformation)));
    setAllowDragDrop(m_dropTarget, false);
    drag->exec(Qt::CopyAction);
    // Otherwise another file has come meanwhile, and its state has decided.
    if (!m_path.isEmpty())
        setAllowDragDrop(m_dropTarget, true);
}
