#include "contract/RecordedPanel.h"
#include "contract/Sequences.h"

#include <QtTest>

using contract::expansion;
using contract::lines;
using contract::RecordedPanel;

/// What expanding, collapsing and the user's visible cells call, in order.
class tst_ContractExpansion : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void expansionCallsInOrder_data();
    void expansionCallsInOrder();
    void collapsingKeepsTheAlgorithmCellsOfTheUser();
    void loadingTheWordDoesNothingWhileExpanded();
    void loadingTheWordOfAnUnlistedTypeClearsTheChoice();
    void savingReadsTheTableUnlessSkipped();
};

void tst_ContractExpansion::init()
{
    recorder::reset();
}

void tst_ContractExpansion::expansionCallsInOrder_data()
{
    QTest::addColumn<int>("orderType");
    QTest::addColumn<bool>("expanded");
    QTest::addColumn<quint32>("word");
    for (const int type : {0, 1, 2, 3, 5}) {
        for (const bool expanded : {true, false})
            QTest::addRow("order type %d, %s", type, expanded ? "expanded" : "collapsed") << type << expanded << 0u;
    }
    for (const int type : {0, 1, 2, 3})
        QTest::addRow("order type %d, collapsed to a choice", type) << type << false << 0x2A03u;
}

void tst_ContractExpansion::expansionCallsInOrder()
{
    QFETCH(int, orderType);
    QFETCH(bool, expanded);
    QFETCH(quint32, word);
    RecordedPanel panel;
    panel.table.m_orderType = ttservice::EOrderType(orderType);
    if (orderType < 4)
        panel.table.m_visibleFlags[std::size_t(orderType)] = word;

    panel.table.setExpandItemsHidden(!expanded);

    QCOMPARE(recorder::calls(), expansion({orderType, expanded, 0, word}));
}

void tst_ContractExpansion::collapsingKeepsTheAlgorithmCellsOfTheUser()
{
    RecordedPanel panel;
    panel.table.m_orderType = ttservice::EOrderType(1);
    panel.table.m_visibleFlags[1] = 0x3E00;

    panel.table.setExpandItemsHidden(true);

    QCOMPARE(recorder::calls(), lines(R"(
        table.setExpand(false)
        table.setVisibleItemSet({0x200, 0x400, 0x800, 0x1000, 0x2000})
        table.addAllItemSet(0x2)
        table.addAllItemSet(0x4)
        table.setItemHidden(0x2, false)
        table.setItemHidden(0x4, true)
        table.setFixedHeight(realHeight)
    )"));
}

void tst_ContractExpansion::loadingTheWordDoesNothingWhileExpanded()
{
    RecordedPanel panel;
    panel.table.m_visibleFlags[0] = 0x3;
    panel.table.setExpandItemsHidden(false);
    recorder::clear();

    panel.table.loadVisibleFlag();

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

void tst_ContractExpansion::loadingTheWordOfAnUnlistedTypeClearsTheChoice()
{
    RecordedPanel panel;
    panel.table.m_visibleFlags = {0x3, 0x3, 0x3, 0x3};
    for (const int type : {-1, 4, 5, 13}) {
        panel.table.m_orderType = ttservice::EOrderType(type);
        recorder::clear();

        panel.table.loadVisibleFlag();

        QCOMPARE(recorder::calls(recorder::kEverything), lines("table.clearVisibleItem()"));
    }
}

void tst_ContractExpansion::savingReadsTheTableUnlessSkipped()
{
    RecordedPanel panel;
    panel.table.saveVisibleFlag(true);
    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());

    panel.table.saveVisibleFlag(false);
    QCOMPARE(recorder::calls(recorder::kEverything), lines("table.getVisibleItemIdSet()"));
}

QTEST_MAIN(tst_ContractExpansion)
#include "tst_ContractExpansion.moc"
