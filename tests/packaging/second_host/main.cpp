// One table on a platform of the client's own: what it stores and how its records read do not depend on the platform,
// but for the numbers, which the platform formats.
#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>

#include <QApplication>
#include <QTextStream>

namespace {

class Table : public TC::CGlobalOrderParamTable
{
public:
    Table()
        : TC::CGlobalOrderParamTable(TC::OPW_StockTask, ttservice::BROKER_TYPE_STOCK, true, nullptr, false,
                                     ttservice::TRADER_TYPE_2, false)
    {
    }

    void save() override
    {
        QTextStream(stdout) << "saved\n";
        TC::CGlobalOrderParamTable::save();
    }
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    Table table;
    table.setFixedPrice(10.5);
    auto setting = TC::COrderParamBaseTable::getDefaultOrderSetting(ttservice::OPT_NONE, ttservice::TRADER_TYPE_2,
                                                                    ttservice::ORDER_TYPE_ALGORITHM);
    QTextStream(stdout) << "price type " << table.priceType() << '\n'
                        << TC::COrderParamBaseTable::orderSetting2Param(setting) << '\n';
    return 0;
}
