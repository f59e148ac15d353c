#include "benchmarks/OwnPeers.h"

#include "benchmarks/OwnTable.h"
#include "reference/services/ServiceControl.h"

#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>

namespace bench {

namespace {

class CellTablePeer : public OwnPeer
{
public:
    explicit CellTablePeer(QWidget* stage)
        : m_table(stage, true)
    {
        addRows(m_table);
        m_table.setExpand(true);
        showRows(m_table, modes()[0].shown);
    }

    QWidget& widget() override
    {
        return m_table;
    }

    WQ::CMultiParamsTable& table() override
    {
        return m_table;
    }

    void switchTo(const Mode& mode) override
    {
        m_table.resetComboData(mode.refilled, mode.entries.texts(), mode.entries.values(), 0);
        takeValues(m_table, mode);
        showRows(m_table, mode.shown);
    }

private:
    WQ::CMultiParamsTable m_table;
};

/// The whole panel of the stock table, switched by what a host calls. The panel's rules leave the limit price to it.
class PanelPeer : public OwnPeer
{
public:
    explicit PanelPeer(QWidget* stage)
        : m_panel(TC::EOpParamWidgetID(5), ttservice::BROKER_TYPE_STOCK, true, stage, true, ttservice::TRADER_TYPE_1,
                  false)
    {
        m_panel.setOrderType(ttservice::ORDER_TYPE_NONE);
        m_panel.setExpandItemsHidden(false);
        m_panel.setFlag(flagsOf(modes()[0]));
    }

    QWidget& widget() override
    {
        return m_panel;
    }

    WQ::CMultiParamsTable& table() override
    {
        return *m_panel.getMultiParamsTable();
    }

    void switchTo(const Mode& mode) override
    {
        m_panel.setOperationType(ttservice::EOperationType(mode.operation));
        takeValues(table(), mode);
        table().setItemHidden(TC::OCF_LimitPrice, !mode.shown.contains(TC::OCF_LimitPrice));
        m_panel.setFlag(flagsOf(mode));
    }

private:
    TC::CGlobalOrderParamTable m_panel;
};

} // namespace

TC::OperationCellFlags flagsOf(const Mode& mode)
{
    int flags = 0;
    for (const int id : mode.shown)
        flags |= id;
    return TC::OperationCellFlags(QFlag(flags));
}

void switchOnPanelModules()
{
    reference::setModules(
        {QStringLiteral("mdl_alg/mdl_alg_randvolume"), QStringLiteral("mdl_order/mdl_order_command_remark")});
}

void OwnPeer::changeNumber(double value)
{
    table().setItemDouble(kChangedCell, value);
}

// Asking for the number of rows tells the view what has been gathered, and asking for a place lays it out.
void OwnPeer::settle()
{
    table().visualRect(table().model()->index(0, 0));
    table().model()->rowCount();
}

QSet<int> OwnPeer::shownRows()
{
    return shownRowsOf(table());
}

std::unique_ptr<Peer> makeCellTable(QWidget* stage)
{
    return std::make_unique<CellTablePeer>(stage);
}

std::unique_ptr<Peer> makePanel(QWidget* stage)
{
    return std::make_unique<PanelPeer>(stage);
}

} // namespace bench
