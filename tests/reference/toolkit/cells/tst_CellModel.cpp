#include "reference/toolkit/cells/CellModel.h"
#include "reference/toolkit/cells/ComboCell.h"
#include "reference/toolkit/cells/NumberCell.h"
#include "reference/toolkit/cells/ValueCells.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QtTest>

namespace {

std::unique_ptr<WQ::CMultiParamsTableItem> line(int id)
{
    auto cell = std::make_unique<WQ::LineCell>(id, QStringLiteral("label %1").arg(id), QStringLiteral("text"),
                                               QString(), QString());
    return std::make_unique<WQ::CMultiParamsTableItem>(std::move(cell));
}

std::unique_ptr<WQ::CMultiParamsTableItem> volume(int id)
{
    WQ::CParamCellUnitInfo info;
    info.text = QStringLiteral("股");
    info.type = 2;
    info.min = 100;
    info.max = 1000000;
    info.step = 100;
    auto cell = std::make_unique<WQ::NumberCell>(id, QStringLiteral("单笔最小量"),
                                                 QVector<WQ::NumberUnit>{WQ::numberUnit(info)}, 10000);
    return std::make_unique<WQ::CMultiParamsTableItem>(std::move(cell));
}

void fill(WQ::CellModel& model, int count)
{
    for (int id = 1; id <= count; ++id)
        model.add(line(id));
}

QString rowsOf(const WQ::CellModel& model)
{
    QStringList ids;
    for (int row = 0; row < model.rowCount(); ++row)
        ids << QString::number(model.cellAtRow(row)->id());
    return ids.join(QLatin1Char(' '));
}

/// A combo of 甲 (10) and 乙 (20), 甲 chosen.
std::unique_ptr<WQ::CMultiParamsTableItem> choice(int id)
{
    auto cell = std::make_unique<WQ::ComboCell>(id, QStringLiteral("报价方式"),
                                                QStringList{QStringLiteral("甲"), QStringLiteral("乙")},
                                                QVector<QVariant>{10, 20}, 0);
    return std::make_unique<WQ::CMultiParamsTableItem>(std::move(cell));
}

void choose(WQ::CellModel& model, int id, int value)
{
    auto* const cell = static_cast<WQ::ComboCell*>(model.cell(id));
    const QString before = cell->text();
    if (cell->setData(value))
        model.touchChoice(cell, before);
}

void setHidden(WQ::CellModel& model, int id, bool hidden)
{
    if (model.cell(id)->setHidden(hidden))
        model.touchRows();
}

} // namespace

class tst_CellModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsStandInTheOrderOfAdding();
    void idThatExistsIsNotAddedAgain();
    void unknownIdsAnswerNothing();
    void cellIsShown_data();
    void cellIsShown();
    void setsKeepAnyId();
    void countIsExactBeforeAnybodyIsTold();
    void oneBatchTellsInsertionsAndRemovalsOnce();
    void nothingIsToldWhenNoRowChanges();
    void rowsThatStayKeepTheirIndexes();
    void changedValuesAreToldOnceARun();
    void changeOfAHiddenCellIsNotTold();
    void choicesThatEndWhereTheyBeganAreNotTold();
    void choicesAreToldWithAnyOtherChange();
    void theFiltersLookIsToldOnceABatch();
    void looksThatUndoEachOtherAreNotTold();
    void filterOffersAllItemsThatAreNotBlacklisted();
    void filterChangesAreToldOnlyWhenTheyChangeAnything();
    void rolesOfTheValue();
    void onlyTheValueOfAnEnabledEditableCellCanBeEdited();
    void foreignAndWildIndexesAnswerNothing();
    void randomChangesKeepTheModelSound();
};

void tst_CellModel::rowsStandInTheOrderOfAdding()
{
    WQ::CellModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(model.add(line(30)), 0);
    QCOMPARE(model.add(line(10)), 1);
    QCOMPARE(model.add(line(20)), 2);
    QCOMPARE(rowsOf(model), QStringLiteral("30 10 20"));
    QCOMPARE(model.columnCount(), 2);
    QCOMPARE(model.rowOf(20), 2);
}

void tst_CellModel::idThatExistsIsNotAddedAgain()
{
    WQ::CellModel model;
    fill(model, 2);
    QCOMPARE(model.add(volume(2)), -1);
    QCOMPARE(model.cellCount(), 2);
    QCOMPARE(model.cell(2)->kind(), WQ::CellKind::Line);
}

