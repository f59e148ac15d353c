#pragma once

#include "workbench/PersonWatch.h"
#include "workbench/RecordedObjects.h"
#include "workbench/Recording.h"
#include "workbench/ServiceMirror.h"

#include <QObject>

#include <functional>

namespace workbench {

struct ObjectMaking;

/// Takes down, as the commands of a script, what the host does to the library's objects, what a person does in them,
/// and what the services are like meanwhile, each with the events that reached the host during it.
///
/// It always listens, and keeps the way from a fresh program to the present situation: how each living object was made
/// and everything that happened to it since, in order, objects that are gone left out. A recording begins with that
/// way, so that it replays from "reset" and the panel that a person has in front of him is the one that the replay
/// shows. Who meets a fault and only then presses Record has not lost it: the way leads there. The clock of a replay
/// stands still: where the live one is frozen, else where it was when the recording was started or the clock last went
/// on.
///
/// Forgetting a call is hard: calls go through the table in HostCalls.h, services and sizes are compared before every
/// command, persons are watched in the toolkit itself, and an event that comes outside all commands is warned of.
class Recorder : public QObject
{
    Q_OBJECT
public:
    explicit Recorder(QObject* parent = nullptr);
    ~Recorder() override;

    /// @name For hosts
    /// @{
    void make(const PanelHost& host, const ObjectMaking& making, const std::function<QWidget*()>& construct);
    void remove(QWidget& object);
    void carryOut(const QWidget& object, replay::Json command, const std::function<replay::Json()>& call);
    void hear(const PanelHost& host, int event, int a, int b, const QString& text, const void* payload);
    /// @}

    /// Begins a recording with the way to the present situation.
    void start();

    /// Ends it; the objects' last sizes are taken down.
    void stop();

    bool isRecording() const;

    /// What a recording calls the object that the widget is or stands in; empty for another one.
    QString recordedName(const QWidget* widget) const;

    /// The one under way, or the last one.
    const Recording& recording() const;

Q_SIGNALS:
    void started();
    void stopped();

    /// A step was added at the end of the recording under way; its answer follows.
    void stepAdded();
    void stepAnswered();

private:
    using Step = std::shared_ptr<RecordedStep>;

    /// A step of the way to the present; those of services name no object.
    struct WayStep
    {
        std::string object;
        Step step;
    };

    class Command;

    /// A person's act is over when its event's delivery has unwound; only the event loop tells of that, or the next
    /// act.
    void beginAct(const QWidget& sender, const WQ::PersonEvent& event);
    void endAct();

    /// Begin and end a command; the events that are heard in between belong to it, but for those of commands inside.
    void begin(replay::Json command, const std::string& object);
    void end(const replay::Json& result);
    void keepOpenStep(const std::string& object);
    void note(replay::Json command, const std::string& object);

    void prepareCall();
    void catchUp();
    void keepOnWay(const Step& step, const std::string& object);
    void dropEarlierSetting(const std::string& name, const std::string& object);
    void forget(const std::string& object);
    void objectGone(const std::string& object);

    RecordedObjects m_objects;
    ServiceMirror m_services;
    std::vector<WayStep> m_way;
    std::vector<Step> m_open; ///< commands under way, outermost first
    bool m_isActOpen = false; ///< the outermost one is a person's
    Recording m_recording;
    std::string m_remark;                ///< of the next step
    const PanelHost* m_making = nullptr; ///< whose object is being made
    bool m_isRecording = false;
    const PersonWatch m_watch;
};

} // namespace workbench
