#pragma once

#include <WQ/WqExport.h>

#include <QString>

/// The value of a single cell and how it is judged and written: rules without widgets.
namespace WQ {

/// What may be typed into a single cell.
struct WQ_EXPORT TypingRule
{
    bool isNumber = false; ///< otherwise any text
    QString message;       ///< said of a wrong text, instead of the limits; empty for those
    double min = 0;
    double max = 0;
    double step = 0;

    /// Whether step and limits are whole numbers of 32 bits.
    bool isWhole() const;
};

/// Whether a person may type that.
WQ_EXPORT bool isAllowed(const TypingRule& rule, const QString& typed);

/// @p value moved by @p steps steps into the limits.
WQ_EXPORT double stepped(const TypingRule& rule, double value, int steps);

/// @p value with the decimals of the step, two without one, and more, up to six, when it has them; no grouping. What is
/// no number shows as "--".
WQ_EXPORT QString singleValueText(const TypingRule& rule, double value);

/// "请输入 0 – 1,000,000"; without the end that nobody can reach.
WQ_EXPORT QString limitsMessage(double min, double max);

} // namespace WQ
