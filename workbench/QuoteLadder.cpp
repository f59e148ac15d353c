#include "workbench/QuoteLadder.h"

#include "workbench/LanguageTexts.h"
#include "workbench/QuoteModel.h"
#include "workbench/Vocabulary.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>

namespace workbench {

namespace {

constexpr double kFirstPrice = 10.23;
constexpr int kRowMargin = 1;

} // namespace

QuoteLadder::QuoteLadder(QWidget* parent)
    : HostTable(parent)
    , m_quotes(new QuoteModel(this))
    , m_texts(new LanguageTexts(this))
{
    setObjectName(QStringLiteral("quoteLadder"));
    setModel(m_quotes);
    m_quotes->setQuotes(quotesAround(kFirstPrice));
    setSelectionMode(SingleSelection);
    setFitColumns([this] { fitColumnsToFont(); });
    connect(this, &QTableView::clicked, this,
            [this](const QModelIndex& index) { Q_EMIT priceTypeChosen(m_quotes->priceTypeOf(index.row())); });
    connect(this, &QTableView::doubleClicked, this,
            [this](const QModelIndex& index) { Q_EMIT priceChosen(m_quotes->priceOf(index.row())); });
    m_texts->keep([this] {
        m_quotes->retranslate();
        setAccessibleName(translated(QT_TRANSLATE_NOOP("workbench", "Quote")));
    });
}

QuoteModel* QuoteLadder::quotes() const
{
    return m_quotes;
}

void QuoteLadder::fitColumnsToFont()
{
    const int margin = fontMetrics().height();
    // All of its rows are seen at once: they stand closer than in lists that scroll.
    verticalHeader()->setDefaultSectionSize(margin + kRowMargin);
    setColumnWidth(QuoteModel::Level, fontMetrics().horizontalAdvance(QStringLiteral("卖⑤价")) + margin);
    setColumnWidth(QuoteModel::Price, fontMetrics().horizontalAdvance(QStringLiteral("1000000.00")) + margin);
    // What a window is higher than its parts need goes to those with more to show.
    const int rows = QuoteModel::kLevels * verticalHeader()->defaultSectionSize();
    setMaximumHeight(horizontalHeader()->sizeHint().height() + rows + 2 * frameWidth());
}

void QuoteLadder::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter || !currentIndex().isValid()) {
        HostTable::keyPressEvent(event);
        return;
    }
    const int row = currentIndex().row();
    if (event->modifiers() & Qt::ControlModifier)
        Q_EMIT priceChosen(m_quotes->priceOf(row));
    else
        Q_EMIT priceTypeChosen(m_quotes->priceTypeOf(row));
}

} // namespace workbench
