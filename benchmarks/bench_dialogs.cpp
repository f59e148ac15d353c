// What opening a task's dialog costs beside the same dialog of Qt's own widgets, and how long a basket of ten thousand
// tasks makes a person wait.

#include "benchmarks/NativeForm.h"
#include "benchmarks/Rounds.h"
#include "benchmarks/Stage.h"
#include "benchmarks/Stopwatch.h"
#include "benchmarks/TaskList.h"

#include <OrderParamTable_mini/tables/CBaseTaskParamWidget.h>
#include <OrderParamTable_mini/tables/CHpfBasketTaskParamWidget.h>

#include <boost/make_shared.hpp>

#include <QApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>

#include <algorithm>
#include <functional>

namespace {

constexpr int kRounds = 100;
constexpr int kTasks = 10000;
constexpr double kMilliseconds = 1e3;

ttservice::CCodeOrderParam taskOf(int number)
{
    ttservice::CCodeOrderParam task;
    task.account = boost::make_shared<ttservice::CAccountInfoV2>();
    task.account->brokerType = ttservice::BROKER_TYPE_STOCK;
    task.account->accountId = "0301" + std::to_string(100000 + number % 40);
    task.account->accountName = "测试账号";
    task.operationType = ttservice::EOperationType(22);
    task.orderType = ttservice::ORDER_TYPE_ALGORITHM;
    task.code = std::to_string(600000 + number);
    task.name = "示例股份";
    task.priceType = ttservice::PRTP_LATEST;
    task.price = 10 + number * 0.01;
    task.volume = 100 * (1 + number % 90);
    return task;
}

std::vector<ttservice::CCodeOrderParam> basket()
{
    std::vector<ttservice::CCodeOrderParam> tasks;
    for (int i = 0; i < kTasks; ++i)
        tasks.push_back(taskOf(i));
    return tasks;
}

/// A dialog of the same content: the disabled form, its expand button, a line and the facts.
std::unique_ptr<QWidget> makeNativeDialog()
{
    static const QStringList facts = {QStringLiteral("账号"),  QStringLiteral("账号名称"), QStringLiteral("代码"),
                                      QStringLiteral("名称"),  QStringLiteral("方向"),     QStringLiteral("总量"),
                                      QStringLiteral("基准价")};
    auto dialog = std::make_unique<QWidget>(nullptr, Qt::Dialog);
    auto* root = new QHBoxLayout(dialog.get());
    auto* column = new QVBoxLayout;
    auto* form = new bench::NativeForm(dialog.get());
    form->widget()->setEnabled(false);
    column->addWidget(form);
    column->addWidget(new QPushButton);
    root->addLayout(column);
    auto* line = new QFrame;
    line->setFrameShape(QFrame::VLine);
    root->addWidget(line);
    auto* list = new QFormLayout;
    for (const QString& fact : facts) {
        auto* value = new QLineEdit(QStringLiteral("600000"));
        value->setEnabled(false);
        list->addRow(fact, value);
    }
    root->addLayout(list);
    return dialog;
}

std::unique_ptr<QWidget> makeOwnDialog()
{
    ttservice::CCodeOrderParam task = taskOf(0);
    auto dialog = std::make_unique<TC::CBaseTaskParamWidget>(task, QString(), nullptr, false, ttservice::TRADER_TYPE_1,
                                                             false, std::string());
    dialog->setAttribute(Qt::WA_DeleteOnClose, false);
    return dialog;
}

double timeOpening(std::unique_ptr<QWidget> (*make)())
{
    const bench::Stopwatch watch;
    const std::unique_ptr<QWidget> dialog = make();
    dialog->show();
    bench::Stage::run();
    return watch.seconds();
}

void openTaskDialog(benchmark::State& state)
{
    bench::Interleaved contenders;
    contenders.add("native", [] { return timeOpening(makeNativeDialog); });
    contenders.add("ours", [] { return timeOpening(makeOwnDialog); });
    bench::playRounds(state, contenders);
}

double millisecondsOf(const std::function<void()>& step)
{
    const bench::Stopwatch watch;
    step();
    bench::Stage::run();
    return watch.seconds() * kMilliseconds;
}

/// The longest of the steps that a person waits for: listing, then scrolling through by pages, to the end and back.
double longestStallOfList(const std::vector<ttservice::CCodeOrderParam>& tasks)
{
    constexpr int kPages = 60;
    QTableView view;
    bench::TaskList list;
    view.setModel(&list);
    view.resize(800, 500);
    view.show();
    bench::Stage::run();
    double longest = millisecondsOf([&] { list.setTasks(tasks); });
    QScrollBar* const bar = view.verticalScrollBar();
    const auto scrollTo = [&](int value) {
        longest = std::max(longest, millisecondsOf([&] { bar->setValue(value); }));
    };
    for (int page = 0; page < kPages; ++page)
        scrollTo(bar->value() + bar->pageStep());
    scrollTo(bar->maximum());
    scrollTo(0);
    return longest;
}

double openingOfBasket(std::vector<ttservice::CCodeOrderParam> tasks)
{
    std::unique_ptr<QWidget> dialog;
    return millisecondsOf([&] {
        dialog = std::make_unique<TC::CHpfBasketTaskParamWidget>(tasks, QString(), nullptr, std::string());
        dialog->setAttribute(Qt::WA_DeleteOnClose, false);
        dialog->show();
    });
}

void stallOfBasket(benchmark::State& state)
{
    constexpr int kTries = 5;
    const auto tasks = basket();
    std::vector<double> list;
    std::vector<double> dialog;
    for (int i = 0; i < kTries; ++i) {
        list.push_back(longestStallOfList(tasks));
        dialog.push_back(openingOfBasket(tasks));
    }
    for (auto* stalls : {&list, &dialog})
        std::sort(stalls->begin(), stalls->end());
    state.counters["list"] = list[kTries / 2];
    state.counters["dialog"] = dialog[kTries / 2];
    while (state.KeepRunning())
        state.SetIterationTime(0);
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    bench::registerRounds("task_dialog", openTaskDialog, kRounds);
    bench::registerRounds("basket_stall", stallOfBasket, 1);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
