#include "benchmarks/NativeFields.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTimeEdit>

namespace bench {

namespace {

void limit(QDoubleSpinBox& box, const Unit& unit)
{
    box.setDecimals(unit.decimals);
    box.setRange(unit.min, unit.max);
    if (unit.step > 0)
        box.setSingleStep(unit.step);
}

QDoubleSpinBox* spinBox(const Unit& unit, double value)
{
    auto* box = new QDoubleSpinBox;
    limit(*box, unit);
    box->setValue(value);
    return box;
}

void fill(QComboBox& box, const Entries& entries, int chosen)
{
    box.clear();
    for (std::size_t i = 0; i < entries.count; ++i)
        box.addItem(QString::fromUtf16(entries.first[i].text), entries.first[i].value);
    box.setCurrentIndex(chosen);
}

QWidget* inOneLine(const std::vector<QWidget*>& fields)
{
    auto* line = new QWidget;
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget* field : fields)
        layout->addWidget(field);
    return line;
}

NativeField choiceField(const Row& row)
{
    auto* box = new QComboBox;
    fill(*box, row.entries, int(row.value));
    return {box, box, nullptr, nullptr};
}

NativeField numberField(const Row& row)
{
    auto* box = spinBox(row.unit, row.value);
    box->setSuffix(row.unit.name());
    return {box, nullptr, box, nullptr};
}

NativeField unitField(const Row& row)
{
    auto* box = spinBox(row.unit, row.value);
    auto* units = new QComboBox;
    units->addItems({row.unit.name(), row.otherUnit.name()});
    if (row.kind == RowKind::UnitNumber)
        return {inOneLine({box, units}), nullptr, box, units};
    return {inOneLine({new QCheckBox(checkText()), box, units}), nullptr, box, units};
}

NativeField rangeField(const Row& row)
{
    auto* low = spinBox(row.unit, row.value);
    auto* high = spinBox(row.unit, row.unit.max);
    high->setSuffix(row.unit.name());
    return {inOneLine({low, new QLabel(rangeSeparator()), high}), nullptr, low, nullptr};
}

NativeField periodField()
{
    auto* start = new QTimeEdit(QTime(9, 30));
    auto* end = new QTimeEdit(QTime(15, 0));
    for (QTimeEdit* edit : {start, end})
        edit->setDisplayFormat(QStringLiteral("HH:mm:ss"));
    return {inOneLine({start, end}), nullptr, nullptr, nullptr};
}

} // namespace

NativeField makeNativeField(const Row& row)
{
    switch (row.kind) {
    case RowKind::Choice:
        return choiceField(row);
    case RowKind::Number:
        return numberField(row);
    case RowKind::UnitNumber:
    case RowKind::CheckNumber:
        return unitField(row);
    case RowKind::Range:
        return rangeField(row);
    case RowKind::Period:
        return periodField();
    case RowKind::Line:
        return {new QLineEdit, nullptr, nullptr, nullptr};
    }
    return {};
}

void switchFields(const std::vector<NativeField>& fields, const Mode& mode)
{
    fill(*fields[positionOf(mode.refilled)].choice, mode.entries, 0);
    const std::size_t limited = positionOf(mode.limited);
    fields[limited].units->setCurrentIndex(int(mode.unit));
    limit(*fields[limited].number, mode.unit == 0 ? rows()[limited].unit : rows()[limited].otherUnit);
    for (const NumberChange& change : mode.numbers)
        fields[positionOf(change.id)].number->setValue(change.value);
}

} // namespace bench
