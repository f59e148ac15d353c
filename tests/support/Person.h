#pragma once

#include <QString>
#include <Qt>

namespace WQ {
class CellItem;
class ChoicePopup;
class CMultiParamsTable;
class FilterPopup;
} // namespace WQ

class QLineEdit;
class QRect;

namespace support {

class BaseTableProbe;

/// Somebody at a panel that is on the screen: real mouse and key events, sent to whatever would get them.
class Person
{
public:
    explicit Person(BaseTableProbe& table);

    /// Shows the panel's window and waits until it is active. The panel is high enough for all its cells.
    bool sitDown() const;

    void clickModeButton(int id) const;
    void clickValue(int cell) const;
    void clickLabel(int cell) const;
    void clickUnit(int cell) const;
    void clickCheck(int cell) const;
    void doubleClick(int cell) const;

    /// Types into what has the focus, or presses a key of the open list.
    void type(const QString& text) const;
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;

    /// Clicks the value, types the text and ends with Enter.
    void enter(int cell, const QString& text) const;

    /// Opens the list of a combo and clicks that entry.
    void choose(int cell, const QString& entry) const;

    /// Opens the units of a cell and clicks that one.
    void chooseUnit(int cell, const QString& unit) const;

    /// Opens the filter, unticks or ticks cells by their labels' positions, and clicks Apply or Reset.
    void openFilter() const;
    void toggleInFilter(int row) const;
    void applyFilter() const;
    void resetFilter() const;

    /// The line that is being edited; null without one.
    QLineEdit* line() const;
    WQ::ChoicePopup* list() const;
    WQ::FilterPopup* filter() const;

    /// Lets the events go out that the clicks and keys have caused.
    static void wait();

private:
    WQ::CMultiParamsTable& cells() const;
    WQ::CellItem& cell(int id) const;
    void pick(const QString& entry) const;
    void clickCells(const QRect& part) const;

    BaseTableProbe& m_table;
};

} // namespace support
