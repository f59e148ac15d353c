#include "reference/toolkit/editors/CellEditor.h"

#include "reference/toolkit/Painting.h"
#include "reference/toolkit/editors/StepKeys.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QStyle>
#include <QTimerEvent>
#include <QWheelEvent>

#include <algorithm>

namespace WQ {

namespace {

// Qt leaves the menu of a line open when the line is hidden.
void closeMenus(const QObject& line)
{
    for (QMenu* menu : line.findChildren<QMenu*>())
        menu->close();
}

} // namespace

// Whatever the client does may take the table away, and the field with it.
bool CellEditor::eventFilter(QObject* watched, QEvent* event)
{
    const QPointer<QObject> alive(watched);
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // A host's shortcut on one of these keys would take it from the edit.
        if (!isEditorKey(static_cast<QKeyEvent&>(*event)))
            return false;
        event->accept();
        return true;
    case QEvent::KeyPress:
        return keyPress(static_cast<QKeyEvent&>(*event)) || !alive;
    case QEvent::Wheel:
        return wheel(static_cast<QWheelEvent&>(*event));
    case QEvent::FocusOut:
        m_client->focusGone(static_cast<QFocusEvent*>(event)->reason());
        return !alive;
    case QEvent::MouseButtonDblClick:
        if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
            m_client->editorDoubleClicked();
        return !alive;
    case QEvent::Hide:
        closeMenus(*watched);
        return false;
    default:
        return false;
    }
}

bool CellEditor::keyPress(QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event.accept();
        m_client->submitted();
        return true;
    case Qt::Key_Escape:
        event.accept();
        m_client->reverted();
        return true;
    case Qt::Key_Space:
        // Held down, it would go on ticking and clearing.
        return (event.isAutoRepeat() && m_cell && m_cell->kind() == CellKind::CheckNumber) || m_client->checkToggled();
    default:
        break;
    }
    const int steps = stepsOf(event);
    if (steps != 0 && event.modifiers().testFlag(Qt::AltModifier))
        m_client->alternativesAsked();
    else if (steps != 0)
        step(steps);
    return steps != 0;
}

bool CellEditor::wheel(const QWheelEvent& event)
{
    if (!ownsFocus() || !m_cell || !stepField(*m_cell, draft(), focusedField(), 0, 0))
        return false;
    if (const int steps = m_wheel.takeSteps(event))
        step(steps);
    return true;
}

bool CellEditor::step(int steps)
{
    QLineEdit* line = field();
    const auto stepped =
        m_cell ? stepField(*m_cell, draft(), std::max(0, focusedField()), line->cursorPosition(), steps) : std::nullopt;
    if (!stepped)
        return false;
    line->setText(stepped->text);
    line->setSelection(stepped->selectionStart, stepped->selectionLength);
    return true;
}

// Beside the longest number that is usual, where a growing text does not reach them; none where it leaves no room.
void CellEditor::placeArrows()
{
    const bool hasSteps = fieldCount() == 1 && m_cell && stepField(*m_cell, draft(), 0, 0, 0);
    const int usual = std::max(painting::textWidth(m_look.font, QStringLiteral("0000000.00")),
                               painting::textWidth(m_look.font, field()->text()) + 2 * m_gap);
    const int left = width() - usual - m_arrowWidth;
    m_arrows.place(hasSteps && left >= 0 ? QRect(left, 0, m_arrowWidth, height()) : QRect());
}

bool CellEditor::pressArrow(const QMouseEvent& event)
{
    const int steps = event.button() == Qt::LeftButton ? m_arrows.stepsAt(event.pos(), event.modifiers()) : 0;
    if (steps == 0)
        return false;
    takeFocus();
    step(steps);
    m_arrows.press(steps, *this, *style());
    return true;
}

void CellEditor::mouseReleaseEvent(QMouseEvent*)
{
    m_arrows.release();
}

void CellEditor::timerEvent(QTimerEvent* event)
{
    if (const int steps = m_arrows.repeat(event->timerId(), *this, *style()))
        step(steps);
    else
        QWidget::timerEvent(event);
}

} // namespace WQ
