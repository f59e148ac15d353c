#pragma once

#include "workbench/HostDirectory.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QSpinBox;

namespace workbench {

class LanguageTexts;
class QuoteFeed;
class QuoteLadder;

/// The quote with the switch and the rate of its simulated feed.
class QuotePanel : public QWidget
{
    Q_OBJECT
public:
    explicit QuotePanel(QWidget* parent = nullptr);

    QuoteLadder* ladder() const;
    QuoteFeed* feed() const;

    /// Names the instrument; the quote starts from its price where that is known.
    void showInstrument(const Instrument& instrument);

    const Instrument& instrument() const;

    /// Shows and takes a state without announcing it.
    void setFeed(bool running, int rate);

Q_SIGNALS:
    /// A person switched the feed or chose another rate.
    void feedChosen();

private:
    void nameInstrument();

    Instrument m_instrument;
    QLabel* m_name;
    QuoteLadder* m_ladder;
    QuoteFeed* m_feed;
    QCheckBox* m_running;
    QSpinBox* m_rate;
    LanguageTexts* m_texts;
};

} // namespace workbench
