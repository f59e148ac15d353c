#pragma once

#include "workbench/WhyFacts.h"

#include <vector>

namespace workbench {

/// What decides whether a cell is shown, in the order in which the table asks.
enum class WhyRule {
    Catalogue, ///< whether construction creates the cell
    Flag,      ///< the host's flags
    OrderType, ///< the mask of the order type
    Override,  ///< a rule of the cell's own
    Module,    ///< a feature module that it needs
    PriceType, ///< what each change of price, operation or order type sets
    Expansion, ///< what expanding and collapsing set
    Since,     ///< somebody has set the mark since, or other values were in force when the rules ran
    Filter,    ///< what the user has chosen to see
    Area,      ///< parameter sets show no cells
};
constexpr int kWhyRules = int(WhyRule::Area) + 1;

enum class WhyEffect { None, Shows, Hides };

struct WhyStep
{
    WhyRule rule;
    WhyEffect effect = WhyEffect::None;
    bool isDecisive = false; ///< what follows agrees or says nothing
};

/// A step for each rule, in their order; exactly one is decisive.
std::vector<WhyStep> whySteps(const WhyTable& table, const WhyCell& cell);

/// Whether the steps end with a cell that is shown.
bool isShownBy(const std::vector<WhyStep>& steps);

const WhyStep& decisiveStep(const std::vector<WhyStep>& steps);

} // namespace workbench
