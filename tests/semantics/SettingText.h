#pragma once

#include <ttservice/COrderSetting.h>

#include <QString>
#include <QStringList>

/// A settings record field by field, in record order, so that two records compare as lists.
namespace settingtext {

inline QString number(double value)
{
    return QString::number(value, 'g', 17);
}

inline QString number(int value)
{
    return QString::number(value);
}

inline QString number(bool value)
{
    return QLatin1String(value ? "true" : "false");
}

/// 41 lines "field=value".
inline QStringList fields(const ttservice::COrderSetting& s)
{
    QStringList lines;
    int field = 0;
    const auto add = [&lines, &field](auto value) {
        lines << QString::number(++field) + QLatin1Char('=') + number(value);
    };
    add(int(s.orderType)), add(s.intField2), add(s.intField3), add(s.realField4), add(s.realField5), add(s.intField6);
    add(s.intField7), add(s.realField8), add(s.realField9), add(s.intField10), add(s.realField11), add(s.realField12);
    add(s.intField13), add(s.realField14), add(s.intField15), add(s.intField16), add(s.intField17), add(s.intField18);
    add(s.validTimeStart), add(s.validTimeEnd), add(s.intField21), add(s.intField22), add(s.intField23);
    add(s.realField24), add(s.intField25), add(s.realField26), add(s.realField27), add(s.intField28), add(s.intField29);
    add(s.realField30), add(s.intField31), add(s.realField32), add(s.realField33), add(s.realField34), add(s.flag35);
    add(s.flag36), add(s.cellWord1), add(s.cellWord2), add(s.cellWord3), add(s.cellWord4), add(s.cellWord5);
    return lines;
}

} // namespace settingtext
