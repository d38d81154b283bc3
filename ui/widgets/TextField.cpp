// SPDX-License-Identifier: MIT
#include "ui/widgets/TextField.h"

#include "ui/widgets/Clickable.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A name may hold line breaks and other controls; it still takes one line.
QString onOneLine(QString text)
{
    // No expression: its library would be loaded at each start for this alone.
    const auto breaksLine = [](QChar character) {
        return character.category() == QChar::Other_Control || character == QChar::LineSeparator
            || character == QChar::ParagraphSeparator;
    };
    std::ranges::replace_if(text, breaksLine, u' ');
    return text;
}

}

TextField::TextField(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_Hover);
}

void TextField::resetCursorRects()
{
    const bool isHand = property("_cursor").toString() == "pointingHandCursor"_L1;
    isHand ? setCursor(Qt::PointingHandCursor) : unsetCursor();
}

QSize TextField::minimumSizeHint() const
{
    const QSize elided(fontMetrics().averageCharWidth() * 8, fontMetrics().height());
    return m_elided ? elided.grownBy(contentsMargins()) : QLabel::minimumSizeHint();
}

bool TextField::event(QEvent *event)
{
    if (Clickable::isPressed(*this, *event)) {
        Q_EMIT clicked();
        return true;
    }
    if (event->type() == QEvent::DynamicPropertyChange)
        resetCursorRects();
    return QLabel::event(event);
}

void TextField::paintEvent(QPaintEvent *event)
{
    if (!m_elided && receivers(SIGNAL(clicked())) == 0)
        return QLabel::paintEvent(event);
    QPainter painter(this);
    QFont textFont = font();
    textFont.setUnderline(underMouse() && receivers(SIGNAL(clicked())) > 0);
    painter.setFont(textFont);
    const QRect area = contentsRect();
    const QString shown
        = fontMetrics().elidedText(onOneLine(text()), Qt::ElideMiddle, area.width());
    style()->drawItemText(&painter, area, static_cast<int>(alignment()) | Qt::TextSingleLine,
        palette(), isEnabled(), shown, foregroundRole());
    Clickable::paintFocus(painter, *this);
}
