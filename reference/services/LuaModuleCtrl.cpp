#include "reference/services/ServicePrivates.h"

namespace luawrapper {

LuaModuleCtrlPrivate& LuaModuleCtrlPrivate::state()
{
    static auto* const theState = new LuaModuleCtrlPrivate;
    return *theState;
}

LuaModuleCtrl* LuaModuleCtrl::instance()
{
    static auto* const theService = new LuaModuleCtrl;
    return theService;
}

LuaModuleCtrl::LuaModuleCtrl()
    : d(&LuaModuleCtrlPrivate::state())
{
}

LuaModuleCtrl::~LuaModuleCtrl() = default;

bool LuaModuleCtrl::checkModule(std::list<std::string> path)
{
    return path.size() == 2 && d->on.count(path.front() + '/' + path.back()) != 0;
}

} // namespace luawrapper
