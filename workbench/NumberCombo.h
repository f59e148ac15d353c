#pragma once

#include "workbench/Vocabulary.h"
#include "workbench/WideListCombo.h"

namespace workbench {

/// A combo of values with meaning that also takes any other integer: a person may type a number.
class NumberCombo : public WideListCombo
{
    Q_OBJECT
public:
    NumberCombo(const Rows<NamedValue>& rows, int value, QWidget* parent = nullptr);

    int value() const;

    /// Shows the value without announcing it.
    void setValue(int value);

    void retranslate();

Q_SIGNALS:
    /// A person chose or typed another value.
    void valueChanged(int value);

protected:
    void focusOutEvent(QFocusEvent* event) override;

private:
    void take(const QString& text);

    Rows<NamedValue> m_rows;
    int m_value;
};

} // namespace workbench
