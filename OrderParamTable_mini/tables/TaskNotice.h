#pragma once

#include <WQ/CBaseWidget.h>

namespace TC {

/// Stands in the place of a task's table for accounts that have none, and says so.
class TaskNotice : public WQ::CBaseWidget
{
public:
    explicit TaskNotice(QWidget* parent);
    ~TaskNotice() override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace TC
