#pragma once

#include "reference/toolkit/cells/CellModel.h"
#include "reference/toolkit/cells/CellPainter.h"
#include "reference/toolkit/cells/ComboCell.h"
#include "reference/toolkit/cells/NumberCell.h"
#include "reference/toolkit/cells/RowLayout.h"
#include "reference/toolkit/cells/ValueCells.h"

#include <WQ/CMultiParamsTable.h>

#include <memory>

namespace WQ {

class CellInteraction;

/// What stands behind a cell table. The table forwards its calls here; CellInteraction (reference/toolkit/editors)
/// reads the geometry here and changes cells through model().
///
/// After changing a cell, call model().touch(cell); its row is repainted with the next flush. After a call that runs
/// foreign code, ask a QPointer to the table before touching anything.
class WQ_EXPORT CMultiParamsTablePrivate
{
public:
    CMultiParamsTablePrivate(CMultiParamsTable* table, bool fontScale);
    ~CMultiParamsTablePrivate();

    static CMultiParamsTablePrivate* of(const CMultiParamsTable* table)
    {
        return table->d.get();
    }

    CMultiParamsTable* table() const
    {
        return m_table;
    }

    CellModel& model()
    {
        return *m_model;
    }

    const CellModel& model() const
    {
        return *m_model;
    }

    /// Made when first asked for: a table that only shows never needs it.
    CellInteraction& interaction();

    /// Null while nobody has interacted.
    CellInteraction* interactionIfAny() const
    {
        return m_interaction.get();
    }

    const RowMetrics& metrics() const
    {
        return m_metrics;
    }

    /// The scale of the table: the UI scale, or 1 with the font scale off.
    double scale() const
    {
        return m_metrics.scale;
    }

    /// @name Geometry, in the viewport's coordinates
    /// @{

    /// Empty for a cell that is not shown.
    QRect rowRect(int row) const;
    QRect rowRect(const CellItem& cell) const;

    /// -1 outside the rows.
    int rowAt(const QPoint& position) const;

    /// Null outside the rows.
    CellItem* cellAt(const QPoint& position) const;

    /// The parts of a row: label, check, value, unit, chevron.
    RowLayout layoutOf(const CellItem& cell) const;

    /// Where the filter's footer stands; empty while it is taken away.
    QRect footerRect() const;

    /// Rows and footer.
    int contentHeight() const;

    /// @}

    /// The cell of the current row; null without one.
    CellItem* currentCell() const;
    void setCurrentCell(const CellItem& cell);

    /// Repaints one row.
    void update(const CellItem& cell);
    void updateFooter();

    /// Why a row is painted as it is; the interaction adds wrong, editing, and where the mouse is.
    RowState rowState(const CellItem& cell) const;

    /// The full texts of an elided row, else the note of a value off its grid; empty without either.
    QString toolTipOf(const CellItem& cell) const;

    bool isFooterVisible() const
    {
        return m_footerVisible;
    }

    void setFooterVisible(bool visible);

    /// What Qt's style leaves the table at least; invalid until it was asked, and after each change of the style.
    QSize& leastSize()
    {
        return m_leastSize;
    }

    /// The filter can be used: footer there, table collapsed, cells and widget enabled.
    bool isFilterEnabled() const;

    /// @name For the table itself
    /// @{

    /// To be called once the table holds this: Qt's own set-up calls back into it.
    void setUpView();
    void paint(QPaintEvent* event);
    void layout();
    void setFontScale(bool fontScale);
    void takeScale();
    void labelsChanged();
    void filterChanged();
    void rowsChanged(int first, int last);

    /// Limits or entries may be others: an open editor or list follows, the row is not painted.
    void changedUnseen(const CellItem& cell);
    int add(std::unique_ptr<CMultiParamsTableItem> item);

    /// @p what says what of the cell a person may see change.
    template <class Change>
    bool change(int id, Change change, CellChange what = CellChange::All)
    {
        CellItem* cell = m_model->cell(id);
        if (!cell)
            return false;
        const bool seen = change(*cell);
        if (seen)
            m_model->touch(cell, what);
        else
            changedUnseen(*cell);
        return seen;
    }
    /// @}

private:
    /// What a row as it was painted last shows of its value. Not set where a new value may move other parts.
    struct PaintedValue
    {
        bool isSet = false;
        QRect room; ///< of the value, in its row; the text stands at its right end
        QString text;
        QString next;  ///< what the next paint shows
        QRect changed; ///< where that differs from the text, in its row
    };

    int rowTop(int row) const;
    void paintRows(CellPainter& cells, const QRect& dirty, bool onScreen);
    static PaintedValue paintedValue(const RowLayout& layout);
    bool paintValueAlone(CellPainter& cells, int row, const CellItem& cell, const QRect& dirty);
    void notePainted(int row, const PaintedValue& value, const QRect& dirty);
    bool takeNext(PaintedValue& painted, const QString& text) const;
    QRect changedRect(int row);
    void connectModel();
    void placeSections();
    void placeRows();
    void placeColumns();
    void takeRowHeight();
    void takeNeededHeight();
    int labelColumn() const;
    QString elidedTexts(const CellItem& cell) const;

    CMultiParamsTable* const m_table;
    CellModel* const m_model;
    std::unique_ptr<CellInteraction> m_interaction;
    RowMetrics m_metrics;
    std::vector<PaintedValue> m_painted; // by row
    mutable int m_widestLabel = -1;      // -1: not measured
    int m_hostColumn = -1;               // -1: the host has set no width
    QSize m_leastSize;
    bool m_footerVisible = true;
    bool m_fontScale;
};

} // namespace WQ
