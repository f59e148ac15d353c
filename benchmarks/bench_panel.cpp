// What an order panel costs beside the same panel of Qt's own widgets.

#include "benchmarks/Interleaved.h"
#include "benchmarks/NativeForm.h"
#include "reference/services/ServiceControl.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/cells/CellModel.h"

#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>
#include <WQ/CMultiParamsTable.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QEvent>

#include <cstdio>
#include <ctime>
#include <memory>

namespace {

using WidgetPointer = std::unique_ptr<QWidget>;

constexpr int kWarmUpRounds = 5;

/// Processor seconds of this process since it was made. By the wall clock a busy machine would stretch the longer job
/// alone: the shorter one fits between two interruptions.
class Stopwatch
{
public:
    double seconds() const
    {
        return now() - m_start;
    }

private:
    static double now()
    {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    }

    double m_start = now();
};

/// Counts the paint events of the whole application while it lives.
class PaintCounter : public QObject
{
public:
    PaintCounter()
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int paints = 0;
};

/// The stock table, whose catalogue has every kind of cell.
std::unique_ptr<TC::CGlobalOrderParamTable> makePanel()
{
    return std::make_unique<TC::CGlobalOrderParamTable>(TC::EOpParamWidgetID(5), ttservice::BROKER_TYPE_STOCK, true,
                                                        nullptr, true, ttservice::TRADER_TYPE_1, false);
}

const WQ::CellModel& cellsOf(TC::CGlobalOrderParamTable& panel)
{
    return dynamic_cast<const WQ::CellModel&>(*panel.getMultiParamsTable()->model());
}

/// What the form must have to be the same panel.
struct PanelContent
{
    QStringList rowNames;
    QSet<int> shown;
    QSize size;
};

PanelContent contentOfPanel()
{
    const auto panel = makePanel();
    const WQ::CellModel& cells = cellsOf(*panel);
    PanelContent content;
    content.size = panel->size();
    for (int i = 0; i < cells.cellCount(); ++i) {
        const WQ::CellItem* cell = cells.itemAt(i)->cell();
        content.rowNames.append(QStringLiteral("0x%1 %2").arg(QString::number(cell->id(), 16), cell->label()));
        if (cells.isShown(*cell))
            content.shown.insert(cell->id());
    }
    return content;
}

/// Construction and first show, with the layout and the paint that follow from it.
template <class Make>
double timeFirstShow(const Make& make)
{
    const Stopwatch watch;
    const WidgetPointer widget = make();
    widget->show();
    QCoreApplication::processEvents();
    return watch.seconds();
}

template <class Make>
bool isPaintedByFirstShow(const Make& make)
{
    const PaintCounter counter;
    timeFirstShow(make);
    return counter.paints > 0;
}

/// One iteration is one round; its time is the panel's, the peer's stands in the counters.
void runRounds(benchmark::State& state, bench::Interleaved& contenders, const char* job)
{
    contenders.warmUp(kWarmUpRounds);
    while (state.KeepRunning()) {
        contenders.round();
        state.SetIterationTime(contenders.last(1));
    }
    for (int i = 0; i < contenders.contenders(); ++i)
        state.counters[contenders.name(i) + "_ms"] = contenders.median(i) * 1e3;
    state.counters["ratio"] = contenders.ratio(1);
    std::printf("%s: %s %.3f ms, %s %.3f ms, ratio of medians %.3f\n", job, contenders.name(1).c_str(),
                contenders.median(1) * 1e3, contenders.name(0).c_str(), contenders.median(0) * 1e3,
                contenders.ratio(1));
}

void constructAndFirstShow(benchmark::State& state)
{
    const PanelContent content = contentOfPanel();
    const auto makeForm = [&content] {
        auto form = std::make_unique<bench::NativeForm>(content.shown);
        form->resize(content.size);
        return form;
    };
    if (content.rowNames != bench::NativeForm::rowNames())
        return state.SkipWithError("the panel and the form have different rows");
    if (!isPaintedByFirstShow(makeForm) || !isPaintedByFirstShow(makePanel))
        return state.SkipWithError("the first show paints nothing here");
    bench::Interleaved contenders;
    contenders.add("native_form", [&makeForm] { return timeFirstShow(makeForm); });
    contenders.add("panel", [] { return timeFirstShow(makePanel); });
    runRounds(state, contenders, "construction and first show");
}

BENCHMARK(constructAndFirstShow)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(200);

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    QApplication application(argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    reference::setModules(
        {QStringLiteral("mdl_alg/mdl_alg_randvolume"), QStringLiteral("mdl_order/mdl_order_command_remark")});
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
