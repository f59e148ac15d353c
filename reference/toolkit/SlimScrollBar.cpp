#include "reference/toolkit/SlimScrollBar.h"

#include "reference/toolkit/Painting.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"
#include "reference/toolkit/ThemeStore.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace WQ {

namespace {

// The areas ask for these sizes at each of their layouts; the themes share them, and they stay.
int barSize(const QWidget* bar)
{
    static const double size = ThemeStore::instance().size(keys::kScrollBar);
    return resources::scaled(size, painting::scaleOf(bar));
}

int handleSize(const QWidget* bar)
{
    static const double size = ThemeStore::instance().size(keys::kScrollHandleLength);
    return resources::scaled(size, painting::scaleOf(bar));
}

} // namespace

SlimScrollBar::SlimScrollBar(Qt::Orientation orientation, QString groundKey, QWidget* parent)
    : QScrollBar(orientation, parent)
    , m_groundKey(std::move(groundKey))
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_Hover);
}

void SlimScrollBar::setGroundKey(const QString& key)
{
    m_groundKey = key;
    update();
}

int SlimScrollBar::thickness() const
{
    return barSize(this);
}

int SlimScrollBar::shortestHandle() const
{
    return handleSize(this);
}

QSize SlimScrollBar::sizeHint() const
{
    const QSize size(thickness(), 2 * shortestHandle());
    return orientation() == Qt::Vertical ? size : size.transposed();
}

QSize SlimScrollBar::minimumSizeHint() const
{
    return sizeHint();
}

void SlimScrollBar::themeChanged()
{
    update();
}

void SlimScrollBar::scaleChanged()
{
    updateGeometry();
}

int SlimScrollBar::along(const QPoint& position) const
{
    return orientation() == Qt::Vertical ? position.y() : position.x();
}

int SlimScrollBar::length() const
{
    return orientation() == Qt::Vertical ? height() : width();
}

int SlimScrollBar::handleLength() const
{
    const double whole = static_cast<double>(maximum()) - minimum() + pageStep();
    const int fair = whole > 0 ? static_cast<int>(length() * (pageStep() / whole)) : length();
    return std::clamp(fair, std::min(shortestHandle(), length()), std::max(1, length()));
}

int SlimScrollBar::handleStart() const
{
    const double range = static_cast<double>(maximum()) - minimum();
    const double share = range > 0 ? (static_cast<double>(sliderPosition()) - minimum()) / range : 0;
    return static_cast<int>((length() - handleLength()) * share);
}

QRect SlimScrollBar::handleRect() const
{
    return orientation() == Qt::Vertical ? QRect(0, handleStart(), width(), handleLength())
                                         : QRect(handleStart(), 0, handleLength(), height());
}

void SlimScrollBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), resources::color(m_groundKey));
    if (minimum() >= maximum())
        return;
    const bool live = underMouse() || m_grip >= 0;
    painter.fillRect(handleRect().adjusted(1, 1, -1, -1), resources::color(live ? keys::kUnit : keys::kScrollHandle));
}

void SlimScrollBar::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    if (event->button() != Qt::LeftButton || minimum() >= maximum())
        return;
    const int position = along(event->pos());
    if (position < handleStart())
        triggerAction(SliderPageStepSub);
    else if (position >= handleStart() + handleLength())
        triggerAction(SliderPageStepAdd);
    else
        m_grip = position - handleStart();
    update();
}

void SlimScrollBar::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
    if (m_grip >= 0)
        dragTo(along(event->pos()));
}

void SlimScrollBar::dragTo(int position)
{
    const int room = length() - handleLength();
    if (room <= 0)
        return;
    const double share = std::clamp(static_cast<double>(position - m_grip) / room, 0.0, 1.0);
    const double range = static_cast<double>(maximum()) - minimum();
    setValue(static_cast<int>(minimum() + share * range + 0.5));
}

void SlimScrollBar::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
    if (event->button() == Qt::LeftButton)
        m_grip = -1;
    update();
}

// The style's own menu would scroll by its own geometry.
void SlimScrollBar::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
}

} // namespace WQ
