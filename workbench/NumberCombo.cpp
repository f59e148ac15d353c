#include "workbench/NumberCombo.h"

#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>

namespace workbench {

NumberCombo::NumberCombo(const Rows<NamedValue>& rows, int value, QWidget* parent)
    : WideListCombo(parent)
    , m_rows(rows)
    , m_value(value)
{
    setEditable(true);
    setInsertPolicy(NoInsert);
    setMinimumContentsLength(12);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("\\s*-?\\d{1,10}.*")), this));
    retranslate();
    connect(this, QOverload<int>::of(&QComboBox::activated), this, [this] { take(currentText()); });
    connect(lineEdit(), &QLineEdit::editingFinished, this, [this] { take(currentText()); });
}

int NumberCombo::value() const
{
    return m_value;
}

void NumberCombo::setValue(int value)
{
    const QSignalBlocker quiet(this);
    m_value = value;
    setCurrentIndex(findData(value));
    setEditText(valueWithName(m_rows, value));
    setToolTip(currentText());
    lineEdit()->setCursorPosition(0);
}

void NumberCombo::retranslate()
{
    const QSignalBlocker quiet(this);
    clear();
    for (const NamedValue& row : m_rows)
        addItem(valueWithName(m_rows, row.value), row.value);
    setValue(m_value);
}

/// A text that is no number never counts as finished editing; what is left must not look like a value.
void NumberCombo::focusOutEvent(QFocusEvent* event)
{
    QComboBox::focusOutEvent(event);
    take(currentText());
}

void NumberCombo::take(const QString& text)
{
    const QString number = text.trimmed().section(QLatin1Char(' '), 0, 0);
    bool isNumber = false;
    const int typed = number.toInt(&isNumber);
    const bool changed = isNumber && typed != m_value;
    setValue(isNumber ? typed : m_value);
    if (changed)
        Q_EMIT valueChanged(m_value);
}

} // namespace workbench
