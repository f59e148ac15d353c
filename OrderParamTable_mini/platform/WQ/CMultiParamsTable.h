#pragma once

#include <WQ/CEventWidgetT.h>
#include <WQ/CMultiParamsTableItem.h>
#include <WQ/CUiResourceChangeHandler.h>
#include <WQ/ToolkitTypes.h>

#include <QList>
#include <QPair>
#include <QSet>
#include <QStringList>
#include <QTableView>
#include <QTime>
#include <QVector>

#include <memory>

namespace WQ {

class CMultiParamsTablePrivate;

/// The cell table: labelled cells of several kinds, one a row, each addressed by an integer ID.
///
/// Programmatic changes send no events. What a person commits is stored first; its event goes out when Qt's own handler
/// has unwound, from this table: 73 combo changed, 87 number or range, 118 unit or check, 101 period, 102 line,
/// 97 double click (not while the cells are disabled), 124 and 248 filter applied and reset. A person may also paste a
/// value, and go back to the value, unit and check a cell was added with: with events as of a commit. Values of combos
/// are ints or texts in a QVariant, never enumeration types, so that they compare.
///
/// A missing ID answers 0, an empty text, an invalid QVariant or a null item; setting it does nothing. GUI thread only.
class WQ_EXPORT CMultiParamsTable : public CEventWidgetT<QTableView>, public CUiResourceChangeHandler
{
    Q_OBJECT
public:
    /// An empty table.
    /// @param parent the owner; may be null
    /// @param fontScale whether it follows the UI scale; otherwise it stays at scale 1
    CMultiParamsTable(QWidget* parent, bool fontScale);
    ~CMultiParamsTable() override;

    /// @name Adding cells
    /// Each adds one cell under the last one. An ID that exists already adds nothing.
    /// @{

    /// A combo whose entry i shows texts[i] and carries values[i]. The bool means nothing here.
    /// @param id the cell, unique within the table
    /// @param label shown at the left
    /// @param texts what the entries show; not written
    /// @param values what the entries carry; not written. Of lists of unequal length the shorter one counts
    /// @param currentIndex the chosen entry; outside the list none is
    /// @param labelAlignment of the label
    /// @param valueAlignment of the value
    /// @return its row; -1 when the ID exists already
    int addComboBox(int id, QString label, QStringList& texts, QVector<QVariant>& values, int currentIndex, bool,
                    QFlags<Qt::AlignmentFlag> labelAlignment, QFlags<Qt::AlignmentFlag> valueAlignment);

    /// A number with one unit, or a text beside one. The last argument means nothing here.
    /// @param id the cell, unique within the table
    /// @param label shown at the left
    /// @param valueType 2 int, 6 double, 10 text; a text cell ignores limits and value and starts empty
    /// @param min smallest value
    /// @param max largest value
    /// @param step what Up and Down add, and the decimals that are shown; 0 is no step
    /// @param unit shown behind the value; empty for none
    /// @param value the first value, bounded
    /// @return its row; -1 when the ID exists already
    int addParamCell(int id, QString label, int valueType, double min, double max, double step, QString unit,
                     double value, int);

    /// A number whose unit a person chooses. The last argument means nothing here.
    /// @param id the cell, unique within the table
    /// @param label shown at the left
    /// @param units each with limits of its own; the first is current; an empty list is one without text and limits
    /// @param value the first value, bounded; not-a-number counts as 0
    /// @return its row; -1 when the ID exists already
    int addParamUnitCell(int id, QString label, QList<CParamCellUnitInfo> units, double value, double);

    /// As addParamUnitCell(), with a check box.
    /// @param id the cell, unique within the table
    /// @param label shown at the left
    /// @param checkText the check box's
    /// @param checked whether it is checked at first
    /// @param units each with limits of its own; the first is current
    /// @param value the first value, bounded
    /// @return its row; -1 when the ID exists already
    int addCheckParamUnitCell(int id, QString label, QString checkText, bool checked, QList<CParamCellUnitInfo> units,
                              double value, double);