void tst_CellModel::unknownIdsAnswerNothing()
{
    WQ::CellModel model;
    fill(model, 2);
    for (const int id : {0, -1, 3, 0x7fffffff, -0x7fffffff - 1}) {
        QVERIFY(!model.item(id));
        QVERIFY(!model.cell(id));
        QCOMPARE(model.rowOf(id), -1);
        QVERIFY(!model.valueIndex(id).isValid());
    }
    QVERIFY(!model.cellAtRow(-1));
    QVERIFY(!model.cellAtRow(2));
    QVERIFY(!model.itemAt(-1));
    QVERIFY(!model.itemAt(2));
}

void tst_CellModel::cellIsShown_data()
{
    QTest::addColumn<bool>("hidden");
    QTest::addColumn<bool>("expanded");
    QTest::addColumn<QSet<int>>("visible");
    QTest::addColumn<bool>("shown");
    QTest::newRow("no choice") << false << false << QSet<int>() << true;
    QTest::newRow("chosen") << false << false << QSet<int>{1} << true;
    QTest::newRow("not chosen") << false << false << QSet<int>{2} << false;
    QTest::newRow("a choice of an ID without a cell") << false << false << QSet<int>{99} << false;
    QTest::newRow("not chosen, expanded") << false << true << QSet<int>{2} << true;
    QTest::newRow("hidden") << true << false << QSet<int>() << false;
    QTest::newRow("hidden and chosen") << true << false << QSet<int>{1} << false;
    QTest::newRow("hidden, expanded") << true << true << QSet<int>{1} << false;
}

void tst_CellModel::cellIsShown()
{
    QFETCH(bool, hidden);
    QFETCH(bool, expanded);
    QFETCH(QSet<int>, visible);
    WQ::CellModel model;
    fill(model, 1);
    setHidden(model, 1, hidden);
    model.setExpanded(expanded);
    model.setVisibleSet(visible);
    QTEST(model.isShown(*model.cell(1)), "shown");
    QTEST(model.rowCount() == 1, "shown");
}

void tst_CellModel::setsKeepAnyId()
{
    WQ::CellModel model;
    model.setVisibleSet({-5, 77});
    model.setAllSet({77});
    model.addToAllSet(-9);
    model.setBlacklisted(1234, true);
    QCOMPARE(model.visibleSet(), (QSet<int>{-5, 77}));
    QCOMPARE(model.allSet(), (QSet<int>{77, -9}));
    QCOMPARE(model.blacklist(), QSet<int>{1234});
}

void tst_CellModel::countIsExactBeforeAnybodyIsTold()
{
    WQ::CellModel model;
    fill(model, 5);
    QCOMPARE(model.rowCount(), 5);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    setHidden(model, 2, true);
    setHidden(model, 4, true);
    QCOMPARE(model.shownCount(), 3);
    QCOMPARE(removed.count(), 0);
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(removed.count(), 2);
}

void tst_CellModel::oneBatchTellsInsertionsAndRemovalsOnce()
{
    WQ::CellModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    fill(model, 10);
    for (const int id : {4, 5, 6})
        setHidden(model, id, true);
    QCOMPARE(rowsOf(model), QStringLiteral("1 2 3 7 8 9 10"));
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    for (const int id : {1, 2, 8, 9, 10})
        setHidden(model, id, true);
    for (const int id : {4, 5, 6})
        setHidden(model, id, false);
    QTRY_COMPARE(inserted.count(), 1);
    QCOMPARE(removed.count(), 2);
    QCOMPARE(removed.at(0).at(1).toInt(), 4);
    QCOMPARE(removed.at(0).at(2).toInt(), 6);
    QCOMPARE(removed.at(1).at(1).toInt(), 0);
    QCOMPARE(removed.at(1).at(2).toInt(), 1);
    QCOMPARE(inserted.at(0).at(1).toInt(), 1);
    QCOMPARE(inserted.at(0).at(2).toInt(), 3);
    QCOMPARE(rowsOf(model), QStringLiteral("3 4 5 6 7"));
}

void tst_CellModel::nothingIsToldWhenNoRowChanges()
{
    WQ::CellModel model;
    fill(model, 3);
    QCOMPARE(model.rowCount(), 3);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsAboutToBeRemoved);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsAboutToBeInserted);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    setHidden(model, 2, true);
    setHidden(model, 2, false);
    model.setVisibleSet({1, 2, 3, 4});
    model.setExpanded(true);
    model.setVisibleSet({1});
    QCoreApplication::processEvents();
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(removed.count() + inserted.count() + changed.count(), 0);
}

