#include <OrderParamTable_mini/frame/Services.h>

#include <OrderParamTable_mini/semantics/OrderModes.h>

#include <TC/CUserConfig.h>
#include <WQ/CUiResource.h>
#include <luawrapper/LuaModuleCtrl.h>

#include <string>

namespace TC {

bool isModuleOn(FeatureModule module)
{
    luawrapper::LuaModuleCtrl* const modules = luawrapper::LuaModuleCtrl::instance();
    if (!modules)
        return false;
    using luawrapper::operator<<;
    const ModulePath path = modulePath(module);
    return modules->checkModule(std::string(path.group) << std::string(path.name));
}

bool isAlgorithmClient()
{
    const CUserConfig* const config = getUserConfig();
    return config && isAlgorithmClientMode(config->clientMode());
}

int resourceSize(const QString& key)
{
    const WQ::CUiResource* const resources = WQ::CUiResource::instance();
    return resources ? resources->getSize(key) : 0;
}

QColor resourceColor(const QString& key)
{
    const WQ::CUiResource* const resources = WQ::CUiResource::instance();
    const QColor* const color = resources ? resources->getColor(key) : nullptr;
    return color ? *color : QColor();
}

} // namespace TC
