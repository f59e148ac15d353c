#include "workbench/TourStages.h"

#include "workbench/CreditPanel.h"
#include "workbench/HostCalls.h"
#include "workbench/MainWindow.h"
#include "workbench/OrderControls.h"
#include "workbench/PanelStates.h"
#include "workbench/Recorder.h"
#include "workbench/Snapshot.h"
#include "workbench/TableBench.h"
#include "workbench/TaskDialogs.h"
#include "workbench/WhyPanel.h"

#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <WQ/CPushButton.h>
#include <WQ/Formatting.h>

#include <boost/make_shared.hpp>

#include <QApplication>
#include <QDockWidget>
#include <QHBoxLayout>

namespace workbench {

namespace {

int panelHeight()
{
    const double scale = WQ::resources::scale();
    return WQ::resources::size(WQ::keys::kPanelQuotesHeight, scale)
        + WQ::resources::size(WQ::keys::kPanelTopHeight, scale);
}

/// The panel at its own height when it scrolls, as high as all of its rows otherwise.
void fitBench(TableBench& bench, PanelState state)
{
    TC::COrderParamBaseTable& table = *bench.table();
    const int strip = WQ::resources::size(WQ::keys::kStripHeight, 1.0);
    const int needed = state == PanelState::Scrolled ? 0 : strip + table.getMultiParamsTable()->realHeight();
    bench.resize(table.width(), qMax(panelHeight(), needed));
}

ttservice::CCodeOrderParam sampleTask(const TaskStop& stop)
{
    ttservice::CCodeOrderParam task;
    if (stop.brokerType != 0) {
        task.account = boost::make_shared<ttservice::CAccountInfoV2>();
        task.account->brokerType = ttservice::ENVBrokerType(stop.brokerType);
        task.account->accountId = "8800 1234";
        task.account->accountName = QStringLiteral("示例账户").toStdString();
    }
    task.operationType = ttservice::EOperationType(stop.operationType);
    task.orderType = ttservice::EOrderType(stop.orderType);
    task.code = "600000";
    task.name = QStringLiteral("示例股份").toStdString();
    task.priceType = ttservice::PRTP_FIX;
    task.price = 10.23;
    task.volume = 12000;
    return task;
}

/// A dialog deletes itself when closed; on stage it belongs to the tour.
Stage shown(std::unique_ptr<QWidget> window, qreal pixelRatio, std::unique_ptr<QWidget> host = nullptr)
{
    window->setAttribute(Qt::WA_DeleteOnClose, false);
    window->move(0, 0);
    window->show();
    window->activateWindow();
    settle();
    // At rest nothing has the focus; a state that needs it takes it.
    if (QWidget* focus = QApplication::focusWidget())
        focus->clearFocus();
    return {std::move(host), std::move(window), pixelRatio};
}

} // namespace

Stage stagePanel(const PanelStop& stop)
{
    TableSetup setup;
    setup.identity = stop.identity;
    setup.brokerType = stop.brokerType;
    TableDrive drive;
    drive.orderType = stop.orderType;
    drive.expanded = stop.expanded;
    drive.enabled = stop.state != PanelState::Disabled;

    auto bench = std::make_unique<TableBench>();
    TableBench& panel = *bench;
    panel.rebuild(setup, drive);
    fitBench(panel, stop.state);
    Stage stage = shown(std::move(bench), 1.0);
    bringInto(*panel.table(), stop.state);
    settle();
    return stage;
}

Stage stageTask(const TaskStop& stop)
{
    auto host = std::make_unique<PanelHost>();
    std::unique_ptr<QWidget> dialog(makeTaskDialog(*host, "task", sampleTask(stop), stop.traderType, false));
    // The dialogs keep their size at every UI scale: their picture grows by its pixels instead.
    Stage stage = shown(std::move(dialog), WQ::resources::scale(), std::move(host));
    if (!stop.expanded)
        return stage;
    for (auto* button : stage.window->findChildren<WQ::CPushButton*>())
        if (button->parentWidget() == stage.window.get() && button->iconKey() == WQ::keys::kExpandImage)
            button->click();
    settle();
    return stage;
}

Stage stageBasket()
{
    auto host = std::make_unique<PanelHost>();
    std::unique_ptr<QWidget> dialog(makeBasketDialog(*host, "basket", std::vector<ttservice::CCodeOrderParam>(3)));
    return shown(std::move(dialog), WQ::resources::scale(), std::move(host));
}

Stage stageCredit(const CreditStop& stop)
{
    auto host = std::make_unique<PanelHost>();
    auto* layout = new QHBoxLayout(host.get());
    layout->setContentsMargins(0, 0, 0, 0);
    auto* table = new TC::CCreditParamTable;
    layout->addWidget(table);
    auto* cells = table->findChild<WQ::CMultiParamsTable*>();
    hostCall(*cells, calls::kResetComboData, 726, QStringList{QStringLiteral("8800 5678")},
             QVector<QVariant>{QStringLiteral("88005678")}, 0);
    if (stop.operation >= 0)
        hostCall(*table, calls::kSetCreditParam, creditParam(stop.operation));
    table->setFixedSize(WQ::resources::size(WQ::keys::kPanelWidth, WQ::resources::scale()), table->realHeight());
    return shown(std::move(host), 1.0);
}

Stage stageWindow(const WindowStop& stop, const HostData& data)
{
    auto window = std::make_unique<MainWindow>(data);
    MainWindow& workbench = *window;
    workbench.chooseLanguage(QLatin1String(stop.language));
    workbench.resize(QSize(stop.width, stop.height) * WQ::resources::scale());
    Stage stage = shown(std::move(window), 1.0);
    if (auto* dock = workbench.findChild<QDockWidget*>(QLatin1String(stop.dock)))
        dock->raise();
    settle();
    if (stop.orderType < 0)
        return stage;
    if (QLatin1String(stop.dock) == QLatin1String("recorderDock"))
        workbench.recorder()->start();
    if (!data.tasks.empty())
        workbench.findChild<OrderControls*>()->chooseCode(WQ::sToQs(data.tasks.front().code));
    TC::COrderParamBaseTable* table = workbench.bench()->table();
    hostCall(*table, calls::kSetOrderType, ttservice::EOrderType(stop.orderType));
    hostCall(*table, calls::kSetExpandItemsHidden, false);
    hostCall(*table, calls::kSelectPrice, ttservice::PRTP_BUY1);
    hostCall(*table, calls::kSetFixedPrice, 10.23);
    if (auto* why = workbench.findChild<WhyPanel*>())
        why->choose(TC::OCF_TailMinVolume);
    if (QLatin1String(stop.dock) == QLatin1String("finder"))
        workbench.find();
    settle();
    return stage;
}

} // namespace workbench
