// SPDX-License-Identifier: MIT
#include "ui/widgets/ConvertPopupButton.h"

#include "support/Localized.h"
#include "ui/widgets/Clickable.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QProxyStyle>
#include <QScreen>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Long menus scroll instead of taking columns.
class MenuStyle : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
        QStyleHintReturn *data) const override
    {
        return hint == SH_Menu_Scrollable ? 1 : QProxyStyle::styleHint(hint, option, widget, data);
    }
    int pixelMetric(
        PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        return metric == PM_MenuDesktopFrameWidth
            ? desktopFrame
            : QProxyStyle::pixelMetric(metric, option, widget);
    }

    /// What a menu leaves free of the screen, above and below.
    int desktopFrame = 0;
};

QFont systemFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPointSizeF(13.0);
    return font;
}

}

ConvertPopupButtonCell::ConvertPopupButtonCell(const QString &, bool)
    : m_overridenTitle(
        localized(QT_TRANSLATE_NOOP3("Localizable", "Convert.buttonTitle", "convert button title"),
            "Convert"))
{
}

QRectF ConvertPopupButtonCell::titleRectForBounds(const QRectF &bounds) const
{
    const double height = QFontMetricsF(m_font.value_or(systemFont()))
                              .size(Qt::TextSingleLine, m_overridenTitle)
                              .height();
    const double diff = bounds.height() - height;
    if (diff <= 0)
        return bounds;
    return { bounds.x(), bounds.y() + diff * 0.5 - 2.0, bounds.width(), height };
}

ConvertPopupButton::ConvertPopupButton(QWidget *parent)
    : QPushButton(parent)
    , m_cell(QString(), true)
{
    QFont faceFont = font();
    faceFont.setWeight(QFont::DemiBold);
    setFont(faceFont);
    setText(m_cell.title());
    setAttribute(Qt::WA_Hover);
}

void ConvertPopupButton::setMenu(QMenu *menu)
{
    QPushButton::setMenu(menu);
    disconnect(this, &QPushButton::pressed, this, nullptr);
    connect(this, &QPushButton::pressed, this, &ConvertPopupButton::openMenu);
    auto *menuStyle = new MenuStyle;
    menuStyle->setParent(menu);
    menu->setStyle(menuStyle);
    menu->installEventFilter(this);
}

void ConvertPopupButton::openMenu()
{
    const QRect face(mapToGlobal(QPoint()), size());
    const QRect area = screen()->availableGeometry();
    const QSize wanted = menu()->sizeHint();
    const int below = area.bottom() - face.bottom();
    const int above = face.top() - area.top();
    const int height = std::min(wanted.height(), std::max(above, below));
    const bool leftToRight = layoutDirection() == Qt::LeftToRight;
    m_menuPlace = { leftToRight ? face.left() : face.right() + 1 - wanted.width(),
        height <= below ? face.bottom() + 1 : face.top() - height, wanted.width(), height };
    // A menu scrolls only on a screen that is too low for it, and would rather lie over its button.
    auto *style = static_cast<MenuStyle *>(menu()->style());
    style->desktopFrame = height < wanted.height() ? (area.height() - height) / 2 : 0;
    menu()->exec(m_menuPlace.topLeft());
    style->desktopFrame = 0;
    setDown(false);
}

bool ConvertPopupButton::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == menu() && event->type() == QEvent::Show && isDown()) {
        menu()->setGeometry(m_menuPlace);
        menu()->setActiveAction(menu()->defaultAction());
    }
    if (watched == menu() && event->type() == QEvent::KeyPress)
        return lookUp(static_cast<QKeyEvent *>(event)->text());
    return QPushButton::eventFilter(watched, event);
}

bool ConvertPopupButton::lookUp(const QString &key)
{
    if (m_typingEnd.hasExpired())
        m_typed.clear();
    // A space at the beginning chooses what is highlighted.
    if (key.isEmpty() || !key.front().isPrint() || (m_typed.isEmpty() && key == " "_L1))
        return false;
    m_typingEnd.setRemainingTime(std::chrono::seconds(1));
    m_typed += key;
    QList<QAction *> entries = menu()->actions();
    // No entry begins with a letter twice: the same letter again leads on.
    const bool isRepeated = m_typed.count(key, Qt::CaseInsensitive) == m_typed.size();
    if (isRepeated)
        std::rotate(entries.begin(), entries.begin() + entries.indexOf(menu()->activeAction()) + 1,
            entries.end());
    const auto found = std::ranges::find_if(entries, [&](const QAction *entry) {
        return entry->isEnabled() && entry->isVisible()
            && entry->text().remove(u'&').startsWith(
                isRepeated ? key : m_typed, Qt::CaseInsensitive);
    });
    if (found != entries.end())
        menu()->setActiveAction(*found);
    return true;
}

QSize ConvertPopupButton::sizeHint() const
{
    const QSize text = fontMetrics().size(Qt::TextSingleLine, m_cell.title());
    const int line = fontMetrics().height();
    return { text.width() + line * 7, line * 2 + 6 };
}

QColor ConvertPopupButton::faceColor() const
{
    if (!isEnabled())
        return palette().color(QPalette::Disabled, QPalette::Button);
    const QColor accent = palette().color(QPalette::Highlight);
    return accent.darker(isDown() ? 118 : underMouse() ? 108 : 100);
}

void ConvertPopupButton::paintEvent(QPaintEvent *)
{
    m_cell.setFont(font());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF face = QRectF(rect()).adjusted(3, 3, -3, -3);
    painter.setPen(Qt::NoPen);
    painter.setBrush(faceColor());
    painter.drawRoundedRect(face, 8, 8);
    Clickable::paintFocus(painter, *this);
    painter.setPen(palette().color(isEnabled() ? QPalette::HighlightedText : QPalette::ButtonText));
    painter.drawText(m_cell.titleRectForBounds(rect()), Qt::AlignCenter, m_cell.title());
    paintIndicator(painter);
}

void ConvertPopupButton::paintIndicator(QPainter &painter)
{
    const double arrow = fontMetrics().height() * 0.24;
    const double inset = fontMetrics().height() * 1.3;
    painter.setPen(QPen(painter.pen().color(), 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const double titleCentre = m_cell.titleRectForBounds(rect()).center().y();
    const bool leftToRight = layoutDirection() == Qt::LeftToRight;
    painter.translate(leftToRight ? width() - inset : inset, titleCentre);
    const QPointF down[] = { { -arrow, -arrow / 2 }, { 0, arrow / 2 }, { arrow, -arrow / 2 } };
    painter.drawPolyline(down, 3);
}
