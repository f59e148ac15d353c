#include "reference/toolkit/cells/NumberRules.h"

#include "reference/toolkit/Wording.h"

#include <cmath>
#include <limits>

namespace WQ {

namespace {

constexpr int kMostDecimals = 6;
constexpr int kDecimalsWithoutStep = 2;
constexpr double kStepWithoutStep = 0.01;

// Relative slack of the grid test: wider than the error of one division, narrower than any step a person can see.
constexpr double kGridSlack = 1e-9;

// From here on two neighbouring doubles are more than one apart, and no value can be off a grid.
constexpr double kLargestExact = 9007199254740992.0;

double limitOf(const QVariant& limit, double missing)
{
    bool ok = false;
    const double value = limit.toDouble(&ok);
    return ok && !std::isnan(value) ? value : missing;
}

int decimalsOfStep(double step)
{
    double scaled = step;
    int decimals = 0;
    while (decimals < kMostDecimals && std::abs(scaled - std::round(scaled)) > kGridSlack * std::abs(scaled)) {
        scaled *= 10;
        ++decimals;
    }
    return decimals;
}

void dropZeros(QString& text, int decimals)
{
    const int shortest = text.indexOf(QLatin1Char('.')) + 1 + decimals;
    while (text.size() > shortest && text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
}

bool isZero(const QString& text)
{
    for (const QChar c : text) {
        if (c >= QLatin1Char('1') && c <= QLatin1Char('9'))
            return false;
    }
    return true;
}

// Beyond, no person meets the limit, and its digits would fill the line.
bool isLimit(double limit)
{
    return std::abs(limit) < kLargestExact;
}

QString withUnit(const NumberUnit& unit, const QString& text)
{
    return unit.text.isEmpty() ? text : text + QLatin1Char(' ') + unit.text;
}

// A whole number stops at the ends of 32 bits, be its limits wider.
NumberUnit reachable(const NumberUnit& unit)
{
    NumberUnit bounds = unit;
    if (unit.isWhole()) {
        bounds.min = std::max<double>(unit.min, std::numeric_limits<int>::min());
        bounds.max = std::min<double>(unit.max, std::numeric_limits<int>::max());
    }
    return bounds;
}

QString inBrackets(const QString& text)
{
    return text.isEmpty() ? text : wording("（%1）").arg(text);
}

double multiple(double step, double count)
{
    // Through the text, so that 3 * 0.1 is the 0.3 that a person types.
    return QString::number(step * count, 'f', kMostDecimals).toDouble();
}

} // namespace

NumberUnit numberUnit(const CParamCellUnitInfo& info)
{
    constexpr double kMax = std::numeric_limits<double>::max();
    NumberUnit unit;
    unit.text = info.text;
    unit.type = info.type;
    unit.min = limitOf(info.min, -kMax);
    unit.max = std::max(unit.min, limitOf(info.max, kMax));
    if (info.step.isValid()) {
        unit.hasStep = true;
        setStep(unit, limitOf(info.step, 0));
    }
    return unit;
}

CParamCellUnitInfo unitInfo(const NumberUnit& unit)
{
    CParamCellUnitInfo info;
    info.text = unit.text;
    info.type = unit.type;
    info.min = unit.min;
    info.max = unit.max;
    if (unit.hasStep)
        info.step = unit.step;
    return info;
}

void setLimits(NumberUnit& unit, double min, double max)
{
    if (!std::isnan(min))
        unit.min = min;
    if (!std::isnan(max))
        unit.max = max;
    unit.max = std::max(unit.min, unit.max);
}

void setStep(NumberUnit& unit, double step)
{
    if (!std::isfinite(step) || step < 0)
        return;
    unit.step = step;
    unit.hasStep = true;
}

double stepOf(const NumberUnit& unit)
{
    if (unit.step > 0)
        return unit.step;
    return unit.isWhole() ? 1 : kStepWithoutStep;
}

int wholeNumber(double value)
{
    if (std::isnan(value))
        return 0;
    constexpr double kLowest = std::numeric_limits<int>::min();
    constexpr double kHighest = std::numeric_limits<int>::max();
    return static_cast<int>(std::trunc(qBound(kLowest, value, kHighest)));
}

double boundedNumber(const NumberUnit& unit, double value)
{
    // The order matters where the limits leave no room: the minimum wins.
    if (!unit.isWhole())
        return std::max(unit.min, std::min(value, unit.max));
    const double whole = std::trunc(value);
    return wholeNumber(std::max(std::ceil(unit.min), std::min(whole, std::floor(unit.max))));
}

int decimalsOf(const NumberUnit& unit)
{
    if (unit.isWhole())
        return 0;
    return unit.step > 0 ? decimalsOfStep(unit.step) : kDecimalsWithoutStep;
}

QString numberText(double value, int decimals)
{
    const bool isInteger = std::trunc(value) == value;
    QString text = QString::number(value, 'f', isInteger ? decimals : kMostDecimals);
    if (!isInteger && std::isfinite(value))
        dropZeros(text, decimals);
    if (text.startsWith(QLatin1Char('-')) && isZero(text))
        text.remove(0, 1);
    return text;
}

QString numberText(const NumberUnit& unit, double value)
{
    return numberText(value, decimalsOf(unit));
}

QString rangeText(const NumberUnit& unit)
{
    const bool hasMin = isLimit(unit.min);
    const bool hasMax = isLimit(unit.max);
    const QString min = groupedDigits(numberText(unit, unit.min));
    const QString max = groupedDigits(numberText(unit, unit.max));
    if (!hasMin && !hasMax)
        return QString();
    if (!hasMax)
        return wording("不小于 %1").arg(withUnit(unit, min));
    return hasMin ? min + QStringLiteral(" – ") + withUnit(unit, max) : wording("不大于 %1").arg(withUnit(unit, max));
}

std::optional<GridNeighbours> offGrid(const NumberUnit& unit, double value)
{
    if (!(unit.step > 0) || !std::isfinite(value))
        return std::nullopt;
    const double steps = value / unit.step;
    if (std::abs(steps) >= kLargestExact)
        return std::nullopt;
    if (std::abs(steps - std::round(steps)) <= kGridSlack * std::max(1.0, std::abs(steps)))
        return std::nullopt;
    return GridNeighbours{boundedNumber(unit, multiple(unit.step, std::floor(steps))),
                          boundedNumber(unit, multiple(unit.step, std::ceil(steps)))};
}

QString offGridText(const NumberUnit& unit, double value)
{
    const std::optional<GridNeighbours> neighbours = offGrid(unit, value);
    if (!neighbours)
        return QString();
    return wording("不是 %1 的整数倍：%2 或 %3")
        .arg(groupedDigits(numberText(unit, unit.step)), groupedDigits(numberText(unit, neighbours->below)),
             groupedDigits(numberText(unit, neighbours->above)));
}

QString boundedText(const NumberUnit& before, double value, const NumberUnit& after, double bounded)
{
    const QString was = withUnit(before, groupedDigits(numberText(before, value)));
    const QString is = withUnit(after, groupedDigits(numberText(after, bounded)));
    return wording("%1 已调整为 %2").arg(was, is) + inBrackets(rangeText(reachable(after)));
}

Judgement judgeNumber(const NumberUnit& unit, const QString& label, const QString& typed)
{
    Judgement judgement;
    const std::optional<double> number = typedNumber(typed);
    const auto wrong = [&](const QString& why) {
        judgement.message = label + QLatin1Char(' ') + why + inBrackets(rangeText(reachable(unit)));
        return judgement;
    };
    if (!number)
        return wrong(wording("不是数字"));
    if (unit.isWhole() && std::trunc(*number) != *number)
        return wrong(wording("须为整数"));
    if (*number < unit.min || *number > unit.max || boundedNumber(unit, *number) != *number)
        return wrong(wording("超出范围"));
    judgement.ok = true;
    judgement.value = *number;
    judgement.message = offGridText(unit, *number);
    return judgement;
}

} // namespace WQ
