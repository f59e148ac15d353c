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
    static LuaModuleCtrl* instance();

    LuaModuleCtrl(const LuaModuleCtrl&) = delete;
    LuaModuleCtrl& operator=(const LuaModuleCtrl&) = delete;

    /// Whether the module that @p path names, parent module first, is switched on; false for one it does not know.
    bool checkModule(std::list<std::string> path);

private:
    LuaModuleCtrl();
    ~LuaModuleCtrl();

    std::unique_ptr<LuaModuleCtrlPrivate> const d;
};

/// The two-element module path: parent << module.
inline std::list<std::string> operator<<(const std::string& parent, const std::string& module)
{
    return {parent, module};
}

} // namespace luawrapper
