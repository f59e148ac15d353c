#pragma once

#include <ttservice/COrderSetting.h>

#include <QString>
#include <QStringList>

#include <cmath>
#include <limits>

/// The fields of a settings record by number, in record order, and the items of the parameter string.
namespace parameterItems {

using Setting = ttservice::COrderSetting;

struct Field
{
    int number;
    double Setting::*real = nullptr;
    int Setting::*integer = nullptr;
    bool Setting::*flag = nullptr;
};

// clang-format off
constexpr Field real(int number, double Setting::*member) { return {number, member, nullptr, nullptr}; }
constexpr Field integer(int number, int Setting::*member) { return {number, nullptr, member, nullptr}; }
constexpr Field flag(int number, bool Setting::*member) { return {number, nullptr, nullptr, member}; }

/// Field 1, the order type, is an enumeration and stands for itself below.
constexpr Field kFields[] = {
    {1},
    integer(2, &Setting::intField2),
    integer(3, &Setting::intField3),
    real(4, &Setting::realField4),
    real(5, &Setting::realField5),
    integer(6, &Setting::intField6),
    integer(7, &Setting::intField7),
    real(8, &Setting::realField8),
    real(9, &Setting::realField9),
    integer(10, &Setting::intField10),
    real(11, &Setting::realField11),
    real(12, &Setting::realField12),
    integer(13, &Setting::intField13),
    real(14, &Setting::realField14),
    integer(15, &Setting::intField15),
    integer(16, &Setting::intField16),
    integer(17, &Setting::intField17),
    integer(18, &Setting::intField18),
    integer(19, &Setting::validTimeStart),
    integer(20, &Setting::validTimeEnd),
    integer(21, &Setting::intField21),
    integer(22, &Setting::intField22),
    integer(23, &Setting::intField23),
    real(24, &Setting::realField24),
    integer(25, &Setting::intField25),
    real(26, &Setting::realField26),
    real(27, &Setting::realField27),
    integer(28, &Setting::intField28),
    integer(29, &Setting::intField29),
    real(30, &Setting::realField30),
    integer(31, &Setting::intField31),
    real(32, &Setting::realField32),
    real(33, &Setting::realField33),
    real(34, &Setting::realField34),
    flag(35, &Setting::flag35),
    flag(36, &Setting::flag36),
    integer(37, &Setting::cellWord1),
    integer(38, &Setting::cellWord2),
    integer(39, &Setting::cellWord3),
    integer(40, &Setting::cellWord4),
    integer(41, &Setting::cellWord5),
};

/// Which field each of the 41 items holds.
constexpr int kItems[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 14, 25, 26,
                          27, 28, 29, 30, 31, 32, 33, 34, 35, 36, 37, 38, 41, 39, 40};
// clang-format on

inline const Field& field(int number)
{
    return kFields[number - 1];
}

} // namespace parameterItems

inline bool isReal(int number)
{
    return parameterItems::field(number).real != nullptr;
}

inline void setReal(ttservice::COrderSetting& setting, int number, double value)
{
    setting.*parameterItems::field(number).real = value;
}

/// A bool takes whether the number is odd.
inline void setInt(ttservice::COrderSetting& setting, int number, int value)
{
    const parameterItems::Field& field = parameterItems::field(number);
    if (field.integer)
        setting.*field.integer = value;
    else if (field.flag)
        setting.*field.flag = value % 2 != 0;
    else
        setting.orderType = ttservice::EOrderType(value);
}

inline QString realText(double value)
{
    if (!std::isfinite(value) || value == std::numeric_limits<double>::max())
        return QStringLiteral("非法值");
    const QString text = QString::number(value, 'f', 3);
    return text == QStringLiteral("-0.000") ? QStringLiteral("0.000") : text;
}

inline QString fieldText(const ttservice::COrderSetting& setting, int number)
{
    const parameterItems::Field& field = parameterItems::field(number);
    if (field.real)
        return realText(setting.*field.real);
    if (field.integer)
        return QString::number(setting.*field.integer);
    if (field.flag)
        return QString::number(int(setting.*field.flag));
    return QString::number(int(setting.orderType));
}

inline QStringList expectedItems(const ttservice::COrderSetting& setting)
{
    QStringList items;
    for (const int number : parameterItems::kItems)
        items << fieldText(setting, number);
    return items;
}

/// Reads the items back, item by item; a text that cannot be a number is the absence of a price.
inline ttservice::COrderSetting parsedSetting(const QStringList& items)
{
    ttservice::COrderSetting setting;
    for (int i = 0; i < items.size(); ++i) {
        const int number = parameterItems::kItems[i];
        bool ok = false;
        if (isReal(number)) {
            const double value = items.at(i).toDouble(&ok);
            setReal(setting, number, ok ? value : std::numeric_limits<double>::max());
        } else {
            setInt(setting, number, items.at(i).toInt());
        }
    }
    return setting;
}
