#include "model/RandomCommands.h"
#include "model/RandomValues.h"

namespace model {

using namespace values;

namespace {

rc::Gen<Json> constructorArgs(const std::string& className)
{
    if (className == "CStopLossOrderParamTable") {
        return rc::gen::map(rc::gen::tuple(identity(), broker()), [](const std::tuple<Json, Json>& values) {
            return Json::array({std::get<0>(values), std::get<1>(values)});
        });
    }
    const bool isCode = className == "CCodeOrderParamTable";
    return rc::gen::map(rc::gen::tuple(identity(), broker(), boolean(), boolean(), trader(), boolean()),
                        [isCode](const std::tuple<Json, Json, Json, Json, Json, Json>& values) {
                            const auto& [id, type, strip, scale, desk, book] = values;
                            return isCode ? Json::array({id, type, scale, desk, strip})
                                          : Json::array({id, type, strip, scale, desk, book});
                        });
}

rc::Gen<Script> making(const std::string& className, const char* name)
{
    const bool isCredit = className == "CCreditParamTable" || className == "CreditProbe";
    const auto args = isCredit ? oneOf({Json::array()}) : constructorArgs(className);
    return rc::gen::map(rc::gen::tuple(modules(), oneOf({0, 0, 100, 101}), args),
                        [className, name](const std::tuple<Json, Json, Json>& values) {
                            const auto& [on, mode, made] = values;
                            return Script{{{{"do", "modules"}, {"on", on}}},
                                          {{{"do", "clientMode"}, {"value", mode}}},
                                          {{{"do", "clock"}, {"epoch", 1763690000}}},
                                          {{{"do", "new"}, {"class", className}, {"name", name}, {"args", made}}}};
                        });
}

rc::Gen<Command> randomCommand(const std::string& className)
{
    const bool isProbe = className == "CreditProbe";
    return isProbe || className == "CCreditParamTable" ? randomCreditCommand(isProbe) : randomTableCommand(className);
}

/// A third of the commands go to a second object of the class, which may be deleted on the way.
rc::Gen<Command> toEither(const rc::Gen<Command>& gen)
{
    const auto deletion = rc::gen::just(Command{{{"do", "delete"}, {"on", "u"}}});
    const auto toSecond = rc::gen::map(gen, [](Command command) {
        if (command.json.value("on", Json()) == "t")
            command.json["on"] = "u";
        return command;
    });
    return rc::gen::weightedOneOf<Command>({{200, gen}, {100, toSecond}, {1, deletion}});
}

rc::Gen<Script> following(const rc::Gen<Script>& first, const rc::Gen<Script>& second)
{
    return rc::gen::map(rc::gen::pair(first, second), [](std::pair<Script, Script> parts) {
        parts.first.insert(parts.first.end(), parts.second.begin(), parts.second.end());
        return std::move(parts.first);
    });
}

} // namespace

rc::Gen<Script> randomScript(const std::string& className, int length)
{
    const auto step = randomCommand(className);
    const auto steps = [length](const rc::Gen<Command>& gen) {
        return rc::gen::resize(length, rc::gen::container<Script>(gen));
    };
    const auto one = following(making(className, "t"), steps(step));
    const auto two = following(following(making(className, "t"), making(className, "u")), steps(toEither(step)));
    const auto shown = following(making(className, "t"),
                                 following(rc::gen::just(Script{{{{"do", "show"}, {"on", "t"}}}}), steps(step)));
    return rc::gen::weightedOneOf<Script>({{6, one}, {3, two}, {1, shown}});
}

} // namespace model
