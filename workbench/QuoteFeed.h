#pragma once

#include <QObject>
#include <QTimer>

#include <random>

namespace workbench {

class QuoteModel;

/// A simulated feed: a quote that walks up and down by ticks, the same walk in every run.
class QuoteFeed : public QObject
{
    Q_OBJECT
public:
    static constexpr int kSlowest = 1;
    static constexpr int kFastest = 50;

    explicit QuoteFeed(QuoteModel& quotes, QObject* parent = nullptr);

    void setRunning(bool running);
    bool isRunning() const;

    /// Updates a second, bounded to the limits above.
    void setRate(int perSecond);
    int rate() const;

    /// Another quote, around that price; the walk stays near it.
    void startFrom(double price);

    /// One update, as the timer makes it.
    void step();

private:
    QuoteModel& m_quotes;
    QTimer m_timer;
    int m_rate = 5;
    double m_lowest;
    double m_highest;
    std::minstd_rand m_walk;
};

} // namespace workbench
