#pragma once

#include <OrderParamTable_mini/credit/CCreditParamTable.h>
#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>
#include <OrderParamTable_mini/tables/CHpfBasketTaskParamWidget.h>

/// Objects whose protected operations scripts may call.
namespace replay {

/// The smallest concrete table. It counts what the frame asks of derived tables.
class BaseTableProbe : public TC::COrderParamBaseTable
{
    Q_OBJECT
public:
    using TC::COrderParamBaseTable::COrderParamBaseTable;

    void setParam(const QString& text) override;
    QString param() const override;
    void save() override;
    void reloadParam() override;

    int saves = 0;
    int reloads = 0;

    using TC::COrderParamBaseTable::changeSuperPrice;
    using TC::COrderParamBaseTable::doResetPriceType;
    using TC::COrderParamBaseTable::fixPriceInRange;
    using TC::COrderParamBaseTable::fixSuperPrice;
    using TC::COrderParamBaseTable::getRealVolumeType;
    using TC::COrderParamBaseTable::isAuthorityLegal;
    using TC::COrderParamBaseTable::isComposeFuture;
    using TC::COrderParamBaseTable::isComposeStock;
    using TC::COrderParamBaseTable::onVolumeTypeChange;
    using TC::COrderParamBaseTable::resetBtnType;
    using TC::COrderParamBaseTable::resetCellVisibilities;
    using TC::COrderParamBaseTable::resetLayout;
    using TC::COrderParamBaseTable::resetPriceType;
    using TC::COrderParamBaseTable::resetShowFixPrice;
    using TC::COrderParamBaseTable::resetSuperPrice;
    using TC::COrderParamBaseTable::resetSuperPriceShow;
    using TC::COrderParamBaseTable::resetTableByPriceType;
    using TC::COrderParamBaseTable::setAlgoBtnVisible;
    using TC::COrderParamBaseTable::setPriceImpl;
    using TC::COrderParamBaseTable::showAlgo;
    using TC::COrderParamBaseTable::showAlgoHelpButton;
    using TC::COrderParamBaseTable::slotShouldHintAlgorithm;
    using TC::COrderParamBaseTable::updateCurrentPriceTypeName;
};

class CreditProbe : public TC::CCreditParamTable
{
    Q_OBJECT
public:
    using TC::CCreditParamTable::CCreditParamTable;

    using TC::CCreditParamTable::fixCodeChanged;
    using TC::CCreditParamTable::getAvailableNum;
    using TC::CCreditParamTable::getComBoDisplayAccounts;
    using TC::CCreditParamTable::getCompatctByCode;
    using TC::CCreditParamTable::getCurrentCompactType;
    using TC::CCreditParamTable::getCurrentNumUnit;
    using TC::CCreditParamTable::refreshUIData;
    using TC::CCreditParamTable::resetColumnWidth;
    using TC::CCreditParamTable::resizeTable;
    using TC::CCreditParamTable::saveUIDataToMap;
    using TC::CCreditParamTable::setFixCodeText;
    using TC::CCreditParamTable::setOptBuySecuRepayNum;
};

class BasketProbe : public TC::CHpfBasketTaskParamWidget
{
    Q_OBJECT
public:
    using TC::CHpfBasketTaskParamWidget::CHpfBasketTaskParamWidget;

    using TC::CHpfBasketTaskParamWidget::changeOrderType;
    using TC::CHpfBasketTaskParamWidget::createUi;
    using TC::CHpfBasketTaskParamWidget::creatTable;
    using TC::CHpfBasketTaskParamWidget::reloadWidget;
};

} // namespace replay
