#include "model/ModelRun.h"

#include "replay/State.h"

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <WQ/CMultiParamsTable.h>

namespace model {

namespace {

constexpr std::size_t kWholeStateEvery = 8;

std::string mismatchAt(const std::string& path, const Json& expected, const Json& actual)
{
    return path + ": expected " + expected.dump() + ", got " + actual.dump();
}

std::string mismatch(const std::string& path, const Json& expected, const Json& actual);

std::string mismatchInObject(const std::string& path, const Json& expected, const Json& actual)
{
    for (const auto& [key, value] : expected.items()) {
        const auto found = actual.find(key);
        if (found == actual.end())
            return path + "." + key + ": expected " + value.dump() + ", got no such key";
        std::string inside = mismatch(key, value, *found);
        if (!inside.empty())
            return path + "." + inside;
    }
    return {};
}

std::string mismatchInList(const std::string& path, const Json& expected, const Json& actual)
{
    if (expected.size() != actual.size())
        return mismatchAt(path, expected, actual);
    for (std::size_t index = 0; index < expected.size(); ++index) {
        std::string inside = mismatch("[" + std::to_string(index) + "]", expected[index], actual[index]);
        if (!inside.empty()) {
            const bool isCell = expected[index].is_object() && expected[index].contains("id");
            return path + inside + (isCell ? " (id " + expected[index].at("id").dump() + ")" : "");
        }
    }
    return {};
}

std::string mismatch(const std::string& path, const Json& expected, const Json& actual)
{
    if (expected.is_object() && actual.is_object())
        return mismatchInObject(path, expected, actual);
    if (expected.is_array() && actual.is_array())
        return mismatchInList(path, expected, actual);
    if (expected.is_number() && actual.is_number())
        return expected.get<double>() == actual.get<double>() ? std::string() : mismatchAt(path, expected, actual);
    return expected == actual ? std::string() : mismatchAt(path, expected, actual);
}

} // namespace

std::string firstMismatch(const Json& expected, const Json& actual)
{
    return mismatch("", expected, actual);
}

ModelRun::ModelRun(WrongFact wrongFact)
    : m_wrongFact(std::move(wrongFact))
{
}

std::optional<Difference> ModelRun::firstDifference(const Script& script)
{
    SessionModel model;
    m_session.run({{"do", "reset"}});
    for (std::size_t index = 0; index < script.size(); ++index) {
        const bool wholeState = index + 1 == script.size() || (index + 1) % kWholeStateEvery == 0;
        std::string what = compareStep(script.at(index), model);
        if (what.empty())
            what = compareObjects(model, wholeState);
        ++m_commands;
        if (!what.empty())
            return Difference{index, std::move(what)};
    }
    return {};
}

std::string ModelRun::compareStep(const Command& command, SessionModel& model)
{
    const Answer expected = model.run(command.json);
    if (m_wrongFact)
        m_wrongFact(model);
    const Json actual = m_session.run(command.json);
    Json answer = {{"ok", expected.ok}};
    if (expected.ok)
        answer["result"] = expected.result;
    answer["events"] = expected.events;
    answer["saves"] = expected.saves;
    answer["reloads"] = expected.reloads;
    std::string what = mismatch("answer", answer, actual);
    if (!what.empty() && actual.contains("error"))
        what += " (" + actual.at("error").get<std::string>() + ")";
    return what;
}

std::string ModelRun::compareObjects(SessionModel& model, bool wholeState)
{
    for (auto& [name, expected] : model.objects) {
        QWidget* object = m_session.object(QString::fromStdString(name));
        if (!object)
            return name + " is gone";
        std::string what = compareGetters(*object, expected);
        if (what.empty() && wholeState)
            what = compareState(*object, expected);
        if (!what.empty())
            return name + ": " + what;
    }
    return {};
}

std::string ModelRun::compareState(QWidget& object, ObjectModel& expected)
{
    const Json actual = replay::stateOf(&object);
    std::string what = mismatch("state", expected.state(), actual);
    return what.empty() && expected.table ? expected.table->layoutMismatch(actual) : what;
}

std::string ModelRun::compareGetters(QWidget& object, ObjectModel& expected)
{
    if (const auto* table = qobject_cast<TC::COrderParamBaseTable*>(&object)) {
        const Json order = {expected.table->orderType, expected.table->operationType, expected.table->priceType};
        const Json actual = {static_cast<int>(table->orderType()), static_cast<int>(table->getOperationType()),
                             static_cast<int>(table->priceType())};
        if (order != actual)
            return mismatchAt("order, operation and price type", order, actual);
    }
    auto* grid = object.findChild<WQ::CMultiParamsTable*>();
    for (const Cell& cell : expected.grid().cells) {
        const std::string text = grid->itemText(cell.id).toStdString();
        if (text != cell.shownText())
            return mismatchAt("text of cell " + std::to_string(cell.id), cell.shownText(), text);
    }
    return {};
}

} // namespace model
