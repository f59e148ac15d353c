#include <OrderParamTable_mini/credit/CreditFormat.h>

#include <WQ/Formatting.h>

namespace TC {

const QString& noText()
{
    static const QString text = QString::fromLatin1("");
    return text;
}

const QString& zeroText()
{
    static const QString text = QStringLiteral("0");
    return text;
}

QString quantityText(int value)
{
    return WQ::formatIntNumber(value, 0, WQ::FormatFlags());
}

QString moneyText(double value)
{
    constexpr int kDecimals = 2;
    static const QString invalidValue = QStringLiteral("非法值");
    return WQ::formatDoubleNumber(value, kDecimals, WQ::FormatFlags(), false, invalidValue);
}

} // namespace TC
