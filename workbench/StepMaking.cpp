#include "workbench/StepMaking.h"

#include "workbench/RecordedObjects.h"

#include "replay/PersonLog.h"
#include "replay/Values.h"

#include <TC/CTimeService.h>
#include <WQ/CMultiParamsTable.h>
#include <WQ/EventNumbers.h>

#include <ctime>
#include <set>

namespace workbench {

using replay::Json;

std::shared_ptr<RecordedStep> answeredStep(Json command)
{
    const Json answer = {{"ok", true}, {"result", nullptr}, {"events", Json::array()}};
    return std::make_shared<RecordedStep>(RecordedStep{{}, std::move(command), answer});
}

std::string nameOf(const Json& command)
{
    return command.is_object() ? command.value("do", "") : std::string();
}

bool isSetting(const Json& command)
{
    static const std::set<std::string> settings = {"modules", "clientMode", "clock", "scale", "theme", "resize"};
    return settings.count(nameOf(command)) > 0;
}

Json clockCommand()
{
    const TC::CTimeService* clock = TC::getTimeService();
    return {{"do", "clock"}, {"epoch", clock ? clock->currentTime() : qint64(std::time(nullptr))}};
}

Json commandOf(const QWidget& sender, const WQ::PersonEvent& event, const RecordedObject& object)
{
    const auto* cells = qobject_cast<const WQ::CMultiParamsTable*>(&sender);
    if (event.event != WQ::events::kDoubleClicked || !object.widget || object.widget->isWindow())
        return replay::personCommand(object.name, event, cells);
    Json command = {{"do", "event"}, {"on", object.name}};
    command["args"] = Json::array({event.event, event.a, event.b, replay::written(event.text)});
    return command;
}

} // namespace workbench
