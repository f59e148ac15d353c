#include "replay/Host.h"

#include "replay/Values.h"

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <utility>

namespace replay {

namespace {

// Events whose data points at something; which type it is hangs on the number alone.
constexpr int kComboChanged = 73;
constexpr int kPriceDisplay = 1062;
constexpr int kParameterSetMode = 1206;
constexpr int kPriceTypeFromOutside = 1213;

Json dataOf(int event, const void* payload, const WidgetNames& nameOf)
{
    if (!payload)
        return nullptr;
    switch (event) {
    case kComboChanged:
        return {{"variant", written(*static_cast<const QVariant*>(payload))}};
    case kPriceDisplay:
        return {{"double", written(*static_cast<const double*>(payload))}};
    case kParameterSetMode:
        return {{"widget", written(nameOf(static_cast<const TC::COrderParamBaseTable*>(payload)))}};
    case kPriceTypeFromOutside:
        return {{"int", *static_cast<const int*>(payload)}};
    default:
        return nullptr;
    }
}

} // namespace

Json eventJson(int event, int a, int b, const QString& text, const void* payload, const WidgetNames& nameOf)
{
    return Json::array({event, a, b, written(text), dataOf(event, payload, nameOf)});
}

Host::Host(Json& log, WidgetNames nameOf)
    : m_log(log)
    , m_nameOf(std::move(nameOf))
{
}

bool Host::handleEvent(int event, int a, int b, QString text, void* payload)
{
    m_log.push_back(eventJson(event, a, b, text, payload, m_nameOf));
    return false;
}

} // namespace replay
