#include "workbench/WhySteps.h"

#include <OrderParamTable_mini/semantics/CellMasks.h>
#include <OrderParamTable_mini/semantics/CellOffers.h>

#include <algorithm>
#include <iterator>

namespace workbench {

namespace {

/// What a rule is asked with. @p isShown: the answer of those before it.
struct Question
{
    const WhyTable& table;
    const WhyCell& cell;
    bool isShown;

    bool isRuled() const
    {
        return table.isRuled && TC::isHiddenByRules(cell.id);
    }
};

constexpr WhyEffect hidesUnless(bool holds)
{
    return holds ? WhyEffect::None : WhyEffect::Hides;
}

constexpr WhyEffect showsIf(bool holds)
{
    return holds ? WhyEffect::Shows : WhyEffect::Hides;
}

constexpr WhyEffect effectOf(TC::HiddenMark mark)
{
    switch (mark) {
    case TC::HiddenMark::Kept:
        return WhyEffect::None;
    case TC::HiddenMark::Shown:
        return WhyEffect::Shows;
    case TC::HiddenMark::Hidden:
        return WhyEffect::Hides;
    }
    return WhyEffect::None;
}

WhyEffect byCatalogue(const Question& q)
{
    return showsIf(q.cell.exists && !TC::isCreatedHidden(q.cell.id));
}

WhyEffect byFlag(const Question& q)
{
    return q.isRuled() ? showsIf(TC::hasCell(quint32(int(q.table.flags)), q.cell.id)) : WhyEffect::None;
}

WhyEffect byOrderType(const Question& q)
{
    return hidesUnless(!q.isRuled() || TC::hasCell(TC::orderTypeMask(q.table.state.order), q.cell.id));
}

WhyEffect byOverride(const Question& q)
{
    switch (TC::cellOverride(q.cell.id)) {
    case TC::CellOverride::Always:
    case TC::CellOverride::StartCount:
        return effectOf(TC::superPriceMark(q.cell.id, TC::isStartCountHidden(q.table.isExpanded, q.table.state.order)));
    case TC::CellOverride::RemainingVolume:
        return hidesUnless(!q.isRuled() || q.table.isRemainingVolume);
    case TC::CellOverride::Remark:
        return hidesUnless(!q.isRuled() || TC::showsRemark(q.table.state.identity));
    case TC::CellOverride::Module:
    case TC::CellOverride::None:
        break;
    }
    return WhyEffect::None;
}

WhyEffect byModule(const Question& q)
{
    const auto module = TC::overrideModule(q.cell.id);
    return hidesUnless(!q.isRuled() || !module || q.table.isModuleOn(*module));
}

/// Changing the operation sets these marks, too, and may come before the rules have run at all.
WhyEffect byPriceType(const Question& q)
{
    const bool isSet = q.table.isRuled || q.table.state.operation != ttservice::OPT_NONE;
    return isSet ? effectOf(TC::priceTypeMark(q.cell.id, q.table.state.order)) : WhyEffect::None;
}

WhyEffect byExpansion(const Question& q)
{
    const WhyTable& table = q.table;
    return effectOf(TC::expansionMark(q.cell.id, table.state.order, table.isExpanded, table.algorithmWord));
}

WhyEffect bySince(const Question& q)
{
    return q.isShown == q.cell.isHidden ? showsIf(!q.cell.isHidden) : WhyEffect::None;
}

WhyEffect byFilter(const Question& q)
{
    const bool isChosen = q.table.isExpanded || q.table.chosen.isEmpty() || q.table.chosen.contains(q.cell.id);
    return hidesUnless(isChosen);
}

WhyEffect byArea(const Question& q)
{
    return hidesUnless(!q.table.isAreaHidden);
}

using Rule = WhyEffect (*)(const Question&);
constexpr Rule kRules[] = {byCatalogue, byFlag,      byOrderType, byOverride, byModule,
                           byPriceType, byExpansion, bySince,     byFilter,   byArea};
static_assert(std::size(kRules) == kWhyRules);

} // namespace

std::vector<WhyStep> whySteps(const WhyTable& table, const WhyCell& cell)
{
    std::vector<WhyStep> steps;
    std::size_t decisive = 0;
    bool isShown = false;
    for (int i = 0; i < kWhyRules; ++i) {
        // What a cell that does not exist would be shown by says nothing about it.
        const bool isAsked = i == 0 || cell.exists;
        const WhyEffect effect = isAsked ? kRules[i]({table, cell, isShown}) : WhyEffect::None;
        steps.push_back({WhyRule(i), effect, false});
        // The flags are where the rules begin anew; every later step only counts when it changes the answer.
        const bool isBeginning = WhyRule(i) == WhyRule::Catalogue || WhyRule(i) == WhyRule::Flag;
        const bool isChange = isBeginning || isShown != (effect == WhyEffect::Shows);
        if (effect == WhyEffect::None || !isChange)
            continue;
        isShown = effect == WhyEffect::Shows;
        decisive = std::size_t(i);
    }
    steps[decisive].isDecisive = true;
    return steps;
}

bool isShownBy(const std::vector<WhyStep>& steps)
{
    return decisiveStep(steps).effect == WhyEffect::Shows;
}

const WhyStep& decisiveStep(const std::vector<WhyStep>& steps)
{
    return *std::find_if(steps.begin(), steps.end(), [](const WhyStep& step) { return step.isDecisive; });
}

} // namespace workbench
