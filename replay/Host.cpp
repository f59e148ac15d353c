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

} // namespace

Host::Host(Json& log, std::function<QString(const QWidget*)> nameOf)
    : m_log(log)
    , m_nameOf(std::move(nameOf))
{
}

bool Host::handleEvent(int event, int a, int b, QString text, void* payload)
{
    m_log.push_back(Json::array({event, a, b, written(text), dataOf(event, payload)}));
    return false;
}

Json Host::dataOf(int event, const void* payload) const
{
    if (!payload)
        return nullptr;
    switch (event) {
    case kComboChanged:
        return {{"variant", written(*static_cast<const QVariant*>(payload))}};
    case kPriceDisplay:
        return {{"double", written(*static_cast<const double*>(payload))}};
    case kParameterSetMode:
        return {{"widget", written(m_nameOf(static_cast<const TC::COrderParamBaseTable*>(payload)))}};
    case kPriceTypeFromOutside:
        return {{"int", *static_cast<const int*>(payload)}};
    default:
        return nullptr;
    }
}

} // namespace replay
