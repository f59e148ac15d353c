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
/// value, and go back to the value, unit and check a cell was added with: with events as of a commit.
/// A missing ID answers 0, an empty text, an invalid QVariant or a null item; setting it does nothing.
class WQ_EXPORT CMultiParamsTable : public CEventWidgetT<QTableView>, public CUiResourceChangeHandler
{
    Q_OBJECT
public:
    /// An empty table. With @p fontScale it follows the UI scale, otherwise it stays at scale 1.
    CMultiParamsTable(QWidget* parent, bool fontScale);
    ~CMultiParamsTable() override;

    /// @name Adding cells
    /// Each adds one cell under the last one and answers its row, or -1 and changes nothing when @p id exists already.
    /// @{

    /// A combo whose entry i shows texts[i] and carries values[i] (the shorter list counts); @p currentIndex outside
    /// the list selects none. The bool means nothing here; the second alignment is the value's.
    int addComboBox(int id, QString label, QStringList& texts, QVector<QVariant>& values, int currentIndex, bool,
                    QFlags<Qt::AlignmentFlag> labelAlignment, QFlags<Qt::AlignmentFlag> valueAlignment);

    /// A number of @p valueType (2 int, 6 double, 10 text) with one unit. A text cell ignores the limits and starts
    /// empty. A step of 0 is no step. The last argument means nothing here.
    int addParamCell(int id, QString label, int valueType, double min, double max, double step, QString unit,
                     double value, int);

    /// A number whose unit is chosen among @p units, each with limits of its own; the first is current. The last
    /// argument means nothing here.
    int addParamUnitCell(int id, QString label, QList<CParamCellUnitInfo> units, double value, double);

    /// As addParamUnitCell(), with a check box labelled @p checkText.
    int addCheckParamUnitCell(int id, QString label, QString checkText, bool checked, QList<CParamCellUnitInfo> units,
                              double value, double);

    /// Two values, the lower first, shown with @p separator between them. The constants around the separator mean
    /// nothing here.
    int addRangeCell(int id, QString label, int valueType, double min, double max, double low, double high, double step,
                     QString unit, double, int, QString separator, bool);

    /// A period from @p start to @p end, as a clock range.
    int addTimePeriod(int id, QString label, QTime& start, QTime& end);

    /// A line of text. With @p validated true, @p text is the validator's pattern and @p second the initial text;
    /// otherwise @p text is the initial text and @p second the placeholder.
    int addLineEdit(int id, QString label, QString text, bool validated, QString second);

    /// @}
    /// @name Reading
    /// @{

    /// The cell; null when there is none.
    CMultiParamsTableItem* getItem(int id) const;

    /// The number of a cell, bounded into its current range; of a combo the value as a number; of a text cell the
    /// number that its text is, else 0.
    double itemDouble(int id) const;

    /// As itemDouble(), without the fraction, and stopped at the ends of 32 bits.
    int itemInt(int id) const;

    /// The value of a combo's current entry, or a cell's own value; invalid when a combo has none chosen.
    QVariant itemData(int id);

    /// The value as text: a number without grouping or unit, a combo's entry, a line's text, "HH:MM:SS-HH:MM:SS" of a
    /// period.
    QString itemText(int id);

    /// The text of the current unit; empty for a cell without unit.
    QString itemUnit(int id);

    /// Whether a period is a clock range or a duration.
    EWqTimeRangeType itemTimeRangeType(int id);

    /// Start and end of a period today, in whole seconds since the epoch; an end before its start is on the next day.
    QPair<int, int> timeRange(int id);

    /// The length of a period in seconds: the duration, or end less start.
    int timeElapse(int id) const;

    /// Minimum and maximum of a numeric cell's current unit.
    QPair<double, double> cellRange(int id);

    /// @}
    /// @name Changing values
    /// @{

    /// Re-limits the current unit of a numeric cell and bounds its value; a maximum below the minimum follows it.
    void resetCellRange(int id, double min, double max);

    /// Sets the number, bounded into the current range; an int cell drops the fraction; not-a-number changes nothing.
    void setItemDouble(int id, double value);
    void setItemInt(int id, int value);

    /// Sets check mark and number of a check cell. The last argument means nothing here.
    void setCheckDouble(int id, bool checked, double value, bool);

    /// Chooses the entry that carries @p value; an unknown value keeps the choice.
    void setComboData(int id, QVariant value);

    /// Replaces the entries (the shorter list counts); an index outside the list chooses none.
    void resetComboData(int id, const QStringList& texts, const QVector<QVariant>& values, int currentIndex);

    /// Sets the text of a text or line cell; on a number it takes a text that is a number and ignores others; on a
    /// combo it chooses the entry of that text and ignores others.
    void setItemText(int id, QString text);

    /// Sets the label.
    void setItemName(int id, QString name);

    /// Makes the unit of that text current, or renames the current unit on a cell without it.
    void setItemUnit(int id, QString unit);

    /// Sets the limits of that unit (a step of 0 keeps its step) and makes it current only when @p makeCurrent is set.
    /// A unit that the cell lacks replaces the current one when @p makeCurrent is set and is ignored otherwise.
    void setItemUnit(int id, QString unit, double min, double max, double step, bool makeCurrent);

    /// Sets the step of that unit, current or not, and touches no value; an unknown unit is ignored.
    void setItemTick(int id, QString unit, double step);

    /// @}
    /// @name Showing
    /// A cell is shown when it is not hidden and the table is expanded, or the user's visible set is empty, or the set
    /// holds it. The sets keep any ID they are given.
    /// @{

    void setItemEditable(int id, bool editable);
    void setItemHidden(int id, bool hidden);

    /// Excludes a cell from the user's filter, or offers it again.
    void setItemFilterBlacklist(int id, bool excluded);
    void clearFilterBlacklist();

    /// The IDs that the user has chosen to see; empty means no choice.
    QSet<int> getVisibleItemIdSet();
    void setVisibleItemSet(QSet<int> ids);
    void addVisibleItemSet(int id);
    void removeVisbleItemSet(int id);

    /// The IDs that the user's filter may offer.
    void setAllItemSet(QSet<int> ids);
    void addAllItemSet(int id);

    /// Both empty the visible set; hidden cells stay hidden.
    void clearVisibleItem();
    void showAllItems();

    void setExpand(bool expand);

    /// Shows or takes away the filter's footer under the last row.
    void setCustomWidgetVisible(bool visible);

    /// Brings the filter button and its open list up to date.
    void setMultiFilterWidgetParam();

    /// Lets a person edit the cells, or not.
    void setAllItemEnable(bool enable);

    /// With false, keeps the table at scale 1.
    void setFontScale(bool fontScale);

    /// The height that the shown cells need, the filter's footer included; exact at once, shown or not.
    int realHeight() const;

    /// @}

    /// Takes the current UI scale. Only the owner calls this, so that rows and fixed height change together.
    void scaleChanged() override;

    /// Repaints in the colours of the current theme.
    void themeChanged() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void setSelectionModel(QItemSelectionModel* selectionModel) override;

protected:
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

private:
    friend class CMultiParamsTablePrivate;
    std::unique_ptr<CMultiParamsTablePrivate> const d;
};

} // namespace WQ
