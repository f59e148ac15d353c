// The smallest host: one table, one listener that writes the parameter string whenever the parameters change. With
// --quit it ends at once, for a machine without a person.
#include <OrderParamTable_mini/semantics/EventNumbers.h>
#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>

#include <QApplication>
#include <QTextStream>
#include <QTimer>
#include <QVBoxLayout>

namespace {

/// Events climb the parent widgets: whoever listens is an ancestor of the table.
class OrderHost : public WQ::CEventWidgetT<QWidget>
{
public:
    OrderHost()
        : m_table(new TC::CGlobalOrderParamTable(TC::OPW_StockTask, ttservice::BROKER_TYPE_STOCK, true, this, false,
                                                 ttservice::TRADER_TYPE_1, false))
    {
        auto* column = new QVBoxLayout(this);
        column->addWidget(m_table);

        // Records are the host's: the table keeps them by a key of the host's choice.
        auto setting = TC::COrderParamBaseTable::getDefaultOrderSetting(m_table->getOperationType(),
                                                                        ttservice::TRADER_TYPE_1, m_table->orderType());
        m_table->setOrderSettings(m_table->orderType(), setting);
    }

    void setPrice(double price)
    {
        m_table->setFixedPrice(price);
    }

protected:
    bool handleEvent(int event, int, int, QString, void*) override
    {
        if (event == TC::events::kParametersChanged)
            QTextStream(stdout) << m_table->orderSetting2Param(m_table->getOrderSettings(m_table->orderType())) << '\n';
        return false;
    }

private:
    TC::CGlobalOrderParamTable* m_table; ///< its parent, this widget, owns it
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    OrderHost host;
    host.show();
    host.setPrice(10.5); // as a click on a quote does
    if (QApplication::arguments().contains(QStringLiteral("--quit")))
        QTimer::singleShot(0, &host, &QWidget::close);
    return QApplication::exec();
}
