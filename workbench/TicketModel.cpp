#include "workbench/TicketModel.h"

#include "workbench/Vocabulary.h"

#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace workbench {

TicketModel::TicketModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

bool TicketModel::hasNamesOf(const std::vector<Entry>& entries) const
{
    return std::equal(entries.begin(), entries.end(), m_entries.begin(), m_entries.end(),
                      [](const Entry& left, const Entry& right) { return left.name == right.name; });
}

bool TicketModel::markChanges(const std::vector<Entry>& entries)
{
    std::vector<bool> changed(entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i)
        changed[i] = entries[i].value != m_entries[i].value;
    const bool isChanged = std::find(changed.begin(), changed.end(), true) != changed.end();
    if (isChanged)
        m_marked = changed;
    return isChanged;
}

bool TicketModel::setEntries(std::vector<Entry> entries)
{
    if (!hasNamesOf(entries)) {
        beginResetModel();
        m_entries = std::move(entries);
        m_marked.assign(m_entries.size(), false);
        endResetModel();
        return false;
    }
    if (entries.empty())
        return false;
    const bool hasMarked = markChanges(entries);
    m_entries = std::move(entries);
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    return hasMarked;
}

bool TicketModel::isMarked(int row) const
{
    return row >= 0 && row < rowCount() && m_marked[static_cast<std::size_t>(row)];
}

int TicketModel::firstMarked() const
{
    const auto found = std::find(m_marked.begin(), m_marked.end(), true);
    return found == m_marked.end() ? -1 : int(found - m_marked.begin());
}

QString TicketModel::text(Part part) const
{
    QStringList lines;
    for (int row = 0; row < rowCount(); ++row) {
        const Entry& entry = m_entries[static_cast<std::size_t>(row)];
        if (part == Part::Record ? entry.isRecord : isMarked(row))
            lines << entry.name.trimmed() + QLatin1Char('\t') + entry.value;
    }
    return lines.join(QLatin1Char('\n'));
}

void TicketModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

int TicketModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
}

int TicketModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant TicketModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Entry& entry = m_entries[static_cast<std::size_t>(index.row())];
    const bool isMarkedValue = index.column() == Value && isMarked(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return index.column() == Name ? entry.name : entry.value;
    case Qt::ForegroundRole:
        return isMarkedValue ? QVariant(WQ::resources::color(WQ::keys::kAccent)) : QVariant();
    case Qt::FontRole:
        return isMarkedValue ? QVariant(WQ::resources::font(WQ::keys::kCheckedFont, WQ::resources::scale()))
                             : QVariant();
    default:
        return {};
    }
}

QVariant TicketModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static constexpr std::array<const char*, ColumnCount> kTitles = {QT_TRANSLATE_NOOP("workbench", "Field"),
                                                                     QT_TRANSLATE_NOOP("workbench", "Value")};
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= ColumnCount)
        return QAbstractTableModel::headerData(section, orientation, role);
    return translated(kTitles[static_cast<std::size_t>(section)]);
}

} // namespace workbench
