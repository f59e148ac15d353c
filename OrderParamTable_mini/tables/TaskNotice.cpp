#include <OrderParamTable_mini/tables/TaskNotice.h>

#include <OrderParamTable_mini/frame/Services.h>
#include <OrderParamTable_mini/tables/TaskTables.h>

#include <QPainter>

namespace TC {

TaskNotice::TaskNotice(QWidget* parent)
    : WQ::CBaseWidget(QStringLiteral("task_param_notice"), false, parent)
{
    setFixFont();
    setFixedSize(taskTableWidth(), kTaskTableHeight);
    setAccessibleName(QStringLiteral("该账户类型没有可显示的参数"));
}

TaskNotice::~TaskNotice() = default;

void TaskNotice::paintEvent(QPaintEvent* event)
{
    WQ::CBaseWidget::paintEvent(event);
    QPainter painter(this);
    painter.setPen(resourceColor(QStringLiteral("clr_global_text")));
    painter.drawText(rect(), int(Qt::AlignCenter) | Qt::TextWordWrap, accessibleName());
}

} // namespace TC
