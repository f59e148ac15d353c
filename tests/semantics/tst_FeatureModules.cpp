#include <OrderParamTable_mini/semantics/FeatureModules.h>

#include <QTest>

using TC::FeatureModule;

class tst_FeatureModules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyModuleHasItsPath_data();
    void everyModuleHasItsPath();
};

void tst_FeatureModules::everyModuleHasItsPath_data()
{
    QTest::addColumn<int>("module");
    QTest::addColumn<QString>("path");
    const auto row = [](FeatureModule module, const char* path) {
        QTest::newRow(path) << int(module) << QString::fromLatin1(path);
    };
    row(FeatureModule::ThirdAlgorithm, "mdl_order/mdl_order_algorithm3");
    row(FeatureModule::MultiMarketPrice, "mdl_order/mdl_order_multi_market_price");
    row(FeatureModule::StockMultiMarketPrice, "mdl_order/mdl_order_stock_multi_market_price");
    row(FeatureModule::SloSellOnlyFixedPrice, "mdl_order/mdl_order_credit_opt_slosell_only_fixed_price");
    row(FeatureModule::ComposeFullPriceTypes, "mdl_order/mdl_order_compose_full_pricetype");
    row(FeatureModule::CommandRemark, "mdl_order/mdl_order_command_remark");
    row(FeatureModule::TriggerPrice, "mdl_order/mdl_order_trigger_price");
    row(FeatureModule::StopProfitLoss, "mdl_order/mdl_order_stop_profit_loss");
    row(FeatureModule::RandomVolume, "mdl_alg/mdl_alg_randvolume");
}

void tst_FeatureModules::everyModuleHasItsPath()
{
    QFETCH(int, module);
    const TC::ModulePath path = TC::modulePath(FeatureModule(module));
    QTEST(QLatin1String(path.group) + QLatin1Char('/') + QLatin1String(path.name), "path");
}

QTEST_APPLESS_MAIN(tst_FeatureModules)
#include "tst_FeatureModules.moc"
