#include "RunWitness.h"

#include "workbench/CreditPanel.h"
#include "workbench/MainWindow.h"
#include "workbench/Recorder.h"
#include "workbench/TableBench.h"
#include "workbench/TaskPanel.h"

#include "reference/services/ServiceControl.h"
#include "replay/Expectation.h"
#include "replay/Host.h"
#include "replay/Script.h"
#include "replay/State.h"
#include "replay/Values.h"

#include <OrderParamTable_mini/credit/CCreditParamTable.h>
#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>
#include <WQ/CFloatWidget.h>

#include <QtTest>

#include <algorithm>

namespace person {

using namespace workbench;
using replay::Json;

namespace {

std::vector<std::string> dialogNames(const Recording& recording)
{
    std::vector<std::string> names;
    for (const auto& step : recording.steps) {
        const Json& command = step->command;
        if (command["do"] == "new" && command["name"] != "panel" && command["name"] != "credit")
            names.push_back(command["name"]);
        else if (command["do"] == "delete")
            names.erase(std::remove(names.begin(), names.end(), command["on"]), names.end());
    }
    return names;
}

Json validTimeCommand()
{
    return {{"do", "call"}, {"on", "panel"}, {"op", "transferTimePeriod"}, {"args", {{{"orderType", 1}}}}};
}

/// What a host is told to send as the valid time. It is made of the cell and the clock.
Json validTimeOf(TC::COrderParamBaseTable* table)
{
    auto* global = dynamic_cast<TC::CGlobalOrderParamTable*>(table);
    if (!global)
        return nullptr;
    ttservice::CCodeOrderParam task;
    task.orderType = ttservice::ORDER_TYPE_ALGORITHM;
    global->transferTimePeriod(&task);
    return replay::written(task);
}

void append(std::vector<std::string>& found, const std::string& where, const std::vector<std::string>& differences)
{
    for (const std::string& difference : differences)
        found.push_back(where + ": " + difference);
}

void appendAll(Json& events, const Json& more)
{
    for (const Json& event : more)
        events.push_back(event);
}

} // namespace

RunWitness::RunWitness(MainWindow& window)
    : m_window(&window)
{
    listenTo(*window.bench());
    listenTo(*window.credit());
    listenTo(*window.findChild<TaskPanel*>());
}

void RunWitness::listenTo(PanelHost& host)
{
    const auto nameOf = [this](const QWidget* widget) { return m_window->recorder()->recordedName(widget); };
    QObject::connect(&host, &PanelHost::eventArrived, &host,
                     [this, nameOf](int event, int a, int b, const QString& text, void* payload) {
                         m_events.push_back(replay::eventJson(event, a, b, text, payload, nameOf));
                     });
}

void RunWitness::lookAround(const Recording& recording)
{
    m_states["panel"] = replay::stateOf(m_window->bench()->table());
    m_states["credit"] = replay::stateOf(m_window->credit()->table());
    const auto dialogs = m_window->findChildren<WQ::CFloatWidget*>();
    const std::vector<std::string> names = dialogNames(recording);
    QCOMPARE(int(names.size()), dialogs.size());
    for (std::size_t i = 0; i < names.size(); ++i)
        m_states[names[i]] = replay::stateOf(dialogs[int(i)]);
    // A clock that goes on is at another time by now than the replay's.
    m_validTime = reference::frozenClock() ? validTimeOf(m_window->bench()->table()) : Json();
}

std::vector<Json> RunWitness::questions() const
{
    std::vector<Json> commands;
    for (const auto& state : m_states)
        commands.push_back({{"do", "dump"}, {"on", state.first}});
    if (!m_validTime.is_null())
        commands.push_back(validTimeCommand());
    return commands;
}

std::vector<std::string> RunWitness::differences(const Recording& recording, const std::vector<Json>& answers) const
{
    std::vector<std::string> found;
    if (answers.size() != recording.steps.size() + questions().size())
        return {std::to_string(answers.size()) + " answers"};
    Json expected = Json::array();
    Json events = Json::array();
    auto answer = answers.begin();
    for (std::size_t i = 0; i < recording.steps.size(); ++i, ++answer) {
        const RecordedStep& step = *recording.steps[i];
        append(found, replay::writtenLine(step.command), replay::differences(step.answer, *answer));
        appendAll(events, (*answer)["events"]);
        if (i < recording.preparation)
            appendAll(expected, step.answer["events"]);
    }
    appendAll(expected, m_events);
    append(found, "heard", replay::differences(expected, events));
    for (const auto& [name, state] : m_states)
        append(found, name, replay::differences(state, (*answer++)["result"]));
    if (!m_validTime.is_null())
        append(found, "valid time", replay::differences(m_validTime, (*answer++)["result"]));
    return found;
}

int RunWitness::heard() const
{
    return int(m_events.size());
}

} // namespace person
