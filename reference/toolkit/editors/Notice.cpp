#include "reference/toolkit/editors/Notice.h"

#include "reference/toolkit/Painting.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QScreen>

#include <algorithm>

namespace WQ {

Notice::Notice(QWidget* owner)
    : QWidget(owner, Qt::ToolTip | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint)
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
}

void Notice::tell(const QString& text, const QRect& row, double scale)
{
    m_text = text;
    m_font = resources::font(keys::kNoticeFont, scale);
    const QScreen* on = parentWidget()->screen();
    const QRect room = on ? on->availableGeometry() : row;
    const int padding = resources::size(keys::kPadding, scale);
    const int gap = resources::size(keys::kUnitGap, scale);
    const int width = std::min(painting::textWidth(m_font, text) + 2 * padding, room.width());
    const int height = std::max(QFontMetrics(m_font).height() + gap, resources::size(keys::kFieldHeight, scale));
    const bool fitsBeside = row.right() + gap + width <= room.right();
    const QPoint beside(row.right() + 1 + gap, row.top() + (row.height() - height) / 2);
    const QPoint below(std::clamp(row.left(), room.left(), std::max(room.left(), room.right() + 1 - width)),
                       row.bottom() + 1);
    setGeometry(QRect(fitsBeside ? beside : below, QSize(width, height)));
    update();
    if (isVisible())
        return;
    parentWidget()->window()->installEventFilter(this);
    show();
}

void Notice::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), resources::color(keys::kRow));
    painting::drawText(painter, rect(), m_font, resources::color(keys::kValue), Qt::AlignCenter, m_text);
    painting::drawFrame(painter, rect(), resources::color(keys::kWrongFrame));
}

// A window of its own, it would stay behind where the window of its row moves away.
bool Notice::eventFilter(QObject* watched, QEvent* event)
{
    const bool isGone = event->type() == QEvent::Move || event->type() == QEvent::Hide;
    if (isGone && watched->isWidgetType() && isVisible())
        hide();
    return false;
}

} // namespace WQ
