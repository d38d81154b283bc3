// SPDX-License-Identifier: MIT
#include "ui/widgets/DropBox.h"

#include "support/Localized.h"

#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QPainter>
#include <QUrl>
#include <QVariant>

namespace {

constexpr auto dragDropKey = "drag'n'drop";

}

bool allowDragDrop(const QWidget *view)
{
    const QVariant value = view->property(dragDropKey);
    return value.typeId() == QMetaType::Bool && value.toBool();
}

void setAllowDragDrop(QWidget *view, bool allow) { view->setProperty(dragDropKey, allow); }

QStringList localFiles(const QMimeData *data)
{
    QStringList paths;
    for (const QUrl &url : data ? data->urls() : QList<QUrl>()) {
        if (url.isLocalFile())
            paths << url.toLocalFile();
    }
    return paths;
}

/// Lies over a drop target while something is dragged over it, and says what a drop would do.
class DropVeil : public QLabel {
public:
    explicit DropVeil(QWidget *target)
        : QLabel(target)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAlignment(Qt::AlignCenter);
        setWordWrap(true);
        setMargin(24);
        QFont larger = font();
        larger.setPointSizeF(larger.pointSizeF() * 1.45);
        larger.setWeight(QFont::DemiBold);
        setFont(larger);
        hide();
    }

    void cover(const QString &text, bool isWelcome)
    {
        m_isWelcome = isWelcome;
        setForegroundRole(isWelcome ? QPalette::Link : QPalette::PlaceholderText);
        setText(text);
        setGeometry(parentWidget()->rect());
        raise();
        show();
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QColor ground = palette().color(QPalette::Window);
        ground.setAlphaF(0.94F);
        painter.fillRect(rect(), ground);
        const QColor ink = palette().color(foregroundRole());
        QColor tint = ink;
        tint.setAlphaF(m_isWelcome ? 0.1F : 0.0F);
        painter.setBrush(tint);
        painter.setPen(QPen(ink, 3, m_isWelcome ? Qt::SolidLine : Qt::DotLine));
        painter.drawRoundedRect(QRectF(rect()).adjusted(8, 8, -8, -8), 14, 14);
        QLabel::paintEvent(event);
    }

private:
    bool m_isWelcome = false;
};

DropBox::DropBox(QWidget *parent)
    : QFrame(parent)
    , m_veil(new DropVeil(this))
{
}

// A widget that refuses the entry gets neither move nor leave.
void DropBox::dragEnterEvent(QDragEnterEvent *event)
{
    answer(event);
    event->accept();
}

// An alert that comes with a new state keeps the leave from the window.
bool DropBox::event(QEvent *event)
{
    if (event->type() == QEvent::DynamicPropertyChange)
        m_veil->hide();
    return QFrame::event(event);
}

void DropBox::dragMoveEvent(QDragMoveEvent *event) { answer(event); }

void DropBox::dragLeaveEvent(QDragLeaveEvent *) { m_veil->hide(); }

void DropBox::dropEvent(QDropEvent *event)
{
    answer(event);
    m_veil->hide();
    if (event->isAccepted())
        Q_EMIT performDragOperation(localFiles(event->mimeData()));
}

void DropBox::answer(QDropEvent *event)
{
    const bool holdsFiles = !localFiles(event->mimeData()).isEmpty();
    // What is dragged out of the window is no video to convert.
    const bool accepted = holdsFiles && allowDragDrop(this) && !event->source();
    event->setDropAction(accepted ? Qt::CopyAction : Qt::IgnoreAction);
    event->setAccepted(accepted);
    if (event->source())
        return;
    const LocalizedText text = accepted ? LocalizedText QT_TRANSLATE_NOOP3("Localizable",
                                   "Drop to convert", "over the window, while a file is dragged")
        : holdsFiles
        ? LocalizedText QT_TRANSLATE_NOOP3("Localizable",
            "One video at a time: wait for the end of this one",
            "over the window, while a file is dragged that it can't take now")
        : LocalizedText QT_TRANSLATE_NOOP3("Localizable", "Only files can be dropped here",
            "over the window, while something else than a file is dragged");
    m_veil->cover(localized(text), accepted);
}
