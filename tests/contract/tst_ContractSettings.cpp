#include "contract/RecordedPanel.h"

#include <WQ/CMultiParamsTable.h>

#include <QDate>
#include <QtTest>

#include <limits>

using contract::lines;
using contract::RecordedPanel;

namespace {

const char kAsksRemark[] = R"(modules.isOn("mdl_order", "mdl_order_command_remark"))";
const char kRemarkModule[] = "mdl_order/mdl_order_command_remark";

} // namespace

/// What the settings records, the parameter string and the command log ask of the toolkit and the services.
class tst_ContractSettings : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void defaultRecordConvertsTwoTimesOfToday();
    void defaultRecordOfATraderAsksNothing();
    void parameterStringFormatsItsFieldsInOrder();
    void unshowableNumbersAreTheFormattersMatter();
    void storedRecordsAreReadAfterSaving();
    void storingARecordCallsNothing();
    void remarkCellIsAddedWhereItMayBe_data();
    void remarkCellIsAddedWhereItMayBe();
    void remarkCellIsNotAddedWithoutItsModule();
    void remarkIsReadWithoutAskingTheModule();
    void settingTheParametersAnewSavesOnly();
};

void tst_ContractSettings::init()
{
    recorder::reset();
}

void tst_ContractSettings::defaultRecordConvertsTwoTimesOfToday()
{
    RecordedPanel panel;
    const QString day = QDate::currentDate().toString(Qt::ISODate);

    panel.table.getDefault();

    QCOMPARE(day, QDate::currentDate().toString(Qt::ISODate));
    QStringList calls = recorder::calls(recorder::kEverything);
    calls.sort();
    QCOMPARE(calls,
             QStringList({QStringLiteral("qDateTimeToSecond(\"%1T09:30:00\")").arg(day),
                          QStringLiteral("qDateTimeToSecond(\"%1T15:00:00\")").arg(day)}));
}

void tst_ContractSettings::defaultRecordOfATraderAsksNothing()
{
    for (const int trader : {0, 1, 2, 3, 4, 4096}) {
        support::BaseTableProbe::getDefaultOrderSetting(ttservice::EOperationType(1), ttservice::ENvTraderType(trader),
                                                        ttservice::EOrderType(1));
        QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
    }
}

void tst_ContractSettings::parameterStringFormatsItsFieldsInOrder()
{
    ttservice::COrderSetting setting;
    setting.realField4 = 4.0;
    setting.realField5 = 5.0;
    setting.realField8 = 8.0;
    setting.realField9 = 9.0;
    setting.realField11 = 11.0;
    setting.realField12 = 12.0;
    setting.realField14 = 14.0;
    setting.realField24 = 24.0;
    setting.realField26 = 26.0;
    setting.realField27 = 27.0;
    setting.realField30 = 30.0;
    setting.realField32 = 32.0;
    setting.realField33 = 33.0;
    setting.realField34 = 34.0;

    const QStringList items = support::BaseTableProbe::orderSetting2Param(setting).split(QLatin1Char('+'));

    QCOMPARE(recorder::calls(recorder::kEverything), lines(R"(
        formatDoubleNumber(4.0, 3, 0, false, "非法值")
        formatDoubleNumber(5.0, 3, 0, false, "非法值")
        formatDoubleNumber(8.0, 3, 0, false, "非法值")
        formatDoubleNumber(9.0, 3, 0, false, "非法值")
        formatDoubleNumber(11.0, 3, 0, false, "非法值")
        formatDoubleNumber(12.0, 3, 0, false, "非法值")
        formatDoubleNumber(14.0, 3, 0, false, "非法值")
        formatDoubleNumber(14.0, 3, 0, false, "非法值")
        formatDoubleNumber(26.0, 3, 0, false, "非法值")
        formatDoubleNumber(27.0, 3, 0, false, "非法值")
        formatDoubleNumber(30.0, 3, 0, false, "非法值")
        formatDoubleNumber(32.0, 3, 0, false, "非法值")
        formatDoubleNumber(33.0, 3, 0, false, "非法值")
        formatDoubleNumber(34.0, 3, 0, false, "非法值")
    )"));
    // The formatter's texts are taken as they are; "~" is how the recorder's begin.
    QCOMPARE(items.size(), 41);
    QCOMPARE(items.at(3), QStringLiteral("~4.000"));
    QCOMPARE(items.at(23), QStringLiteral("~14.000"));
    QCOMPARE(items.filter(QStringLiteral("~")).size(), 14);
}

void tst_ContractSettings::unshowableNumbersAreTheFormattersMatter()
{
    ttservice::COrderSetting setting;
    setting.realField4 = std::numeric_limits<double>::max();

    support::BaseTableProbe::orderSetting2Param(setting);

    QCOMPARE(recorder::calls(recorder::Format).first(),
             QStringLiteral("formatDoubleNumber(max, 3, 0, false, \"非法值\")"));
}

void tst_ContractSettings::storedRecordsAreReadAfterSaving()
{
    RecordedPanel panel;
    ttservice::COrderSetting written;
    written.intField3 = 7;
    panel.table.onSave = [&panel, &written] {
        recorder::record(recorder::Hook, QStringLiteral("save"));
        panel.table.m_orderSettings.insert(3, written);
    };

    QCOMPARE(panel.table.getOrderSettings(3).intField3, 7);

    QCOMPARE(recorder::calls(recorder::kEverything), lines("save()"));
}

void tst_ContractSettings::storingARecordCallsNothing()
{
    RecordedPanel panel;
    ttservice::COrderSetting setting;

    panel.table.setOrderSettings(1, setting);

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

void tst_ContractSettings::remarkCellIsAddedWhereItMayBe_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<bool>("added");
    const QSet<int> excluded = {15, 17, 18, 19, 20, 21, 22, 25, 26, 27, 28, 29, 30, 36, 37, 38, 40, 42, 43, 48, 49, 51};
    for (int id = -1; id <= 60; ++id)
        QTest::addRow("table %d", id) << id << !excluded.contains(id);
}

void tst_ContractSettings::remarkCellIsAddedWhereItMayBe()
{
    QFETCH(int, id);
    QFETCH(bool, added);
    support::TableSetup setup;
    setup.id = id;
    RecordedPanel panel(setup);
    recorder::state().modulesOn = {QLatin1String(kRemarkModule)};

    panel.table.updateCmdLog();

    QStringList expected{QLatin1String(kAsksRemark)};
    if (added)
        expected << lines(R"(table.addLineEdit(0x4000000, "投资备注", "", false, ""))");
    QCOMPARE(recorder::calls(recorder::kEverything), expected);
}

void tst_ContractSettings::remarkCellIsNotAddedWithoutItsModule()
{
    RecordedPanel panel;

    panel.table.updateCmdLog();

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList{QLatin1String(kAsksRemark)});
}

void tst_ContractSettings::remarkIsReadWithoutAskingTheModule()
{
    RecordedPanel panel;
    panel.table.m_table->addLineEdit(0x4000000, {}, QStringLiteral("备注"), false, {});
    recorder::clear();

    QCOMPARE(panel.table.getCmdLog(), std::string("\xE5\xA4\x87\xE6\xB3\xA8"));

    QCOMPARE(recorder::calls(recorder::kEverything), lines("table.itemText(0x4000000)"));
}

void tst_ContractSettings::settingTheParametersAnewSavesOnly()
{
    RecordedPanel panel;

    panel.table.resetOrderParamSetting();

    QCOMPARE(recorder::calls(recorder::kEverything), lines("save()"));
}

QTEST_MAIN(tst_ContractSettings)
#include "tst_ContractSettings.moc"
