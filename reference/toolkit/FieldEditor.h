#pragma once

#include "reference/toolkit/editors/StepKeys.h"

#include <WQ/WqExport.h>

#include <QLineEdit>

namespace WQ {

/// The line in which a single cell is edited. It looks like the toolkit whatever the application's style sheet says.
class WQ_EXPORT FieldEditor : public QLineEdit
{
    Q_OBJECT
public:
    FieldEditor(const QString& text, const QFont& font, QWidget* parent);

    /// Marks the text as wrong, or takes the mark away.
    void setWrong(bool wrong);

    /// Whether the wheel steps the text while it has the focus; otherwise it scrolls what is around.
    void setStepsByWheel(bool steps);

Q_SIGNALS:
    void accepted();         ///< Enter
    void cancelled();        ///< Esc
    void left();             ///< the focus went elsewhere in the window
    void stepped(int steps); ///< Up and Down and the wheel, ten steps with Shift; PageUp and PageDown

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    const QFont m_font;
    WheelNotches m_wheel;
    bool m_stepsByWheel = false;
};

} // namespace WQ
