#include "replay/Values.h"

#include "replay/Numbers.h"
#include "replay/WrongCommand.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace replay {

namespace {

[[noreturn]] void refuse(const Json& json, const char* accepted)
{
    std::string shown = json.dump(-1, ' ', false, Json::error_handler_t::replace);
    constexpr std::size_t kShown = 60;
    if (shown.size() > kShown)
        shown = "a value of " + std::to_string(shown.size()) + " bytes";
    throw WrongCommand(shown + " is no " + accepted);
}

const Json& list(const Json& json, const char* accepted)
{
    if (!json.is_array())
        refuse(json, accepted);
    return json;
}

template <class Container>
void readList(const Json& json, Container& value, const char* accepted)
{
    value.clear();
    for (const Json& element : list(json, accepted)) {
        typename Container::value_type read;
        replay::read(element, read);
        value.push_back(read);
    }
}

template <class Container>
Json writtenList(const Container& value)
{
    Json json = Json::array();
    for (const auto& element : value)
        json.push_back(written(element));
    return json;
}

QVariant numberVariant(const Json& json)
{
    if (!json.is_number_integer())
        return json.get<double>();
    const auto whole = json.get<qint64>();
    const bool isInt = whole >= std::numeric_limits<int>::min() && whole <= std::numeric_limits<int>::max();
    return isInt ? QVariant(static_cast<int>(whole)) : QVariant(whole);
}

} // namespace

void read(const Json& json, bool& value)
{
    if (!json.is_boolean())
        refuse(json, "true or false");
    value = json.get<bool>();
}

void read(const Json& json, int& value)
{
    constexpr const char* kAccepted = "integer of 32 bits";
    if (!json.is_number_integer())
        refuse(json, kAccepted);
    if (json.is_number_unsigned() && json.get<quint64>() > quint64(std::numeric_limits<int>::max()))
        refuse(json, kAccepted);
    const auto whole = json.get<qint64>();
    if (whole < std::numeric_limits<int>::min() || whole > std::numeric_limits<int>::max())
        refuse(json, kAccepted);
    value = static_cast<int>(whole);
}

void read(const Json& json, double& value)
{
    const std::optional<double> number = numberOf(json);
    if (!number)
        refuse(json, "number, \"nan\", \"inf\" or \"-inf\"");
    value = *number;
}

void read(const Json& json, QString& value)
{
    if (!json.is_string())
        refuse(json, "text");
    value = QString::fromStdString(json.get_ref<const std::string&>());
}

void read(const Json& json, std::string& value)
{
    if (!json.is_string())
        refuse(json, "text");
    value = json.get<std::string>();
}

void read(const Json& json, QVariant& value)
{
    if (json.is_null())
        value = QVariant();
    else if (json.is_boolean())
        value = json.get<bool>();
    else if (json.is_number())
        value = numberVariant(json);
    else if (json.is_string())
        value = QString::fromStdString(json.get_ref<const std::string&>());
    else
        refuse(json, "text, number, boolean or null");
}

void read(const Json& json, QSize& value)
{
    constexpr const char* kAccepted = "size, [width, height] in pixels";
    if (list(json, kAccepted).size() != 2)
        refuse(json, kAccepted);
    int width = 0;
    int height = 0;
    read(json[0], width);
    read(json[1], height);
    value = QSize(width, height);
}

void read(const Json& json, QTime& value)
{
    const QString text = json.is_string() ? QString::fromStdString(json.get<std::string>()) : QString();
    value = QTime::fromString(text, QStringLiteral("HH:mm:ss"));
    if (!value.isValid())
        refuse(json, "time of day, \"HH:MM:SS\"");
}

void read(const Json& json, QStringList& value)
{
    readList(json, value, "list of texts");
}

void read(const Json& json, QVector<QVariant>& value)
{
    readList(json, value, "list of values");
}

void read(const Json& json, QSet<int>& value)
{
    QList<int> ids;
    readList(json, ids, "list of integers");
    value = QSet<int>(ids.begin(), ids.end());
}

void read(const Json& json, QList<WQ::CParamCellUnitInfo>& value)
{
    readList(json, value, "list of units");
}

void read(const Json& json, std::vector<ttservice::CCodeOrderParam>& value)
{
    readList(json, value, "list of task records");
}

Json written(const QString& value)
{
    return value.toStdString();
}

Json written(const std::string& value)
{
    return QString::fromStdString(value).toStdString(); // bytes that are no UTF-8 would be no JSON
}

Json written(const QVariant& value)
{
    switch (value.type()) {
    case QVariant::Invalid:
        return nullptr;
    case QVariant::Bool:
        return value.toBool();
    case QVariant::Int:
    case QVariant::LongLong:
        return value.toLongLong();
    case QVariant::UInt:
    case QVariant::ULongLong:
        return value.toULongLong();
    case QVariant::Double:
        return numberJson(value.toDouble());
    default:
        return written(value.toString());
    }
}

Json written(const QStringList& value)
{
    return writtenList(value);
}

Json written(const QVector<QVariant>& value)
{
    return writtenList(value);
}

Json written(const QList<int>& value)
{
    return writtenList(value);
}

Json written(const QSet<int>& value)
{
    QList<int> ids = value.values();
    std::sort(ids.begin(), ids.end());
    return written(ids);
}

Json written(const QPair<int, int>& value)
{
    return Json::array({value.first, value.second});
}

Json written(const QPair<double, double>& value)
{
    return Json::array({numberJson(value.first), numberJson(value.second)});
}

Json written(double value)
{
    return numberJson(value);
}

} // namespace replay
