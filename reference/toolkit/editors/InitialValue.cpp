#include "reference/toolkit/editors/InitialValue.h"

#include "reference/toolkit/Wording.h"
#include "reference/toolkit/cells/ComboCell.h"
#include "reference/toolkit/cells/NumberCell.h"
#include "reference/toolkit/cells/ValueCells.h"

namespace WQ {

namespace {

const NumberCell& asNumber(const CellItem& cell)
{
    return static_cast<const NumberCell&>(cell);
}

const RangeCell& asRange(const CellItem& cell)
{
    return static_cast<const RangeCell&>(cell);
}

const PeriodCell& asPeriod(const CellItem& cell)
{
    return static_cast<const PeriodCell&>(cell);
}

const ComboCell& asCombo(const CellItem& cell)
{
    return static_cast<const ComboCell&>(cell);
}

bool isNumber(const CellItem& cell)
{
    return cell.kind() == CellKind::Number || cell.kind() == CellKind::CheckNumber;
}

int secondsOf(QTime time)
{
    return QTime(0, 0).secsTo(time);
}

QTime timeOf(double seconds)
{
    return QTime(0, 0).addSecs(static_cast<int>(seconds));
}

bool same(double one, double other)
{
    return !(one < other) && !(other < one);
}

// The number itself is compared, not its text: that shows six decimals.
Judgement judgeInitialNumber(const NumberUnit& unit, const QString& label, double number)
{
    Judgement judgement = judgeNumber(unit, label, numberText(unit, number));
    judgement.ok = judgement.ok && same(boundedNumber(unit, number), number);
    judgement.value = number;
    return judgement;
}

Judgement judgeInitialChoice(const ComboCell& combo, const QVariant& data)
{
    Judgement judgement;
    judgement.ok = combo.indexOfData(data) >= 0;
    if (!judgement.ok)
        judgement.message = combo.label() + QLatin1Char(' ') + wording("已没有最初的选项");
    return judgement;
}

} // namespace

InitialValue initialOf(const CellItem& cell)
{
    switch (cell.kind()) {
    case CellKind::Combo:
        return {asCombo(cell).initialData(), 0, false};
    case CellKind::Number:
    case CellKind::CheckNumber:
        return {asNumber(cell).initialNumber(), 0, asNumber(cell).isInitiallyChecked()};
    case CellKind::Range:
        return {asRange(cell).initialRange().first, asRange(cell).initialRange().second, false};
    case CellKind::TimePeriod: {
        const auto [start, end] = asPeriod(cell).initialClock();
        return {secondsOf(start), double(secondsOf(end)), false};
    }
    case CellKind::Line:
        return {static_cast<const LineCell&>(cell).initialText(), 0, false};
    case CellKind::Text:
        return {QString(), 0, false};
    }
    return {};
}

bool holdsInitial(const CellItem& cell)
{
    const InitialValue initial = initialOf(cell);
    switch (cell.kind()) {
    case CellKind::Combo:
        return !initial.value.isValid() || asCombo(cell).indexOfData(initial.value) == asCombo(cell).currentIndex();
    case CellKind::Number:
    case CellKind::CheckNumber:
        return asNumber(cell).currentUnitIndex() == 0 && cell.isChecked() == initial.checked
            && same(cell.number(), initial.value.toDouble());
    case CellKind::Range:
        return same(asRange(cell).low(), initial.value.toDouble()) && same(asRange(cell).high(), initial.high);
    case CellKind::TimePeriod:
        return asPeriod(cell).rangeType() == TimeRangeClock && asPeriod(cell).start() == timeOf(initial.value.toInt())
            && asPeriod(cell).end() == timeOf(initial.high);
    case CellKind::Line:
    case CellKind::Text:
        return cell.text() == initial.value.toString();
    }
    return true;
}

Judgement judgeInitial(const CellItem& cell)
{
    const InitialValue initial = initialOf(cell);
    if (cell.kind() == CellKind::Combo)
        return judgeInitialChoice(asCombo(cell), initial.value);
    if (isNumber(cell))
        return judgeInitialNumber(asNumber(cell).units().at(0), cell.label(), initial.value.toDouble());
    if (cell.kind() == CellKind::Range) {
        const Judgement low = judgeInitialNumber(asRange(cell).limits(), cell.label(), initial.value.toDouble());
        return low.ok ? judgeInitialNumber(asRange(cell).limits(), cell.label(), initial.high) : low;
    }
    // Times and texts have no limits. A pattern judges what a person types, not what the program began with.
    Judgement judgement;
    judgement.ok = true;
    return judgement;
}

bool storeInitial(CellItem& cell)
{
    const InitialValue initial = initialOf(cell);
    switch (cell.kind()) {
    case CellKind::Combo:
        return false;
    case CellKind::Number:
    case CellKind::CheckNumber:
        return cell.setNumber(initial.value.toDouble());
    case CellKind::Range:
        return static_cast<RangeCell&>(cell).setRange(initial.value.toDouble(), initial.high);
    case CellKind::TimePeriod:
        return static_cast<PeriodCell&>(cell).setClock(timeOf(initial.value.toInt()), timeOf(initial.high));
    case CellKind::Line:
    case CellKind::Text:
        return cell.setText(initial.value.toString());
    }
    return false;
}

} // namespace WQ
