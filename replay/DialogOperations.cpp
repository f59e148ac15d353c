#include "replay/Operation.h"
#include "replay/Probes.h"
#include "replay/State.h"

#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>
#include <WQ/CFloatWidget.h>

namespace replay {

namespace {

using ttservice::CCodeOrderParam;

CCodeOrderParam changedOrderType(BasketProbe& dialog, CCodeOrderParam param)
{
    dialog.changeOrderType(param);
    return param;
}

/// The state of the table, which the dialog owns; null without one.
Json createdTable(BasketProbe& dialog, CCodeOrderParam param, QString tradeParam, std::string text)
{
    return stateOf(dialog.creatTable(param, tradeParam, text));
}

} // namespace

// clang-format off
const Operations& dialogOperations()
{
    static const Operations operations = {
        operation<WQ::CFloatWidget>("setTitle", &WQ::CFloatWidget::setTitle, "title"),
    };
    return operations;
}

const Operations& basketProbeOperations()
{
    static const Operations operations = {
        operation<BasketProbe>("changeOrderType", &changedOrderType, "param"),
        operation<BasketProbe>("creatTable", &createdTable, "param, tradeParam, text"),
        operation<BasketProbe>("createUi", &BasketProbe::createUi, "params, tradeParam, text"),
        operation<BasketProbe>("reloadWidget", &BasketProbe::reloadWidget, "second"),
    };
    return operations;
}
// clang-format on

} // namespace replay
