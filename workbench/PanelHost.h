#pragma once

#include "replay/Json.h"

#include <WQ/CEventWidgetT.h>

#include <QPointer>
#include <QWidget>

#include <functional>
#include <string>

namespace workbench {

class Recorder;

/// Which of the library's objects a host makes, as scripts say it.
struct ObjectMaking
{
    std::string className;
    std::string name; ///< what a recording calls it
    replay::Json arguments = replay::Json::array();
};

/// How a host listens: a widget among the ancestors of the tables that is an event deliverer itself. It answers false,
/// so that the events climb on. What it makes and what is called on that goes through its recorder, if it has one.
class PanelHost : public WQ::CEventWidgetT<QWidget>
{
    Q_OBJECT
public:
    explicit PanelHost(QWidget* parent = nullptr);
    ~PanelHost() override;

    /// The recorder outlives neither its objects nor this host, and may go at any time.
    void setRecorder(Recorder* recorder);
    Recorder* recorder() const;

    /// Makes one of the library's objects as a child of this host.
    template <class Object>
    Object* make(const ObjectMaking& making, const std::function<Object*(QWidget* parent)>& construct)
    {
        Object* made = nullptr;
        makeObject(making, [&] { return made = construct(this); });
        return made;
    }

    /// Deletes an object that it has made; null is none.
    void remove(QWidget* object);

    bool handleEvent(int event, int a, int b, QString text, void* payload) override;

Q_SIGNALS:
    /// @p payload is valid during the call only. A receiver may do anything, deleting the sender included.
    void eventArrived(int event, int a, int b, const QString& text, void* payload);

private:
    void makeObject(const ObjectMaking& making, const std::function<QWidget*()>& construct);

    QPointer<Recorder> m_recorder;
};

/// Carries out a command on @p object, or on a part of it: "on" is filled in by the recorder of the host above it.
void carryOutAsHost(QWidget& object, replay::Json command, const std::function<replay::Json()>& carryOut);

} // namespace workbench
