#include "workbench/QuoteModel.h"

#include "workbench/Vocabulary.h"

#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <ttservice/Enumerations.h>

#include <QCoreApplication>
#include <QLocale>

#include <utility>

namespace workbench {

namespace {

constexpr int kPriceDecimals = 2;
constexpr double kTick = 0.01;
constexpr int kLastRow = 5;

// Rows stand in the order of the price types: the fifth ask is 0, the last price 5, the fifth bid 10.
static_assert(ttservice::PRTP_SELL5 == 0 && ttservice::PRTP_LATEST == kLastRow
              && ttservice::PRTP_BUY5 == QuoteModel::kLevels - 1);

QString priceText(double price)
{
    return QString::number(price, 'f', kPriceDecimals);
}

/// 1 above the last price, -1 below it, 0 at it.
int sideOf(const QuoteModel::Quotes& quotes, int row)
{
    const double last = quotes[kLastRow].price;
    const double price = quotes[static_cast<std::size_t>(row)].price;
    return int(price > last) - int(price < last);
}

} // namespace

QuoteModel::QuoteModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

void QuoteModel::setQuotes(const Quotes& quotes)
{
    const Quotes before = std::exchange(m_quotes, quotes);
    for (int row = 0; row < kLevels; ++row)
        tellChange(row, before);
}

void QuoteModel::tellChange(int row, const Quotes& before)
{
    const auto at = static_cast<std::size_t>(row);
    if (priceText(before[at].price) != priceText(m_quotes[at].price) || sideOf(before, row) != sideOf(m_quotes, row))
        Q_EMIT dataChanged(index(row, Price), index(row, Price));
    if (before[at].volume != m_quotes[at].volume && row != kLastRow)
        Q_EMIT dataChanged(index(row, Volume), index(row, Volume));
}

const QuoteModel::Quotes& QuoteModel::quotes() const
{
    return m_quotes;
}

void QuoteModel::setChosen(int priceType)
{
    if (priceType == m_chosen)
        return;
    m_chosen = priceType;
    Q_EMIT dataChanged(index(0, 0), index(kLevels - 1, ColumnCount - 1));
}

int QuoteModel::priceTypeOf(int row) const
{
    return row;
}

double QuoteModel::priceOf(int row) const
{
    return row >= 0 && row < kLevels ? m_quotes[static_cast<std::size_t>(row)].price : 0.0;
}

void QuoteModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

int QuoteModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kLevels;
}

int QuoteModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant QuoteModel::text(int row, int column) const
{
    const Quote& quote = m_quotes[static_cast<std::size_t>(row)];
    switch (column) {
    case Level:
        return labelOf(priceTypes(), priceTypeOf(row));
    case Price:
        return priceText(quote.price);
    case Volume:
        return row == kLastRow ? QVariant() : QLocale(QLocale::English).toString(quote.volume);
    }
    return {};
}

QVariant QuoteModel::colour(int row, int column) const
{
    if (column != Price)
        return {};
    const int side = sideOf(m_quotes, row);
    if (side == 0)
        return {};
    return WQ::resources::color(side > 0 ? WQ::keys::kBuy : WQ::keys::kSell);
}

QVariant QuoteModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return text(index.row(), index.column());
    case Qt::ForegroundRole:
        return colour(index.row(), index.column());
    case Qt::TextAlignmentRole:
        return int((index.column() == Level ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    case Qt::FontRole:
        return index.row() == m_chosen ? QVariant(WQ::resources::font(WQ::keys::kCheckedFont, WQ::resources::scale()))
                                       : QVariant();
    case Qt::ToolTipRole:
        return translated(
            QT_TRANSLATE_NOOP("workbench", "Click: this price type. Double-click: this price, specified."));
    default:
        return {};
    }
}

QVariant QuoteModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static constexpr std::array<const char*, ColumnCount> kTitles = {QT_TRANSLATE_NOOP("workbench", "Level"),
                                                                     QT_TRANSLATE_NOOP("workbench", "Price"),
                                                                     QT_TRANSLATE_NOOP("workbench", "Volume")};
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= ColumnCount)
        return QAbstractTableModel::headerData(section, orientation, role);
    return translated(kTitles[static_cast<std::size_t>(section)]);
}

QuoteModel::Quotes quotesAround(double last)
{
    static constexpr std::array<int, QuoteModel::kLevels> kVolumes = {1200, 3400, 800,  5600, 2300, 0,
                                                                      4100, 900,  7200, 1500, 2600};
    QuoteModel::Quotes quotes;
    for (int row = 0; row < QuoteModel::kLevels; ++row) {
        const auto at = static_cast<std::size_t>(row);
        quotes[at] = {last + (kLastRow - row) * kTick, kVolumes[at]};
    }
    return quotes;
}

} // namespace workbench
