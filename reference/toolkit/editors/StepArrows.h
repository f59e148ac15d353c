#pragma once

#include <WQ/WqExport.h>

#include <QBasicTimer>
#include <QRect>

class QColor;
class QObject;
class QPainter;
class QStyle;

namespace WQ {

/// The two arrows of a numeric editor, one above the other: a press steps, and goes on stepping while it is held.
class WQ_EXPORT StepArrows
{
public:
    /// An empty @p area has no arrows.
    void place(const QRect& area);

    QRect up() const;
    QRect down() const;

    /// The steps that a press there means, ten with Shift; 0 beside the arrows.
    int stepsAt(const QPoint& position, Qt::KeyboardModifiers modifiers) const;

    void paint(QPainter& painter, const QColor& color) const;

    /// From now on @p owner gets timer events, after the delay and at the rate of the style's own spin boxes.
    void press(int steps, QObject& owner, const QStyle& style);
    void release();

    /// The steps that the timer event of that ID means; 0 for any other timer.
    int repeat(int timer, QObject& owner, const QStyle& style);

private:
    QRect m_area;
    QBasicTimer m_timer;
    int m_steps = 0;
};

} // namespace WQ
