#pragma once

#include "benchmarks/PanelContent.h"

#include <QWidget>

#include <memory>
#include <vector>

namespace bench {

/// One contender: a panel with the common content, however it is made. It starts in the first mode.
class Peer
{
public:
    virtual ~Peer() = default;

    /// A child of the stage that the contender was made on; destroyed with the contender.
    virtual QWidget& widget() = 0;

    virtual void switchTo(const Mode& mode) = 0;

    /// Sets the number of kChangedCell.
    virtual void changeNumber(double value) = 0;

    /// Brings the layout up to date that a widget would otherwise put off until a timer or a paint.
    virtual void settle()
    {
    }

    /// IDs of the rows that are shown.
    virtual QSet<int> shownRows() = 0;
};

struct Contender
{
    const char* name;
    std::unique_ptr<Peer> (*make)(QWidget* stage);
};

/// The native form first: the others are compared with it.
enum ContenderIndex {
    NativeFormIndex,
    NativeStripIndex,
    CellWidgetsIndex,
    LeanViewIndex,
    PaintedIndex,
    CellTableIndex,
    PanelIndex
};

const std::vector<Contender>& contenders();

std::unique_ptr<Peer> makeNativeForm(QWidget* stage);
std::unique_ptr<Peer> makeNativeFormWithStrip(QWidget* stage);
std::unique_ptr<Peer> makeCellWidgets(QWidget* stage);
std::unique_ptr<Peer> makeLeanView(QWidget* stage);
std::unique_ptr<Peer> makePainted(QWidget* stage);
std::unique_ptr<Peer> makeCellTable(QWidget* stage);
std::unique_ptr<Peer> makePanel(QWidget* stage);

} // namespace bench
