#pragma once

#include "workbench/PanelHost.h"

#include "replay/Values.h"

#include <OrderParamTable_mini/credit/CCreditParamTable.h>
#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>
#include <WQ/CFloatWidget.h>
#include <WQ/CMultiParamsTable.h>

#include <tuple>
#include <utility>

namespace workbench {

/// An operation of the library as this host calls it: the name that scripts know it by, and the operation.
template <class Class, class Result, class... Parameters>
struct HostCall
{
    const char* name;
    Result (Class::*member)(Parameters...);
};

template <class Class, class Result, class... Parameters>
constexpr HostCall<Class, Result, Parameters...> hostCallRow(const char* name, Result (Class::*member)(Parameters...))
{
    return {name, member};
}

/// Everything that this host does to the library's objects and that changes them. A call that is missing here is added
/// here: a test looks through the sources for operations that are called past this table.
namespace calls {

// clang-format off
inline constexpr auto kSetStockCode         = hostCallRow("setStockCode",         &TC::COrderParamBaseTable::setStockCode);
inline constexpr auto kSetOperationType     = hostCallRow("setOperationType",     &TC::COrderParamBaseTable::setOperationType);
inline constexpr auto kSetOrderType         = hostCallRow("setOrderType",         &TC::COrderParamBaseTable::setOrderType);
inline constexpr auto kSetFlag              = hostCallRow("setFlag",              &TC::COrderParamBaseTable::setFlag);
inline constexpr auto kSetExpandItemsHidden = hostCallRow("setExpandItemsHidden", &TC::COrderParamBaseTable::setExpandItemsHidden);
inline constexpr auto kSetAllItemEnable     = hostCallRow("setAllItemEnable",     &TC::COrderParamBaseTable::setAllItemEnable);
inline constexpr auto kSetPriceType         = hostCallRow("setPriceType",         &TC::COrderParamBaseTable::setPriceType);
inline constexpr auto kSelectPrice          = hostCallRow("selectPrice",          &TC::COrderParamBaseTable::selectPrice);
inline constexpr auto kSetFixedPrice        = hostCallRow("setFixedPrice",        &TC::COrderParamBaseTable::setFixedPrice);
inline constexpr auto kSetOrderSettings     = hostCallRow("setOrderSettings",     &TC::COrderParamBaseTable::setOrderSettings);
inline constexpr auto kSaveVisibleFlag      = hostCallRow("saveVisibleFlag",      &TC::COrderParamBaseTable::saveVisibleFlag);
inline constexpr auto kUpdateCmdLog         = hostCallRow("updateCmdLog",         &TC::COrderParamBaseTable::updateCmdLog);
inline constexpr auto kScaleTable           = hostCallRow("handleScaleChanged",   &TC::COrderParamBaseTable::handleScaleChanged);

inline constexpr auto kSelectCreditAccount  = hostCallRow("setSelectAccount",     &TC::CCreditParamTable::setSelectAccount);
inline constexpr auto kSetCreditCode        = hostCallRow("setStockCode",         &TC::CCreditParamTable::setStockCode);
inline constexpr auto kSetCreditParam       = hostCallRow("setParam",             &TC::CCreditParamTable::setParam);
inline constexpr auto kSetCreditContract    = hostCallRow("setStkCompacts",       &TC::CCreditParamTable::setStkCompacts);
inline constexpr auto kScaleCredit          = hostCallRow("handleScaleChanged",   &TC::CCreditParamTable::handleScaleChanged);

inline constexpr auto kSetDialogTitle       = hostCallRow("setTitle",             &WQ::CFloatWidget::setTitle);

inline constexpr auto kSetItemHidden        = hostCallRow("setItemHidden",        &WQ::CMultiParamsTable::setItemHidden);
inline constexpr auto kSetVisibleItemSet    = hostCallRow("setVisibleItemSet",    &WQ::CMultiParamsTable::setVisibleItemSet);
inline constexpr auto kResetComboData       = hostCallRow("resetComboData",       &WQ::CMultiParamsTable::resetComboData);
// clang-format on

} // namespace calls

/// How an argument stands in a script.
template <class T>
replay::Json writtenArgument(const T& value)
{
    return replay::written(value);
}

inline replay::Json writtenArgument(TC::OperationCellFlags flags)
{
    return static_cast<int>(flags);
}

/// The fields alone that differ from a default record.
replay::Json writtenArgument(const ttservice::COrderSetting& setting);

/// Calls an operation of one of the library's objects, or of the cell table in one. The recorder of the host above it,
/// if there is one, takes the call down with the events that it causes. A listener may have deleted the object
/// afterwards.
template <class Class, class Result, class... Parameters, class... Arguments>
Result hostCall(Class& object, const HostCall<Class, Result, Parameters...>& row, Arguments&&... arguments)
{
    std::tuple<std::decay_t<Parameters>...> values{std::forward<Arguments>(arguments)...};
    replay::Json written = replay::Json::array();
    std::apply([&written](const auto&... value) { (written.push_back(writtenArgument(value)), ...); }, values);
    replay::Json command = {{"do", std::is_same_v<Class, WQ::CMultiParamsTable> ? "grid" : "call"}, {"on", ""}};
    command["op"] = row.name;
    command["args"] = std::move(written);
    const auto call = [&] {
        return std::apply([&](auto&... value) -> Result { return (object.*row.member)(value...); }, values);
    };
    if constexpr (std::is_void_v<Result>) {
        carryOutAsHost(object, std::move(command), [&call]() -> replay::Json {
            call();
            return nullptr;
        });
    } else {
        Result result{};
        carryOutAsHost(object, std::move(command), [&call, &result] { return replay::written(result = call()); });
        return result;
    }
}

} // namespace workbench
