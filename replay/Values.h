#pragma once

#include "replay/Json.h"

#include <WQ/ToolkitTypes.h>
#include <ttservice/CCodeOrderParam.h>
#include <ttservice/CInstrumentDetail.h>
#include <ttservice/COrderSetting.h>
#include <ttservice/CStkCompactsV2.h>

#include <QFlags>
#include <QList>
#include <QPair>
#include <QSet>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QTime>
#include <QVariant>
#include <QVector>

#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

/// How the values of calls and answers are written in scripts.
namespace replay {

/// Readers throw WrongCommand, which says what they would accept.
/// @{
void read(const Json& json, bool& value);
void read(const Json& json, int& value);
void read(const Json& json, double& value);
void read(const Json& json, QString& value);
void read(const Json& json, std::string& value);
void read(const Json& json, QVariant& value);
void read(const Json& json, QSize& value);
void read(const Json& json, QTime& value);
void read(const Json& json, QStringList& value);
void read(const Json& json, QVector<QVariant>& value);
void read(const Json& json, QSet<int>& value);
void read(const Json& json, WQ::CParamCellUnitInfo& value);
void read(const Json& json, QList<WQ::CParamCellUnitInfo>& value);
void read(const Json& json, ttservice::COrderSetting& value);
void read(const Json& json, ttservice::CCodeOrderParam& value);
void read(const Json& json, std::vector<ttservice::CCodeOrderParam>& value);
void read(const Json& json, std::shared_ptr<ttservice::CInstrumentDetail>& value);
void read(const Json& json, boost::shared_ptr<ttservice::CStkCompactsV2>& value);

template <class Enum>
std::enable_if_t<std::is_enum_v<Enum>> read(const Json& json, Enum& value)
{
    int number = 0;
    read(json, number);
    value = static_cast<Enum>(number);
}

template <class Enum>
void read(const Json& json, QFlags<Enum>& value)
{
    int bits = 0;
    read(json, bits);
    value = QFlags<Enum>(QFlag(bits));
}

/// Null is nothing.
template <class T>
void read(const Json& json, std::optional<T>& value)
{
    if (json.is_null())
        value.reset();
    else
        read(json, value.emplace());
}
/// @}

Json written(const QString& value);
Json written(const std::string& value);
Json written(const QVariant& value);
Json written(const QStringList& value);
Json written(const QVector<QVariant>& value);
Json written(const QSet<int>& value); ///< ascending
Json written(const QList<int>& value);
Json written(const QPair<int, int>& value);
Json written(const QPair<double, double>& value);
Json written(const ttservice::COrderSetting& value);
Json written(const ttservice::CCodeOrderParam& value);
Json written(const boost::shared_ptr<ttservice::CStkCompactsV2>& value);
Json written(double value);

/// Booleans, integers and enumerations. A pointer is none of them: it would read as true.
template <class T>
std::enable_if_t<std::is_integral_v<T> || std::is_enum_v<T>, Json> written(T value)
{
    if constexpr (std::is_enum_v<T>)
        return static_cast<int>(value);
    else
        return value;
}

template <class T>
Json written(const std::optional<T>& value)
{
    return value ? written(*value) : Json();
}

} // namespace replay
