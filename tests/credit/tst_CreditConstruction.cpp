#include "credit/CreditPanel.h"

#include "support/CellText.h"

#include <WQ/CUiResource.h>

#include <QResizeEvent>
#include <QTest>

#include <climits>

class tst_CreditConstruction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFreshTableShowsFiveRowsAndHidesTheContract();
    void rowsStandInTheOrderOfTheirCreation();
    void rowsAsTheyAreBuilt();
    void membersAfterConstruction();
    void theTableNeedsNoParent();
    void theTableIsNamedAndSizedByTheTheme();
    void constructionSendsNothing();
    void aFreshTableWritesMinusOne();
    void resizingGivesTheCellsTheWholeWidthAndTheirOwnHeight();
    void realHeightIsThatOfTheCells();
    void anAccountChangeIsActedOnAndPassedOn();
    void otherEventsAreOnlyPassedOn_data();
    void otherEventsAreOnlyPassedOn();
    void inertOperationsChangeNothing();
    void theBrushSourceIsKept();
};

void tst_CreditConstruction::aFreshTableShowsFiveRowsAndHidesTheContract()
{
    const CreditPanel panel;
    QCOMPARE(support::shownCells(panel.cells()), (QSet<int>{726, 728, 729, 730, 731}));
    QVERIFY(support::isHidden(panel.cells(), 727));
    QCOMPARE(support::comboEntries(panel.cells(), 726), QString());
    QVERIFY(!panel.cells().itemData(726).isValid());
    QCOMPARE(panel.cells().columnWidth(0), 120);
}

void tst_CreditConstruction::rowsStandInTheOrderOfTheirCreation()
{
    const CreditPanel panel;
    const QAbstractItemModel& model = *panel.cells().model();
    QStringList titles;
    for (int row = 0; row < model.rowCount(); ++row)
        titles << model.index(row, 0).data().toString();
    QCOMPARE(titles,
             (QStringList{QStringLiteral("资金账号"), QStringLiteral("未还合约数量"), QStringLiteral("当日可还数量"),
                          QStringLiteral("可还券资金"), QStringLiteral("可还券数量")}));
}

void tst_CreditConstruction::rowsAsTheyAreBuilt()
{
    const CreditPanel panel;
    QCOMPARE(panel.row(726), QStringLiteral("资金账号: \"\""));
    QCOMPARE(panel.row(727), QStringLiteral("指定还券: \"\", hidden"));
    QCOMPARE(panel.row(728), QStringLiteral("未还合约数量: \"\" 股, fixed"));
    QCOMPARE(panel.row(729), QStringLiteral("当日可还数量: \"\" 股, fixed"));
    QCOMPARE(panel.row(730), QStringLiteral("可还券资金: \"\" 元, fixed"));
    QCOMPARE(panel.row(731), QStringLiteral("可还券数量: \"\" 股, fixed"));
    QCOMPARE(panel.row(725), QStringLiteral("none"));
    QCOMPARE(panel.row(732), QStringLiteral("none"));
}

void tst_CreditConstruction::membersAfterConstruction()
{
    const CreditPanel panel;
    QCOMPARE(panel.table->m_operationType, -1);
    QVERIFY(panel.table->m_savedValues.isEmpty());
    QVERIFY(panel.table->m_isFontScale);
    QCOMPARE(int(panel.table->m_compactBrushSource), 48);
    QVERIFY(panel.table->m_useAllCompacts);
    QCOMPARE(panel.cells().parentWidget(), static_cast<QWidget*>(panel.table));
}

void tst_CreditConstruction::theTableNeedsNoParent()
{
    support::CreditProbe table;
    QVERIFY(!table.parentWidget());
    table.setParam(QStringLiteral("22+"));
    QCOMPARE(table.m_operationType, 22);
}

void tst_CreditConstruction::theTableIsNamedAndSizedByTheTheme()
{
    const CreditPanel panel;
    QCOMPARE(panel.table->objectName(), QStringLiteral("credit_param_table"));
    const WQ::CUiResource& sizes = *WQ::CUiResource::instance();
    QCOMPARE(panel.table->size(),
             QSize(sizes.getSize(QStringLiteral("tc_siz_operation_panel_param_table_width")),
                   sizes.getSize(QStringLiteral("tc_siz_code_quotes_height"))
                       + sizes.getSize(QStringLiteral("tc_siz_operation_panel_top_height"))));
}

