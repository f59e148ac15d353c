// Opens the dialog of one task: its parameter table, read-only, and a column of facts, which are also written out. With
// --quit it is closed at once, for a machine without a person.
#include <OrderParamTable_mini/tables/CBaseTaskParamWidget.h>

#include <WQ/CParameterCell.h>

#include <boost/make_shared.hpp>

#include <QApplication>
#include <QTextStream>
#include <QTimer>

namespace {

ttservice::CCodeOrderParam stockTask()
{
    auto account = boost::make_shared<ttservice::CAccountInfoV2>();
    account->brokerType = ttservice::BROKER_TYPE_STOCK; // decides which table the dialog shows
    account->accountId = "20001";
    account->accountName = "Account A";

    ttservice::CCodeOrderParam task;
    task.account = account;
    task.orderType = ttservice::ORDER_TYPE_ALGORITHM;
    task.code = "600001";
    task.name = "Share A";
    task.priceType = ttservice::PRTP_FIX;
    task.price = 10.5;
    task.volume = 300;
    return task;
}

void writeFacts(const QWidget& dialog)
{
    QTextStream out(stdout);
    for (const WQ::CParameterCell* fact : dialog.findChildren<WQ::CParameterCell*>())
        out << fact->label().trimmed() << '=' << fact->text() << '\n';
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    ttservice::CCodeOrderParam task = stockTask();

    // The dialog reads the task here and keeps nothing of it; when it is closed it deletes itself.
    auto* dialog = new TC::CBaseTaskParamWidget(task, QString(), nullptr, false, ttservice::TRADER_TYPE_1, false, {});
    QObject::connect(dialog, &QObject::destroyed, [] { QTextStream(stdout) << "closed\n"; });
    dialog->setTitle(QString::fromStdString(task.name));
    dialog->show();
    writeFacts(*dialog);
    if (QApplication::arguments().contains(QStringLiteral("--quit")))
        QTimer::singleShot(0, dialog, &QWidget::close);
    return QApplication::exec();
}
