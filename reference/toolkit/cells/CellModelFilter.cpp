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

std::vector<int> CellModel::shownPositions() const
{
    std::vector<int> shown;
    shown.reserve(m_items.size());
    for (std::size_t position = 0; position < m_items.size(); ++position) {
        if (isShown(*m_items[position]->cell()))
            shown.push_back(static_cast<int>(position));
    }
    m_shownCount = static_cast<int>(shown.size());
    return shown;
}

// Both lists are sorted. Rows that stay keep their indexes, so that the current row and an open editor stay too.
void CellModel::replaceRows(const std::vector<int>& rows)
{
    removeRowsBut(rows);
    insertMissingRows(rows);
}

void CellModel::removeRowsBut(const std::vector<int>& rows)
{
    auto kept = rows.end(); // behind the last row that is not after the position asked for last
    const auto stays = [&rows, &kept](int position) {
        while (kept != rows.begin() && *(kept - 1) > position)
            --kept;
        return kept != rows.begin() && *(kept - 1) == position;
    };
    for (int last = static_cast<int>(m_rows.size()) - 1; last >= 0; --last) {
        if (stays(m_rows[static_cast<size_t>(last)]))
            continue;
        int first = last;
        while (first > 0 && !stays(m_rows[static_cast<size_t>(first - 1)]))
            --first;
        beginRemoveRows(QModelIndex(), first, last);
        m_rows.erase(m_rows.begin() + first, m_rows.begin() + last + 1);
        endRemoveRows();
        last = first;
    }
}

void CellModel::insertMissingRows(const std::vector<int>& rows)
{
    for (size_t at = 0; at < rows.size(); ++at) {
        size_t end = at;
        while (end < rows.size() && (at >= m_rows.size() || rows[end] < m_rows[at]))
            ++end;
        if (end == at)
            continue;
        beginInsertRows(QModelIndex(), static_cast<int>(at), static_cast<int>(end) - 1);
        const auto first = rows.begin() + static_cast<std::ptrdiff_t>(at);
        m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(at), first,
                      rows.begin() + static_cast<std::ptrdiff_t>(end));
        endInsertRows();
        at = end - 1;
    }
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
