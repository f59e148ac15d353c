#include "reference/toolkit/FieldEditor.h"

#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QKeyEvent>

namespace WQ {

namespace {

// What a QLineEdit leaves free at both sides of its text whatever the style sheet says.
constexpr int kOwnMargin = 2;

QString sheet(const QFont& font, const QString& groundKey)
{
    return QStringLiteral("QLineEdit { border: none; padding: 0; margin: 0; min-height: 0; background: %1; color: %2;"
                          " selection-background-color: %3; selection-color: %2; font: %4px \"%5\"; }")
        .arg(resources::color(groundKey).name(), resources::color(keys::kValue).name(),
             resources::color(keys::kSelection).name())
        .arg(font.pixelSize())
        .arg(font.family());
}

} // namespace

FieldEditor::FieldEditor(const QString& text, const QFont& font, QWidget* parent)
    : QLineEdit(parent)
    , m_font(font)
{
    setFrame(false);
    setTextMargins(-kOwnMargin, 0, -kOwnMargin, 0);
    setContextMenuPolicy(Qt::NoContextMenu);
    setText(text);
    setWrong(false);
    selectAll();
}

void FieldEditor::setWrong(bool wrong)
{
    setStyleSheet(sheet(m_font, wrong ? keys::kWrongFill : keys::kInput));
}

void FieldEditor::setStepsByWheel(bool steps)
{
    m_stepsByWheel = steps;
}

// A host's shortcut on a key of the edit would take it away.
bool FieldEditor::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && isEditorKey(static_cast<QKeyEvent&>(*event))) {
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

// Enter and Esc end here, so that they never press a button of the dialog or close it.
void FieldEditor::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->accept();
        Q_EMIT accepted();
        return;
    case Qt::Key_Escape:
        event->accept();
        Q_EMIT cancelled();
        return;
    default:
        break;
    }
    if (const int steps = stepsOf(*event)) {
        event->accept();
        Q_EMIT stepped(steps);
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void FieldEditor::wheelEvent(QWheelEvent* event)
{
    if (!m_stepsByWheel || !hasFocus()) {
        event->ignore();
        return;
    }
    event->accept();
    if (const int steps = m_wheel.takeSteps(*event))
        Q_EMIT stepped(steps);
}

void FieldEditor::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        Q_EMIT left();
}

} // namespace WQ
