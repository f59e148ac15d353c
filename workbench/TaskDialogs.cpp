#include "workbench/TaskDialogs.h"

#include "workbench/Vocabulary.h"

#include <OrderParamTable_mini/tables/CBaseTaskParamWidget.h>
#include <OrderParamTable_mini/tables/CHpfBasketTaskParamWidget.h>
#include <WQ/Formatting.h>

#include <QCoreApplication>

namespace workbench {

namespace {

constexpr QSize kBasketSize(320, 200);

} // namespace

QWidget* makeTaskDialog(ttservice::CCodeOrderParam task, int traderType, bool autoBook, QWidget* parent)
{
    const QString title = translated(QT_TRANSLATE_NOOP("workbench", "Task")) + QLatin1Char(' ') + WQ::sToQs(task.code);
    auto* dialog = new TC::CBaseTaskParamWidget(task, QString(), parent, true, ttservice::ENvTraderType(traderType),
                                                autoBook, std::string());
    dialog->setTitle(title.trimmed());
    return dialog;
}

QWidget* makeBasketDialog(std::vector<ttservice::CCodeOrderParam> tasks, QWidget* parent)
{
    const int count = static_cast<int>(tasks.size());
    auto* dialog = new TC::CHpfBasketTaskParamWidget(tasks, QString(), parent, std::string());
    dialog->setTitle(QCoreApplication::translate("workbench", "Basket of %n task(s)", nullptr, count));
    dialog->resize(kBasketSize);
    return dialog;
}

} // namespace workbench
