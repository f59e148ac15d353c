#include "workbench/QuoteFeed.h"

#include "workbench/QuoteModel.h"

#include <algorithm>

namespace workbench {

namespace {

constexpr double kTick = 0.01;
constexpr double kFirstPrice = 10.23;
/// How far the walk goes from where it began.
constexpr double kReach = 0.12;
constexpr int kLastRow = 5;
constexpr int kLargestTrade = 40;
constexpr int kLot = 100;

} // namespace

QuoteFeed::QuoteFeed(QuoteModel& quotes, QObject* parent)
    : QObject(parent)
    , m_quotes(quotes)
{
    setRate(m_rate);
    m_lowest = kFirstPrice * (1 - kReach);
    m_highest = kFirstPrice * (1 + kReach);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &QuoteFeed::step);
}

void QuoteFeed::setRunning(bool running)
{
    if (running)
        m_timer.start();
    else
        m_timer.stop();
}

bool QuoteFeed::isRunning() const
{
    return m_timer.isActive();
}

void QuoteFeed::setRate(int perSecond)
{
    constexpr int kSecond = 1000;
    m_rate = std::clamp(perSecond, kSlowest, kFastest);
    m_timer.setInterval(kSecond / m_rate);
}

int QuoteFeed::rate() const
{
    return m_rate;
}

void QuoteFeed::startFrom(double price)
{
    m_lowest = price * (1 - kReach);
    m_highest = price * (1 + kReach);
    m_quotes.setQuotes(quotesAround(price));
}

void QuoteFeed::step()
{
    const auto draw = [this](int sides) { return static_cast<int>(m_walk() % static_cast<unsigned>(sides)); };
    QuoteModel::Quotes quotes = m_quotes.quotes();
    const double move = (draw(3) - 1) * kTick;
    const double last = quotes[kLastRow].price + move;
    if (last > m_lowest && last < m_highest)
        for (QuoteModel::Quote& quote : quotes)
            quote.price += move;
    const auto traded = static_cast<std::size_t>(draw(QuoteModel::kLevels));
    if (traded != kLastRow)
        quotes[traded].volume = (1 + draw(kLargestTrade)) * kLot;
    m_quotes.setQuotes(quotes);
}

} // namespace workbench
