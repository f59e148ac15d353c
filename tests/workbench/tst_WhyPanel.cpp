#include "workbench/HostCalls.h"
#include "workbench/HostTable.h"
#include "workbench/Language.h"
#include "workbench/TableBench.h"
#include "workbench/WhyModel.h"
#include "workbench/WhyPanel.h"
#include "workbench/WhyTexts.h"

#include "reference/services/ServiceControl.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QtTest>

using namespace workbench;

namespace {

struct Desk
{
    Desk()
        : why(bench)
    {
        TableSetup setup;
        setup.identity = 1;
        TableDrive drive;
        drive.orderType = 2;
        drive.expanded = true;
        bench.rebuild(setup, drive);
        bench.show();
        why.show();
    }

    WQ::CMultiParamsTable& grid() const
    {
        return *bench.table()->getMultiParamsTable();
    }

    QString answer() const
    {
        return why.findChild<QLabel*>()->text();
    }

    TableBench bench;
    WhyPanel why;
};

} // namespace

class tst_WhyPanel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void aCellOfTheCatalogueIsExplainedShownOrNot();
    void itFollowsTheRowOfThePanel();
    void itStaysWhenItDoesNotFollow();
    void theKeyboardChoosesACell();
    void aChangeOfTheTableIsReadAnew();
    void anotherTableIsReadAnew();
    void withoutATableThereIsNothingToExplain();
    void namesStandBehindTheNumbers();
    void theExplanationCanBeCopied();
    void itSpeaksChinese();
    void readingSendsNoEvent();
};

void tst_WhyPanel::init()
{
    reference::resetServices();
}

void tst_WhyPanel::cleanup()
{
    setLanguage(QStringLiteral("en"));
}

