#include "workbench/TaskPanel.h"

#include "workbench/HostTable.h"
#include "workbench/LanguageTexts.h"
#include "workbench/NumberCombo.h"
#include "workbench/TaskDialogs.h"
#include "workbench/TaskModel.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace workbench {

TaskPanel::TaskPanel(QWidget* parent)
    : PanelHost(parent)
    , m_model(new TaskModel(this))
    , m_view(new HostTable)
    , m_trader(new NumberCombo(traderTypes(), 1))
    , m_autoBook(new QCheckBox)
    , m_texts(new LanguageTexts(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->setSpacing(6);
    createBar(layout);
    createView(layout);
    m_texts->keep([this] { m_model->retranslate(); });
}

void TaskPanel::createView(QVBoxLayout* layout)
{
    m_view->setModel(m_model);
    m_view->setFitColumns([this] { m_view->resizeColumnsToContents(); });
    m_texts->keep([this] { m_view->setAccessibleName(translated(QT_TRANSLATE_NOOP("workbench", "Tasks"))); });
    // Not activated(): some styles send that for a single click.
    const auto open = [this](const QModelIndex& index) { openTask(index.row()); };
    connect(m_view, &HostTable::doubleClicked, this, open);
    connect(m_view, &HostTable::enterPressed, this, open);
    layout->addWidget(m_view);
    setFocusProxy(m_view);
}

void TaskPanel::createBar(QVBoxLayout* layout)
{
    auto* bar = new QHBoxLayout;
    auto* label = new QLabel;
    auto* basket = new QPushButton;
    label->setBuddy(m_trader);
    bar->addWidget(label);
    bar->addWidget(m_trader, 1);
    bar->addWidget(m_autoBook);
    bar->addWidget(basket);
    layout->addLayout(bar);
    m_texts->keep([this, label, basket] {
        label->setText(translated(QT_TRANSLATE_NOOP("workbench", "Trader type")));
        m_trader->retranslate();
        m_autoBook->setText(translated(QT_TRANSLATE_NOOP("workbench", "Automatic order book")));
        basket->setText(translated(QT_TRANSLATE_NOOP("workbench", "Open basket")));
        basket->setToolTip(translated(QT_TRANSLATE_NOOP(
            "workbench", "Of the selected tasks, or of all; the library's basket dialog shows no cells")));
    });
    connect(basket, &QPushButton::clicked, this, &TaskPanel::openBasket);
}

void TaskPanel::setTasks(std::vector<ttservice::CCodeOrderParam> tasks)
{
    m_model->setTasks(std::move(tasks));
    // Enter opens it; a basket is of the selected tasks, and none is.
    m_view->selectionModel()->setCurrentIndex(m_model->index(0, 0), QItemSelectionModel::NoUpdate);
    m_view->fit();
}

void TaskPanel::openTask(int row)
{
    if (row < 0 || row >= m_model->rowCount())
        return;
    PanelHost& host = makeDialogHost();
    const std::string name = "task" + std::to_string(++m_opened);
    show(makeTaskDialog(host, name, m_model->task(row), m_trader->value(), m_autoBook->isChecked()), host);
}

void TaskPanel::openBasket()
{
    PanelHost& host = makeDialogHost();
    show(makeBasketDialog(host, "basket" + std::to_string(++m_opened), selectedTasks()), host);
}

PanelHost& TaskPanel::makeDialogHost()
{
    auto* host = new PanelHost(this);
    host->setRecorder(recorder());
    host->hide(); // for good: it only hears, and would lie over the list otherwise
    return *host;
}

void TaskPanel::show(QWidget* dialog, PanelHost& host) const
{
    connect(dialog, &QObject::destroyed, &host, &QObject::deleteLater);
    dialog->show();
}

std::vector<ttservice::CCodeOrderParam> TaskPanel::selectedTasks() const
{
    std::vector<ttservice::CCodeOrderParam> tasks;
    const QModelIndexList selected = m_view->selectionModel()->selectedRows();
    for (const QModelIndex& index : selected)
        tasks.push_back(m_model->task(index.row()));
    for (int row = 0; selected.isEmpty() && row < m_model->rowCount(); ++row)
        tasks.push_back(m_model->task(row));
    return tasks;
}

} // namespace workbench
