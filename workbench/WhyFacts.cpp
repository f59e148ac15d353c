#include "workbench/WhyFacts.h"

#include "reference/services/ServiceControl.h"
#include "reference/toolkit/CMultiParamsTablePrivate.h"

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>
#include <OrderParamTable_mini/semantics/CellMasks.h>

#include <algorithm>

namespace workbench {

namespace {

/// What derived tables may read, and what has no getter.
class Members : public TC::COrderParamBaseTable
{
public:
    static constexpr auto kBroker = &Members::m_brokerType;
    static constexpr auto kTrader = &Members::m_traderType;
    static constexpr auto kAutoBook = &Members::m_lastFlag;
    static constexpr auto kFlags = &Members::m_flags;
    static constexpr auto kWords = &Members::m_visibleFlags;
};

bool isModuleOn(TC::FeatureModule module)
{
    const TC::ModulePath path = TC::modulePath(module);
    return reference::modules().contains(
        QStringLiteral("%1/%2").arg(QLatin1String(path.group), QLatin1String(path.name)));
}

const WQ::CellModel* modelOf(TC::COrderParamBaseTable& table)
{
    const WQ::CMultiParamsTable* const grid = table.getMultiParamsTable();
    return grid ? &WQ::CMultiParamsTablePrivate::of(grid)->model() : nullptr;
}

/// The set of what the filter may offer keeps what the rules let through when they last ran. Before that, expanding and
/// collapsing put the super-price cells alone into it; flags other than the default are never stored without a run.
bool haveRulesRun(const WQ::CellModel& model, TC::OperationCellFlags flags)
{
    QSet<int> offered = model.allSet();
    for (const int cell : TC::kSuperPriceCells)
        offered.remove(cell);
    return !offered.isEmpty() || int(flags) != TC::kDefaultCellFlags;
}

} // namespace

WhyTable whyTable(TC::COrderParamBaseTable& table)
{
    WhyTable facts;
    facts.state = {table.getId(),     table.*Members::kBroker,  table.*Members::kTrader,
                   table.orderType(), table.getOperationType(), table.*Members::kAutoBook};
    facts.flags = table.*Members::kFlags;
    facts.isExpanded = table.isExpand();
    facts.isRemainingVolume = TC::asksForTailVolume(table.singleVolType());
    facts.algorithmWord = (table.*Members::kWords)[ttservice::ORDER_TYPE_ALGORITHM];
    facts.isModuleOn = isModuleOn;
    if (const WQ::CellModel* const model = modelOf(table)) {
        facts.isRuled = haveRulesRun(*model, facts.flags);
        facts.chosen = model->visibleSet();
        facts.isAreaHidden = table.getMultiParamsTable()->isHidden();
    }
    return facts;
}

WhyCell whyCell(TC::COrderParamBaseTable& table, int cell)
{
    const WQ::CellModel* const model = modelOf(table);
    const WQ::CellItem* const item = model ? model->cell(cell) : nullptr;
    if (!item)
        return {cell, false, false, false};
    return {cell, true, item->isHidden(), model->isShown(*item) && !table.getMultiParamsTable()->isHidden()};
}

std::vector<int> whyCells(TC::COrderParamBaseTable& table)
{
    std::vector<int> cells;
    for (int bit = 0; bit < TC::kCellBits; ++bit)
        cells.push_back(1 << bit);
    const WQ::CellModel* const model = modelOf(table);
    for (int position = 0; model && position < model->cellCount(); ++position) {
        const int id = model->itemAt(position)->cell()->id();
        if (std::find(cells.begin(), cells.end(), id) == cells.end())
            cells.push_back(id);
    }
    return cells;
}

} // namespace workbench
