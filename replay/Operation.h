#pragma once

#include "replay/Values.h"
#include "replay/WrongCommand.h"

#include <QWidget>

#include <functional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace replay {

/// One operation that scripts can call on an object.
struct Operation
{
    std::string name;
    std::string parameters; ///< their names, joined by ", "
    std::size_t count;      ///< of the parameters

    /// Reads @p arguments (as many as count), calls, and answers the result as scripts write it. Throws WrongCommand
    /// before it calls when an argument is none of those accepted. The widget is of the class that has the operation.
    std::function<Json(QWidget& widget, const Json& arguments)> call;
};

using Operations = std::vector<Operation>;

template <class T>
T readArgument(const Json& arguments, std::size_t index)
{
    T value{};
    try {
        read(arguments[index], value);
    } catch (const WrongCommand& wrong) {
        throw WrongCommand("argument " + std::to_string(index + 1) + ": " + wrong.what());
    }
    return value;
}

/// The arguments in their order: each is read before anything is called.
template <class... Parameters, std::size_t... Indexes>
std::tuple<std::decay_t<Parameters>...> readArguments(const Json& arguments, std::index_sequence<Indexes...>)
{
    return std::tuple<std::decay_t<Parameters>...>{readArgument<std::decay_t<Parameters>>(arguments, Indexes)...};
}

template <class Result, class... Parameters, class Function>
Json callWith(const Json& arguments, Function&& function)
{
    auto values = readArguments<Parameters...>(arguments, std::index_sequence_for<Parameters...>());
    if constexpr (std::is_void_v<Result>) {
        std::apply(function, values);
        return nullptr;
    } else if constexpr (std::is_same_v<Result, Json>) {
        return std::apply(function, values);
    } else {
        return written(std::apply(function, values));
    }
}

/// A member operation of a widget's class, or of a base of it.
template <class Class, class Base, class Result, class... Parameters>
Operation operation(const char* name, Result (Base::*member)(Parameters...), const char* parameters = "")
{
    return {name, parameters, sizeof...(Parameters), [member](QWidget& widget, const Json& arguments) {
                auto& object = static_cast<Class&>(widget);
                return callWith<Result, Parameters...>(
                    arguments, [&](auto&... values) -> Result { return (object.*member)(values...); });
            }};
}

template <class Class, class Base, class Result, class... Parameters>
Operation operation(const char* name, Result (Base::*member)(Parameters...) const, const char* parameters = "")
{
    return {name, parameters, sizeof...(Parameters), [member](QWidget& widget, const Json& arguments) {
                const auto& object = static_cast<Class&>(widget);
                return callWith<Result, Parameters...>(
                    arguments, [&](auto&... values) -> Result { return (object.*member)(values...); });
            }};
}

/// An operation whose arguments or answer are written in a way of their own: a function of the object.
template <class Class, class Result, class... Parameters>
Operation operation(const char* name, Result (*function)(Class&, Parameters...), const char* parameters = "")
{
    return {name, parameters, sizeof...(Parameters), [function](QWidget& widget, const Json& arguments) {
                auto& object = static_cast<Class&>(widget);
                return callWith<Result, Parameters...>(
                    arguments, [&](auto&... values) -> Result { return function(object, values...); });
            }};
}

/// A static operation.
template <class Result, class... Parameters>
Operation staticOperation(const char* name, Result (*function)(Parameters...), const char* parameters = "")
{
    return {name, parameters, sizeof...(Parameters), [function](QWidget&, const Json& arguments) {
                return callWith<Result, Parameters...>(arguments,
                                                       [&](auto&... values) -> Result { return function(values...); });
            }};
}

/// @name The operations of each class, its own ones only
/// @{
const Operations& baseTableOperations();
const Operations& baseTableProbeOperations();
const Operations& globalTableOperations();
const Operations& codeTableOperations();
const Operations& stopLossTableOperations();
const Operations& creditTableOperations();
const Operations& creditProbeOperations();
const Operations& dialogOperations(); ///< of every task dialog
const Operations& basketProbeOperations();
const Operations& cellTableOperations();
/// @}

} // namespace replay
