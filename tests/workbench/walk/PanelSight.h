#pragma once

#include <QStringList>

namespace WQ {
class CellItem;
class CMultiParamsTable;
} // namespace WQ

namespace walk {

/// A cell table as a person sees it. What is asked of a cell without a row is a failure.
class PanelSight
{
public:
    explicit PanelSight(WQ::CMultiParamsTable& cells);

    /// The labels of the rows on the screen, in their order; none while the cells are hidden.
    QStringList labels() const;

    /// "0.50 %": value and unit as they are painted.
    QString value(int cell) const;
    QString toolTip(int cell) const;
    bool isChecked(int cell) const;

    /// The text of the open editor's field; null while none has the focus.
    QString edited() const;

    /// The entries of the open list; what the notice beside a row says.
    static QStringList entries();
    static QString notice();

private:
    const WQ::CellItem& cell(int id) const;

    WQ::CMultiParamsTable& m_cells;
};

} // namespace walk
