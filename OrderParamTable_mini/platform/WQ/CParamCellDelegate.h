#pragma once

#include <WQ/CMultiParamsTableItem.h>

namespace WQ {

/// A numeric cell, with one unit or with several to choose from.
class WQ_EXPORT CParamCellDelegate : public CMultiParamsTableItem
{
public:
    using CMultiParamsTableItem::CMultiParamsTableItem;
    ~CParamCellDelegate() override;

    /// The text of the current unit.
    QString unit() const;
};

} // namespace WQ
