#pragma once

#include <ttservice/Enumerations.h>

#include <QVariant>
#include <QVector>

namespace TC {

/// Rows of the credit table; they continue the numbering of the host's cells and collide with no cell of an order
/// table.
enum CreditRow : int {
    CR_Identity = 725,       ///< no row: the identity under which the table reports to its host
    CR_Account = 726,        ///< funds account
    CR_Contract = 727,       ///< specified contract
    CR_Unrepaid = 728,       ///< unrepaid quantity or amount
    CR_RepayableToday = 729, ///< repayable today
    CR_Funds = 730,          ///< what is there to repay with
    CR_Repayable = 731,      ///< repayable quantity
};

/// How a figure is written.
enum class FigureFormat {
    Quantity, ///< a whole number
    Money,    ///< two decimals
};

struct CreditTitle
{
    int row;
    const char16_t* text;
};
struct CreditUnit
{
    int row;
    const char16_t* text;
};
struct CreditFigure
{
    int row;
    FigureFormat format;
};

/// The account to choose: the first that reads as the remembered one, else the first; -1 when there is none.
int indexOfAccount(const QVector<QVariant>& accounts, const QString& remembered);

/// How an operation's rows look; each list in the order in which the rows are set. Lists end with row 0.
struct CreditLayout
{
    int operation;
    CreditTitle titles[4];
    CreditUnit units[5];
    CreditFigure figures[5];
    bool showsRepayableToday;
};

/// The layout of an operation; null for the ones that leave the rows as they are.
const CreditLayout* creditLayout(int operation);

/// What a credit operation's contracts borrow.
ttservice::ENVCompactType compactType(ttservice::EOperationType operation);

/// Whether an operation gives back securities: 22 and 23.
bool repaysSecurities(int operation);

/// How the unrepaid figure of an operation is written.
enum class UnrepaidFormat {
    None,     ///< "0" whatever the figure
    Quantity, ///< a whole number of shares
    Money,    ///< yuan with two decimals
};
UnrepaidFormat unrepaidFormat(int operation);

/// The width of the title column: only the longest title, under a larger UI scale, takes more than the usual.
int titleColumnWidth(int operation, double uiScale);
constexpr int kTitleColumnWidth = 120;

} // namespace TC
