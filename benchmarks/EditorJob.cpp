#include "benchmarks/EditorJob.h"

#include "benchmarks/OwnPeers.h"
#include "benchmarks/Rounds.h"
#include "benchmarks/Stage.h"
#include "benchmarks/Stopwatch.h"
#include "reference/toolkit/cells/CellModel.h"

#include <WQ/CMultiParamsTable.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSpinBox>

namespace bench {

namespace {

void press(QWidget* widget, int key)
{
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(widget, &down);
}

double timeSpinBox(Stage& stage)
{
    constexpr QRect kRow(120, 26, 120, 26);
    const Stopwatch watch;
    QSpinBox box(&stage.window());
    box.setRange(1, 1000000);
    box.setValue(1);
    box.setGeometry(kRow);
    box.show();
    Stage::run();
    return watch.seconds();
}

/// The table has the focus, as after a click on its row.
WQ::CMultiParamsTable& goToCell(Stage& stage)
{
    auto& table = dynamic_cast<OwnPeer&>(stage.peer()).table();
    const auto& cells = dynamic_cast<const WQ::CellModel&>(*table.model());
    QApplication::setActiveWindow(&stage.window());
    table.setFocus();
    table.setCurrentIndex(cells.valueIndex(kChangedCell));
    Stage::run();
    return table;
}

double timeEditor(WQ::CMultiParamsTable& table)
{
    const Stopwatch watch;
    press(&table, Qt::Key_F2);
    Stage::run();
    const double seconds = watch.seconds();
    if (!qobject_cast<QLineEdit*>(QApplication::focusWidget()))
        qFatal("the editor does not open");
    press(QApplication::focusWidget(), Qt::Key_Escape);
    Stage::run();
    return seconds;
}

double timeFirstEditor(Stage& stage, const Contender& contender)
{
    stage.put(contender);
    Stage::run();
    const double seconds = timeEditor(goToCell(stage));
    stage.clear();
    Stage::run();
    return seconds;
}

} // namespace

void openEditor(benchmark::State& state)
{
    Stage spinBox;
    Stage first;
    Stage again;
    again.put(contenders()[PanelIndex]);
    Interleaved rounds;
    rounds.add("spin_box", [&spinBox] { return timeSpinBox(spinBox); });
    rounds.add("panel_first", [&first] { return timeFirstEditor(first, contenders()[PanelIndex]); });
    rounds.add("panel_again", [&again] { return timeEditor(goToCell(again)); });
    playRounds(state, rounds);
}

} // namespace bench
