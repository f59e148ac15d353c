#include "reference/toolkit/SingleValue.h"

#include "reference/toolkit/Wording.h"
#include "reference/toolkit/cells/NumberRules.h"

#include <WQ/Formatting.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace WQ {

namespace {

const QString kInvalidText = QStringLiteral("--");

// Beyond it a limit is not meant to be one, and its digits would say nothing.
constexpr double kEndless = 1e15;

bool isWholeNumber(double value)
{
    return std::abs(value) <= std::numeric_limits<int>::max() && std::trunc(value) == value;
}

NumberUnit unitOf(const TypingRule& rule)
{
    NumberUnit unit;
    unit.min = rule.min;
    unit.max = rule.max;
    unit.step = std::isfinite(rule.step) && rule.step > 0 ? rule.step : 0;
    unit.hasStep = unit.step > 0;
    return unit;
}

QString limitText(double limit)
{
    return groupedDigits(numberText(limit, 0));
}

} // namespace

bool TypingRule::isWhole() const
{
    return step >= 1 && isWholeNumber(step) && isWholeNumber(min) && isWholeNumber(max);
}

bool isAllowed(const TypingRule& rule, const QString& typed)
{
    if (!rule.isNumber)
        return true;
    const auto value = typedNumber(typed);
    return value && *value >= rule.min && *value <= rule.max && (!rule.isWhole() || std::trunc(*value) == *value);
}

double stepped(const TypingRule& rule, double value, int steps)
{
    const double moved = value + steps * stepOf(unitOf(rule));
    return std::max(rule.min, std::min(moved, rule.max));
}

QString singleValueText(const TypingRule& rule, double value)
{
    const int decimals = decimalsOf(unitOf(rule));
    const QString text = formatDoubleNumber(value, decimals, FormatPlain, false, kInvalidText);
    return text == kInvalidText ? text : numberText(value, decimals);
}

QString limitsMessage(double min, double max)
{
    const bool hasMin = min > -kEndless;
    const bool hasMax = max < kEndless;
    if (hasMin && hasMax)
        return wording("请输入 %1 – %2").arg(limitText(min), limitText(max));
    if (hasMin)
        return wording("请输入不小于 %1 的数").arg(limitText(min));
    if (hasMax)
        return wording("请输入不大于 %1 的数").arg(limitText(max));
    return wording("请输入数字");
}

} // namespace WQ
