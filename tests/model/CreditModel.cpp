#include "model/CreditModel.h"

#include <cmath>

namespace model {

namespace {

constexpr int kAccount = 726;
constexpr int kCode = 727;
constexpr int kUnrepaid = 728;
constexpr int kToday = 729;
constexpr int kUsable = 730;
constexpr int kRepayable = 731;
constexpr int kOwn = 725;

bool paysShares(int operation)
{
    return operation == 22 || operation == 23;
}

bool paysMoney(int operation)
{
    return operation == 24 || operation == 25 || operation == 1021;
}

Cell figure(int id, const char* label, const char* unit)
{
    Cell cell;
    cell.id = id;
    cell.kind = Kind::Text;
    cell.label = label;
    cell.editable = false;
    cell.units = {{unit, 10, 0, 0, {}}};
    return cell;
}

} // namespace

CreditModel::CreditModel(World& around)
    : world(around)
{
    Cell account;
    account.id = kAccount;
    account.kind = Kind::Combo;
    account.label = "资金账号";
    grid.add(account);
    Cell code;
    code.id = kCode;
    code.kind = Kind::Line;
    code.label = "指定还券";
    code.pattern = R"((^$)|[a-zA-Z0-9-\s&\*]+$)";
    code.hidden = true;
    grid.add(code);
    grid.add(figure(kUnrepaid, "未还合约数量", "股"));
    grid.add(figure(kToday, "当日可还数量", "股"));
    grid.add(figure(kUsable, "可还券资金", "元"));
    grid.add(figure(kRepayable, "可还券数量", "股"));
    grid.footer = false;
}

std::string CreditModel::selectedAccount() const
{
    const Json data = grid.itemData(kAccount);
    return data.is_string() ? data.get<std::string>() : data.is_null() ? std::string() : data.dump();
}

std::string CreditModel::param() const
{
    std::string text = std::to_string(operationType);
    for (const auto& [operation, rows] : remembered) {
        text += "+" + std::to_string(operation);
        for (const auto& [id, value] : rows)
            text += "-" + std::to_string(id) + "=" + value;
    }
    return text;
}

void CreditModel::setParam(const std::string& text)
{
    const std::vector<std::string> parts = split(text, '+');
    if (parts.size() < 2)
        return;
    operationType = toInt(parts.front());
    for (std::size_t part = 1; part < parts.size(); ++part) {
        const std::vector<std::string> fields = split(parts.at(part), '-');
        if (fields.size() < 5)
            continue;
        for (std::size_t field = 1; field < fields.size(); ++field) {
            const std::vector<std::string> pieces = split(fields.at(field), '=');
            if (pieces.size() >= 2)
                remembered[toInt(fields.front())][toInt(pieces.front())] = pieces.at(1);
        }
    }
    refreshUiData();
}

const std::map<int, std::string>* CreditModel::saved() const
{
    const auto found = remembered.find(operationType);
    return found == remembered.end() ? nullptr : &found->second;
}

std::string CreditModel::quantity(int row) const
{
    const auto* values = saved();
    return values && values->count(row) > 0 ? std::to_string(toInt(values->at(row))) : "0";
}

std::string CreditModel::money(int row) const
{
    const auto* values = saved();
    return fixedDecimals(values && values->count(row) > 0 ? toDouble(values->at(row)) : 0.0, 2);
}

void CreditModel::setTexts(std::initializer_list<int> ids, const std::string& text)
{
    for (const int id : ids)
        grid.setItemText(id, text);
}

void CreditModel::row(int id, const char* title, const char* unit, const std::string& text)
{
    grid.setItemName(id, title);
    grid.setItemUnit(id, unit, 0, 0, 0, true);
    grid.setItemText(id, text);
}

void CreditModel::layRowsOut()
{
    switch (operationType) {
    case 22:
    case 23:
        row(kUnrepaid, "未还合约数量", "股", quantity(kUnrepaid));
        grid.setItemText(kToday, quantity(kToday));
        if (operationType == 22) {
            row(kUsable, "可还券资金", "元", money(kUsable));
            row(kRepayable, "当日可还数量", "股", quantity(kRepayable));
            grid.setItemUnit(kToday, "股", 0, 0, 0, true);
        } else {
            row(kUsable, "可用持仓数量", "股", quantity(kUsable));
            grid.setItemName(kRepayable, "当日可还数量");
            grid.setItemText(kRepayable, quantity(kRepayable));
        }
        break;
    case 24:
        row(kUnrepaid, "负债金额", "元", money(kUnrepaid));
        row(kUsable, "可卖持仓数量", "股", quantity(kUsable));
        break;
    case 25:
    case 1021:
        row(kUnrepaid, operationType == 25 ? "负债金额" : "未还融券合约息费", "元", money(kUnrepaid));
        row(kUsable, "可还款资金", "元", money(kUsable));
        break;
    default:
        return;
    }
    grid.setItemHidden(kToday, paysMoney(operationType));
    grid.setItemHidden(kRepayable, true);
}

void CreditModel::refreshUiData()
{
    const auto* values = saved();
    if (!values || values->count(kCode) == 0 || values->at(kCode).empty()) {
        setTexts({kCode, kUnrepaid, kToday, kUsable, kRepayable}, "");
        world.hear(1083, kOwn, 0, "");
    }
    layRowsOut();
    world.hear(73, kOwn, 0, "", {{"variant", grid.itemData(kAccount)}});
    resetColumnWidth();
}

void CreditModel::resetColumnWidth()
{
    columnWidth = operationType == 1021 && std::fabs(scale - 1.0) > 0.00001 ? 155 : 120;
}

void CreditModel::setFixCodeText(const std::string& code, bool setCode)
{
    if (setCode) {
        grid.setItemText(kCode, code);
        return;
    }
    setTexts({kCode, kUnrepaid, kToday, kUsable, kRepayable}, "");
}

void CreditModel::fixCodeChanged(const std::string& code)
{
    if (code.empty()) {
        setFixCodeText(code, false);
        world.hear(1083, kOwn, 0, "");
    }
}

void CreditModel::setStockCode(const std::string& code, const std::string& compactId, bool useDefault)
{
    setFixCodeText(code, true);
    if (!compactId.empty())
        return;
    grid.setItemText(kUnrepaid, useDefault ? "0" : allUnrepaid());
    grid.setItemUnit(kUnrepaid, "股");
    grid.setItemUnit(kUsable, "股");
    if (!useDefault && paysShares(operationType)) {
        grid.setItemText(kToday, todayAvailable());
        grid.setItemUnit(kToday, "股");
    }
}

void CreditModel::setStkCompacts(const Json& compact, const std::string& value, bool showZero)
{
    if (compact.is_null() || !compact.contains("key") || compact.at("key").is_null())
        return;
    setFixCodeText("", true);
    grid.setItemText(kUsable, "0");
    grid.setItemText(kUnrepaid, showZero ? "0" : value);
    if (paysShares(operationType))
        grid.setItemText(kToday, todayAvailable());
}

void CreditModel::setSelectAccount(const std::string& account)
{
    grid.setComboData(kAccount, account);
    world.hear(73, kOwn, 0, "", {{"variant", account}});
}

std::string CreditModel::allUnrepaid() const
{
    if (selectedAccount().empty())
        return "0";
    return paysMoney(operationType) ? "0.00" : "0";
}

std::string CreditModel::todayAvailable() const
{
    return "0";
}

EditOutcome CreditModel::edit(const Json& command)
{
    return grid.edit(command, [this](const PersonEvent& event) {
        world.hear(event.event, event.a, event.b, event.text, event.data);
    });
}

Json CreditModel::state() const
{
    return {{"cells", grid.state()}, {"columnWidth", columnWidth}, {"param", param()}};
}

} // namespace model
