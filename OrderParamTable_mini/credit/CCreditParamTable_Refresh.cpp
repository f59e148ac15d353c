#include <OrderParamTable_mini/credit/CCreditParamTable.h>

#include <OrderParamTable_mini/credit/CreditFormat.h>
#include <OrderParamTable_mini/credit/CreditLayout.h>
#include <OrderParamTable_mini/credit/CreditParameterString.h>
#include <OrderParamTable_mini/frame/HeldException.h>
#include <OrderParamTable_mini/semantics/EventNumbers.h>

#include <WQ/CMultiParamsTable.h>

namespace TC {

namespace {

QString figureText(FigureFormat format, const QVariant& value)
{
    return format == FigureFormat::Money ? moneyText(value.toDouble()) : quantityText(value.toInt());
}

QString shares()
{
    return QStringLiteral("股");
}

} // namespace

void CCreditParamTable::setTexts(std::initializer_list<int> rows, const QString& text)
{
    for (const int row : rows)
        m_table->setItemText(row, text);
}

void CCreditParamTable::refreshUIData()
{
    const HeldException held;
    const bool isRemembered = m_savedValues.contains(m_operationType);
    if (m_savedValues.value(m_operationType).value(CR_Contract).toString().isEmpty()) {
        setTexts({CR_Contract, CR_Unrepaid, CR_RepayableToday, CR_Funds, CR_Repayable}, noText());
        if (!sendAndStayAlive(events::kContractCodeEmptied, 0, nullptr))
            return;
    }
    layRowsOut();
    if (!sendAccount(0, m_table->itemData(CR_Account)))
        return;
    resetColumnWidth();
    if (!isRemembered) {
        m_useAllCompacts = true;
        refreshAvailableNum(getCurrentCode(), true, std::string());
    }
}

void CCreditParamTable::layRowsOut()
{
    const CreditLayout* const layout = creditLayout(m_operationType);
    if (!layout)
        return;
    const QMap<int, QVariant> saved = m_savedValues.value(m_operationType);
    for (const CreditTitle& title : layout->titles) {
        if (title.text)
            m_table->setItemName(title.row, QString::fromUtf16(title.text));
    }
    for (const CreditUnit& unit : layout->units) {
        if (unit.text)
            m_table->setItemUnit(unit.row, QString::fromUtf16(unit.text), 0.0, 0.0, 0.0, true);
    }
    for (const CreditFigure& figure : layout->figures) {
        if (figure.row != 0)
            m_table->setItemText(figure.row, figureText(figure.format, saved.value(figure.row)));
    }
    if (layout->showsRepayableToday)
        m_table->setItemHidden(CR_RepayableToday, false);
    m_table->setItemHidden(CR_Repayable, true);
    if (!layout->showsRepayableToday)
        m_table->setItemHidden(CR_RepayableToday, true);
}

void CCreditParamTable::setFixCodeText(const QString& code, bool setCode, bool refresh, std::string compactId)
{
    if (setCode) {
        m_table->setItemText(CR_Contract, code);
        if (refreshAvailableNum(code, refresh, compactId))
            return;
    }
    setTexts({CR_Contract, CR_Unrepaid, CR_RepayableToday, CR_Funds, CR_Repayable}, noText());
}

void CCreditParamTable::fixCodeChanged(const QString& code)
{
    const HeldException held;
    if (!code.isEmpty())
        return;
    setFixCodeText(code, false, false, std::string());
    sendAndStayAlive(events::kContractCodeEmptied, 0, nullptr);
}

// Every operation counts the funds row in shares here; laying the rows out gives each its own unit.
void CCreditParamTable::setStockCode(const QString& code, std::string compactId, bool useDefault)
{
    setFixCodeText(code, true, true, compactId);
    if (!compactId.empty())
        return;
    m_table->setItemText(CR_Unrepaid, useDefault ? getDefaultUnrepayValue(code) : getAllUnrepayValue(code));
    m_table->setItemUnit(CR_Unrepaid, shares());
    m_table->setItemUnit(CR_Funds, shares());
    if (!useDefault && repaysSecurities(m_operationType)) {
        m_table->setItemText(CR_RepayableToday, getTodayAvailableNum(code));
        m_table->setItemUnit(CR_RepayableToday, shares());
    }
}

void CCreditParamTable::setStkCompacts(boost::shared_ptr<ttservice::CStkCompactsV2> compact, QString unrepayValue,
                                       bool showZero)
{
    if (!compact || !compact->data)
        return;
    setFixCodeText(noText(), true, true, std::string());
    compact->data->getKey(); // clients fetch a contract's data when they are asked for its key
    m_table->setItemText(CR_Funds, zeroText());
    m_table->setItemText(CR_Unrepaid, showZero ? zeroText() : unrepayValue);
    if (repaysSecurities(m_operationType))
        m_table->setItemText(CR_RepayableToday, getTodayAvailableNum(noText()));
    m_useAllCompacts = false;
}

QString CCreditParamTable::param() const
{
    return writeCreditParameters(m_operationType, m_savedValues);
}

void CCreditParamTable::setParam(QString text)
{
    if (readCreditParameters(text, m_operationType, m_savedValues))
        refreshUIData();
}

} // namespace TC
