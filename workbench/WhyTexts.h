#pragma once

#include "workbench/WhySteps.h"

#include <QString>

namespace workbench {

/// @name The words of an explanation, in the language of the program
/// @{

QString whyRuleName(WhyRule rule);

/// What the step's rule looks at, with its value.
QString whyValue(const WhyStep& step, const WhyTable& table, const WhyCell& cell);

/// The names behind the value: the cells of a word. Empty where the value says it all.
QString whyDetail(WhyRule rule, const WhyTable& table);

QString whyEffectName(WhyEffect effect);

/// "0x200  单笔最小量".
QString whyCellName(int cell);

/// Shown, hidden, or not in this table.
QString whyCellState(const WhyCell& cell);

/// @}

} // namespace workbench
