#pragma once

#include "workbench/HostTable.h"

namespace workbench {

class LanguageTexts;
class QuoteModel;

/// The quote beside the panel. A click or Enter on a level chooses its price type, a double-click or Ctrl+Enter its
/// price.
class QuoteLadder : public HostTable
{
    Q_OBJECT
public:
    explicit QuoteLadder(QWidget* parent = nullptr);

    QuoteModel* quotes() const;

Q_SIGNALS:
    void priceTypeChosen(int priceType);
    void priceChosen(double price);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void fitColumnsToFont();

    QuoteModel* m_quotes;
    LanguageTexts* m_texts;
};

} // namespace workbench
