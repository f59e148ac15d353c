#include "reference/toolkit/editors/PopupRows.h"

#include "reference/toolkit/Painting.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>

#include <algorithm>

namespace WQ {

namespace {

constexpr int kMostRows = 16;
constexpr int kFrame = 1;

} // namespace

PopupRows::PopupRows(QWidget* owner)
    : QWidget(owner, Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint)
{
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PopupRows::setClosed(std::function<void()> closed)
{
    m_closed = std::move(closed);
}

void PopupRows::setPressedOutside(std::function<bool(const QPoint&, bool)> pressedOutside)
{
    m_pressedOutside = std::move(pressedOutside);
}

int PopupRows::footerHeight() const
{
    return 0;
}

void PopupRows::paintFooter(QPainter&)
{
}

bool PopupRows::keyTyped(QKeyEvent&)
{
    return false;
}

bool PopupRows::footerPressed(const QPoint&)
{
    return false;
}

QFont PopupRows::textFont() const
{
    return resources::font(keys::kTextFont, m_scale);
}

int PopupRows::size(const QString& key) const
{
    return resources::size(key, m_scale);
}

int PopupRows::visibleRows() const
{
    return std::max(0, (height() - 2 * kFrame - footerHeight()) / size(keys::kPopupRowHeight));
}

QRect PopupRows::rowRect(int row) const
{
    if (row < m_top || row >= std::min(rowCount(), m_top + visibleRows()))
        return QRect();
    const int rowHeight = size(keys::kPopupRowHeight);
    return QRect(kFrame, kFrame + (row - m_top) * rowHeight, width() - 2 * kFrame, rowHeight);
}

QRect PopupRows::footerRect() const
{
    return QRect(kFrame, height() - kFrame - footerHeight(), width() - 2 * kFrame, footerHeight());
}

int PopupRows::rowAt(const QPoint& position) const
{
    const int rowHeight = size(keys::kPopupRowHeight);
    const int row = position.y() < kFrame ? -1 : m_top + (position.y() - kFrame) / rowHeight;
    return rowRect(row).contains(position) ? row : -1;
}

void PopupRows::popUp(const QRect& anchor, double scale)
{
    m_anchor = anchor;
    m_scale = scale;
    m_top = 0;
    m_wheel.clear();
    m_pressed = false;
    resizeToContent();
    scrollTo(m_current);
    show();
}

void PopupRows::resizeToContent()
{
    const QScreen* on = parentWidget()->screen();
    const QRect room = on ? on->availableGeometry() : m_anchor;
    const int rowHeight = size(keys::kPopupRowHeight);
    const int others = 2 * kFrame + footerHeight();
    // Never over the row it belongs to: where neither side has room for all, the larger one scrolls.
    const int below = room.bottom() - m_anchor.bottom();
    const int above = m_anchor.top() - room.top();
    const int wanted = std::clamp(rowCount(), 1, kMostRows) * rowHeight + others;
    const bool isAbove = wanted > below && above > below;
    const int fitting = std::max(1, ((isAbove ? above : below) - others) / rowHeight);
    const int rows = std::clamp(rowCount(), 1, std::min(kMostRows, fitting));
    const int height = rows * rowHeight + others;
    const int scroll = rowCount() > rows ? size(keys::kScrollBar) : 0;
    const int width = std::min(std::max(contentWidth() + scroll + 2 * kFrame, m_anchor.width()), room.width());
    const int top = isAbove ? m_anchor.top() - height : m_anchor.bottom() + 1;
    const int left = std::max(room.left(), std::min(m_anchor.right() + 1 - width, room.right() + 1 - width));
    setGeometry(left, top, width, height);
}

void PopupRows::refresh()
{
    resizeToContent();
    setCurrentRow(m_current);
    setTop(m_top);
    update();
}

void PopupRows::setCurrentRow(int row)
{
    const int bounded = std::min(std::max(-1, row), rowCount() - 1);
    if (bounded != m_current) {
        m_current = bounded;
        update();
    }
    scrollTo(m_current);
}

void PopupRows::moveCurrent(int by)
{
    if (rowCount() > 0)
        setCurrentRow(std::clamp(m_current + by, 0, rowCount() - 1));
}

void PopupRows::setTop(int top)
{
    const int bounded = std::clamp(top, 0, std::max(0, rowCount() - visibleRows()));
    if (bounded == m_top)
        return;
    m_top = bounded;
    update();
}

void PopupRows::scrollTo(int row)
{
    if (row >= 0)
        setTop(std::min(row, std::max(m_top, row + 1 - visibleRows())));
}

void PopupRows::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), resources::color(keys::kRow));
    for (int row = m_top; row < std::min(rowCount(), m_top + visibleRows()); ++row)
        paintRow(painter, row, rowRect(row), row == m_current);
    paintFooter(painter);
    paintScrollHandle(painter);
    painting::drawFrame(painter, rect(), resources::color(keys::kSeparator));
}

