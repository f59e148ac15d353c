#include "benchmarks/CostJobs.h"

#include "benchmarks/OwnPeers.h"
#include "benchmarks/Stage.h"

#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>

#include <functional>

#if __has_include(<valgrind/callgrind.h>)
#include <valgrind/callgrind.h>
#else
#define CALLGRIND_START_INSTRUMENTATION
#define CALLGRIND_STOP_INSTRUMENTATION
#define CALLGRIND_ZERO_STATS
#define CALLGRIND_DUMP_STATS_AT(name)
#endif

namespace bench {

namespace {

using Operation = std::function<void(Stage&)>;

struct Job
{
    const char* name;
    bool onPanelAlone;
    Operation run;
};

TC::CGlobalOrderParamTable& panelOn(Stage& stage)
{
    return dynamic_cast<TC::CGlobalOrderParamTable&>(stage.peer().widget());
}

/// What a host asks for and the panel is already.
const std::vector<Job>& unchanged()
{
    static const std::vector<Job> all = {
        {"same-order-type", true, [](Stage& stage) { panelOn(stage).setOrderType(panelOn(stage).orderType()); }},
        {"same-operation", true,
         [](Stage& stage) { panelOn(stage).setOperationType(panelOn(stage).getOperationType()); }},
        {"same-flag", true, [](Stage& stage) { panelOn(stage).setFlag(flagsOf(modes()[0])); }},
        {"same-expansion", true, [](Stage& stage) { panelOn(stage).setExpandItemsHidden(false); }},
        {"same-value", false, [](Stage& stage) { stage.peer().changeNumber(changedNumber(1)); }},
    };
    return all;
}

const std::vector<Job>& changing()
{
    static const std::vector<Job> all = {
        {"switch", false, [](Stage& stage) { stage.peer().switchTo(modes()[1]); }},
        {"repaint", false, [](Stage& stage) { stage.paintWhole(); }},
        {"value", false, [](Stage& stage) { stage.peer().changeNumber(changedNumber(2)); }},
        {"algorithm", true, [](Stage& stage) { panelOn(stage).setOrderType(ttservice::ORDER_TYPE_ALGORITHM); }},
        {"collapse", true, [](Stage& stage) { panelOn(stage).setExpandItemsHidden(true); }},
    };
    return all;
}

/// Does an operation, named after the contender that does it.
using Doing = std::function<void(const QString& name, const std::function<void()>& operation)>;

class Counting
{
public:
    explicit Counting(long (*allocations)())
        : m_allocations(allocations)
    {
    }

    // Nothing of the counting itself may stand between the marks: a name made there would allocate.
    void count(const QString& name, const std::function<void()>& operation)
    {
        const QByteArray mark = name.toLatin1();
        const EventCounter events;
        const long before = m_allocations();
        CALLGRIND_START_INSTRUMENTATION;
        CALLGRIND_ZERO_STATS;
        operation();
        CALLGRIND_DUMP_STATS_AT(mark.constData());
        CALLGRIND_STOP_INSTRUMENTATION;
        const long allocations = m_allocations() - before;
        m_costs.insert(name + QLatin1String(" allocations"), double(allocations));
        m_costs.insert(name + QLatin1String(" events"), events.counts.events);
        m_costs.insert(name + QLatin1String(" layouts"), events.counts.layouts + events.counts.resizes);
        m_costs.insert(name + QLatin1String(" paints"), events.counts.paints);
    }

    const Costs& costs() const
    {
        return m_costs;
    }

private:
    long (*m_allocations)();
    Costs m_costs;
};

void standOn(Stage& stage, const Contender& contender)
{
    stage.put(contender);
    stage.peer().switchTo(modes()[0]);
    stage.peer().changeNumber(changedNumber(1));
    Stage::run();
}

void doAll(const Contender& contender, const Doing& doing)
{
    Stage stage;
    const QString name = QLatin1String(contender.name);
    const auto nameOf = [&name](const char* job) { return QLatin1String(job) + QLatin1Char(' ') + name; };
    doing(nameOf("construct"), [&] {
        stage.put(contender);
        Stage::run();
    });
    const bool isPanel = dynamic_cast<TC::CGlobalOrderParamTable*>(&stage.peer().widget());
    for (const auto* jobs : {&unchanged(), &changing()}) {
        for (const Job& job : *jobs) {
            if (job.onPanelAlone && !isPanel)
                continue;
            standOn(stage, contender);
            doing(nameOf(job.name), [&] {
                job.run(stage);
                Stage::run();
            });
        }
    }
    doing(nameOf("destroy"), [&] { stage.clear(); });
}

} // namespace

// Once for what is made once a process: fonts, themes, shared lists. What is not counted leaves no marks, each of which
// makes callgrind translate the program anew.
Costs countCosts(long (*allocations)())
{
    Counting counting(allocations);
    const Doing warmUp = [](const QString&, const std::function<void()>& operation) { operation(); };
    const Doing counted = [&counting](const QString& name, const std::function<void()>& operation) {
        counting.count(name, operation);
    };
    for (const Doing& doing : {warmUp, counted}) {
        for (const ContenderIndex own : {CellTableIndex, PanelIndex})
            doAll(contenders()[own], doing);
    }
    return counting.costs();
}

} // namespace bench
