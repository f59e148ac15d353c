#include "reference/toolkit/cells/NumberCell.h"

#include <cmath>
#include <utility>

namespace WQ {

namespace {

// The step says how many decimals are shown and which values are marked. Limits are not seen.
bool looksSame(const NumberUnit& one, const NumberUnit& other)
{
    return one.text == other.text && one.hasStep == other.hasStep && !(one.step < other.step)
        && !(one.step > other.step);
}

} // namespace

NumberCell::NumberCell(int id, QString label, QVector<NumberUnit> units, double value)
    : CellItem(CellKind::Number, id, std::move(label))
    , m_units(std::move(units))
    , m_value(std::isnan(value) ? 0 : value)
{
    bound();
    m_initial = m_value;
}

NumberCell::NumberCell(int id, QString label, QString checkText, bool checked, QVector<NumberUnit> units, double value)
    : CellItem(CellKind::CheckNumber, id, std::move(label))
    , m_units(std::move(units))
    , m_checkText(std::move(checkText))
    , m_value(std::isnan(value) ? 0 : value)
    , m_checked(checked)
    , m_initiallyChecked(checked)
{
    bound();
    m_initial = m_value;
}

bool NumberCell::bound()
{
    const double bounded = boundedNumber(currentUnit(), m_value);
    return std::exchange(m_value, bounded) != bounded;
}

int NumberCell::indexOfUnit(const QString& unit) const
{
    for (int i = 0; i < m_units.size(); ++i) {
        if (m_units.at(i).text == unit)
            return i;
    }
    return -1;
}

bool NumberCell::setCurrentUnit(int index)
{
    if (index < 0 || index >= m_units.size() || index == m_current)
        return false;
    m_current = index;
    bound();
    return true;
}

QString NumberCell::text() const
{
    return numberText(currentUnit(), m_value);
}

QString NumberCell::displayText() const
{
    return groupedDigits(text());
}

QString NumberCell::unit() const
{
    return currentUnit().text;
}

bool NumberCell::hasChevron() const
{
    return m_units.size() > 1;
}

QVariant NumberCell::data() const
{
    if (currentUnit().isWhole())
        return wholeNumber(m_value);
    return m_value;
}

double NumberCell::number() const
{
    return m_value;
}

bool NumberCell::setNumber(double value)
{
    if (std::isnan(value))
        return false;
    const double bounded = boundedNumber(currentUnit(), value);
    return std::exchange(m_value, bounded) != bounded;
}

bool NumberCell::setText(const QString& text)
{
    const std::optional<double> number = numberOf(text);
    return number && setNumber(*number);
}

QString NumberCell::checkText() const
{
    return m_checkText;
}

bool NumberCell::isChecked() const
{
    return m_checked;
}

bool NumberCell::setChecked(bool checked)
{
    return kind() == CellKind::CheckNumber && std::exchange(m_checked, checked) != checked;
}

double NumberCell::minimum() const
{
    return currentUnit().min;
}

double NumberCell::maximum() const
{
    return currentUnit().max;
}

bool NumberCell::setLimits(double min, double max)
{
    WQ::setLimits(m_units[m_current], min, max);
    return bound();
}

bool NumberCell::setUnit(const QString& unit)
{
    const int index = indexOfUnit(unit);
    if (index >= 0)
        return setCurrentUnit(index);
    return std::exchange(m_units[m_current].text, unit) != unit;
}

bool NumberCell::setUnit(const QString& unit, double min, double max, double step, bool makeCurrent)
{
    int index = indexOfUnit(unit);
    if (index < 0 && !makeCurrent)
        return false;
    if (index < 0)
        index = m_current;
    const NumberUnit before = currentUnit();
    const int currentBefore = m_current;
    NumberUnit& target = m_units[index];
    target.text = unit;
    WQ::setLimits(target, min, max);
    if (step > 0)
        setStep(target, step);
    if (makeCurrent)
        m_current = index;
    return bound() || m_current != currentBefore || !looksSame(before, currentUnit());
}

bool NumberCell::setTick(const QString& unit, double step)
{
    const int index = indexOfUnit(unit);
    if (index < 0)
        return false;
    const NumberUnit before = currentUnit();
    setStep(m_units[index], step);
    return !looksSame(before, currentUnit());
}

QString NumberCell::rangeText() const
{
    return WQ::rangeText(currentUnit());
}

QString NumberCell::offGridText() const
{
    return WQ::offGridText(currentUnit(), m_value);
}

Judgement NumberCell::judge(const QString& typed) const
{
    return judgeNumber(currentUnit(), label(), typed);
}

} // namespace WQ
