#pragma once

#include "reference/toolkit/cells/CellItem.h"

#include <WQ/CMultiParamsTableItem.h>

#include <QAbstractTableModel>
#include <QSet>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace WQ {

/// The cells of one table: two columns (label, value), a row for each cell that is shown, in the order in which the
/// cells were added.
///
/// Changes are gathered: setters only mark, and flush() tells the views once. It runs when the event loop is reached,
/// when anybody asks for the number of rows, and before the table handles an event, so nobody sees a stale row.
class WQ_EXPORT CellModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { LabelColumn = 0, ValueColumn = 1 };

    explicit CellModel(QObject* parent = nullptr);
    ~CellModel() override;

    /// Adds a cell under the last one; -1, and nothing added, when its ID exists. Answers its position among all cells.
    int add(std::unique_ptr<CMultiParamsTableItem> item);

    int cellCount() const; ///< shown or not
    CMultiParamsTableItem* itemAt(int position) const;

    /// Null for an unknown ID.
    CMultiParamsTableItem* item(int id) const;
    CellItem* cell(int id) const;

    /// The cell of a row; null outside the rows.
    CellItem* cellAtRow(int row) const;

    /// -1 for a cell that is not shown.
    int rowOf(int id) const;
    QModelIndex valueIndex(int id) const;

    /// To be called after a change of a cell's value, label or look; @p cell is of this model.
    void touch(CellItem* cell, CellChange change = CellChange::All);

    /// As touch(), for a choice made by program: a host that refills a list chooses again at once, and views are told
    /// only when another text than @p before is left in the end.
    void touchChoice(CellItem* cell, const QString& before);

    /// To be called after a change of a cell's hidden mark.
    void touchRows();

    bool isShown(const CellItem& cell) const;

    /// Exact at once, whether the views know the rows yet or not.
    int shownCount() const;

    /// What the filter may offer: cells of the "all items" set that are not blacklisted, in display order.
    std::vector<CellItem*> filterCells() const;

    const QSet<int>& visibleSet() const
    {
        return m_visible;
    }

    const QSet<int>& allSet() const
    {
        return m_all;
    }

    const QSet<int>& blacklist() const
    {
        return m_blacklist;
    }

    void setVisibleSet(QSet<int> ids);
    void setAllSet(QSet<int> ids);
    void addToAllSet(int id);
    void setBlacklisted(int id, bool excluded);
    void clearBlacklist();

    bool isExpanded() const
    {
        return m_expanded;
    }

    void setExpanded(bool expanded);

    /// Whether a person may edit the cells at all.
    bool isEnabled() const
    {
        return m_enabled;
    }

    void setEnabled(bool enabled);

    /// Whether a person may edit this one now: enabled, editable (shown or not).
    bool isEditable(const CellItem& cell) const;

    /// What a row's tooltip says, asked with the cell; without it the note of a value off its grid.
    void setToolTipSource(std::function<QString(const CellItem&)> source);

    /// To be called by the view when it paints: the next value that changes alone is told at once. What follows it
    /// before the next paint is gathered, as anything but a value is.
    void painted()
    {
        m_toldAtOnce = false;
    }

    /// Tells the views what has changed since the last time: rows first, then values, one signal each where possible.
    void flush();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    bool event(QEvent* event) override;

Q_SIGNALS:
    /// What the filter offers, ticks or allows has changed. Sent at once, never for a change without effect.
    void filterChanged();

    /// The filter's button looks otherwise: sent once a batch, and not when its changes have undone each other.
    void filterLookChanged();

    /// Rows have come or gone: sent once a batch, after the signals of the single rows.
    void rowsReplaced();

private:
    void schedule();
    void touchFilter();
    void dropUndoneChoices();
    std::pair<bool, bool> filterLook() const;
    void tellFilterLook();
    std::vector<int> shownPositions() const;
    void replaceRows(const std::vector<int>& rows);
    void removeRowsBut(const std::vector<int>& rows);
    void insertMissingRows(const std::vector<int>& rows);
    void announceValues();
    bool isAnnounced(int row) const;

    std::vector<std::unique_ptr<CMultiParamsTableItem>> m_items;
    std::vector<std::pair<int, int>> m_positions; // ID and position, sorted by ID
    std::vector<int> m_rows;                      // positions of the cells that the views know as rows
    QSet<int> m_visible;
    QSet<int> m_all;
    QSet<int> m_blacklist;
    std::vector<std::pair<CellItem*, QString>> m_choices; // touched by choices alone, and their texts before
    std::function<QString(const CellItem&)> m_toolTip;
    mutable int m_shownCount = 0; // -1: to be counted
    bool m_expanded = false;
    bool m_enabled = true;
    bool m_rowsDirty = false;
    bool m_valuesDirty = false;
    bool m_filterDirty = false;
    bool m_scheduled = false;
    bool m_toldAtOnce = true;
    bool m_flushing = false;
    std::pair<bool, bool> m_filterLook = filterLook(); // as last told
};

} // namespace WQ
