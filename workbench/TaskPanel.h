#pragma once

#include "workbench/PanelHost.h"

#include <ttservice/CCodeOrderParam.h>

#include <vector>

class QCheckBox;
class QVBoxLayout;

namespace workbench {

class HostTable;
class LanguageTexts;
class NumberCombo;
class TaskModel;

/// The task list: a double-click or Enter opens the task's dialog. Each dialog stands under a host of its own, so that
/// its events are told from those of others; they climb on to here.
class TaskPanel : public PanelHost
{
    Q_OBJECT
public:
    explicit TaskPanel(QWidget* parent = nullptr);

    void setTasks(std::vector<ttservice::CCodeOrderParam> tasks);

    /// Opens the dialog of that row for the chosen kind of trading desk; it deletes itself when closed. A row that
    /// there is not opens none.
    void openTask(int row);

    /// Opens the basket of the selected rows, or of all when none is.
    void openBasket();

private:
    void createView(QVBoxLayout* layout);
    void createBar(QVBoxLayout* layout);
    PanelHost& makeDialogHost();
    void show(QWidget* dialog, PanelHost& host) const;
    std::vector<ttservice::CCodeOrderParam> selectedTasks() const;

    TaskModel* m_model;
    HostTable* m_view;
    NumberCombo* m_trader;
    QCheckBox* m_autoBook;
    LanguageTexts* m_texts;
    int m_opened = 0; ///< dialogs so far
};

} // namespace workbench
