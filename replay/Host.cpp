#include "replay/Host.h"

#include "replay/Values.h"

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>
#include <OrderParamTable_mini/semantics/EventNumbers.h>

#include <WQ/EventNumbers.h>

#include <utility>

namespace replay {

namespace {

// What the data points at hangs on the number alone.
Json dataOf(int event, const void* payload, const WidgetNames& nameOf)
{
    if (!payload)
        return nullptr;
    switch (event) {
    case WQ::events::kEntryChosen:
        return {{"variant", written(*static_cast<const QVariant*>(payload))}};
    case TC::events::kPriceDisplay:
        return {{"double", written(*static_cast<const double*>(payload))}};
    case TC::events::kOperationToBeChosen:
        return {{"widget", written(nameOf(static_cast<const TC::COrderParamBaseTable*>(payload)))}};
    case TC::events::kPriceTypeFromOutside:
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
