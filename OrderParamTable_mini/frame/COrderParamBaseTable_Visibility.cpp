#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <OrderParamTable_mini/frame/Services.h>
#include <OrderParamTable_mini/semantics/CellMasks.h>
#include <OrderParamTable_mini/semantics/IdentitySets.h>
#include <OrderParamTable_mini/semantics/OrderModes.h>

#include <WQ/CComboBoxDelegate.h>
#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CMultiParamsTable.h>
#include <WQ/CScrollArea.h>
#include <WQ/CWidgetList.h>

#include <QHash>
#include <QSet>

namespace TC {

using namespace ttservice;

namespace {

QSet<int> madeCells(quint32 word)
{
    QSet<int> cells;
    for (int bit = 0; bit < kCellBits; ++bit) {
        if (word & (1U << bit))
            cells.insert(1 << bit);
    }
    return cells;
}

constexpr int kSetsKept = 64;

// Panels show the same few sets of cells again and again, and share them.
QSet<int> cellsOf(quint32 word)
{
    static QHash<quint32, QSet<int>> sets;
    const auto found = sets.constFind(word);
    if (found != sets.constEnd())
        return *found;
    if (sets.size() >= kSetsKept)
        sets.clear();
    return *sets.insert(word, madeCells(word));
}

} // namespace

void COrderParamBaseTable::showStrip()
{
    m_orderType = orderTypeInMode(m_id, m_orderType);
    if (m_btnList)
        m_btnList->setVisible(!kAlgorithmOnlyTables.contains(m_id) && !kTablesWithoutStrip.contains(m_id));
    if (m_btnGroup)
        m_btnGroup->setCheckedByID(modeButton(m_orderType));
}

quint32 COrderParamBaseTable::hideCellsByRules()
{
    const auto* const volume = dynamic_cast<const WQ::CComboBoxDelegate*>(m_table->getItem(OCF_BaseVolume));
    const CellVisibilityState cells{m_id, m_orderType, m_flags, bSuperPriceStartHide(),
                                    volume && asksForTailVolume(volume->currentData().toInt())};
    const ModuleQuery modules = isModuleOn;
    quint32 visible = 0;
    for (int bit = 0; bit < kCellBits; ++bit) {
        const int cell = 1 << bit;
        const bool isVisible = isCellVisible(cell, cells, modules);
        if (isHiddenByRules(cell))
            m_table->setItemHidden(cell, !isVisible);
        if (isVisible)
            visible |= quint32(cell);
    }
    return visible;
}

void COrderParamBaseTable::resetCellVisibilities()
{
    if (m_table)
        m_table->clearVisibleItem();
    showStrip();
    if (m_table) {
        m_table->setAllItemSet(cellsOf(hideCellsByRules()));
        m_table->clearFilterBlacklist();
        resetTableByPriceType();
        fitTableHeight();
    }
    setExpandItemsHidden(!m_expand);
}

void COrderParamBaseTable::setExpandItemsHidden(bool hidden)
{
    m_expand = !hidden;
    if (m_table) {
        m_table->setExpand(m_expand);
        if (m_expand)
            m_table->showAllItems();
        else
            loadVisibleFlag();
        if (hasAlgorithmCells(m_orderType))
            hideAlgorithmCells(hidden);
        resetSuperPriceShow();
        fitTableHeight();
    }
    resetLayout(size());
}

void COrderParamBaseTable::hideAlgorithmCells(bool hidden)
{
    const quint32 word = m_visibleFlags[ORDER_TYPE_ALGORITHM];
    for (const AlgorithmCell& row : kAlgorithmCells) {
        const HiddenMark mark = expansionMark(row, !hidden, word);
        if (mark != HiddenMark::Kept)
            m_table->setItemHidden(row.cell, mark == HiddenMark::Hidden);
    }
}

bool COrderParamBaseTable::isExpand()
{
    return m_expand;
}

quint32* COrderParamBaseTable::visibleWord()
{
    return hasVisibleWord(m_orderType) ? &m_visibleFlags[std::size_t(m_orderType)] : nullptr;
}

void COrderParamBaseTable::loadVisibleFlag()
{
    if (m_expand || !m_table)
        return;
    const quint32* const word = visibleWord();
    if (word && *word != 0)
        m_table->setVisibleItemSet(cellsOf(*word));
    else
        m_table->clearVisibleItem();
}

void COrderParamBaseTable::saveVisibleFlag(bool skip)
{
    if (skip || !m_table)
        return;
    const QSet<int> chosen = m_table->getVisibleItemIdSet();
    quint32* const word = visibleWord();
    if (chosen.isEmpty() || !word)
        return;
    *word = 0;
    for (const int cell : chosen)
        *word |= quint32(cell);
}

void COrderParamBaseTable::showCellArea(bool visible)
{
    if (m_table)
        m_table->setVisible(visible);
    if (m_scrollArea)
        m_scrollArea->setVisible(visible);
}

} // namespace TC
