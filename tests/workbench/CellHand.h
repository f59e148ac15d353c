#pragma once

#include <QString>

#include <vector>

namespace WQ {
class CellItem;
class CMultiParamsTable;
class FilterPopup;
} // namespace WQ

class QRect;

namespace person {

/// A person's hands at one cell table on the screen: mouse and keys, sent to whatever would get them. What cannot be
/// done is not done, as when a list does not open or a text is refused.
class CellHand
{
public:
    explicit CellHand(WQ::CMultiParamsTable& cells);

    /// The cells that are seen, in their order; those of them that can be edited.
    std::vector<int> shown() const;
    std::vector<int> editable() const;

    /// The cell must be there.
    const WQ::CellItem& cell(int id) const;

    /// Opens the list of a combo or of units by mouse, and clicks that entry.
    void choose(int id, int entry) const;
    void chooseUnit(int id, int unit) const;

    /// Opens the list of a combo with the space bar, and goes on by so many entries.
    void chooseByKeys(int id, int steps) const;

    void toggle(int id) const;

    /// Types over the value, and ends with Enter; what is refused is dropped with Esc.
    void type(int id, const QString& text) const;

    /// Clicks into the value; types both texts of a range or a period.
    void typeBoth(int id, const QString& first, const QString& second) const;

    /// Makes a period the other kind of period, with a time or length of that text.
    void typeOtherPeriod(int id, const QString& text) const;

    /// F2, so many steps up, and Enter.
    void step(int id, int steps) const;

    void paste(int id, const QString& text) const;

    /// By the cell's menu.
    void restoreInitial(int id) const;

    void doubleClick(int id) const;

    /// Ticks and clears those rows of the filter, and applies it.
    void filter(const std::vector<int>& rows) const;
    void resetFilter() const;

private:
    void goTo(int id) const;
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void clickAt(const QRect& part) const;
    void pick(int entry) const;
    void finish() const;
    WQ::FilterPopup* openFilter() const;

    WQ::CMultiParamsTable& m_cells;
};

} // namespace person
