#include "workbench/ComparePanel.h"

#include "workbench/CompareModel.h"
#include "workbench/CompareSide.h"
#include "workbench/FormScroll.h"
#include "workbench/HostTable.h"
#include "workbench/LanguageTexts.h"
#include "workbench/TableBench.h"
#include "workbench/Vocabulary.h"

#include "reference/services/ServiceControl.h"

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QCoreApplication>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSaveFile>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>

namespace workbench {

namespace {

CompareSetup setupOf(const TableBench& bench)
{
    CompareSetup setup;
    setup.table = bench.setup();
    setup.modules = reference::modules().values();
    if (TC::COrderParamBaseTable* const table = bench.table()) {
        setup.orderType = table->orderType();
        setup.operationType = table->getOperationType();
        setup.isExpanded = table->isExpand();
    }
    return setup;
}

/// What most questions are about: the same table for stocks and for options.
CompareSetup otherSetup()
{
    CompareSetup setup;
    setup.table.brokerType = ttservice::BROKER_TYPE_OPTION;
    return setup;
}

} // namespace

ComparePanel::ComparePanel(TableBench& bench, QWidget* parent)
    : QWidget(parent)
    , m_bench(bench)
    , m_texts(new LanguageTexts(this))
    , m_model(new CompareModel(this))
    , m_filtered(new QSortFilterProxyModel(this))
    , m_differencesOnly(new QCheckBox)
    , m_count(new QLabel)
    , m_view(new HostTable(this))
{
    m_filtered->setSourceModel(m_model);
    m_filtered->setFilterRole(CompareModel::kDiffersRole);
    auto* const both = new QHBoxLayout(this);
    both->setContentsMargins(8, 8, 8, 8);
    both->setSpacing(8);
    createForm();
    auto* const column = new QVBoxLayout;
    column->setSpacing(6);
    both->addLayout(column, 1);
    createBar(*column);
    createList(*column);
    m_right->setSetup(otherSetup());
    listenTo(m_left);
    listenTo(m_right);
    m_texts->keep([this] {
        m_model->retranslate();
        refresh();
        showCount();
    });
}

void ComparePanel::createForm()
{
    auto* const form = new QWidget;
    auto* const grid = new QGridLayout(form);
    grid->setContentsMargins(0, 0, 4, 0);
    grid->setSpacing(4);
    CompareSide::addLabels(*grid, *m_texts);
    m_left = new CompareSide(*grid, 1, QT_TRANSLATE_NOOP("workbench", "Left"), *m_texts);
    m_right = new CompareSide(*grid, 2, QT_TRANSLATE_NOOP("workbench", "Right"), *m_texts);
    grid->setRowStretch(grid->rowCount(), 1);
    auto* const scroll = new FormScroll(form);
    scroll->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Expanding);
    layout()->addWidget(scroll);
}

void ComparePanel::createBar(QVBoxLayout& column)
{
    auto* const bar = new QHBoxLayout;
    auto* const copyButton = new QPushButton;
    auto* const exportButton = new QPushButton;
    bar->addWidget(m_differencesOnly);
    bar->addWidget(m_count, 1);
    bar->addWidget(copyButton);
    bar->addWidget(exportButton);
    column.addLayout(bar);
    m_texts->keep([this, copyButton, exportButton] {
        m_differencesOnly->setText(translated(QT_TRANSLATE_NOOP("workbench", "Differences only")));
        copyButton->setText(translated(QT_TRANSLATE_NOOP("workbench", "Copy")));
        exportButton->setText(translated(QT_TRANSLATE_NOOP("workbench", "Export…")));
        exportButton->setToolTip(
            translated(QT_TRANSLATE_NOOP("workbench", "Write the rows that are shown, as CSV or between tabs")));
    });
    connect(m_differencesOnly, &QCheckBox::toggled, this,
            [this](bool only) { m_filtered->setFilterFixedString(only ? QStringLiteral("true") : QString()); });
    connect(copyButton, &QPushButton::clicked, this, &ComparePanel::copy);
    connect(exportButton, &QPushButton::clicked, this, &ComparePanel::askAndExport);
}

