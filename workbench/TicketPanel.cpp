#include "workbench/TicketPanel.h"

#include "workbench/HostTable.h"
#include "workbench/LanguageTexts.h"
#include "workbench/TicketModel.h"
#include "workbench/TicketReading.h"
#include "workbench/Vocabulary.h"

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QKeySequence>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace workbench {

namespace {

enum Copied { ParameterString, Record, Change };

struct CopyRow
{
    Copied what;
    const char* text;
    const char* button;
    int key;
};

// clang-format off
constexpr CopyRow kCopies[] = {
    {ParameterString, QT_TRANSLATE_NOOP("workbench", "Copy the parameter string"), QT_TRANSLATE_NOOP("workbench", "Copy string"), int(Qt::CTRL) + Qt::Key_P},
    {Record,          QT_TRANSLATE_NOOP("workbench", "Copy the settings record"),  QT_TRANSLATE_NOOP("workbench", "Copy record"), int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_P},
    {Change,          QT_TRANSLATE_NOOP("workbench", "Copy what changed last"),    QT_TRANSLATE_NOOP("workbench", "Copy change"), int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_L},
};
// clang-format on

} // namespace

TicketPanel::TicketPanel(QWidget* parent)
    : QWidget(parent)
    , m_model(new TicketModel(this))
    , m_view(new HostTable(this))
    , m_text(new QLineEdit)
    , m_texts(new LanguageTexts(this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->setSpacing(6);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_text);
    createBar(layout);
    m_text->setReadOnly(true);
    m_view->setModel(m_model);
    m_view->setFitColumns([this] {
        const QFontMetrics metrics = m_view->fontMetrics();
        m_view->setColumnWidth(TicketModel::Name,
                               metrics.horizontalAdvance(QStringLiteral("0x2000 未成委托处理  ")) + metrics.height());
    });
    connect(m_view, &HostTable::copyRequested, this, [this] { QApplication::clipboard()->setText(m_text->text()); });
    m_texts->keep([this] {
        m_model->retranslate();
        m_view->setAccessibleName(translated(QT_TRANSLATE_NOOP("workbench", "Ticket")));
        m_text->setAccessibleName(translated(QT_TRANSLATE_NOOP("workbench", "Parameter string")));
        refresh();
    });
}

void TicketPanel::createBar(QBoxLayout* layout)
{
    auto* const bar = new QHBoxLayout;
    for (const CopyRow& row : kCopies) {
        auto* const action = new QAction(this);
        auto* const button = new QPushButton;
        action->setShortcut(QKeySequence(row.key));
        connect(action, &QAction::triggered, this, [this, &row] { copy(row.what); });
        connect(button, &QPushButton::clicked, action, &QAction::trigger);
        addAction(action);
        bar->addWidget(button);
        m_texts->keep([action, button, &row] {
            action->setText(translated(row.text));
            button->setText(translated(row.button));
            const QString keys = QKeySequence(row.key).toString(QKeySequence::NativeText);
            button->setToolTip(QStringLiteral("%1 (%2)").arg(action->text(), keys));
        });
    }
    layout->addLayout(bar);
}

void TicketPanel::copy(int what) const
{
    const bool isString = what == ParameterString;
    const auto part = what == Record ? TicketModel::Part::Record : TicketModel::Part::Changed;
    QApplication::clipboard()->setText(isString ? m_text->text() : m_model->text(part));
}

void TicketPanel::setTable(TC::COrderParamBaseTable* table, int traderType)
{
    m_table = table;
    if (m_table)
        storeDefaultRecords(*m_table, traderType);
    refresh();
}

void TicketPanel::refresh()
{
    if (!m_table) {
        m_model->setEntries({});
        m_text->clear();
        return;
    }
    updateRecord(*m_table);
    if (m_model->setEntries(readTicket(*m_table)))
        m_view->scrollTo(m_model->index(m_model->firstMarked(), TicketModel::Name));
    m_text->setText(recordText(*m_table));
    m_text->setToolTip(m_text->text());
    m_text->setCursorPosition(0);
}

QString TicketPanel::parameterString() const
{
    return m_text->text();
}

TicketModel* TicketPanel::model() const
{
    return m_model;
}

} // namespace workbench
