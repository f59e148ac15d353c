#pragma once

#include "model/ButtonsModel.h"
#include "model/GridModel.h"
#include "model/World.h"

#include <array>
#include <map>
#include <string>

namespace model {

struct Construction
{
    int id = 0;
    int broker = 0;
    bool modeButtons = true;
    int trader = 0;
    bool autoBook = false;
    bool fontScale = true;
};

/// Which class a table is of: what its save(), reloadParam(), setStockCode() and clear() do beyond the base's.
enum class TableClass {
    Probe,
    Global,
    Code,
    StopLoss,
};

/// An order-parameter table, told once more and independently: what it holds and what the host hears of it.
class TableModel
{
public:
    TableModel(World& world, TableClass tableClass, std::string name, const Construction& construction);

    /// A public (or, for the probe, protected) operation; its result.
    Json call(const std::string& operation, const Json& args);

    bool handleEvent(int event, int a, int b, const std::string& text, const Json& data);
    EditOutcome edit(const Json& command);
    bool click(int button);
    bool filter(const std::set<int>& ids);
    bool filterReset();

    Json state() const;

    /// Where a table's sizes contradict each other: how high the grid is, where it lies and how wide. Empty when
    /// nowhere, or when nothing has laid them out since they changed.
    std::string layoutMismatch(const Json& actual) const;
    void show();
    void resize();

    World& world;
    const TableClass tableClass;
    const std::string name;
    const Construction made;
    GridModel grid;
    ButtonsModel group;
    bool stripHidden = false;
    int orderType = 0;
    int operationType = -1;
    int priceType = -1;
    int paramPriceType = 12;
    std::string priceTypeName;
    int flags = 0x7103FFF;
    std::string stockCode;
    int paramIndex = -1;
    std::array<unsigned, 4> words = {};
    double originalPrice = 0;
    bool expand = false;
    std::map<int, bool> hints;
    std::map<int, Json> settings;

    bool isShown = false;
    bool isLaidOut = false;
    std::string fittedRows; ///< what the grid showed when its height was fixed
    std::string placedRows; ///< and when it was laid out

    bool idIn(std::initializer_list<int> ids) const;
    bool brokerIn(std::initializer_list<int> brokers) const;

    void save();
    void reloadParam();

    // construction
    void createButtons();
    void createCells();
    std::string moneyUnit() const;
    Entries initialPriceTypes() const;
    bool isRandVolume() const;

    // visibility
    void resetCellVisibilities();
    void setExpandItemsHidden(bool hide);
    void loadVisibleFlag();
    void saveVisibleFlag(bool skip);
    void setFlag(int value);
    void showCellArea(bool show)
    {
        grid.hidden = !show;
    }

    void fitHeight();
    void layOut();
    void handleScaleChanged();

    // price types
    void appendFixedPrice(Entries& entries) const;
    Entries bookLevels() const;
    Entries priceTypes(int bits, int market, bool apply);
    void resetPriceType();
    void updateCurrentPriceTypeName();
    void setPriceType(int type);
    void selectPrice(int type);

    // operation and order types
    void setStockCode(const std::string& code);
    void setOperationType(int type);
    void setOrderType(int type);
    bool showAlgo() const;
    bool showAlgoHelpButton() const;
    bool isCloseSetting() const;
    int singleVolType() const;
    void announceOrderType();

    // prices
    void setFixedPrice(double price);
    void setOriginalPrice(double price);
    void setPriceImpl(double price, const std::string& text);
    void resetShowFixPrice();
    void resetSuperPrice();
    void resetSuperPriceShow();
    void fixSuperPrice();
    bool bSuperPriceStartHide() const
    {
        return !expand || orderType == 0;
    }
    double priceForCalc(int operation, bool zeroIfUnset) const;
    void resetTableByPriceType();

    // events
    bool clicked(int button, const std::string& text);
    void takePriceType(int type);
    void plainMode(int button, const std::string& text);
    void parameterMode(int button, const std::string& text);
    void resetBtnType();
    void hint(int type, bool critical);
    void updateCmdLog();
    Json transferTimePeriod(Json record) const;

private:
    std::string rows() const;
    void deliver(const PersonEvent& event);
};

} // namespace model
