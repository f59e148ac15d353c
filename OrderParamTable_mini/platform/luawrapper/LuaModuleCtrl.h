#pragma once

#include <WQ/WqExport.h>

#include <list>
#include <memory>
#include <string>

namespace luawrapper {

class LuaModuleCtrlPrivate;

/// The module control service: which feature modules are switched on for this deployment.
class WQ_EXPORT LuaModuleCtrl
{
public:
    /// The one instance of the process; lives until the program ends.
    /// @return null where a client has none
    static LuaModuleCtrl* instance();

    LuaModuleCtrl(const LuaModuleCtrl&) = delete;
    LuaModuleCtrl& operator=(const LuaModuleCtrl&) = delete;

    /// Whether a module is switched on.
    /// @param path group and name, for instance mdl_order, mdl_order_command_remark
    /// @return false for one it does not know
    bool checkModule(std::list<std::string> path);

private:
    LuaModuleCtrl();
    ~LuaModuleCtrl();

    std::unique_ptr<LuaModuleCtrlPrivate> const d;
};

/// The two-element module path: parent << module.
/// @param parent the group
/// @param module the name
/// @return the path that checkModule() takes
inline std::list<std::string> operator<<(const std::string& parent, const std::string& module)
{
    return {parent, module};
}

} // namespace luawrapper
