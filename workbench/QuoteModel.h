#pragma once

#include <QAbstractTableModel>

#include <array>

namespace workbench {

/// A five-level quote: the asks from the fifth down, the last price, the bids down to the fifth. Each row stands for
/// the price type that chooses its price.
class QuoteModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { Level, Price, Volume, ColumnCount };

    static constexpr int kLevels = 11;

    struct Quote
    {
        double price = 0.0;
        int volume = 0;
    };
    using Quotes = std::array<Quote, kLevels>;

    explicit QuoteModel(QObject* parent = nullptr);

    /// Announces the cells alone that show something else afterwards: a quote moves many times a second.
    void setQuotes(const Quotes& quotes);
    const Quotes& quotes() const;

    /// Marks the row of that price type as chosen; one that is no level marks none.
    void setChosen(int priceType);

    int priceTypeOf(int row) const;
    double priceOf(int row) const;

    void retranslate();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void tellChange(int row, const Quotes& before);
    QVariant text(int row, int column) const;
    QVariant colour(int row, int column) const;

    Quotes m_quotes;
    int m_chosen = -1;
};

/// A quote around @p last, a tick of 0.01 between the levels, to start from.
QuoteModel::Quotes quotesAround(double last);

} // namespace workbench
