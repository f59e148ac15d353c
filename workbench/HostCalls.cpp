#include "workbench/HostCalls.h"

namespace workbench {

replay::Json writtenArgument(const ttservice::COrderSetting& setting)
{
    const replay::Json usual = replay::written(ttservice::COrderSetting());
    replay::Json fields = replay::Json::object();
    const replay::Json all = replay::written(setting);
    for (const auto& [name, value] : all.items())
        if (value != usual[name])
            fields[name] = value;
    return fields;
}

} // namespace workbench
