#include "model/SessionModel.h"

#include <exception>
#include <utility>

namespace model {

namespace {

TableClass classOf(const std::string& name)
{
    if (name == "CGlobalOrderParamTable")
        return TableClass::Global;
    if (name == "CCodeOrderParamTable")
        return TableClass::Code;
    return name == "CStopLossOrderParamTable" ? TableClass::StopLoss : TableClass::Probe;
}

Construction constructionOf(TableClass tableClass, const Json& args)
{
    const int id = args.at(0).get<int>();
    const int broker = args.at(1).get<int>();
    switch (tableClass) {
    case TableClass::Code:
        return {id, broker, args.at(4).get<bool>(), args.at(3).get<int>(), false, args.at(2).get<bool>()};
    case TableClass::StopLoss:
        return {id, broker, true, 1, false, true};
    default:
        return {
            id, broker, args.at(2).get<bool>(), args.at(4).get<int>(), args.at(5).get<bool>(), args.at(3).get<bool>()};
    }
}

bool takeOutcome(const EditOutcome& outcome, Json& result)
{
    result = outcome.accepted;
    return outcome.possible;
}

} // namespace

Answer SessionModel::run(const Json& command)
{
    m_world.events.clear();
    m_world.saves = 0;
    m_world.reloads = 0;
    Answer answer;
    try {
        answer.ok = carryOut(command, answer.result);
    } catch (const std::exception&) { // an operation that is none, or arguments that are not its own
        answer.ok = false;
    }
    answer.events = std::move(m_world.events);
    answer.saves = m_world.saves;
    answer.reloads = m_world.reloads;
    return answer;
}

bool SessionModel::carryOut(const Json& command, Json& result)
{
    const std::string& verb = command.at("do").get_ref<const std::string&>();
    if (verb == "modules") {
        m_world.modules = command.at("on").get<std::set<std::string>>();
    } else if (verb == "clientMode") {
        m_world.clientMode = command.at("value").get<int>();
    } else if (verb == "clock") {
        m_world.clock = command.at("epoch").get<std::int64_t>();
    } else if (verb == "scale") {
        m_scale = command.at("value").get<double>();
        for (auto& [name, object] : objects)
            if (object.credit)
                object.credit->scale = m_scale;
    } else if (verb == "hint") {
        for (auto& [name, object] : objects)
            if (object.table)
                object.table->hint(command.at("orderType").get<int>(), command.at("hint").get<bool>());
    } else if (verb == "new") {
        make(command);
    } else if (verb == "delete") {
        return objects.erase(command.at("on").get<std::string>()) > 0;
    } else if (verb != "theme") {
        return onObject(objects.at(command.at("on").get<std::string>()), verb, command, result);
    }
    return true;
}

void SessionModel::make(const Json& command)
{
    const std::string className = command.at("class").get<std::string>();
    const std::string name = command.at("name").get<std::string>();
    ObjectModel& object = objects[name];
    if (className == "CCreditParamTable" || className == "CreditProbe") {
        object.credit = std::make_unique<CreditModel>(m_world);
        object.credit->scale = m_scale;
        return;
    }
    const TableClass tableClass = classOf(className);
    object.table =
        std::make_unique<TableModel>(m_world, tableClass, name, constructionOf(tableClass, command.at("args")));
}

bool SessionModel::onObject(ObjectModel& object, const std::string& verb, const Json& command, Json& result)
{
    if (verb == "grid") {
        result = callGrid(object.grid(), command.at("op").get<std::string>(), command.at("args"));
        return true;
    }
    return object.table ? onTable(*object.table, verb, command, result)
                        : onCredit(*object.credit, verb, command, result);
}

bool SessionModel::onTable(TableModel& table, const std::string& verb, const Json& command, Json& result)
{
    if (verb == "call") {
        result = table.call(command.at("op").get<std::string>(), command.at("args"));
    } else if (verb == "edit") {
        return takeOutcome(table.edit(command), result);
    } else if (verb == "click") {
        return table.click(command.at("button").get<int>());
    } else if (verb == "filter") {
        return table.filter(command.at("cells").get<std::set<int>>());
    } else if (verb == "filterReset") {
        return table.filterReset();
    } else if (verb == "addButton") {
        result = table.group.add(command.at("id").get<int>(), command.at("text").get<std::string>());
        return result != -1;
    } else if (verb == "show") {
        table.show();
    } else if (verb == "resize") {
        table.resize();
    } else if (verb == "event") {
        const Json& args = command.at("args");
        result = table.handleEvent(args.at(0).get<int>(), args.at(1).get<int>(), args.at(2).get<int>(),
                                   args.at(3).get<std::string>(), command.value("data", Json()));
    } else {
        return false;
    }
    return true;
}

bool SessionModel::onCredit(CreditModel& table, const std::string& verb, const Json& command, Json& result)
{
    if (verb == "call")
        result = table.call(command.at("op").get<std::string>(), command.at("args"));
    else if (verb == "edit")
        return takeOutcome(table.edit(command), result);
    else if (verb == "event")
        result = false; // the base's answer, whether the table acts on it or not
    return verb == "call" || verb == "show" || verb == "resize" || verb == "event";
}

} // namespace model
