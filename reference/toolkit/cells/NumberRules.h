#pragma once

#include <WQ/ToolkitTypes.h>
#include <WQ/WqExport.h>

#include <QString>

#include <optional>

/// What a number of a cell may be, how it is written and how it is read: rules without widgets.
namespace WQ {

/// One unit of a numeric cell with the limits that hold while it is current.
struct NumberUnit
{
    QString text;
    double min = 0;
    double max = 0;
    double step = 0;      ///< 0: values are not on a grid
    int type = 6;         ///< value type as given: 2 int, everything else a fraction
    bool hasStep = false; ///< whether a step was ever given, be it 0

    bool isWhole() const
    {
        return type == 2;
    }
};

/// A unit as a host describes it. A missing limit is no limit; a maximum below the minimum follows it.
WQ_EXPORT NumberUnit numberUnit(const CParamCellUnitInfo& info);

/// The same the other way round: a step that was never given is an invalid QVariant.
WQ_EXPORT CParamCellUnitInfo unitInfo(const NumberUnit& unit);

/// Sets the limits; not-a-number leaves the limit it stands for, and a maximum below the minimum follows it.
WQ_EXPORT void setLimits(NumberUnit& unit, double min, double max);

/// Sets the step; negative, infinite and not-a-number leave it.
WQ_EXPORT void setStep(NumberUnit& unit, double step);

/// The step that a key or a wheel notch makes: the unit's own, else 1 for whole numbers and 0.01 for fractions.
WQ_EXPORT double stepOf(const NumberUnit& unit);

/// @p value without its fraction, stopped at the ends of 32 bits; not-a-number is 0.
WQ_EXPORT int wholeNumber(double value);

/// @p value as this unit can hold it: bounded, and whole where the unit is. @p value is a number.
WQ_EXPORT double boundedNumber(const NumberUnit& unit, double value);

/// Decimals that this unit shows at least: those of its step, two without a step, none for whole numbers.
WQ_EXPORT int decimalsOf(const NumberUnit& unit);

/// @p value with at least @p decimals decimals, and as many more as it has, six at most. No grouping, no sign on zero.
WQ_EXPORT QString numberText(double value, int decimals);
WQ_EXPORT QString numberText(const NumberUnit& unit, double value);

/// @p text with its digits before the point grouped by thousands, when it is a plain number; otherwise as it is.
WQ_EXPORT QString groupedDigits(const QString& text);

/// The limits of a unit as a person reads them: "10,000 – 1,000,000 股", "不小于 100 股", "不大于 100 股"; empty for a
/// unit without limits. A limit beyond the whole numbers that a double tells apart counts as none.
WQ_EXPORT QString rangeText(const NumberUnit& unit);

/// What a person typed as a number: an optional sign, digits and at most one point, thousands grouped or not, blanks
/// around it. Full-width digits, signs and points count as their ASCII twins. Nothing when it is something else.
WQ_EXPORT std::optional<double> typedNumber(const QString& text);

/// A text that a host hands over as a number: as typed, or with an exponent; finite.
WQ_EXPORT std::optional<double> numberOf(const QString& text);

/// @p text with full-width digits, signs, colons and points as their ASCII twins, and without blanks around it.
WQ_EXPORT QString asciiTwins(const QString& text);

/// The neighbours of a value between two steps.
struct GridNeighbours
{
    double below = 0;
    double above = 0;
};

/// The two nearest grid values, bounded into the range, of a value that is no multiple of the step; nothing for a value
/// on the grid and for a unit without a step.
WQ_EXPORT std::optional<GridNeighbours> offGrid(const NumberUnit& unit, double value);

/// "不是 100 的整数倍：1,200 或 1,300"; empty for a value on the grid.
WQ_EXPORT QString offGridText(const NumberUnit& unit, double value);

/// What a switch from @p before to @p after made of @p value: "500.00 % 已调整为 100.000 元（0.000 – 100.000 元）".
WQ_EXPORT QString boundedText(const NumberUnit& before, double value, const NumberUnit& after, double bounded);

/// What becomes of a text that a person typed.
struct Judgement
{
    bool ok = false;
    double value = 0; ///< the number to be stored, when ok
    QString message;  ///< why it is wrong, with the range; or, of an accepted value off the grid, its neighbours
};

/// Judges @p typed for a cell labelled @p label: wrong when it is no number, has a fraction where the unit is whole, or
/// lies outside the range. Never rounds and never bounds.
WQ_EXPORT Judgement judgeNumber(const NumberUnit& unit, const QString& label, const QString& typed);

} // namespace WQ