void PopupRows::paintCurrent(QPainter& painter, const QRect& rect)
{
    painter.fillRect(rect, resources::color(keys::kRowFocus));
    painting::drawFrame(painter, rect, resources::color(keys::kAccent));
}

void PopupRows::paintScrollHandle(QPainter& painter) const
{
    const int shown = visibleRows();
    if (rowCount() <= shown)
        return;
    const int room = height() - 2 * kFrame - footerHeight();
    const int barWidth = size(keys::kScrollBar);
    const int length = std::max(barWidth, room * shown / rowCount());
    const int top = kFrame + (room - length) * m_top / (rowCount() - shown);
    painter.fillRect(QRect(width() - kFrame - barWidth, top, barWidth, length), resources::color(keys::kScrollHandle));
}

void PopupRows::keyPressEvent(QKeyEvent* event)
{
    event->accept();
    const bool isAlt = event->modifiers().testFlag(Qt::AltModifier);
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (isAlt)
            hide();
        else
            moveCurrent(event->key() == Qt::Key_Up ? -1 : 1);
        return;
    case Qt::Key_PageUp:
        return moveCurrent(-visibleRows());
    case Qt::Key_PageDown:
        return moveCurrent(visibleRows());
    case Qt::Key_Home:
        return moveCurrent(-rowCount());
    case Qt::Key_End:
        return moveCurrent(rowCount());
    case Qt::Key_Escape:
        hide();
        return;
    default:
        keyTyped(*event);
    }
}

bool PopupRows::pressOutside(const QMouseEvent& event, bool isDoubleClick)
{
    if (rect().contains(event.pos()))
        return false;
    // A press that belongs to the list's own cell must not open it again.
    const bool ends = m_pressedOutside && m_pressedOutside(event.globalPos(), isDoubleClick);
    setAttribute(Qt::WA_NoMouseReplay, ends);
    hide();
    return true;
}

void PopupRows::mousePressEvent(QMouseEvent* event)
{
    if (pressOutside(*event, false))
        return;
    m_pressed = true;
    if (footerRect().contains(event->pos()))
        footerPressed(event->pos());
}

void PopupRows::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (!pressOutside(*event, true))
        mousePressEvent(event);
}

// The press that opened the list is released over it at times: only a press inside chooses.
void PopupRows::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_pressed || event->button() != Qt::LeftButton)
        return;
    m_pressed = false;
    const int row = rowAt(event->pos());
    if (row >= 0)
        activate(row);
}

void PopupRows::mouseMoveEvent(QMouseEvent* event)
{
    const int row = rowAt(event->pos());
    if (row >= 0)
        setCurrentRow(row);
}

void PopupRows::wheelEvent(QWheelEvent* event)
{
    event->accept();
    setTop(m_top - m_wheel.take(*event));
}

void PopupRows::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (m_closed)
        m_closed();
}

} // namespace WQ
