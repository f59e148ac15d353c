#pragma once

#include <OrderParamTable_mini/semantics/FeatureModules.h>
#include <OrderParamTable_mini/semantics/OrderState.h>
#include <OrderParamTable_mini/semantics/OrderVocabulary.h>

#include <QSet>

#include <vector>

namespace TC {
class COrderParamBaseTable;
}

namespace workbench {

/// What a table's cells are shown by, as it stands.
struct WhyTable
{
    TC::OrderState state;
    TC::OperationCellFlags flags;
    bool isExpanded = false;
    bool isRemainingVolume = false; ///< the base volume is the remaining target volume
    bool isRuled = false;           ///< the rules have run since construction
    quint32 algorithmWord = 0;      ///< the user's cells of the first algorithm
    QSet<int> chosen;               ///< what the user's filter shows; empty for no choice
    bool isAreaHidden = false;      ///< no cell is shown at all: a parameter set is in use
    TC::ModuleQuery isModuleOn;
};

/// One cell of it, as it stands.
struct WhyCell
{
    int id = 0;
    bool exists = false;
    bool isHidden = false; ///< its mark
    bool isShown = false;  ///< what a person sees
};

/// Both read only; no operation of the table is run.
WhyTable whyTable(TC::COrderParamBaseTable& table);
WhyCell whyCell(TC::COrderParamBaseTable& table, int cell);

/// The cells that the rules speak of, and after them what else the table has.
std::vector<int> whyCells(TC::COrderParamBaseTable& table);

} // namespace workbench