    /// Two values, the lower first. The constants around the separator mean nothing here.
    /// @param id the cell, unique within the table
    /// @param label shown at the left
    /// @param valueType 2 int, 6 double
    /// @param min smallest value
    /// @param max largest value
    /// @param low the first lower value
    /// @param high the first higher value
    /// @param step what Up and Down add, and the decimals that are shown; 0 is no step
    /// @param unit shown behind the values; empty for none
    /// @param separator shown between the values
    /// @return its row; -1 when the ID exists already
    int addRangeCell(int id, QString label, int valueType, double min, double max, double low, double high, double step,
                     QString unit, double, int, QString separator, bool);

    /// A period, as a clock range at first.
    /// @param id the cell, unique within the table
    /// @param label shown at the left
    /// @param start its beginning, an invalid time is midnight; not written
    /// @param end its end, an invalid time is midnight; not written
    /// @return its row; -1 when the ID exists already
    int addTimePeriod(int id, QString label, QTime& start, QTime& end);

    /// A line of text.
    /// @param id the cell, unique within the table
    /// @param label shown at the left
    /// @param text with @p validated the pattern of what may be typed (a broken one allows all), else the initial text
    /// @param validated whether there is a pattern
    /// @param second with @p validated the initial text, else the placeholder
    /// @return its row; -1 when the ID exists already
    int addLineEdit(int id, QString label, QString text, bool validated, QString second);

    /// @}
    /// @name Reading
    /// @{

    /// The cell itself.
    /// @param id the cell
    /// @return owned by the table; null when there is none
    CMultiParamsTableItem* getItem(int id) const;

    /// The number of a cell.
    /// @param id the cell
    /// @return in the current unit, within its range;
    ///         of a combo the value as a number;
    ///         of a text cell the number that its text is, else 0
    double itemDouble(int id) const;

    /// As itemDouble(), as a whole number.
    /// @param id the cell
    /// @return without the fraction, stopped at the ends of 32 bits
    int itemInt(int id) const;

    /// The value of a combo's current entry, or a cell's own value.
    /// @param id the cell
    /// @return invalid when a combo has none chosen
    QVariant itemData(int id);

    /// The value as text.
    /// @param id the cell
    /// @return a number without grouping or unit, a combo's entry, a line's text, "HH:MM:SS-HH:MM:SS" of a period
    QString itemText(int id);

    /// The current unit.
    /// @param id the cell
    /// @return its text; empty for a cell without unit
    QString itemUnit(int id);

    /// What a period is; a person may change it.
    /// @param id the cell
    /// @return TimeRangeClock at first
    EWqTimeRangeType itemTimeRangeType(int id);

    /// Start and end of a period today.
    /// @param id the cell
    /// @return whole seconds since the epoch; an end before its start is on the next day
    QPair<int, int> timeRange(int id);

    /// The length of a period.
    /// @param id the cell
    /// @return seconds: the duration, or end less start
    int timeElapse(int id) const;

    /// The limits of a numeric cell's current unit.
    /// @param id the cell
    /// @return minimum and maximum
    QPair<double, double> cellRange(int id);

    /// @}
    /// @name Changing values
    /// @{

    /// Re-limits the current unit of a numeric cell and bounds its value.
    /// @param id the cell
    /// @param min smallest value
    /// @param max largest value; below the minimum it follows that. Not-a-number keeps the limit there is
    void resetCellRange(int id, double min, double max);

    /// Sets the number.
    /// @param id the cell
    /// @param value bounded into the current range; an int cell drops the fraction; not-a-number changes nothing
    void setItemDouble(int id, double value);

    /// Sets the number.
    /// @param id the cell
    /// @param value bounded into the current range
    void setItemInt(int id, int value);

    /// Sets check mark and number of a check cell. The last argument means nothing here.
    /// @param id the cell
    /// @param checked whether it is checked
    /// @param value bounded into the current range
    void setCheckDouble(int id, bool checked, double value, bool);

    /// Chooses an entry of a combo.
    /// @param id the cell
    /// @param value the first entry that carries it; an unknown value keeps the choice
    void setComboData(int id, QVariant value);

    /// Replaces the entries of a combo.
    /// @param id the cell
    /// @param texts what the entries show
    /// @param values what they carry; of lists of unequal length the shorter one counts
    /// @param currentIndex the chosen entry; outside the list none is
    void resetComboData(int id, const QStringList& texts, const QVector<QVariant>& values, int currentIndex);

    /// Sets the value from a text.
    /// @param id the cell
    /// @param text any for a text or line cell;
    ///        on a number one that is a number, on a combo one of an entry:
    ///        others are ignored
    void setItemText(int id, QString text);

