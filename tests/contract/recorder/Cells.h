#pragma once

#include <WQ/CMultiParamsTable.h>
#include <WQ/CMultiParamsTableItem.h>

#include <map>
#include <memory>

namespace WQ {

/// What a recorded cell holds: as much as the library reads back.
class CellItem
{
public:
    int id = 0;
    QString label;
    QStringList texts;
    QVector<QVariant> values;
    int index = -1;
    QList<CParamCellUnitInfo> units;
    int unit = 0;
    double number = 0.0;
    QString text;

    QVariant currentData() const
    {
        return values.value(index);
    }

    QString unitText() const
    {
        return units.value(unit).text;
    }

    int unitOf(const QString& name) const;
};

class CMultiParamsTablePrivate
{
public:
    std::map<int, std::unique_ptr<CMultiParamsTableItem>> items;
    QSet<int> visible;

    /// The cell; null when there is none.
    CellItem* cell(int id) const;

    template <class Item>
    int add(std::unique_ptr<CellItem> cell)
    {
        const int id = cell->id;
        return items.emplace(id, std::make_unique<Item>(std::move(cell))).second ? int(items.size()) - 1 : -1;
    }
};

/// A new cell of that ID and label.
std::unique_ptr<CellItem> newCell(int id, const QString& label);

} // namespace WQ
