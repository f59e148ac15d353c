#include "model/SessionModel.h"

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
        return {id, broker, args.at(4).get<bool>(), args.at(3).get<int>(), false};
    case TableClass::StopLoss:
        return {id, broker, true, 1, false};
    default:
        return {id, broker, args.at(2).get<bool>(), args.at(4).get<int>(), args.at(5).get<bool>()};
    }
}

bool takeOutcome(const EditOutcome& outcome, Json& result)
{
    result = outcome.accepted;
    return outcome.possible;
}

std::set<int> idsOf(const Json& list)
{
    return list.get<std::set<int>>();
}

} // namespace

const GridModel* SessionModel::grid() const
{
    if (m_table)
        return &m_table->grid;
    return m_credit ? &m_credit->grid : nullptr;
}

Json SessionModel::state() const
{
    if (m_table)
        return m_table->state();
    return m_credit ? m_credit->state() : Json();
}

Answer SessionModel::run(const Json& command)
{
    m_world.events.clear();
    m_world.saves = 0;
    m_world.reloads = 0;
    Answer answer;
    answer.ok = carryOut(command, answer.result);
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
        if (m_credit)
            m_credit->scale = m_scale;
    } else if (verb == "hint") {
        if (m_table)
            m_table->call("slotShouldHintAlgorithm", Json::array({command.at("orderType"), command.at("hint")}));
    } else if (verb == "new") {
        make(command);
    } else {
        return onObject(command, result);
    }
    return true;
}

void SessionModel::make(const Json& command)
{
    const std::string className = command.at("class").get<std::string>();
    if (className == "CCreditParamTable" || className == "CreditProbe") {
        m_credit = std::make_unique<CreditModel>(m_world);
        m_credit->scale = m_scale;
        return;
    }
    const TableClass tableClass = classOf(className);
    m_table = std::make_unique<TableModel>(m_world, tableClass, command.at("name").get<std::string>(),
                                           constructionOf(tableClass, command.at("args")));
}

bool SessionModel::onObject(const Json& command, Json& result)
{
    if (command.at("do") == "grid") {
        auto* cells = const_cast<GridModel*>(grid());
        if (!cells)
            return false;
        result = callGrid(*cells, command.at("op").get<std::string>(), command.at("args"));
        return true;
    }
    return m_table ? onTable(command, result) : m_credit && onCredit(command, result);
}

bool SessionModel::onTable(const Json& command, Json& result)
{
    const std::string& verb = command.at("do").get_ref<const std::string&>();
    if (verb == "call") {
        result = m_table->call(command.at("op").get<std::string>(), command.at("args"));
        return true;
    }
    if (verb == "edit")
        return takeOutcome(m_table->edit(command), result);
    if (verb == "click")
        return m_table->click(command.at("button").get<int>());
    if (verb == "filter")
        return m_table->filter(idsOf(command.at("cells")));
    if (verb == "filterReset")
        return m_table->filterReset();
    if (verb == "addButton") {
        result = m_table->group.add(command.at("id").get<int>(), command.at("text").get<std::string>());
        return result != -1;
    }
    const Json& args = command.at("args");
    result = m_table->handleEvent(args.at(0).get<int>(), args.at(1).get<int>(), args.at(2).get<int>(),
                                  args.at(3).get<std::string>(), command.value("data", Json()));
    return true;
}

bool SessionModel::onCredit(const Json& command, Json& result)
{
    const std::string& verb = command.at("do").get_ref<const std::string&>();
    if (verb == "call") {
        result = m_credit->call(command.at("op").get<std::string>(), command.at("args"));
        return true;
    }
    if (verb == "edit")
        return takeOutcome(m_credit->edit(command), result);
    result = false;
    return verb == "event";
}

} // namespace model
