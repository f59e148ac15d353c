#include "workbench/Recorder.h"

#include "workbench/PanelHost.h"
#include "workbench/StepMaking.h"

#include "reference/services/ServiceControl.h"
#include "replay/Host.h"

#include <algorithm>
#include <iterator>

namespace workbench {

using replay::Json;

/// A command under way, ended however it is left. The recorder may go with the window that the command closes.
class Recorder::Command
{
public:
    Command(Recorder& recorder, Json command, const std::string& object)
        : m_recorder(&recorder)
    {
        recorder.prepareCall();
        recorder.begin(std::move(command), object);
    }

    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

    ~Command()
    {
        if (m_recorder)
            m_recorder->end(result);
    }

    Json result;

private:
    const QPointer<Recorder> m_recorder;
};

Recorder::Recorder(QObject* parent)
    : QObject(parent)
    , m_watch([this](const QWidget& sender, const WQ::PersonEvent& event) { beginAct(sender, event); })
{
}

Recorder::~Recorder() = default;

void Recorder::make(const PanelHost& host, const ObjectMaking& making, const std::function<QWidget*()>& construct)
{
    Json json = {{"do", "new"}, {"class", making.className}, {"name", making.name}};
    json["args"] = making.arguments;
    const Command command(*this, std::move(json), making.name);
    m_making = &host;
    QWidget* object = construct();
    m_making = nullptr;
    // As in a replay, the object has its name once it is made.
    m_objects.add({making.name, object, &host, {}, false});
    connect(object, &QObject::destroyed, this, [this, name = making.name] { objectGone(name); });
}

void Recorder::remove(QWidget& object)
{
    const std::string name = m_objects.nameOf(&object).toStdString();
    disconnect(&object, &QObject::destroyed, this, nullptr);
    {
        const Command command(*this, {{"do", "delete"}, {"on", name}}, name);
        delete &object;
    }
    forget(name);
}

/// An object that deletes itself, or that its parents take along.
void Recorder::objectGone(const std::string& object)
{
    note({{"do", "delete"}, {"on", object}}, object);
    forget(object);
}

void Recorder::forget(const std::string& object)
{
    m_objects.remove(object);
    const auto isOfObject = [&object](const WayStep& step) { return step.object == object; };
    m_way.erase(std::remove_if(m_way.begin(), m_way.end(), isOfObject), m_way.end());
}

void Recorder::carryOut(const QWidget& object, Json json, const std::function<Json()>& call)
{
    const std::string name = m_objects.nameOf(&object).toStdString();
    json["on"] = name;
    Command command(*this, std::move(json), name);
    command.result = call();
}

void Recorder::hear(const PanelHost& host, int event, int a, int b, const QString& text, const void* payload)
{
    // A host above other hosts hears once more what they have heard.
    if (m_making != &host && !m_objects.hasObjectOf(host))
        return;
    if (m_open.empty()) {
        qWarning("The recorder heard event %d outside all commands: a call was made past it", event);
        return;
    }
    const auto nameOf = [this](const QWidget* widget) { return m_objects.nameOf(widget); };
    m_open.back()->answer["events"].push_back(replay::eventJson(event, a, b, text, payload, nameOf));
}

void Recorder::beginAct(const QWidget& sender, const WQ::PersonEvent& event)
{
    endAct();
    const RecordedObject* found = m_objects.around(&sender);
    // One that a listener of another command lets through belongs to that command.
    if (!found || !m_open.empty())
        return;
    const RecordedObject object = *found;
    catchUp();
    const Json command = commandOf(sender, event, object);
    if (command.is_null())
        m_remark += (m_remark.empty() ? "" : "\n") + std::string("# No command stands for event ")
            + std::to_string(event.event) + " of " + object.name + '.';
    m_open.push_back(answeredStep(command));
    if (!command.is_null())
        keepOpenStep(object.name);
    m_isActOpen = true;
    QMetaObject::invokeMethod(this, &Recorder::endAct, Qt::QueuedConnection);
}

void Recorder::endAct()
{
    if (!m_isActOpen || m_open.size() != 1)
        return;
    m_isActOpen = false;
    // An edit is true when it was taken; what is answered to an event is the table's own.
    const Step step = m_open.back();
    end(nameOf(step->command) == "edit" ? Json(true) : Json());
    if (nameOf(step->command) == "event")
        step->answer.erase("result");
}

/// What a person has committed goes out before the host's next call, in a replay as here.
void Recorder::prepareCall()
{
    if (!m_open.empty())
        return;
    WQ::deliverPostedPersonEvents();
    catchUp();
}

void Recorder::begin(Json command, const std::string& object)
{
    m_open.push_back(answeredStep(std::move(command)));
    keepOpenStep(object);
}

void Recorder::keepOpenStep(const std::string& object)
{
    const Step step = m_open.back();
    step->remark = std::exchange(m_remark, {});
    keepOnWay(step, object);
}

void Recorder::end(const Json& result)
{
    if (m_open.empty())
        return;
    m_open.back()->answer["result"] = result;
    m_open.pop_back();
    if (!m_open.empty())
        return;
    m_objects.takeSizes();
    if (m_isRecording)
        Q_EMIT stepAnswered();
}

void Recorder::note(Json command, const std::string& object)
{
    Step step = answeredStep(std::move(command));
    step->remark = std::exchange(m_remark, {});
    keepOnWay(step, object);
}

/// Notes what happened without a call: services, sizes, what is shown.
void Recorder::catchUp()
{
    for (Json& command : m_services.pendingCommands())
        note(std::move(command), {});
    for (Json& command : m_objects.pendingCommands()) {
        const std::string object = command.value("on", "");
        note(std::move(command), object);
    }
}

void Recorder::keepOnWay(const Step& step, const std::string& object)
{
    if (isSetting(step->command))
        dropEarlierSetting(nameOf(step->command), object);
    m_way.push_back({object, step});
    if (!m_isRecording)
        return;
    m_recording.steps.push_back(step);
    Q_EMIT stepAdded();
}

/// What is set again before anything has happened is where the later command leaves it.
void Recorder::dropEarlierSetting(const std::string& name, const std::string& object)
{
    for (auto way = m_way.rbegin(); way != m_way.rend() && isSetting(way->step->command); ++way) {
        if (way->object != object || nameOf(way->step->command) != name)
            continue;
        m_way.erase(std::next(way).base());
        return;
    }
}

void Recorder::start()
{
    if (m_isRecording)
        return;
    endAct();
    catchUp();
    m_recording = {};
    m_recording.steps = {answeredStep({{"do", "reset"}}), answeredStep(clockCommand())};
    for (const WayStep& way : m_way)
        m_recording.steps.push_back(way.step);
    // One that was frozen on the way has gone on since.
    const auto isClock = [](const WayStep& way) { return nameOf(way.step->command) == "clock"; };
    if (!reference::frozenClock() && std::any_of(m_way.begin(), m_way.end(), isClock))
        m_recording.steps.push_back(answeredStep(clockCommand()));
    m_recording.preparation = m_recording.steps.size();
    m_remark.clear();
    m_isRecording = true;
    Q_EMIT started();
}

void Recorder::stop()
{
    if (!m_isRecording)
        return;
    WQ::deliverPostedPersonEvents();
    endAct();
    m_objects.forgetSizes();
    catchUp();
    m_isRecording = false;
    Q_EMIT stopped();
}

bool Recorder::isRecording() const
{
    return m_isRecording;
}

QString Recorder::recordedName(const QWidget* widget) const
{
    return m_objects.nameOf(widget);
}

const Recording& Recorder::recording() const
{
    return m_recording;
}

} // namespace workbench
