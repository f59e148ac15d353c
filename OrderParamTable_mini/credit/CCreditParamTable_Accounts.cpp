#include <OrderParamTable_mini/credit/CCreditParamTable.h>

#include <OrderParamTable_mini/credit/CreditFormat.h>
#include <OrderParamTable_mini/credit/CreditLayout.h>
#include <OrderParamTable_mini/frame/HeldException.h>

#include <TC/CAccountData.h>
#include <TC/DataCenter.h>
#include <WQ/CMultiParamsTable.h>
#include <WQ/EventNumbers.h>
#include <WQ/Formatting.h>
#include <ttservice/CAccountInfoV2.h>

#include <QPointer>

namespace TC {

using namespace ttservice;

namespace {

// The service is asked, so that it can fetch the account; its answer is not used in this edition.
void touchAccount(const std::string& accountId)
{
    if (DataCenter* const dataCenter = DataCenter::instance())
        dataCenter->getAccountInfo(accountId);
}

} // namespace

void CCreditParamTable::getComBoDisplayAccounts(QStringList&, QVector<QVariant>&)
{
}

void CCreditParamTable::refreshAccounts()
{
    const HeldException held;
    QStringList names;
    QVector<QVariant> accounts;
    getComBoDisplayAccounts(names, accounts);
    const QString remembered = m_savedValues.value(m_operationType).value(CR_Account).toString();
    const int index = indexOfAccount(accounts, remembered);
    m_table->resetComboData(CR_Account, names, accounts, index);
    m_useAllCompacts = true;
    refreshAvailableNum(getCurrentCode(), true, std::string());
    if (index != -1)
        sendAccount(index, accounts.at(index));
}

void CCreditParamTable::setSelectAccount(const std::string& accountId)
{
    const HeldException held;
    const QVariant account = WQ::sToQs(accountId);
    m_table->setComboData(CR_Account, account);
    if (!sendAccount(0, account))
        return;
    m_useAllCompacts = true;
    refreshAvailableNum(getCurrentCode(), true, std::string());
}

bool CCreditParamTable::sendAccount(int value, const QVariant& account)
{
    QVariant sent = account;
    return sendAndStayAlive(WQ::events::kEntryChosen, value, &sent);
}

bool CCreditParamTable::sendAndStayAlive(int event, int value, void* payload)
{
    const QPointer<CCreditParamTable> alive(this);
    HeldException::run([&] { deliverEvent(event, CR_Identity, value, noText(), payload); });
    return !alive.isNull();
}

QString CCreditParamTable::getSelectAccount()
{
    return m_table->itemData(CR_Account).toString();
}

QString CCreditParamTable::getCurrentCode()
{
    return m_table->itemText(CR_Contract);
}

ENVCompactType CCreditParamTable::getCurrentCompactType(EOperationType operationType)
{
    return compactType(operationType);
}

double CCreditParamTable::getCurrentNumUnit()
{
    return 1.0;
}

boost::shared_ptr<CStkCompactsV2> CCreditParamTable::getCompatctByCode(const QString&, boost::shared_ptr<CAccountData>,
                                                                       std::string)
{
    return {};
}

boost::shared_ptr<CStkCompactsV2> CCreditParamTable::getDefaultCompact(const QString&)
{
    getSelectAccount();
    return {};
}

void CCreditParamTable::getAvailableNum(QString&, QString&, const std::string& accountId, const std::string&,
                                        const std::string&, boost::shared_ptr<CStkCompactsV2>, std::string)
{
    touchAccount(accountId);
}

bool CCreditParamTable::refreshAvailableNum(const QString&, bool, std::string)
{
    return true;
}

double CCreditParamTable::getUnRepayNum(std::string compactId)
{
    const QString code = getCurrentCode();
    touchAccount(getSelectAccount().toStdString());
    return compactId.empty() ? getAllUnrepayValue(code).toDouble() : 0.0;
}

// No contract is consulted in this edition: the total is 0.
QString CCreditParamTable::getAllUnrepayValue(const QString&)
{
    if (getSelectAccount().isEmpty())
        return zeroText();
    switch (unrepaidFormat(m_operationType)) {
    case UnrepaidFormat::Money:
        return moneyText(0.0);
    case UnrepaidFormat::Quantity:
        return quantityText(0);
    case UnrepaidFormat::None:
        break;
    }
    return zeroText();
}

QString CCreditParamTable::getDefaultUnrepayValue(const QString& code)
{
    const boost::shared_ptr<CStkCompactsV2> compact = getDefaultCompact(code);
    if (!compact)
        return zeroText();
    if (m_operationType == OPT_REPAY_LENDING_FEES)
        return moneyText(compact->unrepaidFees);
    return repaysSecurities(m_operationType) ? quantityText(compact->unrepaidVolume) : zeroText();
}

QString CCreditParamTable::getTodayAvailableNum(const QString&)
{
    return getSelectAccount().isEmpty() ? zeroText() : quantityText(0);
}

void CCreditParamTable::refreshUnrepayValue(const QString& value)
{
    m_table->setItemText(CR_Unrepaid, value);
    m_useAllCompacts = true;
}

void CCreditParamTable::doStockUnitChange()
{
}

void CCreditParamTable::saveUIDataToMap()
{
}

void CCreditParamTable::setOperationType(EOperationType, bool)
{
}

void CCreditParamTable::setOptBuySecuRepayNum(const std::string&, const std::string&, const std::string&)
{
}

} // namespace TC
