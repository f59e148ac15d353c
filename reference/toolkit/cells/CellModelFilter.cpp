#include "reference/toolkit/cells/CellModel.h"

#include <algorithm>
#include <utility>

// Which cells are shown and what the filter offers.
namespace WQ {

bool CellModel::isShown(const CellItem& cell) const
{
    return !cell.isHidden() && (m_expanded || m_visible.isEmpty() || m_visible.contains(cell.id()));
}

int CellModel::shownCount() const
{
    if (m_shownCount < 0) {
        m_shownCount = static_cast<int>(
            std::count_if(m_items.begin(), m_items.end(), [this](const auto& item) { return isShown(*item->cell()); }));
    }
    return m_shownCount;
}

std::vector<CellItem*> CellModel::filterCells() const
{
    std::vector<CellItem*> cells;
    for (const auto& item : m_items) {
        if (m_all.contains(item->id()) && !m_blacklist.contains(item->id()))
            cells.push_back(item->cell());
    }
    return cells;
}

void CellModel::touchFilter()
{
    m_filterDirty = true;
    schedule();
    Q_EMIT filterChanged();
}

std::pair<bool, bool> CellModel::filterLook() const
{
    return {m_enabled && !m_expanded, !m_visible.isEmpty()};
}

void CellModel::tellFilterLook()
{
    const std::pair<bool, bool> look = filterLook();
    if (std::exchange(m_filterLook, look) != look)
        Q_EMIT filterLookChanged();
}

void CellModel::setVisibleSet(QSet<int> ids)
{
    if (ids == m_visible)
        return;
    m_visible = std::move(ids);
    touchRows();
    touchFilter();
}

void CellModel::setAllSet(QSet<int> ids)
{
    if (ids == m_all)
        return;
    m_all = std::move(ids);
    touchFilter();
}

void CellModel::addToAllSet(int id)
{
    if (m_all.contains(id))
        return;
    m_all.insert(id);
    touchFilter();
}

void CellModel::setBlacklisted(int id, bool excluded)
{
    if (m_blacklist.contains(id) == excluded)
        return;
    if (excluded)
        m_blacklist.insert(id);
    else
        m_blacklist.remove(id);
    touchFilter();
}

void CellModel::clearBlacklist()
{
    if (m_blacklist.isEmpty())
        return;
    m_blacklist.clear();
    touchFilter();
}

void CellModel::setExpanded(bool expanded)
{
    if (expanded == m_expanded)
        return;
    m_expanded = expanded;
    touchRows();
    touchFilter();
}

void CellModel::setEnabled(bool enabled)
{
    if (enabled == m_enabled)
        return;
    m_enabled = enabled;
    for (const auto& item : m_items)
        touch(item->cell());
    touchFilter();
}

bool CellModel::isEditable(const CellItem& cell) const
{
    return m_enabled && cell.isEditable();
}

} // namespace WQ