    /// Sets the label.
    /// @param id the cell
    /// @param name the new label
    void setItemName(int id, QString name);

    /// Chooses the unit.
    /// @param id the cell
    /// @param unit made current; on a cell without it the current unit is renamed
    void setItemUnit(int id, QString unit);

    /// Sets the limits of a unit.
    /// @param id the cell
    /// @param unit one that the cell lacks replaces the current one with @p makeCurrent and is ignored otherwise
    /// @param min smallest value, in that unit
    /// @param max largest value, in that unit
    /// @param step 0 keeps the step it has
    /// @param makeCurrent whether the unit is chosen as well
    void setItemUnit(int id, QString unit, double min, double max, double step, bool makeCurrent);

    /// Sets the step of a unit, and touches no value.
    /// @param id the cell
    /// @param unit current or not; an unknown one is ignored
    /// @param step in that unit; a negative or infinite one changes nothing
    void setItemTick(int id, QString unit, double step);

    /// @}
    /// @name Showing
    /// A cell is shown when it is not hidden and the table is expanded, or the user's visible set is empty, or the set
    /// holds it. The sets keep any ID they are given.
    /// @{

    /// Lets a person edit one cell, or not.
    /// @param id the cell
    /// @param editable true for a new cell
    void setItemEditable(int id, bool editable);

    /// Hides or shows one cell.
    /// @param id the cell
    /// @param hidden false for a new cell
    void setItemHidden(int id, bool hidden);

    /// Excludes a cell from the user's filter, or offers it again.
    /// @param id the cell
    /// @param excluded whether the filter leaves it out
    void setItemFilterBlacklist(int id, bool excluded);

    /// Offers all cells in the filter again.
    void clearFilterBlacklist();

    /// What the user has chosen to see.
    /// @return the IDs; empty means no choice
    QSet<int> getVisibleItemIdSet();

    /// Sets what the user has chosen to see.
    /// @param ids empty for no choice
    void setVisibleItemSet(QSet<int> ids);

    /// Adds to what the user has chosen to see.
    /// @param id the cell
    void addVisibleItemSet(int id);

    /// Takes from what the user has chosen to see.
    /// @param id the cell
    void removeVisbleItemSet(int id);

    /// Sets what the user's filter may offer.
    /// @param ids all cells that may be shown
    void setAllItemSet(QSet<int> ids);

    /// Adds to what the user's filter may offer.
    /// @param id the cell
    void addAllItemSet(int id);

    /// Empties the visible set; hidden cells stay hidden.
    void clearVisibleItem();

    /// Empties the visible set; hidden cells stay hidden.
    void showAllItems();

    /// Expands or collapses the table.
    /// @param expand whether the user's choice is passed over
    void setExpand(bool expand);

    /// Shows or takes away the filter's footer under the last row.
    /// @param visible true for a new table
    void setCustomWidgetVisible(bool visible);

    /// Brings the filter button and its open list up to date.
    void setMultiFilterWidgetParam();

    /// Lets a person edit the cells, or not.
    /// @param enable whether cells can be edited
    void setAllItemEnable(bool enable);

    /// Chooses whether the table follows the UI scale.
    /// @param fontScale false keeps it at scale 1
    void setFontScale(bool fontScale);

    /// The height that the shown cells need, the filter's footer included; exact at once, shown or not.
    /// @return pixels
    int realHeight() const;

    /// @}

    /// Takes the current UI scale. Only the owner calls this, so that rows and fixed height change together.
    void scaleChanged() override;

    /// Repaints in the colours of the current theme.
    void themeChanged() override;

    /// @cond handlers
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void setSelectionModel(QItemSelectionModel* selectionModel) override;
    /// @endcond

protected:
    /// @cond handlers
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void hideEvent(QHideEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    QModelIndex moveCursor(CursorAction cursorAction, Qt::KeyboardModifiers modifiers) override;
    void dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight, const QVector<int>& roles) override;
    void scrollContentsBy(int dx, int dy) override;
    void updateGeometries() override;
    /// @endcond

private:
    friend class CMultiParamsTablePrivate;
    std::unique_ptr<CMultiParamsTablePrivate> const d;
};

} // namespace WQ
