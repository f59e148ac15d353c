#include "reference/toolkit/cells/CellModel.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>

namespace WQ {

namespace {

const QEvent::Type kFlushEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

bool isBefore(const std::pair<int, int>& entry, int id)
{
    return entry.first < id;
}

QString shownText(const CellItem& cell)
{
    const QString value = cell.displayText();
    const QString unit = cell.unit();
    const bool areBoth = !value.isEmpty() && !unit.isEmpty();
    return areBoth ? value + QLatin1Char(' ') + unit : value + unit;
}

} // namespace

CellModel::CellModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

CellModel::~CellModel() = default;

int CellModel::add(std::unique_ptr<CMultiParamsTableItem> item)
{
    const std::pair<int, int> entry(item->id(), cellCount());
    const auto place = std::lower_bound(m_positions.begin(), m_positions.end(), entry.first, isBefore);
    if (place != m_positions.end() && place->first == entry.first)
        return -1;
    m_positions.insert(place, entry);
    m_items.push_back(std::move(item));
    touchRows();
    if (m_all.contains(entry.first))
        touchFilter();
    return entry.second;
}

int CellModel::cellCount() const
{
    return static_cast<int>(m_items.size());
}

CMultiParamsTableItem* CellModel::itemAt(int position) const
{
    return position >= 0 && position < cellCount() ? m_items[static_cast<size_t>(position)].get() : nullptr;
}

CMultiParamsTableItem* CellModel::item(int id) const
{
    const auto place = std::lower_bound(m_positions.begin(), m_positions.end(), id, isBefore);
    if (place == m_positions.end() || place->first != id)
        return nullptr;
    return m_items[static_cast<std::size_t>(place->second)].get();
}

CellItem* CellModel::cell(int id) const
{
    const CMultiParamsTableItem* found = item(id);
    return found ? found->cell() : nullptr;
}

CellItem* CellModel::cellAtRow(int row) const
{
    if (row < 0 || row >= rowCount())
        return nullptr;
    return itemAt(m_rows[static_cast<size_t>(row)])->cell();
}

int CellModel::rowOf(int id) const
{
    const int rows = rowCount();
    for (int row = 0; row < rows; ++row) {
        if (cellAtRow(row)->id() == id)
            return row;
    }
    return -1;
}

QModelIndex CellModel::valueIndex(int id) const
{
    return index(rowOf(id), ValueColumn);
}

void CellModel::touch(CellItem* cell, CellChange change)
{
    const auto isIt = [cell](const auto& choice) { return choice.first == cell; };
    m_choices.erase(std::remove_if(m_choices.begin(), m_choices.end(), isIt), m_choices.end());
    cell->m_touched = std::max(cell->m_touched, change);
    m_valuesDirty = true;
    const bool isAlone = change == CellChange::Value && !m_scheduled && !m_flushing;
    if (isAlone && !std::exchange(m_toldAtOnce, true))
        flush();
    else
        schedule();
}

void CellModel::touchChoice(CellItem* cell, const QString& before)
{
    if (cell->m_touched != CellChange::None)
        return;
    m_choices.emplace_back(cell, before);
    cell->m_touched = CellChange::All;
    m_valuesDirty = true;
    schedule();
}

void CellModel::dropUndoneChoices()
{
    for (const auto& choice : m_choices) {
        if (choice.first->text() == choice.second)
            choice.first->m_touched = CellChange::None;
    }
    // Not clear(), which would keep the room of the largest batch for good.
    std::vector<std::pair<CellItem*, QString>>().swap(m_choices);
}

void CellModel::touchRows()
{
    m_shownCount = -1;
    m_rowsDirty = true;
    schedule();
}

void CellModel::schedule()
{
    if (m_scheduled)
        return;
    m_scheduled = true;
    QCoreApplication::postEvent(this, new QEvent(kFlushEvent));
}

void CellModel::setToolTipSource(std::function<QString(const CellItem&)> source)
{
    m_toolTip = std::move(source);
}

void CellModel::flush()
{
    if (m_flushing)
        return;
    m_flushing = true;
    if (m_rowsDirty) {
        m_rowsDirty = false;
        std::vector<int> rows = shownPositions();
        if (rows != m_rows) {
            replaceRows(rows);
            Q_EMIT rowsReplaced();
        }
    }
    if (m_valuesDirty) {
        m_valuesDirty = false;
        announceValues();
    }
    if (m_filterDirty) {
        m_filterDirty = false;
        tellFilterLook();
    }
    m_flushing = false;
}

// What is announced is taken first: whoever hears of it may change cells again. Rows stay as they are meanwhile.
void CellModel::announceValues()
{
    dropUndoneChoices();
    for (const auto& item : m_items) {
        CellItem& cell = *item->cell();
        cell.m_announced = std::exchange(cell.m_touched, CellChange::None);
    }
    const int rows = static_cast<int>(m_rows.size());
    for (int first = 0; first < rows; ++first) {
        int end = first;
        while (end < rows && isAnnounced(end))
            ++end;
        if (end > first)
            Q_EMIT dataChanged(index(first, LabelColumn), index(end - 1, ValueColumn));
        first = end;
    }
}

bool CellModel::isAnnounced(int row) const
{
    const auto position = static_cast<std::size_t>(m_rows[static_cast<std::size_t>(row)]);
    return m_items[position]->cell()->m_announced != CellChange::None;
}

int CellModel::rowCount(const QModelIndex& parent) const
{
    // Whoever asks gets the rows as they are now, and is told of them before: a view that asks in the middle of a batch
    // must not meet rows that have gone.
    if (m_rowsDirty && !m_flushing)
        const_cast<CellModel*>(this)->flush();
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int CellModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ValueColumn + 1;
}

QVariant CellModel::data(const QModelIndex& index, int role) const
{
    const CellItem* cell = index.isValid() && index.model() == this ? cellAtRow(index.row()) : nullptr;
    if (!cell)
        return QVariant();
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == LabelColumn ? cell->label() : shownText(*cell);
    case Qt::EditRole:
        return index.column() == LabelColumn ? cell->label() : cell->text();
    case Qt::AccessibleTextRole:
        return cell->label();
    case Qt::AccessibleDescriptionRole:
        return shownText(*cell);
    case Qt::ToolTipRole: {
        const QString text = m_toolTip ? m_toolTip(*cell) : cell->offGridText();
        return text.isEmpty() ? QVariant() : QVariant(text);
    }
    default:
        return QVariant();
    }
}

Qt::ItemFlags CellModel::flags(const QModelIndex& index) const
{
    const CellItem* cell = index.isValid() && index.model() == this ? cellAtRow(index.row()) : nullptr;
    if (!cell)
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (m_enabled)
        flags |= Qt::ItemIsEnabled;
    if (index.column() == ValueColumn && isEditable(*cell))
        flags |= Qt::ItemIsEditable;
    return flags;
}

bool CellModel::event(QEvent* event)
{
    if (event->type() != kFlushEvent)
        return QAbstractTableModel::event(event);
    m_scheduled = false;
    flush();
    return true;
}

} // namespace WQ