void ComparePanel::createList(QVBoxLayout& column)
{
    m_view->setModel(m_filtered);
    m_view->setFitColumns([this] { fitColumns(); });
    connect(m_view, &HostTable::copyRequested, this, &ComparePanel::copy);
    m_texts->keep([this] { m_view->setAccessibleName(translated(QT_TRANSLATE_NOOP("workbench", "Compare"))); });
    column.addWidget(m_view, 1);
}

void ComparePanel::listenTo(CompareSide* side)
{
    connect(side, &CompareSide::changed, this, &ComparePanel::refresh);
    connect(side, &CompareSide::panelWanted, this, [this, side] {
        side->setSetup(setupOf(m_bench));
        refresh();
    });
}

void ComparePanel::compare(const CompareSetup& left, const CompareSetup& right)
{
    m_left->setSetup(left);
    m_right->setSetup(right);
    refresh();
}

void ComparePanel::compareWithPanel()
{
    const CompareSetup setup = setupOf(m_bench);
    compare(setup, setup);
    m_differencesOnly->setChecked(true);
    m_right->focusBroker();
}

void ComparePanel::refresh()
{
    if (!isVisible())
        return;
    m_model->setRows(compareTables(captureTable(m_left->setup()), captureTable(m_right->setup())));
    showCount();
}

void ComparePanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    refresh();
}

void ComparePanel::showCount()
{
    m_count->setText(QCoreApplication::translate("workbench", "%n difference(s)", nullptr, m_model->differences()));
}

// The values take what the names leave, and half of the list at least.
void ComparePanel::fitColumns()
{
    const QFontMetrics metrics = m_view->fontMetrics();
    const int room = metrics.height();
    const int width = m_view->viewport()->width();
    const auto fit = [&](int column, const QString& sample, int largest) {
        m_view->setColumnWidth(column, qMin(metrics.horizontalAdvance(sample) + room, largest));
    };
    fit(CompareModel::Mark, QStringLiteral("≠"), width / 10);
    fit(CompareModel::Cell, QStringLiteral("0x2000 未成委托处理"), width / 4);
    fit(CompareModel::What, QStringLiteral("height of the cells"), width / 5);
    m_view->horizontalHeader()->setMinimumSectionSize(room);
    m_view->horizontalHeader()->setSectionResizeMode(CompareModel::Left, QHeaderView::Stretch);
    m_view->horizontalHeader()->setSectionResizeMode(CompareModel::Right, QHeaderView::Stretch);
}

CompareModel* ComparePanel::model() const
{
    return m_model;
}

std::vector<QStringList> ComparePanel::shownLines() const
{
    std::vector<QStringList> lines(1);
    for (int column = 0; column < CompareModel::ColumnCount; ++column)
        lines.front() << m_model->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    for (int row = 0; row < m_filtered->rowCount(); ++row) {
        QStringList fields;
        for (int column = 0; column < CompareModel::ColumnCount; ++column)
            fields << m_filtered->index(row, column).data().toString();
        lines.push_back(fields);
    }
    return lines;
}

QString ComparePanel::exportTo(const QString& path) const
{
    const bool hasCommas = path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
    const std::vector<QStringList> lines = shownLines();
    const QByteArray text = (hasCommas ? commaSeparated(lines) : tabSeparated(lines)).toUtf8();
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
    return isWritten ? QString() : QCoreApplication::translate("workbench", "Cannot write %1.").arg(path);
}

void ComparePanel::copy() const
{
    QApplication::clipboard()->setText(tabSeparated(shownLines()));
}

void ComparePanel::askAndExport()
{
    const QString path = QFileDialog::getSaveFileName(this, QString(), QStringLiteral("compare.csv"),
                                                      QStringLiteral("CSV (*.csv);;TSV (*.tsv)"));
    const QString problem = path.isEmpty() ? QString() : exportTo(path);
    if (!problem.isEmpty())
        m_count->setText(problem);
}

} // namespace workbench
