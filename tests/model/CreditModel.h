#pragma once

#include "model/GridModel.h"
#include "model/World.h"

#include <map>
#include <string>

namespace model {

/// The table of a credit repayment, told once more: rows, remembered values, and what the host hears.
class CreditModel
{
public:
    explicit CreditModel(World& world);

    Json call(const std::string& operation, const Json& args);
    EditOutcome edit(const Json& command);
    Json state() const;

    World& world;
    GridModel grid;
    int operationType = -1;
    std::map<int, std::map<int, std::string>> remembered;
    double scale = 1;
    int columnWidth = 120;

    std::string selectedAccount() const;
    std::string param() const;
    void setParam(const std::string& text);
    void refreshUiData();
    void resetColumnWidth();
    void setFixCodeText(const std::string& code, bool setCode);
    void fixCodeChanged(const std::string& code);
    void setStockCode(const std::string& code, const std::string& compactId, bool useDefault);
    void setStkCompacts(const Json& compact, const std::string& value, bool showZero);
    void setSelectAccount(const std::string& account);
    std::string allUnrepaid() const;
    std::string todayAvailable() const;

private:
    const std::map<int, std::string>* saved() const;
    std::string quantity(int row) const;
    std::string money(int row) const;
    void layRowsOut();
    void row(int id, const char* title, const char* unit, const std::string& text);
    void setTexts(std::initializer_list<int> ids, const std::string& text);
};

} // namespace model
