#include "benchmarks/LeanModel.h"

#include <algorithm>

namespace bench {

LeanModel::LeanModel(QObject* parent)
    : QAbstractTableModel(parent)
    , m_content(modes()[0])
    , m_rows(m_content.shown())
{
}

void LeanModel::switchTo(const Mode& mode)
{
    m_content.switchTo(mode);
    removeMissing(m_content.shown());
    insertNew(m_content.shown());
    Q_EMIT dataChanged(index(0, 1), index(rowCount() - 1, 1));
}

// Neighbours go in one step, from the last on, so that the rows before keep their numbers.
void LeanModel::removeMissing(const std::vector<int>& wanted)
{
    const auto isWanted = [&wanted](int position) {
        return std::binary_search(wanted.begin(), wanted.end(), position);
    };
    for (int last = int(m_rows.size()) - 1; last >= 0; --last) {
        if (isWanted(m_rows[std::size_t(last)]))
            continue;
        int first = last;
        while (first > 0 && !isWanted(m_rows[std::size_t(first) - 1]))
            --first;
        beginRemoveRows({}, first, last);
        m_rows.erase(m_rows.begin() + first, m_rows.begin() + last + 1);
        endRemoveRows();
        last = first;
    }
}

void LeanModel::insertNew(const std::vector<int>& wanted)
{
    for (std::size_t first = 0; first < wanted.size(); ++first) {
        const auto isOld = [this, &wanted](std::size_t at) {
            return std::binary_search(m_rows.begin(), m_rows.end(), wanted[at]);
        };
        if (isOld(first))
            continue;
        std::size_t end = first + 1;
        while (end < wanted.size() && !isOld(end))
            ++end;
        beginInsertRows({}, int(first), int(end) - 1);
        m_rows.insert(m_rows.begin() + std::ptrdiff_t(first), wanted.begin() + std::ptrdiff_t(first),
                      wanted.begin() + std::ptrdiff_t(end));
        endInsertRows();
        first = end - 1;
    }
}

void LeanModel::changeNumber(double value)
{
    m_content.setNumber(kChangedCell, value);
    const int row = rowOf(int(positionOf(kChangedCell)));
    if (row >= 0)
        Q_EMIT dataChanged(index(row, 1), index(row, 1));
}

int LeanModel::rowOf(int position) const
{
    const auto found = std::lower_bound(m_rows.begin(), m_rows.end(), position);
    return found != m_rows.end() && *found == position ? int(found - m_rows.begin()) : -1;
}

int LeanModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int LeanModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 2;
}

QVariant LeanModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole || index.row() >= rowCount())
        return {};
    const int position = m_rows[std::size_t(index.row())];
    return index.column() == 0 ? m_content.label(position) : m_content.value(position);
}

} // namespace bench
