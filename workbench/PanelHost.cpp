#include "workbench/PanelHost.h"

namespace workbench {

PanelHost::PanelHost(QWidget* parent)
    : CEventWidgetT(parent)
{
}

bool PanelHost::handleEvent(int event, int a, int b, QString text, void* payload)
{
    Q_EMIT eventArrived(event, a, b, text, payload);
    return false;
}

} // namespace workbench
