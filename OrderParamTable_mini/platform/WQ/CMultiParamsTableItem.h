#pragma once

#include <WQ/WqExport.h>

#include <QString>
#include <QVariant>

#include <memory>

namespace WQ {

class CellItem;

/// One cell of a CMultiParamsTable. The table owns it; it lives as long as the table.
class WQ_EXPORT CMultiParamsTableItem
{
public:
    /// Made by the table.
    /// @param cell what the toolkit's table has made
    explicit CMultiParamsTableItem(std::unique_ptr<CellItem> cell);
    CMultiParamsTableItem(const CMultiParamsTableItem&) = delete;
    CMultiParamsTableItem& operator=(const CMultiParamsTableItem&) = delete;
    virtual ~CMultiParamsTableItem();

    /// The cell's ID, unique within its table.
    /// @return as it was added
    int id() const;

    /// What the cell holds and how it behaves: the toolkit's own, opaque to its callers.
    /// @return owned by this
    CellItem* cell() const;

private:
    std::unique_ptr<CellItem> const d;
};

} // namespace WQ
