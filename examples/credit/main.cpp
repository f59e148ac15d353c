// The table of a credit repayment: its state goes in and comes out as one parameter string, and the host hears when the
// account or the contract changes. With --quit it ends at once, for a machine without a person.
#include <OrderParamTable_mini/credit/CCreditParamTable.h>
#include <OrderParamTable_mini/semantics/EventNumbers.h>

#include <WQ/EventNumbers.h>

#include <QApplication>
#include <QTextStream>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int kCreditTable = 725; // the ID that the table reports under

class RepaymentHost : public WQ::CEventWidgetT<QWidget>
{
public:
    RepaymentHost()
        : m_table(new TC::CCreditParamTable(this))
    {
        auto* column = new QVBoxLayout(this);
        column->addWidget(m_table);
    }

    TC::CCreditParamTable& table()
    {
        return *m_table;
    }

protected:
    bool handleEvent(int event, int id, int, QString, void* payload) override
    {
        QTextStream out(stdout);
        if (id == kCreditTable && event == WQ::events::kEntryChosen)
            out << "account '" << static_cast<const QVariant*>(payload)->toString() << "'\n"; // ours until we return
        else if (id == kCreditTable && event == TC::events::kContractCodeEmptied)
            out << "no contract\n";
        return false;
    }

private:
    TC::CCreditParamTable* m_table; ///< its parent, this widget, owns it
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    RepaymentHost host;
    host.show();

    // Operation 24, selling to pay back cash: its remembered account, contract, debt and what may be sold.
    host.table().setParam(QStringLiteral("24+24-726=A1-727=-728=1500.5-730=200"));
    host.table().setSelectAccount("A1");
    QTextStream(stdout) << host.table().param() << '\n';

    if (QApplication::arguments().contains(QStringLiteral("--quit")))
        QTimer::singleShot(0, &host, &QWidget::close);
    return QApplication::exec();
}
