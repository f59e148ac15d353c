#pragma once

#include "model/ModelText.h"

#include <rapidcheck.h>

#include <ostream>
#include <string>
#include <vector>

namespace model {

/// One line of a script.
struct Command
{
    Json json;
};

inline std::ostream& operator<<(std::ostream& out, const Command& command)
{
    return out << command.json.dump();
}

using Script = std::vector<Command>;

/// Scripts that make one object of the class, named "t", and then call, edit and click in any order: @p length
/// commands at most after those that make it.
rc::Gen<Script> randomScript(const std::string& className, int length);

/// One command to a table or to a credit table that "new" has made.
rc::Gen<Command> randomTableCommand(const std::string& className);
rc::Gen<Command> randomGridCommand();
rc::Gen<Command> randomPersonCommand();
rc::Gen<Command> randomCreditCommand(bool isProbe);

} // namespace model