void tst_WhyPanel::aCellOfTheCatalogueIsExplainedShownOrNot()
{
    Desk desk;
    const QAbstractItemModelTester tester(desk.why.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    desk.why.choose(0x200);
    QCOMPARE(desk.answer(),
             QStringLiteral("0x200  单笔最小量: hidden. Mask of the order type: "
                            "order type 2  random volume: 0x4801889 lacks it"));
    desk.why.choose(0x1000);
    QCOMPARE(desk.answer(), QStringLiteral("0x1000  最大委托次数: shown. Host's flags: 0x7103fff has it"));
    desk.why.choose(0x2000000);
    QCOMPARE(desk.answer(),
             QStringLiteral("0x2000000  限价: not in this table. Catalogue: in tables with a limit "
                            "price; created hidden"));
    QCOMPARE(desk.why.model()->rowCount(), kWhyRules);
}

void tst_WhyPanel::itFollowsTheRowOfThePanel()
{
    Desk desk;
    for (int row = 0; row < desk.grid().model()->rowCount(); ++row) {
        desk.grid().setCurrentIndex(desk.grid().model()->index(row, 1));
        const QString label = desk.grid().model()->index(row, 0).data().toString();
        QVERIFY2(desk.answer().contains(label + QStringLiteral(": shown")), qPrintable(desk.answer()));
    }
}

void tst_WhyPanel::itStaysWhenItDoesNotFollow()
{
    Desk desk;
    desk.why.choose(0x200);
    desk.why.findChild<QCheckBox*>()->setChecked(false);
    desk.grid().setCurrentIndex(desk.grid().model()->index(1, 1));
    QCOMPARE(desk.why.cell(), 0x200);
}

void tst_WhyPanel::theKeyboardChoosesACell()
{
    Desk desk;
    auto* const choice = desk.why.findChild<QComboBox*>();
    QCOMPARE(choice->count(), 28);
    QCOMPARE(desk.why.cell(), 0x1);
    QTest::keyClick(choice, Qt::Key_Down);
    QCOMPARE(desk.why.cell(), 0x2);
    QVERIFY(desk.answer().startsWith(QStringLiteral("0x2  单笔超价: shown.")));
    QCOMPARE(choice->itemText(9), QStringLiteral("0x200  单笔最小量 · hidden"));
}

void tst_WhyPanel::aChangeOfTheTableIsReadAnew()
{
    Desk desk;
    desk.why.choose(0x200);
    hostCall(*desk.bench.table(), calls::kSetOrderType, ttservice::ORDER_TYPE_ALGORITHM);
    desk.why.refresh();
    QVERIFY2(desk.answer().startsWith(QStringLiteral("0x200  单笔最小量: shown.")), qPrintable(desk.answer()));
}

void tst_WhyPanel::anotherTableIsReadAnew()
{
    Desk desk;
    desk.why.choose(0x2);
    TableSetup setup;
    setup.brokerType = 7;
    desk.bench.rebuild(setup, {});
    QVERIFY(desk.answer().contains(QStringLiteral("not in this table. Catalogue: not for Hong Kong accounts")));
    desk.grid().setCurrentIndex(desk.grid().model()->index(0, 1));
    QCOMPARE(desk.why.cell(), 0x1);
}

void tst_WhyPanel::withoutATableThereIsNothingToExplain()
{
    TableBench bench;
    WhyPanel why(bench);
    why.show();
    QCOMPARE(why.model()->rowCount(), 0);
    QCOMPARE(why.findChild<QLabel*>()->text(), QString());
    bench.rebuild({}, {});
    QCOMPARE(why.model()->rowCount(), kWhyRules);
    delete bench.table();
    why.refresh();
    QCOMPARE(why.model()->rowCount(), 0);
}

void tst_WhyPanel::namesStandBehindTheNumbers()
{
    Desk desk;
    desk.why.choose(0x200);
    const QModelIndex mask = desk.why.model()->index(int(WhyRule::OrderType), WhyModel::Value);
    QCOMPARE(mask.data(Qt::ToolTipRole).toString(),
             QStringLiteral("order type 2  random volume: 0x4801889 lacks it\n0x1  报价方式\n0x8  波动区间\n0x80\n"
                            "0x800  有效时间\n0x1000  最大委托次数\n0x800000  单笔量区间\n0x4000000  投资备注"));
}

void tst_WhyPanel::theExplanationCanBeCopied()
{
    Desk desk;
    desk.why.choose(0x200);
    QTest::keyClick(desk.why.findChild<HostTable*>(), Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 1 + kWhyRules);
    QCOMPARE(lines.at(0), desk.answer());
    QCOMPARE(lines.at(2), QStringLiteral("Host's flags\t0x7103fff has it\tshows"));
    QCOMPARE(lines.at(3),
             QStringLiteral("▶ Mask of the order type\torder type 2  random volume: 0x4801889 lacks it\t"
                            "hides"));
}

void tst_WhyPanel::itSpeaksChinese()
{
    Desk desk;
    desk.why.choose(0x200);
    setLanguage(QStringLiteral("zh_CN"));
    QCoreApplication::sendPostedEvents();
    for (int row = 0; row < kWhyRules; ++row) {
        const QString name = desk.why.model()->index(row, WhyModel::Rule).data().toString();
        QVERIFY2(name.contains(QRegularExpression(QStringLiteral("\\p{Han}"))), qPrintable(name));
    }
    QCOMPARE(desk.answer(),
             QStringLiteral("0x200  单笔最小量：隐藏。委托类型掩码：委托类型 2  随机量：0x4801889 "
                            "不包含此单元格"));
}

void tst_WhyPanel::readingSendsNoEvent()
{
    Desk desk;
    const QSignalSpy events(&desk.bench, &PanelHost::eventArrived);
    const replay::Json before = replay::written(desk.bench.table()->getStockCode());
    for (int bit = 0; bit < 28; ++bit)
        desk.why.choose(1 << bit);
    QCOMPARE(events.count(), 0);
    QCOMPARE(replay::written(desk.bench.table()->getStockCode()), before);
}

QTEST_MAIN(tst_WhyPanel)
#include "tst_WhyPanel.moc"
