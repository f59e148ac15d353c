#pragma once

#include <QKeyEvent>
#include <QWheelEvent>

namespace WQ {

constexpr int kManySteps = 10;

/// What Shift makes of one step, by key, wheel or arrow.
inline int stepsWith(Qt::KeyboardModifiers modifiers)
{
    return modifiers.testFlag(Qt::ShiftModifier) ? kManySteps : 1;
}

/// How far a key steps the number or time in an editor: Up and Down one step, ten with Shift, a page ten. 0 for a key
/// that does not step.
inline int stepsOf(const QKeyEvent& event)
{
    const int few = stepsWith(event.modifiers());
    switch (event.key()) {
    case Qt::Key_Up:
        return few;
    case Qt::Key_Down:
        return -few;
    case Qt::Key_PageUp:
        return kManySteps;
    case Qt::Key_PageDown:
        return -kManySteps;
    default:
        return 0;
    }
}

/// Turns of a wheel, of which a fine one sends many small ones, as whole notches.
class WheelNotches
{
public:
    /// The notches that are full with @p event; the rest counts for the next.
    int take(const QWheelEvent& event)
    {
        m_rest += event.angleDelta().y();
        const int notches = m_rest / QWheelEvent::DefaultDeltasPerStep;
        m_rest -= notches * QWheelEvent::DefaultDeltasPerStep;
        return notches;
    }

    /// The same as steps of a value: ten a notch with Shift.
    int takeSteps(const QWheelEvent& event)
    {
        return take(event) * stepsWith(event.modifiers());
    }

    void clear()
    {
        m_rest = 0;
    }

private:
    int m_rest = 0;
};

/// Whether an editor uses this key itself beside what a line of text uses.
inline bool isEditorKey(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return true;
    default:
        return stepsOf(event) != 0;
    }
}

} // namespace WQ
