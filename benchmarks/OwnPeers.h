#pragma once

#include "benchmarks/Peer.h"

#include <OrderParamTable_mini/semantics/OrderVocabulary.h>

namespace WQ {
class CMultiParamsTable;
}

namespace bench {

/// A contender of our own: the cell table alone or the whole panel.
class OwnPeer : public Peer
{
public:
    virtual WQ::CMultiParamsTable& table() = 0;

    void changeNumber(double value) override;
    void settle() override;
    QSet<int> shownRows() override;
};

/// The cells of a mode as a host hands them to our panel.
TC::OperationCellFlags flagsOf(const Mode& mode);

/// Switches on the feature modules without which the panel lacks rows of the common content.
void switchOnPanelModules();

} // namespace bench
