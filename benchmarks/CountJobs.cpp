#include "benchmarks/CountJobs.h"

#include "benchmarks/OwnPeers.h"
#include "benchmarks/Rounds.h"
#include "benchmarks/Stage.h"

#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>

#include <functional>

namespace bench {

namespace {

struct Job
{
    const char* name;
    std::function<void(Stage&, const Contender&)> prepare;
    std::function<void(Stage&, const Contender&)> run;
};

void put(Stage& stage, const Contender& contender)
{
    stage.put(contender);
    stage.peer().switchTo(modes()[0]);
    Stage::run();
}

void nothing(Stage&, const Contender&)
{
}

const std::vector<Job>& jobs()
{
    static const std::vector<Job> all = {
        {"construct", nothing, [](Stage& stage, const Contender& contender) { stage.put(contender); }},
        {"switch", put, [](Stage& stage, const Contender&) { stage.peer().switchTo(modes()[1]); }},
        {"repaint", put, [](Stage& stage, const Contender&) { stage.paintWhole(); }},
        {"value", put, [](Stage& stage, const Contender&) { stage.peer().changeNumber(changedNumber(1)); }},
    };
    return all;
}

EventCounts countOf(const Job& job, const Contender& contender)
{
    Stage stage;
    job.prepare(stage, contender);
    const EventCounter counter;
    job.run(stage, contender);
    Stage::run();
    return counter.counts;
}

void setCounts(benchmark::State& state, const std::string& contender, const EventCounts& counts)
{
    state.counters[contender + ".events"] = counts.events;
    state.counters[contender + ".paints"] = counts.paints;
    state.counters[contender + ".layouts"] = counts.layouts;
    state.counters[contender + ".resizes"] = counts.resizes;
}

void count(benchmark::State& state, const Job& job)
{
    for (const Contender& contender : contenders())
        setCounts(state, contender.name, countOf(job, contender));
    while (state.KeepRunning())
        state.SetIterationTime(0);
}

void countWidgets(benchmark::State& state)
{
    for (const Contender& contender : contenders()) {
        Stage stage;
        QWidget& widget = stage.put(contender).widget();
        state.counters[contender.name] = 1 + widget.findChildren<QWidget*>().size();
    }
    while (state.KeepRunning())
        state.SetIterationTime(0);
}

using PanelCall = void (*)(TC::CGlobalOrderParamTable&);

// Layout requests, resizes and paints of a call that changes nothing to be seen.
int disturbance(PanelCall call)
{
    Stage stage;
    put(stage, contenders()[PanelIndex]);
    auto& panel = dynamic_cast<TC::CGlobalOrderParamTable&>(stage.peer().widget());
    call(panel);
    Stage::run();
    const EventCounter counter;
    call(panel);
    Stage::run();
    return counter.counts.layouts + counter.counts.resizes + counter.counts.paints;
}

void countUnchanged(benchmark::State& state)
{
    using Panel = TC::CGlobalOrderParamTable;
    state.counters["order_type"] = disturbance([](Panel& panel) { panel.setOrderType(panel.orderType()); });
    state.counters["operation_type"] =
        disturbance([](Panel& panel) { panel.setOperationType(panel.getOperationType()); });
    state.counters["flag"] = disturbance([](Panel& panel) { panel.setFlag(flagsOf(modes()[0])); });
    state.counters["expansion"] = disturbance([](Panel& panel) { panel.setExpandItemsHidden(false); });
    while (state.KeepRunning())
        state.SetIterationTime(0);
}

} // namespace

void registerCountJobs()
{
    registerRounds("unchanged", countUnchanged, 1);
    for (const Job& job : jobs()) {
        const auto run = [&job](benchmark::State& state) { count(state, job); };
        benchmark::RegisterBenchmark((std::string("counts_") + job.name).c_str(), run)->UseManualTime()->Iterations(1);
    }
    registerRounds("widgets", countWidgets, 1);
}

} // namespace bench
