#include "credit/CreditPanel.h"
#include "faults/AbsentServices.h"
#include "faults/PublicCalls.h"
#include "reference/services/ServiceControl.h"
#include "support/CellText.h"
#include "support/FaultCount.h"
#include "support/ModuleGuard.h"
#include "support/Panel.h"
#include "tables/GlobalTableProbe.h"
#include "tables/TaskExpectations.h"

#include <OrderParamTable_mini/tables/CBaseTaskParamWidget.h>
#include <OrderParamTable_mini/tables/CHpfBasketTaskParamWidget.h>

#include <WQ/CPushButton.h>
#include <WQ/CScrollArea.h>
#include <ttservice/CStkCompactsV2.h>

#include <boost/make_shared.hpp>

#include <QtTest>

#include <deque>

using namespace support;
using faults::AbsentService;
using faults::Service;

namespace {

constexpr int kIdentities[] = {5, 6, 7, 10, 31, 32, 33, 35, 36, 4711};
constexpr int kBrokers[] = {1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 1001, 1002, -1};

/// What a table shows and says from its construction through all calls.
QStringList life(int identity, int broker)
{
    EventLog host;
    TableSetup setup;
    setup.id = identity;
    setup.brokerType = broker;
    setup.parent = &host;
    auto* const table = new BaseTableProbe(setup);
    table->noteHooks(host);
    QStringList all(faults::seen(*table));
    for (const auto& call : faults::publicCalls()) {
        call(*table);
        all << host.take() << faults::seen(*table);
    }
    return all;
}

/// Everything an operation panel does for a person beside its state.
void beShown(QWidget& widget)
{
    widget.show();
    widget.resize(widget.width(), 50);
    widget.grab();
    widget.hide();
}

class DialogProbe : public TC::CBaseTaskParamWidget
{
public:
    explicit DialogProbe(ttservice::CCodeOrderParam task)
        : TC::CBaseTaskParamWidget(task, QString(), nullptr, false, ttservice::TRADER_TYPE_1, false, std::string())
    {
    }

    using TC::CBaseTaskParamWidget::m_expandButton;
    using TC::CBaseTaskParamWidget::m_table;
};

class BasketProbe : public TC::CHpfBasketTaskParamWidget
{
public:
    explicit BasketProbe(std::vector<ttservice::CCodeOrderParam> tasks)
        : TC::CHpfBasketTaskParamWidget(tasks, QString(), nullptr, std::string())
    {
    }

    using TC::CHpfBasketTaskParamWidget::changeOrderType;
    using TC::CHpfBasketTaskParamWidget::creatTable;
};

/// A contract's data that is asked for its key.
struct Data : ttservice::IData
{
    std::string getKey() const override
    {
        return {};
    }
};

} // namespace

/// What the platform does not have, or answers null for, is as good as empty.
class tst_NullServices : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanupTestCase();
    void everyTableWithoutAService_data();
    void everyTableWithoutAService();
    void panelsWithoutResourcesHaveNoSizeAndAreDrawn();
    void validTimesStayWithoutAClock();
    void withoutAConfigurationNothingIsAnnouncedForAlgorithms();
    void creditTablesWithoutServices();
    void creditTablesWithoutAccountsAndContracts();
    void creditRowsThatAreMissing();
    void cellsThatAreMissing_data();
    void cellsThatAreMissing();
    void dialogsWithoutServices();
    void dialogsWithoutAccounts();
    void recordsThatAreNull();

private:
    FaultCount m_count{"services that answer null"};
};

void tst_NullServices::cleanupTestCase()
{
    m_count.say();
}

void tst_NullServices::everyTableWithoutAService_data()
{
    QTest::addColumn<int>("absent");
    for (int i = 0; i < int(std::size(faults::kServices)); ++i)
        QTest::newRow(faults::kServiceNames[i]) << i;
    QTest::newRow("none of them") << -1;
}

void tst_NullServices::everyTableWithoutAService()
{
    QFETCH(int, absent);
    for (const int identity : kIdentities) {
        for (const int broker : kBrokers) {
            m_count.begin();
            const QStringList expected = life(identity, broker);
            std::deque<AbsentService> services;
            for (const Service service : faults::kServices) {
                if (absent < 0 || int(service) == absent)
                    services.emplace_back(service);
            }
            QCOMPARE(life(identity, broker), expected);
            for (const Service service : {Service::UserConfig, Service::Modules, Service::Resources})
                QVERIFY(faults::questions(service) > 0 || (absent >= 0 && int(service) != absent));
            m_count.end();
        }
    }
}

void tst_NullServices::panelsWithoutResourcesHaveNoSizeAndAreDrawn()
{
    m_count.begin();
    const AbsentService absent(Service::Resources);
    Panel panel;
    QCOMPARE(panel.table->width(), 0);
    QCOMPARE(panel.table->maximumWidth(), 0);
    beShown(panel.host);
    panel.table->handleScaleChanged();
    panel.table->themeChanged();
    CreditPanel credit;
    QCOMPARE(credit.table->size(), QSize(0, 0));
    beShown(credit.host);
    credit.table->handleScaleChanged();
    DialogProbe dialog(taskOf(2, 1));
    beShown(dialog);
    QVERIFY(faults::questions(Service::Resources) > 0);
    m_count.end();
}

