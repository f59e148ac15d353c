#include <OrderParamTable_mini/semantics/ParameterString.h>

#include <QVarLengthArray>

#include <algorithm>
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

constexpr int kMostIntDigits = 11;
/// What the items that are no reals need at most, separators of all items included.
constexpr int kPlainRoom = int(std::size(kItems)) * (kMostIntDigits + 1);

/// A text that grows in place and is copied into a block of its own once, when its length is known. Only a real's text
/// has no length to count on: room for all that is plain is always there.
class ItemWriter
{
    Q_DISABLE_COPY(ItemWriter)

public:
    ItemWriter() = default;

    void put(char character)
    {
        *m_end++ = ushort(character);
    }

    void put(int value)
    {
        char digits[kMostIntDigits];
        const char* const end = std::to_chars(std::begin(digits), std::end(digits), value).ptr;
        m_end = std::copy(std::cbegin(digits), end, m_end);
    }

    void put(const QString& text)
    {
        const auto written = int(m_end - m_room.data());
        if (m_room.size() - written - kPlainRoom < text.size()) {
            m_room.resize(written + text.size() + kPlainRoom);
            m_end = m_room.data() + written;
        }
        m_end = std::copy_n(reinterpret_cast<const ushort*>(text.constData()), text.size(), m_end);
    }

    QString text() const
    {
        return QString(reinterpret_cast<const QChar*>(m_room.data()), int(m_end - m_room.data()));
    }

private:
    static constexpr int kUsualRoom = 2 * kPlainRoom;
    QVarLengthArray<ushort, kUsualRoom> m_room = QVarLengthArray<ushort, kUsualRoom>(kUsualRoom);
    ushort* m_end = m_room.data();
};

void putItem(ItemWriter& writer, const Item& item, const COrderSetting& setting, RealFieldFormatter formatReal)
{
    switch (item.type) {
    case ItemType::Int:
        writer.put(setting.*item.intMember);
        break;
    case ItemType::Real:
        writer.put(formatReal(setting.*item.realMember));
        break;
    case ItemType::Flag:
        writer.put(setting.*item.flagMember ? '1' : '0');
        break;
    case ItemType::OrderType:
        writer.put(int(setting.*item.orderTypeMember));
        break;
    }
}

} // namespace

QString parameterString(const COrderSetting& setting, RealFieldFormatter formatReal)
{
    ItemWriter writer;
    for (const Item& item : kItems) {
        if (&item != std::begin(kItems))
            writer.put('+');
        putItem(writer, item, setting, formatReal);
    }
    return writer.text();
}

} // namespace TC
