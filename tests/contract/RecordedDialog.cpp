#include "contract/RecordedDialog.h"

#include "contract/Sequences.h"

#include <algorithm>

namespace contract {

namespace {

QString moneyUnit(int brokerType)
{
    switch (brokerType) {
    case 1:
    case 4:
    case 5:
    case 1001:
    case 1002:
        return QStringLiteral("点");
    case 7:
    case 11:
        return QStringLiteral("港币");
    default:
        return QStringLiteral("元");
    }
}

bool isLeftOut(const QString& call)
{
    return call.startsWith(QLatin1String("strip.setVisible("))
        || call.startsWith(QLatin1String("table.setFixedWidth("));
}

} // namespace

const EmbeddedTable& embeddedTable(int brokerType)
{
    return *std::find_if(std::begin(kEmbeddedTables), std::end(kEmbeddedTables),
                         [brokerType](const EmbeddedTable& row) { return row.brokerType == brokerType; });
}

QStringList flagCalls(int brokerType, int flags)
{
    constexpr quint32 kPlainMask = 0x7700003;
    constexpr int kDefaultFlags = 0x7103FFF;
    const QString percent = QStringLiteral("table.setItemUnit(0x2, \"%\", %1, 100.0, 0.0, false)");
    const QString money = QStringLiteral("table.setItemUnit(0x2, \"%2\", %1, 1000000.0, 0.0, false)")
                              .arg(QStringLiteral("%1"), moneyUnit(brokerType));
    const bool isDefault = flags == kDefaultFlags;
    return cellVisibilities({0, false, quint32(flags) & kPlainMask, 0})
        << percent.arg(isDefault ? QStringLiteral("0.0") : QStringLiteral("-100.0"))
        << money.arg(isDefault ? QStringLiteral("0.0") : QStringLiteral("-1000000.0"));
}

QStringList recordedFlagCalls()
{
    QStringList all = recorder::calls(recorder::Do | recorder::Show);
    all.erase(std::remove_if(all.begin(), all.end(), isLeftOut), all.end());
    const int from = all.indexOf(QStringLiteral("table.clearVisibleItem()"));
    const int to = all.indexOf(QStringLiteral("table.setAllItemEnable(false)"));
    return from < 0 ? QStringList() : all.mid(from, to - from);
}

void switchCellModulesOn()
{
    recorder::state().modulesOn = {QStringLiteral("mdl_order/mdl_order_command_remark"),
                                   QStringLiteral("mdl_order/mdl_order_trigger_price"),
                                   QStringLiteral("mdl_order/mdl_order_stop_profit_loss")};
}

} // namespace contract