void tst_NullServices::validTimesStayWithoutAClock()
{
    m_count.begin();
    const AbsentService absent(Service::Clock);
    GlobalTableProbe table;
    table.setOrderType(ttservice::EOrderType(1));
    table.record(1).orderType = ttservice::EOrderType(1);
    table.record(1).validTimeStart = 1000;
    table.record(1).validTimeEnd = 2000;
    table.fixTimeRange();
    QCOMPARE(table.record(1).validTimeStart, 1000);
    QCOMPARE(table.record(1).validTimeEnd, 2000);
    ttservice::CCodeOrderParam task;
    task.orderType = ttservice::EOrderType(1);
    task.validTimeStart = 3000;
    task.validTimeEnd = 4000;
    table.transferTimePeriod(&task);
    QCOMPARE(task.validTimeStart, 3000);
    QCOMPARE(task.validTimeEnd, 4000);
    table.transferTimePeriod(nullptr);
    QVERIFY(faults::questions(Service::Clock) >= 2);
    m_count.end();
}

void tst_NullServices::withoutAConfigurationNothingIsAnnouncedForAlgorithms()
{
    m_count.begin();
    const ClientModeGuard mode(100);
    Panel panel;
    panel.table->setAlgoBtnVisible();
    QCOMPARE(panel.host.takeNumbers(), QList<int>({1244}));
    const AbsentService absent(Service::UserConfig);
    panel.table->setAlgoBtnVisible();
    QCOMPARE(panel.host.takeNumbers(), QList<int>());
    QCOMPARE(faults::questions(Service::UserConfig), 1);
    m_count.end();
}

void tst_NullServices::creditTablesWithoutServices()
{
    m_count.begin();
    std::deque<AbsentService> services;
    for (const Service service : faults::kServices)
        services.emplace_back(service);
    CreditPanel panel;
    panel.offerAccounts({QStringLiteral("A1"), QStringLiteral("A2")});
    panel.table->setParam(QStringLiteral("22+22-726=A1-727=X-728=5-729=6"));
    panel.table->setSelectAccount("A2");
    panel.table->setStockCode(QStringLiteral("600000"), std::string(), false);
    QCOMPARE(panel.table->getSelectAccount(), QStringLiteral("A2"));
    QCOMPARE(panel.table->getUnRepayNum(std::string()), 0.0);
    QCOMPARE(panel.table->getUnRepayNum("C1"), 0.0);
    QCOMPARE(panel.table->getTodayAvailableNum(QStringLiteral("600000")), QStringLiteral("0"));
    QVERIFY(faults::questions(Service::DataCenter) >= 2);
    QVERIFY(panel.table->param().startsWith(QStringLiteral("22+22-726=A1-727=X")));
    m_count.end();
}

void tst_NullServices::creditTablesWithoutAccountsAndContracts()
{
    m_count.begin();
    reference::clearAccounts();
    CreditPanel panel;
    chooseOperation(panel, 22);
    panel.table->refreshAccounts();
    QCOMPARE(panel.table->getSelectAccount(), QString());
    panel.table->setSelectAccount("nobody");
    QCOMPARE(panel.table->getSelectAccount(), QString());
    QCOMPARE(panel.table->getUnRepayNum(std::string()), 0.0);
    QCOMPARE(panel.table->getAllUnrepayValue(QStringLiteral("600000")), QStringLiteral("0"));
    QCOMPARE(panel.table->getDefaultUnrepayValue(QStringLiteral("600000")), QStringLiteral("0"));
    QVERIFY(!panel.table->getDefaultCompact(QString()));
    QVERIFY(!panel.table->getCompatctByCode(QString(), nullptr, std::string()));
    QString first = QStringLiteral("first");
    QString second = QStringLiteral("second");
    panel.table->getAvailableNum(first, second, std::string(), std::string(), std::string(), nullptr, std::string());
    QCOMPARE(first + second, QStringLiteral("firstsecond"));
    const QStringList before = panel.texts();
    panel.table->setStkCompacts(nullptr, QStringLiteral("9"), false);
    panel.table->setStkCompacts(boost::make_shared<ttservice::CStkCompactsV2>(), QStringLiteral("9"), false);
    QCOMPARE(panel.texts(), before);
    const auto compact = boost::make_shared<ttservice::CStkCompactsV2>();
    compact->data = boost::make_shared<Data>();
    panel.table->setStkCompacts(compact, QStringLiteral("9"), false);
    QCOMPARE(panel.row(728).section(QLatin1Char('"'), 1, 1), QStringLiteral("9"));
    m_count.end();
}