void tst_CreditConstruction::constructionSendsNothing()
{
    CreditPanel panel;
    QCOMPARE(panel.host.take(), QStringList());
}

void tst_CreditConstruction::aFreshTableWritesMinusOne()
{
    const CreditPanel panel;
    QCOMPARE(panel.table->param(), QStringLiteral("-1"));
}

void tst_CreditConstruction::resizingGivesTheCellsTheWholeWidthAndTheirOwnHeight()
{
    const CreditPanel panel;
    for (const QSize size : {QSize(333, 50), QSize(1, 1), QSize(900, 900)}) {
        QResizeEvent event(size, panel.table->size());
        panel.table->resizeEvent(&event);
        QCOMPARE(panel.cells().size(), QSize(size.width(), panel.cells().realHeight()));
    }
}

void tst_CreditConstruction::realHeightIsThatOfTheCells()
{
    CreditPanel panel;
    const int fiveRows = panel.table->realHeight();
    QCOMPARE(fiveRows, panel.cells().realHeight());
    QVERIFY(fiveRows > 0);
    chooseOperation(panel, 24);
    QCOMPARE(panel.table->realHeight(), panel.cells().realHeight());
    QCOMPARE(panel.table->realHeight() * 5, fiveRows * 3);
}

void tst_CreditConstruction::anAccountChangeIsActedOnAndPassedOn()
{
    CreditPanel panel;
    panel.offerAccounts({QStringLiteral("A1")});
    panel.table->m_useAllCompacts = false;
    QVariant account(QStringLiteral("A1"));
    QVERIFY(!panel.table->handleEvent(73, 726, 0, QStringLiteral("name of A1"), &account));
    QVERIFY(panel.table->m_useAllCompacts);
    QVERIFY(!panel.table->handleEvent(73, 726, 0, QString(), nullptr));
}

void tst_CreditConstruction::otherEventsAreOnlyPassedOn_data()
{
    QTest::addColumn<int>("event");
    QTest::addColumn<int>("id");
    for (const int id : {725, 727, 728, 0, -1, INT_MAX})
        QTest::addRow("73 of %d", id) << 73 << id;
    for (const int event : {0, 5, 72, 74, 87, 97, 102, 124, 129, 1083, -1, INT_MIN, INT_MAX})
        QTest::addRow("%d of 726", event) << event << 726;
}

void tst_CreditConstruction::otherEventsAreOnlyPassedOn()
{
    QFETCH(int, event);
    QFETCH(int, id);
    CreditPanel panel;
    panel.table->m_useAllCompacts = false;
    QVERIFY(!panel.table->handleEvent(event, id, 3, QStringLiteral("text"), nullptr));
    QVERIFY(!panel.table->m_useAllCompacts);
    QCOMPARE(panel.host.take(), QStringList());
}

void tst_CreditConstruction::inertOperationsChangeNothing()
{
    CreditPanel panel;
    panel.table->setParam(QStringLiteral("23+23-727=X1-728=5-729=6-730=7"));
    panel.host.take();
    const QStringList rows = panel.codeAndFigures();
    panel.table->doStockUnitChange();
    panel.table->saveUIDataToMap();
    panel.table->setOperationType(ttservice::EOperationType(24), true);
    panel.table->setOperationType(ttservice::EOperationType(-1), false);
    panel.table->setOptBuySecuRepayNum("1", "2", "3");
    QStringList names{QStringLiteral("given")};
    QVector<QVariant> values{7};
    panel.table->getComBoDisplayAccounts(names, values);
    QCOMPARE(names, QStringList{QStringLiteral("given")});
    QCOMPARE(values, QVector<QVariant>{7});
    QCOMPARE(panel.codeAndFigures(), rows);
    QCOMPARE(panel.table->m_operationType, 23);
    QCOMPARE(panel.remembered(), QStringLiteral("23: 727=X1, 728=5, 729=6, 730=7"));
    QCOMPARE(panel.host.take(), QStringList());
}

void tst_CreditConstruction::theBrushSourceIsKept()
{
    const CreditPanel panel;
    for (const int source : {0, 49, -1, INT_MAX}) {
        panel.table->setCompactBrushSourceType(ttservice::ENVCompactBrushSource(source));
        QCOMPARE(int(panel.table->m_compactBrushSource), source);
    }
}

QTEST_MAIN(tst_CreditConstruction)
#include "tst_CreditConstruction.moc"
