#pragma once

#include <WQ/CEventWidgetT.h>

#include <QWidget>

namespace workbench {

/// How a host listens: a widget among the ancestors of the tables that is an event deliverer itself. It answers false,
/// so that the events climb on.
class PanelHost : public WQ::CEventWidgetT<QWidget>
{
    Q_OBJECT
public:
    explicit PanelHost(QWidget* parent = nullptr);

    bool handleEvent(int event, int a, int b, QString text, void* payload) override;

Q_SIGNALS:
    /// @p payload is valid during the call only. A receiver may do anything, deleting the sender included.
    void eventArrived(int event, int a, int b, const QString& text, void* payload);
};

} // namespace workbench
