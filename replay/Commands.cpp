#include "replay/Commands.h"

#include "replay/CommandRun.h"

#include <algorithm>

namespace replay {

namespace {

struct Command
{
    const char* name;
    Json (*carryOut)(const Run& run);
    std::vector<std::string> needed;
    std::vector<std::string> optional;
};

// clang-format off
const std::vector<Command>& commands()
{
    static const std::vector<Command> rows = {
        {"reset",       reset,         {},                                     {}},
        {"modules",     setModules,    {"on"},                                 {}},
        {"clientMode",  setClientMode, {"value"},                              {}},
        {"clock",       setClock,      {"epoch"},                              {}},
        {"scale",       setScale,      {"value"},                              {}},
        {"theme",       setTheme,      {"name"},                               {}},
        {"account",     addAccount,    {"key", "brokerType", "id", "name"},    {}},
        {"hint",        emitHint,      {"orderType", "hint"},                  {}},
        {"new",         makeObject, {"class", "name"},                      {"args"}},
        {"call",        callObject, {"on", "op"},                           {"args"}},
        {"grid",        callGrid,      {"on", "op"},                           {"args"}},
        {"addButton",   addButton,     {"on", "id", "text"},                   {}},
        {"event",       handleEvent,   {"on", "args"},                         {"data"}},
        {"edit",        edit,          {"on", "cell"},                         {"value", "unit", "checked", "text",
                                                                                "index", "low", "high", "time",
                                                                                "elapse"}},
        {"click",       click,         {"on", "button"},                       {}},
        {"filter",      filter,        {"on", "cells"},                        {}},
        {"filterReset", resetFilter, {"on"},                                 {}},
        {"dump",        dump,          {"on"},                                 {}},
        {"show",        show,          {"on"},                                 {}},
        {"resize",      resize,        {"on", "size"},                         {}},
        {"screenshot",  screenshot,    {"on", "file"},                         {}},
        {"delete",      removeObject, {"on"},                                 {}},
    };
    return rows;
}
// clang-format on

const Command& commandOf(const Json& json)
{
    if (!json.is_object())
        throw WrongCommand("a command is an object");
    const Json name = json.value("do", Json());
    std::string names;
    for (const Command& command : commands()) {
        if (name == command.name)
            return command;
        names += (names.empty() ? "" : ", ") + std::string(command.name);
    }
    throw WrongCommand("\"do\" names no command; there are " + names);
}

std::string keysOf(const Command& command)
{
    std::string keys;
    for (const std::string& key : command.needed)
        keys += (keys.empty() ? "" : ", ") + key;
    for (const std::string& key : command.optional)
        keys += (keys.empty() ? "" : ", ") + key + " (optional)";
    return keys.empty() ? "none" : keys;
}

void checkKeys(const Command& command, const Json& json)
{
    const auto has = [](const std::vector<std::string>& keys, const std::string& key) {
        return std::find(keys.begin(), keys.end(), key) != keys.end();
    };
    for (const std::string& key : command.needed) {
        if (!json.contains(key))
            throw WrongCommand(std::string(command.name) + " needs \"" + key + "\"; its keys: " + keysOf(command));
    }
    for (const auto& [key, value] : json.items()) {
        if (key != "do" && !has(command.needed, key) && !has(command.optional, key))
            throw WrongCommand(std::string(command.name) + " has no \"" + key + "\"; its keys: " + keysOf(command));
    }
}

} // namespace

Json runCommand(Session& session, Objects& objects, const Json& json)
{
    const Command& command = commandOf(json);
    checkKeys(command, json);
    return command.carryOut({session, objects, json});
}

} // namespace replay
