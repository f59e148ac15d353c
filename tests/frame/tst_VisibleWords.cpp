#include "frame/VisibleCells.h"
#include "support/BaseTableProbe.h"
#include "support/CellText.h"

#include <WQ/CMultiParamsTable.h>

#include <QtTest>

using namespace support;

namespace {

QSet<int> ownedCells(BaseTableProbe& table)
{
    QSet<int> owned;
    for (const CellRule& rule : kCellRules) {
        if (table.m_table->getItem(rule.id))
            owned.insert(rule.id);
    }
    return owned;
}

void setOrderType(BaseTableProbe& table, int type)
{
    table.setOrderType(ttservice::EOrderType(type));
}

} // namespace

/// The words that keep a user's choice of cells, and what collapsing makes of them.
class tst_VisibleWords : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void collapsedTableWithoutAWordShowsNoFilter();
    void emptyChoiceNeverOverwritesAWord();
    void choiceIsKeptByOrderType();
    void aChoiceReplacesTheOneBefore();
    void orderTypesBeyond3KeepNoChoice();
    void skippedOrExpandedTablesKeepTheirChoice();
    void limitPriceLeavesAFilteredTableAgain();
    void collapsingInOrderType1HidesWhatTheWordLacks_data();
    void collapsingInOrderType1HidesWhatTheWordLacks();
};

void tst_VisibleWords::collapsedTableWithoutAWordShowsNoFilter()
{
    BaseTableProbe table;
    table.m_table->setVisibleItemSet({TC::OCF_PriceType});
    table.loadVisibleFlag();
    QCOMPARE(table.m_table->getVisibleItemIdSet(), QSet<int>());

    table.setExpandItemsHidden(false);
    table.m_table->setVisibleItemSet({TC::OCF_PriceType});
    table.loadVisibleFlag();
    QCOMPARE(table.m_table->getVisibleItemIdSet(), QSet<int>({TC::OCF_PriceType}));
}

void tst_VisibleWords::emptyChoiceNeverOverwritesAWord()
{
    BaseTableProbe table;
    table.m_visibleFlags[0] = 0x3;
    table.m_table->clearVisibleItem();
    table.saveVisibleFlag(false);
    QCOMPARE(table.m_visibleFlags[0], 0x3u);
}

void tst_VisibleWords::choiceIsKeptByOrderType()
{
    BaseTableProbe table;
    for (int type = 0; type < 4; ++type) {
        setOrderType(table, type);
        table.m_table->setVisibleItemSet({0x2, 0x100 << type, 0x4000000});
        table.saveVisibleFlag(false);
    }
    for (int type = 0; type < 4; ++type)
        QCOMPARE(table.m_visibleFlags[std::size_t(type)], 0x4000002u | (0x100u << type));
    setOrderType(table, 2);
    QCOMPARE(idText(table.m_table->getVisibleItemIdSet()), QStringLiteral("0x2 0x400 0x4000000"));
    QCOMPARE(idText(shownCells(*table.m_table)), QStringLiteral("0x2"));
}

void tst_VisibleWords::aChoiceReplacesTheOneBefore()
{
    BaseTableProbe table;
    for (int type = 0; type < 4; ++type) {
        setOrderType(table, type);
        table.m_table->setVisibleItemSet({0x1, 0x2, 0x4000000});
        table.saveVisibleFlag(false);
        table.m_table->setVisibleItemSet({0x2, 0x8});
        table.saveVisibleFlag(false);
        QCOMPARE(table.m_visibleFlags[std::size_t(type)], 0xAu);
    }
}

void tst_VisibleWords::orderTypesBeyond3KeepNoChoice()
{
    for (const int type : {-1, 4, 5, 12, 13}) {
        BaseTableProbe table;
        setOrderType(table, type);
        table.m_table->setVisibleItemSet({0x2});
        table.saveVisibleFlag(false);
        for (const quint32 word : table.m_visibleFlags)
            QCOMPARE(word, 0u);
        table.loadVisibleFlag();
        QCOMPARE(table.m_table->getVisibleItemIdSet(), QSet<int>());
    }
}

void tst_VisibleWords::skippedOrExpandedTablesKeepTheirChoice()
{
    BaseTableProbe table;
    table.m_table->setVisibleItemSet({0x1, 0x2});
    table.saveVisibleFlag(true);
    QCOMPARE(table.m_visibleFlags[0], 0u);
    table.saveVisibleFlag(false);
    QCOMPARE(table.m_visibleFlags[0], 0x3u);
    table.m_table->setVisibleItemSet({0x2});
    table.setExpandItemsHidden(false);
    QCOMPARE(table.m_table->getVisibleItemIdSet(), QSet<int>());
    QCOMPARE(table.m_visibleFlags[0], 0x3u);
    table.setExpandItemsHidden(true);
    QCOMPARE(idText(table.m_table->getVisibleItemIdSet()), QStringLiteral("0x1 0x2"));
}

void tst_VisibleWords::limitPriceLeavesAFilteredTableAgain()
{
    for (const bool byButton : {false, true}) {
        BaseTableProbe table;
        table.m_visibleFlags[1] = 0x2000003;
        if (byButton)
            table.sendEvent(5, 601);
        else
            setOrderType(table, 1);
        QCOMPARE(idText(table.m_table->getVisibleItemIdSet()), QStringLiteral("0x1 0x2"));
        QCOMPARE(idText(shownCells(*table.m_table)), QStringLiteral("0x1 0x2"));
        QVERIFY(!isHidden(*table.m_table, TC::OCF_LimitPrice));
        QCOMPARE(table.m_visibleFlags[1], 0x2000003u);
    }
}

void tst_VisibleWords::collapsingInOrderType1HidesWhatTheWordLacks_data()
{
    QTest::addColumn<quint32>("word");
    QTest::addColumn<QString>("notHidden");
    const QString always = QStringLiteral("0x1 0x2 0x8 0x10");
    QTest::newRow("no word") << 0x0u << always + QStringLiteral(" 0x2000000");
    QTest::newRow("the minimum volume") << 0x200u << always + QStringLiteral(" 0x200 0x2000000");
    QTest::newRow("the order count") << 0x1000u << always + QStringLiteral(" 0x1000 0x2000000");
    QTest::newRow("the handling") << 0x2000u << always + QStringLiteral(" 0x2000 0x2000000");
    QTest::newRow("all of them") << 0x3E00u << always + QStringLiteral(" 0x200 0x400 0x800 0x1000 0x2000 0x2000000");
}

void tst_VisibleWords::collapsingInOrderType1HidesWhatTheWordLacks()
{
    QFETCH(quint32, word);
    QFETCH(QString, notHidden);
    BaseTableProbe table;
    setOrderType(table, 1);
    table.setExpandItemsHidden(false);
    table.m_visibleFlags[1] = word;
    table.setExpandItemsHidden(true);
    // Expanding shows all six whatever the rules say, and collapsing takes back only what the word lacks.
    QSet<int> remaining;
    for (const int id : ownedCells(table)) {
        if (!isHidden(*table.m_table, id))
            remaining.insert(id);
    }
    QCOMPARE(idText(remaining), notHidden);
}

QTEST_MAIN(tst_VisibleWords)
#include "tst_VisibleWords.moc"
