#pragma once

#include "replay/Objects.h"

/// What each command does. A function throws WrongCommand before it changes anything; which keys a command has is
/// checked before it is called.
namespace replay {

class Session;

/// What a command is carried out with.
struct Run
{
    Session& session;
    Objects& objects;
    const Json& command;

    template <class T>
    T value(const char* key) const
    {
        T read{};
        try {
            replay::read(command.at(key), read);
        } catch (const WrongCommand& wrong) {
            throw WrongCommand('"' + std::string(key) + "\": " + wrong.what());
        }
        return read;
    }

    std::string text(const char* key) const
    {
        return value<std::string>(key);
    }

    Object& object() const
    {
        return objects.at(text("on"));
    }

    Json arguments() const
    {
        return command.contains("args") ? command["args"] : Json::array();
    }
};

/// @name On the services and the program
/// @{
Json reset(const Run& run);
Json setModules(const Run& run);
Json setClientMode(const Run& run);
Json setClock(const Run& run);
Json setScale(const Run& run);
Json setTheme(const Run& run);
Json addAccount(const Run& run);
Json emitHint(const Run& run);
/// @}

/// @name On objects
/// @{
Json makeObject(const Run& run);
Json removeObject(const Run& run);
Json callObject(const Run& run);
Json callGrid(const Run& run);
Json addButton(const Run& run);
Json handleEvent(const Run& run);
Json dump(const Run& run);
Json show(const Run& run);
Json resize(const Run& run);
Json screenshot(const Run& run);
/// @}

/// @name By a person
/// @{
Json edit(const Run& run);
Json click(const Run& run);
Json filter(const Run& run);
Json resetFilter(const Run& run);
/// @}

} // namespace replay
