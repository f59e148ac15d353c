#include "reference/toolkit/editors/StepArrows.h"

#include "reference/toolkit/editors/StepKeys.h"

#include <QPainter>
#include <QStyle>

namespace WQ {

namespace {

// An arrow is this part of its half as wide, and half as high as wide.
constexpr double kWidth = 0.6;

void paintArrow(QPainter& painter, const QRectF& half, bool up)
{
    const double reach = half.width() * kWidth / 2;
    const double rise = up ? -reach / 2 : reach / 2;
    const QPointF middle = half.center();
    const QPointF corners[] = {middle + QPointF(-reach, -rise), middle + QPointF(0, rise),
                               middle + QPointF(reach, -rise)};
    painter.drawPolyline(corners, 3);
}

} // namespace

void StepArrows::place(const QRect& area)
{
    m_area = area;
    if (area.isEmpty())
        release();
}

QRect StepArrows::up() const
{
    return {m_area.topLeft(), QSize(m_area.width(), m_area.height() / 2)};
}

QRect StepArrows::down() const
{
    return m_area.adjusted(0, m_area.height() / 2, 0, 0);
}

int StepArrows::stepsAt(const QPoint& position, Qt::KeyboardModifiers modifiers) const
{
    if (!m_area.contains(position))
        return 0;
    const int steps = stepsWith(modifiers);
    return up().contains(position) ? steps : -steps;
}

void StepArrows::paint(QPainter& painter, const QColor& color) const
{
    if (m_area.isEmpty())
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, m_area.width() / 10.0));
    // Nearer to each other than the middles of their halves: they belong together.
    const int inset = m_area.height() / 6;
    paintArrow(painter, QRectF(up()).adjusted(0, inset, 0, 0), true);
    paintArrow(painter, QRectF(down()).adjusted(0, 0, 0, -inset), false);
    painter.restore();
}

void StepArrows::press(int steps, QObject& owner, const QStyle& style)
{
    m_steps = steps;
    m_timer.start(style.styleHint(QStyle::SH_SpinBox_ClickAutoRepeatThreshold), &owner);
}

void StepArrows::release()
{
    m_timer.stop();
}

int StepArrows::repeat(int timer, QObject& owner, const QStyle& style)
{
    if (timer != m_timer.timerId())
        return 0;
    m_timer.start(style.styleHint(QStyle::SH_SpinBox_ClickAutoRepeatRate), &owner);
    return m_steps;
}

} // namespace WQ
