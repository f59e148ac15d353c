#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <OrderParamTable_mini/frame/HeldException.h>
#include <OrderParamTable_mini/frame/Services.h>
#include <OrderParamTable_mini/semantics/OrderState.h>
#include <OrderParamTable_mini/semantics/PriceTypes.h>

#include <WQ/CComboBoxDelegate.h>
#include <WQ/CMultiParamsTable.h>

#include <utility>

namespace TC {

using namespace ttservice;

namespace {

void loadEntries(WQ::CMultiParamsTable& table, const ComboEntries& entries)
{
    table.resetComboData(OCF_PriceType, entries.texts, entries.values, 0);
}

} // namespace

void COrderParamBaseTable::doResetPriceType(QStringList& labels, QVector<QVariant>& values, int flags, int market,
                                            bool apply, QString)
{
    ComboEntries entries;
    entries.texts = std::move(labels);
    entries.values = std::move(values);
    const bool mayBeLoaded = appendPriceTypes(entries, state(), flags, market, isModuleOn);
    if (apply && mayBeLoaded && m_table && !entries.texts.isEmpty())
        loadEntries(*m_table, entries);
    labels = std::move(entries.texts);
    values = std::move(entries.values);
}

void COrderParamBaseTable::genPriceTypeBySubType(QStringList& labels, QVector<QVariant>& values)
{
    const ComboEntries& levels = bookLevelEntries(m_brokerType);
    labels += levels.texts;
    values += levels.values;
}

void COrderParamBaseTable::resetPriceType()
{
    if (!m_table)
        return;
    switch (priceTypeRebuild(state(), isModuleOn)) {
    case PriceTypeRebuild::None:
        break;
    case PriceTypeRebuild::SpecifiedOnly:
        loadEntries(*m_table, specifiedPriceEntry());
        break;
    case PriceTypeRebuild::BookLevels: {
        QStringList labels;
        QVector<QVariant> values;
        doResetPriceType(labels, values, kBookLevelRebuildFlags, kRebuildMarket, true, QString());
        break;
    }
    case PriceTypeRebuild::Compose: {
        const ComboEntries entries = composePriceTypes(state(), isModuleOn);
        const int chosen = m_table->itemData(OCF_PriceType).toInt();
        loadEntries(*m_table, entries);
        m_table->setComboData(OCF_PriceType, chosen);
        break;
    }
    }
}

void COrderParamBaseTable::setPriceType(EPriceType priceType)
{
    if (!m_table)
        return;
    m_pendingPriceType = priceType;
    m_table->setComboData(OCF_PriceType, int(priceType));
    updateCurrentPriceTypeName();
    resetSuperPriceShow();
}

void COrderParamBaseTable::selectPrice(EPriceType priceType)
{
    const HeldException held;
    if (!m_table)
        return;
    m_table->setComboData(OCF_InitialQuote, int(priceType));
    m_table->setComboData(OCF_PriceType, int(priceType));
    m_priceType = priceType;
    if (announceChange(QString::fromLatin1("")))
        resetCellVisibilities();
}

QString COrderParamBaseTable::getCurrentPriceTypeName()
{
    if (m_priceTypeName.isEmpty())
        updateCurrentPriceTypeName();
    return m_priceTypeName;
}

void COrderParamBaseTable::updateCurrentPriceTypeName()
{
    if (isParameterSetMode()) {
        m_priceTypeName = getAlgoPriceTypeName();
        m_priceType = m_paramPriceType;
        return;
    }
    if (!m_table)
        return;
    if (const auto* const combo = dynamic_cast<const WQ::CComboBoxDelegate*>(m_table->getItem(OCF_PriceType))) {
        const QVariant value = combo->currentData();
        m_priceTypeName = combo->textOf(value);
        m_priceType = EPriceType(value.toInt());
    }
}

} // namespace TC
