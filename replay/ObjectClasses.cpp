#include "replay/Objects.h"
#include "replay/Probes.h"

#include <OrderParamTable_mini/tables/CBaseTaskParamWidget.h>
#include <OrderParamTable_mini/tables/CCodeOrderParamTable.h>
#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>
#include <OrderParamTable_mini/tables/CStopLossOrderParamTable.h>

namespace replay {

namespace {

using TC::EOpParamWidgetID;
using ttservice::CCodeOrderParam;
using ttservice::ENVBrokerType;
using ttservice::ENvTraderType;

// The constructors take the parent among the other arguments, at a place of their own.

template <class Table>
QWidget* makeTable(QWidget* parent, EOpParamWidgetID id, ENVBrokerType brokerType, bool showModeButtons,
                   bool tableFontScale, ENvTraderType traderType, bool lastFlag)
{
    return new Table(id, brokerType, showModeButtons, parent, tableFontScale, traderType, lastFlag);
}

QWidget* makeCodeTable(QWidget* parent, EOpParamWidgetID id, ENVBrokerType brokerType, bool a, ENvTraderType traderType,
                       bool b)
{
    return new TC::CCodeOrderParamTable(id, brokerType, parent, a, traderType, b);
}

QWidget* makeStopLossTable(QWidget* parent, EOpParamWidgetID id, ENVBrokerType brokerType)
{
    return new TC::CStopLossOrderParamTable(id, brokerType, parent);
}

template <class Table>
QWidget* makeCreditTable(QWidget* parent)
{
    return new Table(parent);
}

QWidget* makeTaskDialog(QWidget* parent, CCodeOrderParam param, QString tradeParam, bool flag, ENvTraderType traderType,
                        bool tableFlag, std::string text)
{
    return new TC::CBaseTaskParamWidget(param, tradeParam, parent, flag, traderType, tableFlag, text);
}

template <class Dialog>
QWidget* makeBasketDialog(QWidget* parent, std::vector<CCodeOrderParam> params, QString tradeParam, std::string text)
{
    return new Dialog(params, tradeParam, parent, text);
}

template <class... Parameters>
ObjectClass objectClass(const char* name, QWidget* (*make)(QWidget*, Parameters...), const char* parameters,
                        std::vector<const Operations*> operations)
{
    return {name, parameters, sizeof...(Parameters),
            [make](const Json& arguments, QWidget* parent) {
                auto values = readArguments<Parameters...>(arguments, std::index_sequence_for<Parameters...>());
                return std::apply([&](auto&... value) { return make(parent, value...); }, values);
            },
            std::move(operations)};
}

constexpr const char* kTableParameters = "id, brokerType, showModeButtons, tableFontScale, traderType, lastFlag";

} // namespace

// clang-format off
const std::vector<ObjectClass>& objectClasses()
{
    static const std::vector<ObjectClass> classes = {
        objectClass("CGlobalOrderParamTable", &makeTable<TC::CGlobalOrderParamTable>, kTableParameters,
                    {&globalTableOperations(), &baseTableOperations()}),
        objectClass("CCodeOrderParamTable", &makeCodeTable, "id, brokerType, a, traderType, b",
                    {&codeTableOperations(), &baseTableOperations()}),
        objectClass("CStopLossOrderParamTable", &makeStopLossTable, "id, brokerType",
                    {&stopLossTableOperations(), &baseTableOperations()}),
        objectClass("CCreditParamTable", &makeCreditTable<TC::CCreditParamTable>, "", {&creditTableOperations()}),
        objectClass("CBaseTaskParamWidget", &makeTaskDialog,
                    "param, tradeParam, flag, traderType, tableFlag, text", {&dialogOperations()}),
        objectClass("CHpfBasketTaskParamWidget", &makeBasketDialog<TC::CHpfBasketTaskParamWidget>,
                    "params, tradeParam, text", {&dialogOperations()}),
        objectClass("BaseTableProbe", &makeTable<BaseTableProbe>, kTableParameters,
                    {&baseTableProbeOperations(), &baseTableOperations()}),
        objectClass("CreditProbe", &makeCreditTable<CreditProbe>, "",
                    {&creditProbeOperations(), &creditTableOperations()}),
        objectClass("BasketProbe", &makeBasketDialog<BasketProbe>, "params, tradeParam, text",
                    {&basketProbeOperations(), &dialogOperations()}),
    };
    return classes;
}
// clang-format on

} // namespace replay
