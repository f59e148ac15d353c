#include "workbench/WhyPanel.h"

#include "workbench/HostTable.h"
#include "workbench/LanguageTexts.h"
#include "workbench/TableBench.h"
#include "workbench/Vocabulary.h"
#include "workbench/WhyModel.h"
#include "workbench/WhyTexts.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace workbench {

namespace {

void fitColumns(QTableView& view)
{
    view.resizeColumnToContents(WhyModel::Rule);
    view.resizeColumnToContents(WhyModel::Effect);
}

} // namespace

WhyPanel::WhyPanel(TableBench& bench, QWidget* parent)
    : QWidget(parent)
    , m_cell(TC::OCF_PriceType)
    , m_model(new WhyModel(this))
    , m_choice(new QComboBox)
    , m_follow(new QCheckBox)
    , m_answer(new QLabel)
    , m_view(new HostTable(this))
    , m_texts(new LanguageTexts(this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->setSpacing(6);
    createBar();
    createList();
    connect(&bench, &TableBench::rebuilt, this, &WhyPanel::setTable);
    connect(&bench, &TableBench::eventArrived, this, &WhyPanel::refresh);
    setTable(bench.table());
    m_texts->keep([this] {
        m_model->retranslate();
        refresh();
    });
}

void WhyPanel::createBar()
{
    auto* const bar = new QHBoxLayout;
    auto* const copy = new QPushButton;
    m_choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_choice->setMinimumContentsLength(16);
    m_choice->setMaxVisibleItems(30);
    m_follow->setChecked(true);
    bar->addWidget(m_choice, 1);
    bar->addWidget(m_follow);
    bar->addWidget(copy);
    static_cast<QVBoxLayout*>(layout())->addLayout(bar);
    m_answer->setWordWrap(true);
    m_answer->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout()->addWidget(m_answer);
    m_texts->keep([this, copy] {
        m_choice->setAccessibleName(translated(QT_TRANSLATE_NOOP("workbench", "Cell")));
        m_choice->setToolTip(translated(QT_TRANSLATE_NOOP("workbench", "Any cell, shown or not")));
        m_follow->setText(translated(QT_TRANSLATE_NOOP("workbench", "Follow the panel's row")));
        copy->setText(translated(QT_TRANSLATE_NOOP("workbench", "Copy")));
    });
    connect(m_choice, QOverload<int>::of(&QComboBox::activated), this,
            [this] { choose(m_choice->currentData().toInt()); });
    connect(copy, &QPushButton::clicked, this, [this] { QApplication::clipboard()->setText(text()); });
}

void WhyPanel::createList()
{
    m_view->setModel(m_model);
    m_view->setFitColumns([this] { fitColumns(*m_view); });
    m_view->horizontalHeader()->setStretchLastSection(false);
    m_view->horizontalHeader()->setSectionResizeMode(WhyModel::Value, QHeaderView::Stretch);
    connect(m_view, &HostTable::copyRequested, this, [this] { QApplication::clipboard()->setText(text()); });
    m_texts->keep([this] {
        m_view->setAccessibleName(translated(QT_TRANSLATE_NOOP("workbench", "Why a cell is shown or not")));
    });
    layout()->addWidget(m_view);
}

void WhyPanel::setTable(TC::COrderParamBaseTable* table)
{
    m_table = table;
    if (WQ::CMultiParamsTable* const grid = table ? table->getMultiParamsTable() : nullptr)
        connect(grid->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
                [this](const QModelIndex& current) { followRow(current.row()); });
    refresh();
}

void WhyPanel::followRow(int row)
{
    if (!m_follow->isChecked() || !m_table)
        return;
    const WQ::CellModel& cells = WQ::CMultiParamsTablePrivate::of(m_table->getMultiParamsTable())->model();
    if (const WQ::CellItem* const cell = cells.cellAtRow(row))
        choose(cell->id());
}

void WhyPanel::choose(int cell)
{
    m_cell = cell;
    refresh();
}

void WhyPanel::refresh()
{
    if (!isVisible())
        return;
    listCells();
    explain();
}

void WhyPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    refresh();
}

void WhyPanel::listCells()
{
    // A person who chooses just now keeps his list.
    if (m_choice->view()->isVisible())
        return;
    const QSignalBlocker quiet(m_choice);
    const std::vector<int> cells = m_table ? whyCells(*m_table) : std::vector<int>();
    while (m_choice->count() > int(cells.size()))
        m_choice->removeItem(m_choice->count() - 1);
    while (m_choice->count() < int(cells.size()))
        m_choice->addItem(QString());
    for (int i = 0; i < m_choice->count(); ++i) {
        const int cell = cells[std::size_t(i)];
        const QString name = QStringLiteral("%1 · %2").arg(whyCellName(cell), whyCellState(whyCell(*m_table, cell)));
        m_choice->setItemData(i, name, Qt::DisplayRole);
        m_choice->setItemData(i, cell);
    }
    m_choice->setCurrentIndex(m_choice->findData(m_cell));
}

void WhyPanel::explain()
{
    if (!m_table) {
        m_model->clear();
        m_answer->clear();
        return;
    }
    const WhyTable table = whyTable(*m_table);
    const WhyCell cell = whyCell(*m_table, m_cell);
    m_model->explain(table, cell);
    const WhyStep& step = decisiveStep(m_model->steps());
    m_answer->setText(
        QCoreApplication::translate("workbench", "%1: %2. %3: %4")
            .arg(whyCellName(m_cell), whyCellState(cell), whyRuleName(step.rule), whyValue(step, table, cell)));
    fitColumns(*m_view);
    m_view->scrollTo(m_model->index(int(step.rule), WhyModel::Rule));
}

int WhyPanel::cell() const
{
    return m_cell;
}

WhyModel* WhyPanel::model() const
{
    return m_model;
}

QString WhyPanel::text() const
{
    QStringList lines{m_answer->text()};
    for (int row = 0; row < m_model->rowCount(); ++row) {
        QStringList fields;
        for (int column = 0; column < m_model->columnCount(); ++column)
            fields << m_model->index(row, column).data().toString();
        lines << fields.join(QLatin1Char('\t'));
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace workbench
