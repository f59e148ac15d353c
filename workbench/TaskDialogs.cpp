#include "workbench/TaskDialogs.h"

#include "workbench/HostCalls.h"
#include "workbench/Vocabulary.h"

#include <OrderParamTable_mini/tables/CBaseTaskParamWidget.h>
#include <OrderParamTable_mini/tables/CHpfBasketTaskParamWidget.h>
#include <WQ/Formatting.h>

#include <QCoreApplication>

namespace workbench {

namespace {

constexpr QSize kBasketSize(320, 200);

} // namespace

QWidget* makeTaskDialog(PanelHost& host, const std::string& name, ttservice::CCodeOrderParam task, int traderType,
                        bool autoBook)
{
    using replay::Json;
    const QString title = translated(QT_TRANSLATE_NOOP("workbench", "Task")) + QLatin1Char(' ') + WQ::sToQs(task.code);
    auto* dialog = host.make<WQ::CFloatWidget>(
        {"CBaseTaskParamWidget", name, Json::array({replay::written(task), "", true, traderType, autoBook, ""})},
        [&](QWidget* parent) {
            return new TC::CBaseTaskParamWidget(task, QString(), parent, true, ttservice::ENvTraderType(traderType),
                                                autoBook, std::string());
        });
    hostCall(*dialog, calls::kSetDialogTitle, title.trimmed());
    return dialog;
}

QWidget* makeBasketDialog(PanelHost& host, const std::string& name, std::vector<ttservice::CCodeOrderParam> tasks)
{
    using replay::Json;
    const int count = static_cast<int>(tasks.size());
    Json records = Json::array();
    for (const ttservice::CCodeOrderParam& task : tasks)
        records.push_back(replay::written(task));
    auto* dialog = host.make<WQ::CFloatWidget>(
        {"CHpfBasketTaskParamWidget", name, Json::array({records, "", ""})},
        [&](QWidget* parent) { return new TC::CHpfBasketTaskParamWidget(tasks, QString(), parent, std::string()); });
    hostCall(*dialog, calls::kSetDialogTitle,
             QCoreApplication::translate("workbench", "Basket of %n task(s)", nullptr, count));
    dialog->resize(kBasketSize);
    return dialog;
}

} // namespace workbench
