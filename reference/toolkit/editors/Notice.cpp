#include "reference/toolkit/editors/Notice.h"

#include "reference/toolkit/Painting.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace WQ {

namespace {

QRect roomAround(const QRect& row, const QWidget& owner)
{
    const QScreen* screen = QGuiApplication::screenAt(row.center());
    if (!screen)
        screen = owner.screen();
    return screen ? screen->availableGeometry() : row;
}

} // namespace

QRect noticePlace(const QSize& size, const QRect& row, const QRect& room, int gap)
{
    const QSize fitting = size.boundedTo(room.size());
    QPoint corner(row.right() + 1 + gap, row.top() + (row.height() - fitting.height()) / 2);
    if (corner.x() + fitting.width() > room.right() + 1) {
        const bool fitsBelow = row.bottom() + 1 + fitting.height() <= room.bottom() + 1;
        corner = QPoint(row.left(), fitsBelow ? row.bottom() + 1 : row.top() - fitting.height());
    }
    return QRect(QPoint(std::clamp(corner.x(), room.left(), room.right() + 1 - fitting.width()),
                        std::clamp(corner.y(), room.top(), room.bottom() + 1 - fitting.height())),
                 fitting);
}

Notice::Notice(QAbstractScrollArea* owner)
    : QWidget(owner, Qt::ToolTip | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint)
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
}

void Notice::tell(const QString& text, Kind kind, std::function<QRect()> row, double scale)
{
    const bool isNew = !m_row;
    m_row = std::move(row);
    m_text = text;
    m_kind = kind;
    m_scale = scale;
    m_font = resources::font(keys::kNoticeFont, scale);
    setAccessibleName(text);
    if (isNew)
        watch(true);
    follow();
    update();
}

void Notice::withdraw()
{
    if (!std::exchange(m_row, nullptr))
        return;
    watch(false);
    hide();
}

void Notice::follow()
{
    const QRect row = seenRow();
    if (row.isEmpty()) {
        hide();
        return;
    }
    setGeometry(place(row));
    show();
    // A new window lets events in, and one of them may have withdrawn the notice.
    if (!m_row)
        hide();
}

// What is left of the row between the edges of all it is scrolled in, in global coordinates.
QRect Notice::seenRow() const
{
    const QWidget* around = static_cast<QAbstractScrollArea*>(parentWidget())->viewport();
    if (!m_row || !around->isVisible() || !around->isActiveWindow())
        return QRect();
    QRect seen = m_row().intersected(around->rect());
    while (!seen.isEmpty() && !around->isWindow()) {
        seen = seen.translated(around->pos()).intersected(around->parentWidget()->rect());
        around = around->parentWidget();
    }
    return seen.isEmpty() ? QRect() : QRect(around->mapToGlobal(seen.topLeft()), seen.size());
}

QRect Notice::place(const QRect& row) const
{
    const int padding = resources::size(keys::kPadding, m_scale);
    const int gap = resources::size(keys::kUnitGap, m_scale);
    const int height = std::max(QFontMetrics(m_font).height() + gap, resources::size(keys::kFieldHeight, m_scale));
    const QSize size(painting::textWidth(m_font, m_text) + 2 * padding, height);
    return noticePlace(size, row, roomAround(row, *parentWidget()), gap);
}

void Notice::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), resources::color(keys::kRow));
    painting::drawText(painter, rect(), m_font, resources::color(keys::kValue), Qt::AlignCenter, m_text);
    painting::drawFrame(painter, rect(), resources::color(m_kind == Kind::Wrong ? keys::kWrongFrame : keys::kNotice));
}

// Whatever the row stands in may be moved, scrolled or hidden.
void Notice::watch(bool on)
{
    for (QWidget* around = parentWidget(); around; around = around->isWindow() ? nullptr : around->parentWidget()) {
        if (on)
            around->installEventFilter(this);
        else
            around->removeEventFilter(this);
    }
}

// A window of its own, it would stay where it is, and over other windows.
bool Notice::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Hide:
        hide();
        break;
    case QEvent::Show:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
        follow();
        break;
    default:
        break;
    }
    return false;
}

} // namespace WQ
