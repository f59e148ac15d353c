#include <OrderParamTable_mini/credit/CreditLayout.h>

#include <OrderParamTable_mini/semantics/IntSet.h>

#include <algorithm>
#include <cmath>

namespace TC {

using namespace ttservice;

namespace {

// clang-format off
constexpr CreditLayout kLayouts[] = {
    {OPT_REPAY_SECURITIES_BY_BUYING,
     {{CR_Unrepaid, u"未还合约数量"}, {CR_Funds, u"可还券资金"}, {CR_Repayable, u"当日可还数量"}},
     {{CR_Unrepaid, u"股"}, {CR_RepayableToday, u"股"}, {CR_Funds, u"元"}, {CR_Repayable, u"股"}},
     {{CR_Unrepaid, FigureFormat::Quantity}, {CR_Funds, FigureFormat::Money},
      {CR_Repayable, FigureFormat::Quantity}, {CR_RepayableToday, FigureFormat::Quantity}},
     true},
    {OPT_REPAY_SECURITIES_HELD,
     {{CR_Unrepaid, u"未还合约数量"}, {CR_Funds, u"可用持仓数量"}, {CR_Repayable, u"当日可还数量"}},
     {{CR_Unrepaid, u"股"}, {CR_Funds, u"股"}},
     {{CR_Unrepaid, FigureFormat::Quantity}, {CR_RepayableToday, FigureFormat::Quantity},
      {CR_Funds, FigureFormat::Quantity}, {CR_Repayable, FigureFormat::Quantity}},
     true},
    {OPT_REPAY_CASH_BY_SELLING,
     {{CR_Unrepaid, u"负债金额"}, {CR_Funds, u"可卖持仓数量"}},
     {{CR_Unrepaid, u"元"}, {CR_Funds, u"股"}},
     {{CR_Unrepaid, FigureFormat::Money}, {CR_Funds, FigureFormat::Quantity}},
     false},
    {OPT_REPAY_CASH_HELD,
     {{CR_Unrepaid, u"负债金额"}, {CR_Funds, u"可还款资金"}},
     {{CR_Unrepaid, u"元"}, {CR_Funds, u"元"}},
     {{CR_Unrepaid, FigureFormat::Money}, {CR_Funds, FigureFormat::Money}},
     false},
    {OPT_REPAY_LENDING_FEES,
     {{CR_Unrepaid, u"未还融券合约息费"}, {CR_Funds, u"可还款资金"}},
     {{CR_Unrepaid, u"元"}, {CR_Funds, u"元"}},
     {{CR_Unrepaid, FigureFormat::Money}, {CR_Funds, FigureFormat::Money}},
     false},
};

constexpr IntSet kSecuritiesContracts{22, 23, 1021};
constexpr IntSet kCashContracts      {24, 25};
constexpr IntSet kSecuritiesRepayments{22, 23};
// clang-format on

constexpr int kWideTitleColumnWidth = 155;
constexpr double kScaleTolerance = 0.00001;

} // namespace

int indexOfAccount(const QVector<QVariant>& accounts, const QString& remembered)
{
    if (accounts.isEmpty())
        return -1;
    const auto found = std::find_if(accounts.cbegin(), accounts.cend(), [&remembered](const QVariant& account) {
        return account.toString() == remembered;
    });
    return found == accounts.cend() ? 0 : int(found - accounts.cbegin());
}

const CreditLayout* creditLayout(int operation)
{
    for (const CreditLayout& layout : kLayouts) {
        if (layout.operation == operation)
            return &layout;
    }
    return nullptr;
}

ENVCompactType compactType(EOperationType operation)
{
    if (kSecuritiesContracts.contains(operation))
        return COMPACT_TYPE_SECURITIES;
    return kCashContracts.contains(operation) ? COMPACT_TYPE_CASH : COMPACT_TYPE_NONE;
}

bool repaysSecurities(int operation)
{
    return kSecuritiesRepayments.contains(operation);
}

// The fees of securities lending are money, though their contracts borrow securities.
UnrepaidFormat unrepaidFormat(int operation)
{
    const ENVCompactType type = compactType(EOperationType(operation));
    if (type == COMPACT_TYPE_CASH || operation == OPT_REPAY_LENDING_FEES)
        return UnrepaidFormat::Money;
    return type == COMPACT_TYPE_SECURITIES ? UnrepaidFormat::Quantity : UnrepaidFormat::None;
}

int titleColumnWidth(int operation, double uiScale)
{
    const bool isUnscaled = std::abs(uiScale - 1.0) <= kScaleTolerance;
    return operation == OPT_REPAY_LENDING_FEES && !isUnscaled ? kWideTitleColumnWidth : kTitleColumnWidth;
}

} // namespace TC