void tst_CellModel::rowsThatStayKeepTheirIndexes()
{
    WQ::CellModel model;
    fill(model, 6);
    const QPersistentModelIndex stays(model.valueIndex(4));
    const QPersistentModelIndex goes(model.valueIndex(2));
    for (const int id : {1, 2, 3, 6})
        setHidden(model, id, true);
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(stays.row(), 0);
    QVERIFY(!goes.isValid());
    setHidden(model, 1, false);
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(stays.row(), 1);
}

void tst_CellModel::changedValuesAreToldOnceARun()
{
    WQ::CellModel model;
    fill(model, 6);
    QCOMPARE(model.rowCount(), 6);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    for (const int id : {2, 3, 3, 6, 2})
        model.touch(model.cell(id));
    QCOMPARE(changed.count(), 0);
    QTRY_COMPARE(changed.count(), 2);
    QCOMPARE(changed.at(0).at(0).toModelIndex(), model.index(1, 0));
    QCOMPARE(changed.at(0).at(1).toModelIndex(), model.index(2, 1));
    QCOMPARE(changed.at(1).at(0).toModelIndex(), model.index(5, 0));
    QCOMPARE(changed.at(1).at(1).toModelIndex(), model.index(5, 1));
}

void tst_CellModel::changeOfAHiddenCellIsNotTold()
{
    WQ::CellModel model;
    fill(model, 3);
    setHidden(model, 2, true);
    QCOMPARE(model.rowCount(), 2);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    model.touch(model.cell(2));
    QCoreApplication::processEvents();
    QCOMPARE(changed.count(), 0);
}

void tst_CellModel::choicesThatEndWhereTheyBeganAreNotTold()
{
    WQ::CellModel model;
    model.add(choice(1));
    model.flush();
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    choose(model, 1, 20);
    choose(model, 1, 10);
    model.flush();
    QCOMPARE(changed.count(), 0);
    choose(model, 1, 20);
    model.flush();
    QCOMPARE(changed.count(), 1);
    // What was told is where the next batch begins.
    choose(model, 1, 10);
    choose(model, 1, 20);
    model.flush();
    QCOMPARE(changed.count(), 1);
}

void tst_CellModel::choicesAreToldWithAnyOtherChange()
{
    WQ::CellModel model;
    model.add(choice(1));
    model.flush();
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    choose(model, 1, 20);
    model.cell(1)->setLabel(QStringLiteral("报价"));
    model.touch(model.cell(1));
    choose(model, 1, 10);
    model.flush();
    QCOMPARE(changed.count(), 1);
    model.cell(1)->setLabel(QStringLiteral("报价方式"));
    model.touch(model.cell(1));
    choose(model, 1, 20);
    choose(model, 1, 10);
    model.flush();
    QCOMPARE(changed.count(), 2);
}

void tst_CellModel::theFiltersLookIsToldOnceABatch()
{
    WQ::CellModel model;
    fill(model, 2);
    QSignalSpy looks(&model, &WQ::CellModel::filterLookChanged);
    model.setVisibleSet({2});
    model.setExpanded(true);
    QCOMPARE(looks.count(), 0);
    model.flush();
    QCOMPARE(looks.count(), 1);
    model.setEnabled(false); // an expanded table's filter is out of use already
    model.setAllSet({1});
    model.flush();
    QCOMPARE(looks.count(), 1);
    model.setExpanded(false);
    model.setEnabled(true);
    model.flush();
    QCOMPARE(looks.count(), 2);
}

void tst_CellModel::looksThatUndoEachOtherAreNotTold()
{
    WQ::CellModel model;
    fill(model, 2);
    model.flush();
    QSignalSpy looks(&model, &WQ::CellModel::filterLookChanged);
    model.setVisibleSet({2});
    model.setVisibleSet({});
    model.setEnabled(false);
    model.setEnabled(true);
    model.flush();
    QCOMPARE(looks.count(), 0);
}

void tst_CellModel::filterOffersAllItemsThatAreNotBlacklisted()
{
    WQ::CellModel model;
    fill(model, 5);
    QVERIFY(model.filterCells().empty());
    model.setAllSet({5, 1, 3, 99});
    model.setBlacklisted(3, true);
    setHidden(model, 5, true);
    const std::vector<WQ::CellItem*> offered = model.filterCells();
    QCOMPARE(offered.size(), size_t(2));
    QCOMPARE(offered[0]->id(), 1);
    QCOMPARE(offered[1]->id(), 5);
    model.clearBlacklist();
    QCOMPARE(model.filterCells().size(), size_t(3));
    model.setBlacklisted(3, false);
    QCOMPARE(model.filterCells().size(), size_t(3));
}

