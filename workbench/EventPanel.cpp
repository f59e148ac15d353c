#include "workbench/EventPanel.h"

#include "workbench/EventLogModel.h"
#include "workbench/HostTable.h"
#include "workbench/LanguageTexts.h"
#include "workbench/Vocabulary.h"

#include <TC/CTimeService.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QCoreApplication>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>

#include <array>

namespace workbench {

namespace {

/// Widest text expected in each column but the last.
constexpr std::array<const char*, EventLogModel::ColumnCount - 1> kColumnSamples = {
    "00000", "00:00:00", "1061 price type applied ", "0x4000000 table", "11 parameters", "parameters"};

void fitColumns(QTableView& view)
{
    const QFontMetrics metrics = view.fontMetrics();
    for (int column = 0; column < static_cast<int>(kColumnSamples.size()); ++column) {
        const QString sample = QLatin1String(kColumnSamples[static_cast<std::size_t>(column)]);
        view.setColumnWidth(column, metrics.horizontalAdvance(sample) + metrics.height());
    }
}

QString rowText(const QAbstractItemModel& model, int row)
{
    QStringList fields;
    for (int column = 0; column < model.columnCount(); ++column)
        fields << model.index(row, column).data().toString().replace(QLatin1Char('\t'), QLatin1Char(' '));
    return fields.join(QLatin1Char('\t'));
}

} // namespace

EventPanel::EventPanel(QWidget* parent)
    : QWidget(parent)
    , m_model(new EventLogModel(EventLogModel::kCapacity, this))
    , m_filtered(new QSortFilterProxyModel(this))
    , m_view(new HostTable(this))
    , m_filter(new QLineEdit)
    , m_pause(new QCheckBox)
    , m_count(new QLabel)
    , m_texts(new LanguageTexts(this))
{
    m_filtered->setSourceModel(m_model);
    m_filtered->setFilterKeyColumn(-1);
    m_filtered->setFilterCaseSensitivity(Qt::CaseInsensitive);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->setSpacing(6);
    createBar();
    createView();
    m_texts->keep([this] {
        m_model->retranslate();
        showCount();
    });
}

void EventPanel::createView()
{
    m_view->setModel(m_filtered);
    m_view->setFitColumns([this] { fitColumns(*m_view); });
    connect(m_view, &HostTable::copyRequested, this, &EventPanel::copy);
    connect(m_view, &HostTable::doubleClicked, this, &EventPanel::askForCell);
    connect(m_view, &HostTable::enterPressed, this, &EventPanel::askForCell);
    m_texts->keep([this] { m_view->setAccessibleName(translated(QT_TRANSLATE_NOOP("workbench", "Events"))); });
    layout()->addWidget(m_view);
}

void EventPanel::askForCell(const QModelIndex& index)
{
    if (const int cell = eventCell(m_model->record(m_filtered->mapToSource(index).row())))
        Q_EMIT cellWanted(cell);
}

void EventPanel::createBar()
{
    auto* bar = new QHBoxLayout;
    auto* clearButton = new QPushButton;
    auto* copyButton = new QPushButton;
    m_filter->setClearButtonEnabled(true);
    m_pause->setObjectName(QStringLiteral("pause"));
    bar->addWidget(m_filter, 1);
    bar->addWidget(m_count);
    bar->addWidget(m_pause);
    bar->addWidget(copyButton);
    bar->addWidget(clearButton);
    static_cast<QVBoxLayout*>(layout())->addLayout(bar);
    m_texts->keep([this, clearButton, copyButton] {
        m_filter->setPlaceholderText(translated(QT_TRANSLATE_NOOP("workbench", "Filter: number, name, cell or text")));
        m_pause->setText(translated(QT_TRANSLATE_NOOP("workbench", "Pause")));
        clearButton->setText(translated(QT_TRANSLATE_NOOP("workbench", "Clear")));
        copyButton->setText(translated(QT_TRANSLATE_NOOP("workbench", "Copy")));
    });
    connect(m_filter, &QLineEdit::textChanged, m_filtered, &QSortFilterProxyModel::setFilterFixedString);
    connect(clearButton, &QPushButton::clicked, this, &EventPanel::clear);
    connect(copyButton, &QPushButton::clicked, this, &EventPanel::copy);
}

void EventPanel::add(int event, int a, int b, const QString& text, const void* payload)
{
    if (m_pause->isChecked())
        return;
    EventRecord record = capture(event, a, b, text, payload);
    const TC::CTimeService* clock = TC::getTimeService();
    record.time = clock ? clock->currentTime() : 0;
    const QScrollBar* bar = m_view->verticalScrollBar();
    const bool atEnd = bar->value() == bar->maximum();
    m_model->append(record);
    if (atEnd)
        m_view->scrollToBottom();
    showCount();
}

void EventPanel::showCount()
{
    const int shown = static_cast<int>(m_model->arrived());
    m_count->setText(QCoreApplication::translate("workbench", "%n event(s)", nullptr, shown));
}

EventLogModel* EventPanel::model() const
{
    return m_model;
}

void EventPanel::clear()
{
    m_model->clear();
    showCount();
}

void EventPanel::copy()
{
    QModelIndexList rows = m_view->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    for (const QModelIndex& index : qAsConst(rows))
        lines << rowText(*m_filtered, index.row());
    if (rows.isEmpty())
        for (int row = 0; row < m_filtered->rowCount(); ++row)
            lines << rowText(*m_filtered, row);
    QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

void EventPanel::focusFilter()
{
    m_filter->setFocus(Qt::ShortcutFocusReason);
    m_filter->selectAll();
}

} // namespace workbench
