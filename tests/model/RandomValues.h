#pragma once

#include "model/RandomCommands.h"

#include <initializer_list>
#include <tuple>
#include <utility>

/// Values that commands are made of: those that make a difference often, others now and then.
namespace model::values {

rc::Gen<Json> oneOf(std::initializer_list<Json> values);

rc::Gen<Json> identity();
rc::Gen<Json> broker();
rc::Gen<Json> trader();
rc::Gen<Json> orderType();
rc::Gen<Json> operationType();
rc::Gen<Json> priceType();
rc::Gen<Json> flags();
rc::Gen<Json> cell();
rc::Gen<Json> cells();
rc::Gen<Json> buttonId();
rc::Gen<Json> buttonText();
rc::Gen<Json> price();
rc::Gen<Json> wholeNumber();
rc::Gen<Json> unit();
rc::Gen<Json> text();
rc::Gen<Json> setting();
rc::Gen<Json> modules();
rc::Gen<Json> boolean();

/// {"do": verb, "on": "t", ...} with each key's value.
template <class... Values>
rc::Gen<Command> command(const std::string& verb, std::vector<std::string> keys, rc::Gen<Values>... gens)
{
    return rc::gen::map(rc::gen::tuple(std::move(gens)...), [verb, keys](const std::tuple<Values...>& values) {
        Command made{{{"do", verb}, {"on", "t"}}};
        std::size_t key = 0;
        std::apply([&](const auto&... value) { ((made.json[keys.at(key++)] = value), ...); }, values);
        return made;
    });
}

/// An operation with its arguments.
template <class... Values>
rc::Gen<Command> operation(const std::string& verb, const std::string& name, rc::Gen<Values>... gens)
{
    return rc::gen::map(rc::gen::tuple(std::move(gens)...), [verb, name](const std::tuple<Values...>& values) {
        Json args = Json::array();
        std::apply([&](const auto&... value) { (args.push_back(value), ...); }, values);
        return Command{{{"do", verb}, {"on", "t"}, {"op", name}, {"args", args}}};
    });
}

} // namespace model::values
