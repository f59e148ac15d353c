#include "workbench/QuotePanel.h"

#include "workbench/LanguageTexts.h"
#include "workbench/QuoteFeed.h"
#include "workbench/QuoteLadder.h"
#include "workbench/Vocabulary.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>

namespace workbench {

QuotePanel::QuotePanel(QWidget* parent)
    : QWidget(parent)
    , m_name(new QLabel)
    , m_ladder(new QuoteLadder)
    , m_feed(new QuoteFeed(*m_ladder->quotes(), this))
    , m_running(new QCheckBox)
    , m_rate(new QSpinBox)
    , m_texts(new LanguageTexts(this))
{
    auto* layout = new QVBoxLayout(this);
    auto* bar = new QHBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setSizeConstraint(QLayout::SetMinAndMaxSize);
    bar->setContentsMargins(8, 4, 8, 4);
    bar->addWidget(m_running, 1);
    bar->addWidget(m_rate);
    m_name->setMargin(4);
    m_name->setMinimumWidth(1);
    m_name->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_name->setObjectName(QStringLiteral("quoteInstrument"));
    layout->addWidget(m_name);
    layout->addWidget(m_ladder, 1);
    layout->addLayout(bar);
    m_rate->setRange(QuoteFeed::kSlowest, QuoteFeed::kFastest);
    m_rate->setKeyboardTracking(false);
    setFeed(false, m_feed->rate());
    connect(m_running, &QCheckBox::toggled, this, [this](bool running) {
        m_feed->setRunning(running);
        Q_EMIT feedChosen();
    });
    connect(m_rate, QOverload<int>::of(&QSpinBox::valueChanged), this, [this](int rate) {
        m_feed->setRate(rate);
        Q_EMIT feedChosen();
    });
    m_texts->keep([this] {
        nameInstrument();
        m_running->setText(translated(QT_TRANSLATE_NOOP("workbench", "&Quote moves")));
        m_rate->setSuffix(translated(QT_TRANSLATE_NOOP("workbench", " a second")));
        m_rate->setAccessibleName(translated(QT_TRANSLATE_NOOP("workbench", "Updates of the quote")));
    });
}

void QuotePanel::showInstrument(const Instrument& instrument)
{
    m_instrument = instrument;
    if (instrument.price > 0.0)
        m_feed->startFrom(instrument.price);
    nameInstrument();
}

const Instrument& QuotePanel::instrument() const
{
    return m_instrument;
}

void QuotePanel::nameInstrument()
{
    const QString none = translated(QT_TRANSLATE_NOOP("workbench", "no instrument chosen"));
    const QString name = (m_instrument.code + QStringLiteral("  ") + m_instrument.name).trimmed();
    m_name->setText(name.isEmpty() ? none : name);
    m_name->setToolTip(m_name->text());
}

QuoteLadder* QuotePanel::ladder() const
{
    return m_ladder;
}

QuoteFeed* QuotePanel::feed() const
{
    return m_feed;
}

void QuotePanel::setFeed(bool running, int rate)
{
    const QSignalBlocker quiet(m_running);
    const QSignalBlocker calm(m_rate);
    m_feed->setRate(rate);
    m_feed->setRunning(running);
    m_running->setChecked(running);
    m_rate->setValue(m_feed->rate());
}

} // namespace workbench
