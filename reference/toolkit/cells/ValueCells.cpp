#include "reference/toolkit/cells/ValueCells.h"

#include "reference/toolkit/Wording.h"

#include <QRegularExpression>

#include <cmath>
#include <utility>

namespace WQ {

namespace {

QString offGridTexts(const NumberUnit& unit, double low, double high)
{
    QStringList texts;
    if (const QString text = WQ::offGridText(unit, low); !text.isEmpty())
        texts << wording("下限 %1").arg(text);
    if (const QString text = WQ::offGridText(unit, high); !text.isEmpty())
        texts << wording("上限 %1").arg(text);
    return texts.join(wording("；"));
}

} // namespace

RangeCell::RangeCell(int id, QString label, NumberUnit unit, double low, double high, QString separator)
    : CellItem(CellKind::Range, id, std::move(label))
    , m_unit(std::move(unit))
    , m_separator(std::move(separator))
    , m_low(boundedNumber(m_unit, std::isnan(low) ? 0 : low))
    , m_high(std::max(m_low, boundedNumber(m_unit, std::isnan(high) ? 0 : high)))
    , m_initialLow(m_low)
    , m_initialHigh(m_high)
{
}

bool RangeCell::setRange(double low, double high)
{
    const double newLow = boundedNumber(m_unit, std::isnan(low) ? m_low : low);
    const double newHigh = std::max(newLow, boundedNumber(m_unit, std::isnan(high) ? m_high : high));
    const bool lowChanged = std::exchange(m_low, newLow) != newLow;
    return std::exchange(m_high, newHigh) != newHigh || lowChanged;
}

Judgement RangeCell::judge(const QString& typedLow, const QString& typedHigh) const
{
    const Judgement lower = judgeNumber(m_unit, label(), typedLow);
    if (!lower.ok)
        return lower;
    Judgement higher = judgeNumber(m_unit, label(), typedHigh);
    if (higher.ok && higher.value < lower.value) {
        higher.ok = false;
        higher.message = label() + QLatin1Char(' ') + wording("上限不能小于下限");
        if (const QString range = rangeText(); !range.isEmpty())
            higher.message += wording("（%1）").arg(range);
    } else if (higher.ok) {
        higher.message = offGridTexts(m_unit, lower.value, higher.value);
    }
    return higher;
}

QString RangeCell::text() const
{
    return numberText(m_unit, m_low) + m_separator + numberText(m_unit, m_high);
}

QString RangeCell::displayText() const
{
    return groupedDigits(numberText(m_unit, m_low)) + m_separator + groupedDigits(numberText(m_unit, m_high));
}

QString RangeCell::unit() const
{
    return m_unit.text;
}

double RangeCell::number() const
{
    return m_low;
}

bool RangeCell::setNumber(double value)
{
    return !std::isnan(value) && setRange(value, m_high);
}

bool RangeCell::setText(const QString& text)
{
    // Searched from the second character on: the separator may be the sign of the first number.
    const int at = m_separator.isEmpty() ? -1 : text.indexOf(m_separator, 1);
    if (at < 0)
        return false;
    const std::optional<double> newLow = numberOf(text.left(at));
    const std::optional<double> newHigh = numberOf(text.mid(at + m_separator.size()));
    return newLow && newHigh && setRange(*newLow, *newHigh);
}

double RangeCell::minimum() const
{
    return m_unit.min;
}

double RangeCell::maximum() const
{
    return m_unit.max;
}

bool RangeCell::setLimits(double min, double max)
{
    WQ::setLimits(m_unit, min, max);
    return setRange(m_low, m_high);
}

bool RangeCell::setUnit(const QString& unit)
{
    if (unit == m_unit.text)
        return false;
    m_unit.text = unit;
    return true;
}

bool RangeCell::setUnit(const QString& unit, double min, double max, double step, bool makeCurrent)
{
    if (unit != m_unit.text && !makeCurrent)
        return false;
    m_unit.text = unit;
    if (step > 0)
        setStep(m_unit, step);
    setLimits(min, max);
    return true;
}

bool RangeCell::setTick(const QString& unit, double step)
{
    if (unit != m_unit.text)
        return false;
    setStep(m_unit, step);
    return true;
}

QString RangeCell::rangeText() const
{
    return WQ::rangeText(m_unit);
}

QString RangeCell::offGridText() const
{
    return offGridTexts(m_unit, m_low, m_high);
}

LineCell::LineCell(int id, QString label, QString text, QString pattern, QString placeholder)
    : CellItem(CellKind::Line, id, std::move(label))
    , m_text(std::move(text))
    , m_initial(m_text)
    , m_pattern(std::move(pattern))
    , m_placeholder(std::move(placeholder))
{
}

bool LineCell::accepts(const QString& typed) const
{
    if (m_pattern.isEmpty())
        return true;
    const QRegularExpression pattern(QRegularExpression::anchoredPattern(m_pattern));
    return !pattern.isValid() || pattern.match(typed).hasMatch();
}

QString LineCell::text() const
{
    return m_text;
}

bool LineCell::setText(const QString& text)
{
    if (text == m_text)
        return false;
    m_text = text;
    return true;
}

TextCell::TextCell(int id, QString label, QString unit)
    : CellItem(CellKind::Text, id, std::move(label))
    , m_unit(std::move(unit))
{
}

QString TextCell::text() const
{
    return m_text;
}

QString TextCell::displayText() const
{
    return m_unit.isEmpty() ? m_text : groupedDigits(m_text);
}

QString TextCell::unit() const
{
    return m_unit;
}

double TextCell::number() const
{
    return numberOf(m_text).value_or(0);
}

bool TextCell::setNumber(double value)
{
    return !std::isnan(value) && setText(numberText(value, 0));
}

bool TextCell::setText(const QString& text)
{
    if (text == m_text)
        return false;
    m_text = text;
    return true;
}

bool TextCell::setUnit(const QString& unit)
{
    if (unit == m_unit)
        return false;
    m_unit = unit;
    return true;
}

bool TextCell::setUnit(const QString& unit, double, double, double, bool makeCurrent)
{
    return makeCurrent && setUnit(unit);
}

} // namespace WQ
