#include <OrderParamTable_mini/semantics/ParameterString.h>

#include <charconv>
#include <iterator>

namespace TC {

using ttservice::COrderSetting;

namespace {

enum class ItemType { Int, Real, Flag, OrderType };

struct Item
{
    constexpr Item(int COrderSetting::*member)
        : type(ItemType::Int)
        , intMember(member)
    {
    }
    constexpr Item(double COrderSetting::*member)
        : type(ItemType::Real)
        , realMember(member)
    {
    }
    constexpr Item(bool COrderSetting::*member)
        : type(ItemType::Flag)
        , flagMember(member)
    {
    }
    constexpr Item(ttservice::EOrderType COrderSetting::*member)
        : type(ItemType::OrderType)
        , orderTypeMember(member)
    {
    }

    ItemType type;
    union {
        int COrderSetting::*intMember;
        double COrderSetting::*realMember;
        bool COrderSetting::*flagMember;
        ttservice::EOrderType COrderSetting::*orderTypeMember;
    };
};

// Hosts read two irregularities of this order: item 24 repeats field 14, and the fifth cell word stands before the
// third.
// clang-format off
constexpr Item kItems[] = {
    &COrderSetting::orderType,      &COrderSetting::intField2,    &COrderSetting::intField3,   //  1
    &COrderSetting::realField4,     &COrderSetting::realField5,   &COrderSetting::intField6,   //  4
    &COrderSetting::intField7,      &COrderSetting::realField8,   &COrderSetting::realField9,  //  7
    &COrderSetting::intField10,     &COrderSetting::realField11,  &COrderSetting::realField12, // 10
    &COrderSetting::intField13,     &COrderSetting::realField14,  &COrderSetting::intField15,  // 13
    &COrderSetting::intField16,     &COrderSetting::intField17,   &COrderSetting::intField18,  // 16
    &COrderSetting::validTimeStart, &COrderSetting::validTimeEnd, &COrderSetting::intField21,  // 19
    &COrderSetting::intField22,     &COrderSetting::intField23,   &COrderSetting::realField14, // 22
    &COrderSetting::intField25,     &COrderSetting::realField26,  &COrderSetting::realField27, // 25
    &COrderSetting::intField28,     &COrderSetting::intField29,   &COrderSetting::realField30, // 28
    &COrderSetting::intField31,     &COrderSetting::realField32,  &COrderSetting::realField33, // 31
    &COrderSetting::realField34,    &COrderSetting::flag35,       &COrderSetting::flag36,      // 34
    &COrderSetting::cellWord1,      &COrderSetting::cellWord2,    &COrderSetting::cellWord5,   // 37
    &COrderSetting::cellWord3,      &COrderSetting::cellWord4,                                 // 40
};
// clang-format on
static_assert(std::size(kItems) == 41, "hosts count 41 items");

constexpr int kUsualLength = 256;

void appendInt(QString& text, int value)
{
    char digits[16];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), value).ptr;
    text.append(QLatin1String(digits, int(end - digits)));
}

void appendItem(QString& text, const Item& item, const COrderSetting& setting, RealFieldFormatter formatReal)
{
    switch (item.type) {
    case ItemType::Int:
        appendInt(text, setting.*item.intMember);
        break;
    case ItemType::Real:
        text.append(formatReal(setting.*item.realMember));
        break;
    case ItemType::Flag:
        text.append(QLatin1Char(setting.*item.flagMember ? '1' : '0'));
        break;
    case ItemType::OrderType:
        appendInt(text, setting.*item.orderTypeMember);
        break;
    }
}

} // namespace

QString parameterString(const COrderSetting& setting, RealFieldFormatter formatReal)
{
    QString text;
    text.reserve(kUsualLength);
    for (const Item& item : kItems) {
        if (!text.isEmpty())
            text.append(QLatin1Char('+'));
        appendItem(text, item, setting, formatReal);
    }
    return text;
}

} // namespace TC