void tst_NullServices::creditRowsThatAreMissing()
{
    m_count.begin();
    CreditPanel panel;
    panel.table->m_table = new WQ::CMultiParamsTable(panel.table, true);
    panel.table->setParam(QStringLiteral("22+22-726=A-727=X-728=1-729=2"));
    panel.table->refreshAccounts();
    panel.table->setSelectAccount("A1");
    panel.table->setStockCode(QStringLiteral("600000"), std::string(), true);
    panel.table->fixCodeChanged(QString());
    panel.table->refreshUnrepayValue(QStringLiteral("7"));
    panel.table->resetColumnWidth();
    panel.table->handleScaleChanged();
    QCOMPARE(panel.table->getSelectAccount(), QString());
    QCOMPARE(panel.table->getCurrentCode(), QString());
    QCOMPARE(panel.table->getUnRepayNum(std::string()), 0.0);
    QCOMPARE(panel.host.takeNumbers(), QList<int>({73, 73, 1083}));
    QCOMPARE(panel.table->param(), QStringLiteral("22+22-726=A-727=X-728=1-729=2"));
    m_count.end();
}

void tst_NullServices::cellsThatAreMissing_data()
{
    QTest::addColumn<int>("broker");
    for (const int broker : {1, 2, 6, 7})
        QTest::addRow("broker %d", broker) << broker;
}

void tst_NullServices::cellsThatAreMissing()
{
    QFETCH(int, broker);
    m_count.begin();
    TableSetup setup;
    setup.brokerType = broker;
    Panel panel(setup);
    BaseTableProbe& table = *panel.table;
    auto* const empty = new WQ::CMultiParamsTable(&table, true);
    table.m_scrollArea->setWidget(empty);
    table.m_table = empty;
    for (const auto& call : faults::publicCalls()) {
        call(table);
        QCOMPARE(cellRows(*empty), QStringList());
    }
    QCOMPARE(int(table.orderType()), 0);
    QCOMPARE(table.getSelectedButton(), 600);
    QCOMPARE(int(table.getOperationType()), 21);
    table.setPriceType(ttservice::PRTP_LATEST);
    table.setExpandItemsHidden(false);
    table.modPriceCell();
    table.fixSuperPrice();
    table.setAllItemEnable(false);
    table.setStockCode(QStringLiteral("600000"));
    table.setFlag(TC::OperationCellFlags(-1));
    beShown(panel.host);
    QCOMPARE(table.singleVolType(), -1);
    QCOMPARE(table.getCmdLog(), std::string());
    QCOMPARE(cellRows(*empty), QStringList());
    m_count.end();
}

void tst_NullServices::dialogsWithoutServices()
{
    for (const int broker : kBrokers) {
        for (const int type : {0, 1, 2, 6, 7}) {
            m_count.begin();
            const ttservice::CCodeOrderParam task = taskOf(broker, type);
            const DialogProbe expected(task);
            std::deque<AbsentService> services;
            for (const Service service : faults::kServices)
                services.emplace_back(service);
            DialogProbe dialog(task);
            BasketProbe basket({task});
            const auto* const basketTable = basket.creatTable(task, QString(), std::string());
            QCOMPARE(dialog.m_table == nullptr, expected.m_table == nullptr);
            QCOMPARE(basketTable == nullptr, expected.m_table == nullptr);
            if (dialog.m_table)
                QCOMPARE(tableText(*dialog.m_table), tableText(*expected.m_table));
            dialog.grab();
            basket.grab();
            m_count.end();
        }
    }
}

void tst_NullServices::dialogsWithoutAccounts()
{
    m_count.begin();
    ttservice::CCodeOrderParam task = taskOf(2, 1);
    task.account.reset();
    task.code.clear();
    task.name.clear();
    DialogProbe dialog(task);
    QVERIFY(!dialog.m_table);
    QVERIFY(dialog.m_expandButton->isHidden());
    dialog.grab();
    BasketProbe basket({task, ttservice::CCodeOrderParam()});
    QVERIFY(!basket.creatTable(task, QString(), std::string()));
    basket.changeOrderType(task);
    basket.grab();
    BasketProbe empty({});
    empty.grab();
    m_count.end();
}

void tst_NullServices::recordsThatAreNull()
{
    m_count.begin();
    Panel panel;
    BaseTableProbe& table = *panel.table;
    ttservice::CCodeOrderParam task;
    const QString before = faults::seen(table);
    table.fillOrderParam(QString(), -1, task, 1.0);
    table.loadFromOrderParam(task, true, std::string());
    table.loadOpParam(nullptr, 0.0);
    table.saveOpParam(QString(), nullptr);
    table.showOrderParamBtn(nullptr);
    table.setInstrument(nullptr);
    QCOMPARE(table.getAlgParamsStr(task), std::string());
    QCOMPARE(table.getAlgParamsStr(std::vector<ttservice::CCodeOrderParam>()), std::string());
    QCOMPARE(table.getAlgParamsStr(std::vector<ttservice::CCodeOrderParam>(3)), std::string());
    QVERIFY(!task.account);
    QCOMPARE(faults::seen(table), before);
    QCOMPARE(panel.host.take(), QStringList());
    m_count.end();
}

QTEST_MAIN(tst_NullServices)
#include "tst_NullServices.moc"
