#pragma once

#include <WQ/CParamCellDelegate.h>

namespace WQ {

/// A numeric cell with several units and a check box.
class WQ_EXPORT CCheckParamUnitCellDelegate : public CParamCellDelegate
{
public:
    using CParamCellDelegate::CParamCellDelegate;
    ~CCheckParamUnitCellDelegate() override;
};

} // namespace WQ
