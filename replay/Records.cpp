#include "replay/Values.h"
#include "replay/WrongCommand.h"

#include <boost/make_shared.hpp>

#include <tuple>

/// Records as objects of their fields by name: a field that is left out keeps its default, an unknown one is wrong.
namespace replay {

// Within a task record only.
static void read(const Json& json, boost::shared_ptr<ttservice::CAccountInfoV2>& value);
static Json written(const boost::shared_ptr<ttservice::CAccountInfoV2>& value);

namespace {

using ttservice::CAccountInfoV2;
using ttservice::CCodeOrderParam;
using ttservice::CInstrumentDetail;
using ttservice::COrderSetting;
using ttservice::CStkCompactsV2;
using WQ::CParamCellUnitInfo;

template <class Record, class Value>
struct Field
{
    const char* name;
    Value Record::*member;
};

template <class Record, class Value>
constexpr Field<Record, Value> field(const char* name, Value Record::*member)
{
    return {name, member};
}

// clang-format off
constexpr auto kAccountFields = std::make_tuple(
    field("brokerType", &CAccountInfoV2::brokerType),
    field("accountId", &CAccountInfoV2::accountId),
    field("accountName", &CAccountInfoV2::accountName));

constexpr auto kInstrumentFields = std::make_tuple(
    field("code", &CInstrumentDetail::code),
    field("name", &CInstrumentDetail::name));

constexpr auto kUnitFields = std::make_tuple(
    field("text", &CParamCellUnitInfo::text),
    field("type", &CParamCellUnitInfo::type),
    field("min", &CParamCellUnitInfo::min),
    field("max", &CParamCellUnitInfo::max),
    field("step", &CParamCellUnitInfo::step));

constexpr auto kTaskFields = std::make_tuple(
    field("account", &CCodeOrderParam::account),
    field("operationType", &CCodeOrderParam::operationType),
    field("orderType", &CCodeOrderParam::orderType),
    field("code", &CCodeOrderParam::code),
    field("name", &CCodeOrderParam::name),
    field("priceType", &CCodeOrderParam::priceType),
    field("price", &CCodeOrderParam::price),
    field("volume", &CCodeOrderParam::volume),
    field("validTimeStart", &CCodeOrderParam::validTimeStart),
    field("validTimeEnd", &CCodeOrderParam::validTimeEnd));

constexpr auto kSettingFields = std::make_tuple(
    field("orderType", &COrderSetting::orderType),
    field("intField2", &COrderSetting::intField2),
    field("intField3", &COrderSetting::intField3),
    field("realField4", &COrderSetting::realField4),
    field("realField5", &COrderSetting::realField5),
    field("intField6", &COrderSetting::intField6),
    field("intField7", &COrderSetting::intField7),
    field("realField8", &COrderSetting::realField8),
    field("realField9", &COrderSetting::realField9),
    field("intField10", &COrderSetting::intField10),
    field("realField11", &COrderSetting::realField11),
    field("realField12", &COrderSetting::realField12),
    field("intField13", &COrderSetting::intField13),
    field("realField14", &COrderSetting::realField14),
    field("intField15", &COrderSetting::intField15),
    field("intField16", &COrderSetting::intField16),
    field("intField17", &COrderSetting::intField17),
    field("intField18", &COrderSetting::intField18),
    field("validTimeStart", &COrderSetting::validTimeStart),
    field("validTimeEnd", &COrderSetting::validTimeEnd),
    field("intField21", &COrderSetting::intField21),
    field("intField22", &COrderSetting::intField22),
    field("intField23", &COrderSetting::intField23),
    field("realField24", &COrderSetting::realField24),
    field("intField25", &COrderSetting::intField25),
    field("realField26", &COrderSetting::realField26),
    field("realField27", &COrderSetting::realField27),
    field("intField28", &COrderSetting::intField28),
    field("intField29", &COrderSetting::intField29),
    field("realField30", &COrderSetting::realField30),
    field("intField31", &COrderSetting::intField31),
    field("realField32", &COrderSetting::realField32),
    field("realField33", &COrderSetting::realField33),
    field("realField34", &COrderSetting::realField34),
    field("flag35", &COrderSetting::flag35),
    field("flag36", &COrderSetting::flag36),
    field("cellWord1", &COrderSetting::cellWord1),
    field("cellWord2", &COrderSetting::cellWord2),
    field("cellWord3", &COrderSetting::cellWord3),
    field("cellWord4", &COrderSetting::cellWord4),
    field("cellWord5", &COrderSetting::cellWord5));
// clang-format on

template <class Fields>
std::string fieldNames(const Fields& fields)
{
    std::string names;
    std::apply(
        [&names](const auto&... field) { ((names += (names.empty() ? "" : ", ") + std::string(field.name)), ...); },
        fields);
    return names;
}

template <class Record, class Value>
bool readField(const std::string& name, const Json& json, Record& record, const Field<Record, Value>& field)
{
    if (name != field.name)
        return false;
    try {
        read(json, record.*field.member);
    } catch (const WrongCommand& wrong) {
        throw WrongCommand(name + ": " + wrong.what());
    }
    return true;
}

template <class Record, class Fields>
void readRecord(const Json& json, Record& record, const Fields& fields)
{
    if (!json.is_object())
        throw WrongCommand("a record is an object of its fields: " + fieldNames(fields));
    for (const auto& [name, value] : json.items()) {
        const bool isKnown =
            std::apply([&, &name = name, &value = value](
                           const auto&... field) { return (readField(name, value, record, field) || ...); },
                       fields);
        if (!isKnown)
            throw WrongCommand("no field " + name + "; there are " + fieldNames(fields));
    }
}

template <class Record, class Fields>
Json writtenRecord(const Record& record, const Fields& fields)
{
    Json json = Json::object();
    std::apply([&](const auto&... field) { ((json[field.name] = written(record.*field.member)), ...); }, fields);
    return json;
}

/// A contract's data object, of which the tables know the key alone.
class KeyedData : public ttservice::IData
{
public:
    explicit KeyedData(std::string key)
        : m_key(std::move(key))
    {
    }

