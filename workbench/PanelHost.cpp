#include "workbench/PanelHost.h"

#include "workbench/Recorder.h"

namespace workbench {

namespace {

Recorder* recorderAbove(const QWidget& object)
{
    for (QWidget* step = object.parentWidget(); step; step = step->parentWidget())
        if (const auto* host = dynamic_cast<PanelHost*>(step))
            return host->recorder();
    return nullptr;
}

} // namespace

PanelHost::PanelHost(QWidget* parent)
    : CEventWidgetT(parent)
{
}

PanelHost::~PanelHost() = default;

void PanelHost::setRecorder(Recorder* recorder)
{
    m_recorder = recorder;
}

Recorder* PanelHost::recorder() const
{
    return m_recorder;
}

void PanelHost::makeObject(const ObjectMaking& making, const std::function<QWidget*()>& construct)
{
    if (m_recorder)
        m_recorder->make(*this, making, construct);
    else
        construct();
}

void PanelHost::remove(QWidget* object)
{
    if (m_recorder && object)
        m_recorder->remove(*object);
    else
        delete object;
}

bool PanelHost::handleEvent(int event, int a, int b, QString text, void* payload)
{
    if (m_recorder)
        m_recorder->hear(*this, event, a, b, text, payload);
    Q_EMIT eventArrived(event, a, b, text, payload);
    return false;
}

void carryOutAsHost(QWidget& object, replay::Json command, const std::function<replay::Json()>& carryOut)
{
    if (Recorder* recorder = recorderAbove(object))
        recorder->carryOut(object, std::move(command), carryOut);
    else
        carryOut();
}

} // namespace workbench