void tst_CellModel::filterChangesAreToldOnlyWhenTheyChangeAnything()
{
    WQ::CellModel model;
    QSignalSpy changed(&model, &WQ::CellModel::filterChanged);
    model.setAllSet({1});
    model.setAllSet({1});
    model.addToAllSet(1);
    model.setVisibleSet({});
    model.clearBlacklist();
    model.setBlacklisted(1, false);
    model.setExpanded(false);
    model.setEnabled(true);
    QCOMPARE(changed.count(), 1);
    model.setEnabled(false);
    model.setExpanded(true);
    model.setBlacklisted(1, true);
    model.setVisibleSet({2});
    QCOMPARE(changed.count(), 5);
}

void tst_CellModel::rolesOfTheValue()
{
    WQ::CellModel model;
    model.add(volume(7));
    const QModelIndex label = model.index(0, 0);
    const QModelIndex value = model.valueIndex(7);
    QCOMPARE(label.data().toString(), QStringLiteral("单笔最小量"));
    QCOMPARE(value.data().toString(), QStringLiteral("10,000 股"));
    QCOMPARE(value.data(Qt::EditRole).toString(), QStringLiteral("10000"));
    QCOMPARE(value.data(Qt::AccessibleTextRole).toString(), QStringLiteral("单笔最小量"));
    QCOMPARE(value.data(Qt::AccessibleDescriptionRole).toString(), QStringLiteral("10,000 股"));
    QVERIFY(!value.data(Qt::ToolTipRole).isValid());
    model.cell(7)->setNumber(1250);
    QCOMPARE(value.data(Qt::ToolTipRole).toString(), QStringLiteral("不是 100 的整数倍：1,200 或 1,300"));
    model.setToolTipSource([](const WQ::CellItem& cell) { return QString::number(cell.id()); });
    QCOMPARE(value.data(Qt::ToolTipRole).toString(), QStringLiteral("7"));
    QVERIFY(!value.data(Qt::UserRole + 99).isValid());
}

void tst_CellModel::onlyTheValueOfAnEnabledEditableCellCanBeEdited()
{
    WQ::CellModel model;
    fill(model, 2);
    const QModelIndex label = model.index(0, 0);
    const QModelIndex value = model.valueIndex(1);
    QVERIFY(value.flags() & Qt::ItemIsEditable);
    QVERIFY(!(label.flags() & Qt::ItemIsEditable));
    model.cell(1)->setEditable(false);
    QVERIFY(!(value.flags() & Qt::ItemIsEditable));
    QVERIFY(value.flags() & Qt::ItemIsEnabled);
    model.cell(1)->setEditable(true);
    model.setEnabled(false);
    QVERIFY(!(value.flags() & (Qt::ItemIsEditable | Qt::ItemIsEnabled)));
    QVERIFY(!model.isEditable(*model.cell(1)));
}

void tst_CellModel::foreignAndWildIndexesAnswerNothing()
{
    WQ::CellModel model;
    WQ::CellModel other;
    fill(model, 1);
    fill(other, 9);
    QVERIFY(!model.data(QModelIndex()).isValid());
    QVERIFY(!model.data(other.index(8, 1)).isValid());
    QCOMPARE(model.flags(other.index(8, 1)), Qt::ItemFlags(Qt::NoItemFlags));
    QCOMPARE(model.rowCount(model.index(0, 0)), 0);
}

void tst_CellModel::randomChangesKeepTheModelSound()
{
    WQ::CellModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QRandomGenerator random(20240315);
    constexpr int kCells = 20;
    fill(model, kCells);
    for (int round = 0; round < 500; ++round) {
        const int id = random.bounded(1, kCells + 1);
        switch (random.bounded(6)) {
        case 0:
            model.setExpanded(random.bounded(2) == 1);
            break;
        case 1:
            model.setVisibleSet({random.bounded(1, kCells), random.bounded(1, kCells), random.bounded(1, kCells)});
            break;
        case 2:
            model.setVisibleSet({});
            break;
        case 3:
            model.touch(model.cell(id));
            break;
        default:
            setHidden(model, id, random.bounded(2) == 1);
        }
        QString expected;
        for (int cell = 1; cell <= kCells; ++cell) {
            if (model.isShown(*model.cell(cell)))
                expected += QString::number(cell) + QLatin1Char(' ');
        }
        if (random.bounded(3) == 0)
            QCoreApplication::processEvents();
        if (random.bounded(2) == 0)
            QCOMPARE(rowsOf(model), expected.trimmed());
        QCOMPARE(model.shownCount(), expected.count(QLatin1Char(' ')));
    }
}

QTEST_GUILESS_MAIN(tst_CellModel)
#include "tst_CellModel.moc"