    std::string getKey() const override
    {
        return m_key;
    }

private:
    const std::string m_key;
};

/// A contract as scripts write it: its data object is its key, or null.
struct ContractText
{
    int unrepaidVolume = 0;
    double unrepaidFees = 0.0;
    std::optional<std::string> key;
};

constexpr auto kContractFields =
    std::make_tuple(field("unrepaidVolume", &ContractText::unrepaidVolume),
                    field("unrepaidFees", &ContractText::unrepaidFees), field("key", &ContractText::key));

} // namespace

static void read(const Json& json, boost::shared_ptr<CAccountInfoV2>& value)
{
    value.reset();
    if (json.is_null())
        return;
    value = boost::make_shared<CAccountInfoV2>();
    readRecord(json, *value, kAccountFields);
}

static Json written(const boost::shared_ptr<CAccountInfoV2>& value)
{
    return value ? writtenRecord(*value, kAccountFields) : Json();
}

void read(const Json& json, COrderSetting& value)
{
    value = {};
    readRecord(json, value, kSettingFields);
}

void read(const Json& json, CCodeOrderParam& value)
{
    value = {};
    readRecord(json, value, kTaskFields);
}

void read(const Json& json, CParamCellUnitInfo& value)
{
    value = {};
    readRecord(json, value, kUnitFields);
}

void read(const Json& json, std::shared_ptr<CInstrumentDetail>& value)
{
    value.reset();
    if (json.is_null())
        return;
    value = std::make_shared<CInstrumentDetail>();
    readRecord(json, *value, kInstrumentFields);
}

void read(const Json& json, boost::shared_ptr<CStkCompactsV2>& value)
{
    value.reset();
    if (json.is_null())
        return;
    ContractText text;
    readRecord(json, text, kContractFields);
    value = boost::make_shared<CStkCompactsV2>();
    value->unrepaidVolume = text.unrepaidVolume;
    value->unrepaidFees = text.unrepaidFees;
    if (text.key)
        value->data = boost::make_shared<KeyedData>(*text.key);
}

Json written(const COrderSetting& value)
{
    return writtenRecord(value, kSettingFields);
}

Json written(const CCodeOrderParam& value)
{
    return writtenRecord(value, kTaskFields);
}

Json written(const boost::shared_ptr<CStkCompactsV2>& value)
{
    if (!value)
        return nullptr;
    ContractText text{value->unrepaidVolume, value->unrepaidFees, {}};
    if (value->data)
        text.key = value->data->getKey();
    return writtenRecord(text, kContractFields);
}

} // namespace replay
