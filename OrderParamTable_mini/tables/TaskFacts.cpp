#include <OrderParamTable_mini/tables/TaskFacts.h>

#include <OrderParamTable_mini/semantics/IntSet.h>

#include <WQ/CParameterCell.h>
#include <WQ/CWidgetList.h>
#include <WQ/Formatting.h>

#include <QFrame>
#include <QPainter>

#include <limits>

namespace TC {

using namespace ttservice;

namespace {

constexpr int kFactHeight = 22;
constexpr int kFactWidth = 200;
constexpr int kFactGap = 1;
constexpr double kLargestFact = 1e6;
constexpr double kLargestPrice = std::numeric_limits<double>::max();
constexpr double kPriceStep = 0.001;
constexpr double kOptionPriceStep = 0.0001;

constexpr IntSet kOperationsWithoutBasePrice{40, 41, 1089};
constexpr IntSet kBrokersWithPlainPrice{1, 5};

struct FactRow
{
    const char16_t* label; ///< with the blanks that align it
    bool (*isShown)(const CCodeOrderParam&);
    void (*fill)(WQ::CParameterCell&, const CCodeOrderParam&);
};

void setFactLimits(WQ::CParameterCell& cell, double max, double step)
{
    cell.setDoubleValidator(QString(), 0.0, max, step);
}

bool always(const CCodeOrderParam&)
{
    return true;
}

bool hasBasePrice(const CCodeOrderParam& task)
{
    return !kOperationsWithoutBasePrice.contains(task.operationType);
}

void fillAccount(WQ::CParameterCell& cell, const CCodeOrderParam& task)
{
    if (task.account)
        cell.setString(WQ::sToQs(task.account->accountId));
}

void fillAccountName(WQ::CParameterCell& cell, const CCodeOrderParam& task)
{
    cell.setString(task.account ? WQ::sToQs(task.account->accountName) : QStringLiteral("空"));
}

void fillCode(WQ::CParameterCell& cell, const CCodeOrderParam& task)
{
    cell.setString(WQ::sToQs(task.code));
}

void fillName(WQ::CParameterCell& cell, const CCodeOrderParam& task)
{
    cell.setString(WQ::sToQs(task.name));
}

// The direction is left blank in this edition.
void leaveBlank(WQ::CParameterCell&, const CCodeOrderParam&)
{
}

void fillVolume(WQ::CParameterCell& cell, const CCodeOrderParam& task)
{
    cell.setInt(task.volume);
}

void fillPrice(WQ::CParameterCell& cell, const CCodeOrderParam& task, double step)
{
    setFactLimits(cell, kLargestPrice, step);
    cell.setDouble(task.price);
}

void fillBasePrice(WQ::CParameterCell& cell, const CCodeOrderParam& task)
{
    const int broker = task.account ? int(task.account->brokerType) : 0;
    if (broker == BROKER_TYPE_OPTION) {
        if (task.priceType == PRTP_MARKET)
            cell.setString(QStringLiteral("涨跌停价"));
        fillPrice(cell, task, kOptionPriceStep);
    } else if (task.priceType == PRTP_AFTER_HOURS_FIX && !kBrokersWithPlainPrice.contains(broker)) {
        cell.setString(QStringLiteral("盘后定价"));
    } else {
        fillPrice(cell, task, kPriceStep);
    }
}

// clang-format off
constexpr FactRow kFacts[] = {
    {u"    账号", always,       fillAccount},
    {u"账号名称", always,       fillAccountName},
    {u"    代码", always,       fillCode},
    {u"    名称", always,       fillName},
    {u"    方向", always,       leaveBlank},
    {u"    数量", always,       fillVolume},
    {u"  基准价", hasBasePrice, fillBasePrice},
};
// clang-format on

WQ::CParameterCell* createFact(const FactRow& row, const CCodeOrderParam& task, QWidget* parent)
{
    const QString font = QStringLiteral("fnt_default_normal_fix");
    auto* const cell = new WQ::CParameterCell(0, QString::fromUtf16(row.label), QString(), parent);
    cell->setEditFontKey(font);
    cell->setTextFontKey(font);
    cell->setFixedSize(kFactWidth, kFactHeight);
    cell->setEnabled(false);
    setFactLimits(*cell, kLargestFact, kPriceStep);
    row.fill(*cell, task);
    return cell;
}

/// Styles stroke such a line pixel by pixel, which takes longer than all the facts beside it.
class TaskLine : public QFrame
{
public:
    using QFrame::QFrame;

protected:
    void paintEvent(QPaintEvent*) override
    {
        const int left = width() / 2 - 1;
        QPainter painter(this);
        painter.fillRect(left, 0, 1, height(), palette().light());
        painter.fillRect(left + 1, 0, 1, 1, palette().light());
        painter.fillRect(left + 1, 1, 1, height() - 2, palette().dark());
    }
};

} // namespace

QFrame* createTaskLine(QWidget* parent)
{
    auto* const line = new TaskLine(parent);
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Raised);
    return line;
}

QWidget* createTaskFacts(const CCodeOrderParam& task, QWidget* parent)
{
    auto* const list = new WQ::CWidgetList(Qt::Vertical, parent);
    list->setMargin(0, 0, 0, 0);
    list->setFixedWidth(kFactWidth);
    for (const FactRow& row : kFacts) {
        if (!row.isShown(task))
            continue;
        list->addFixedWidget(createFact(row, task, parent), WQ::AnchorStart, false);
        list->addFixedSpace(kFactGap);
    }
    return list;
}

} // namespace TC
