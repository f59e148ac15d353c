#include "replay/Probes.h"

namespace replay {

void BaseTableProbe::setParam(const QString&)
{
}

QString BaseTableProbe::param() const
{
    return {};
}

void BaseTableProbe::save()
{
    ++saves;
}

void BaseTableProbe::reloadParam()
{
    ++reloads;
}

} // namespace replay
