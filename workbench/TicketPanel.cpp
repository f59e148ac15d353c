#include "workbench/TicketPanel.h"

#include "workbench/HostTable.h"
#include "workbench/LanguageTexts.h"
#include "workbench/TicketModel.h"
#include "workbench/TicketReading.h"
#include "workbench/Vocabulary.h"

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QLineEdit>
#include <QVBoxLayout>

namespace workbench {

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
    m_model->setEntries(readTicket(*m_table));
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
