#pragma once

#include <initializer_list>

/// The one call that adds each cell, by broker type. An empty call means that the cell is not added.
struct AddedCell
{
    const char* name;
    std::initializer_list<int> brokers;
    int id; ///< of the table
    int cell;
    const char* call;
};

#define COMBO_END "0, false, right|vcenter, right|vcenter)"

// clang-format off
inline const AddedCell kAddedCells[] = {
    {"price types: none for futures", {1, 5}, 5, 0x1, ""},
    {"price types: ten levels", {1001, 1002, 10}, 5, 0x1,
     R"(table.addComboBox(0x1, "报价方式", ["最新价", "挂单价", "对手价", "指定价", "卖⑤价", "卖④价", "卖③价", "卖②价", "卖①价", "买①价", "买②价", "买③价", "买④价", "买⑤价"], [5, 13, 14, 11, 0, 1, 2, 3, 4, 6, 7, 8, 9, 10], )" COMBO_END},
    {"price types: ten levels, model price", {1001, 1002, 10}, 40, 0x1,
     R"(table.addComboBox(0x1, "报价方式", ["最新价", "挂单价", "对手价", "模型价", "卖⑤价", "卖④价", "卖③价", "卖②价", "卖①价", "买①价", "买②价", "买③价", "买④价", "买⑤价"], [5, 13, 14, 11, 0, 1, 2, 3, 4, 6, 7, 8, 9, 10], )" COMBO_END},
    {"price types: Hong Kong", {7, 11}, 5, 0x1,
     R"(table.addComboBox(0x1, "报价方式", ["最新价", "对手价", "指定价", "卖①价", "买①价"], [5, 14, 11, 4, 6], )" COMBO_END},
    {"price types: Hong Kong without a fixed price", {7, 11}, 35, 0x1,
     R"(table.addComboBox(0x1, "报价方式", ["最新价", "对手价", "卖①价", "买①价"], [5, 14, 4, 6], )" COMBO_END},
    {"price types: options", {6}, 5, 0x1,
     R"(table.addComboBox(0x1, "报价方式", ["最新价", "对手价", "限价", "限价即全成否则撤", "市价即成剩撤", "市价即全成否则撤", "市价剩转限价", "卖①价", "买①价"], [5, 14, 11, 26, 27, 28, 29, 4, 6], )" COMBO_END},
    {"price types: options on table 43", {6}, 43, 0x1,
     R"(table.addComboBox(0x1, "报价方式", ["最新价", "对手价", "限价即全成否则撤", "卖①价", "买①价"], [5, 14, 26, 4, 6], )" COMBO_END},
    {"price types: built list with the previous close", {2}, 5, 0x1,
     R"(table.addComboBox(0x1, "报价方式", ["指定价", "挂单价", "对手价", "昨收价", "卖⑤价", "卖④价", "卖③价", "卖②价", "卖①价", "最新价", "买①价", "买②价", "买③价", "买④价", "买⑤价"], [11, 13, 14, 16, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10], )" COMBO_END},
    {"price types: built list", {3, 4, 8, 99}, 5, 0x1,
     R"(table.addComboBox(0x1, "报价方式", ["指定价", "挂单价", "对手价", "卖⑤价", "卖④价", "卖③价", "卖②价", "卖①价", "最新价", "买①价", "买②价", "买③价", "买④价", "买⑤价"], [11, 13, 14, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10], )" COMBO_END},

    {"super price: none in Hong Kong", {7, 11}, 5, 0x2, ""},
    {"super price: points", {1, 4, 5, 1001, 1002}, 5, 0x2,
     R"(table.addParamUnitCell(0x2, "单笔超价", [{"%", 6, -100.0, 100.0}, {"点", 6, -1000000.0, 1000000.0}], 0.5, -1.0))"},
    {"super price: yuan", {2, 3, 6, 8, 10, 99}, 5, 0x2,
     R"(table.addParamUnitCell(0x2, "单笔超价", [{"%", 6, -100.0, 100.0}, {"元", 6, -1000000.0, 1000000.0}], 0.5, -1.0))"},

    {"base volume: none", {6, 7, 10, 11}, 5, 0x10, ""},
    {"base volume: futures", {1, 4, 5}, 5, 0x10,
     R"(table.addComboBox(0x10, "单笔基准量", ["卖①量", "买①量", "目标量", "目标剩余量", "持仓数量"], [4, 5, 10, 11, 12], )" COMBO_END},
    {"base volume: futures on table 14", {1, 4, 5}, 14, 0x10,
     R"(table.addComboBox(0x10, "单笔基准量", ["卖①量", "买①量", "持仓数量"], [4, 5, 12], )" COMBO_END},
    {"base volume: others", {2, 3, 8, 1001, 1002, 99}, 5, 0x10,
     R"(table.addComboBox(0x10, "单笔基准量", ["卖①+②+③+④+⑤量", "卖①+②+③+④量", "卖①+②+③量", "卖①+②量", "卖①量", "目标量", "买①量", "买①+②量", "买①+②+③量", "买①+②+③+④量", "买①+②+③+④+⑤量", "目标剩余量", "持仓总量"], [0, 1, 2, 3, 4, 10, 5, 6, 7, 8, 9, 11, 12], )" COMBO_END},

    {"tail volume: points", {1, 4, 5, 1001, 1002}, 5, 0x40,
     R"(table.addParamUnitCell(0x40, "尾单最小量", [{"%", 2, 1, 100}, {"手", 2, 1, 1000000}], 1.0, -1.0))"},
    {"tail volume: options", {6}, 5, 0x40,
     R"(table.addParamUnitCell(0x40, "尾单最小量", [{"%", 2, 1, 100}, {"股", 2, 1, 1000000}], 1.0, -1.0))"},
    {"tail volume: others", {2, 3, 7, 8, 10, 11, 99}, 5, 0x40,
     R"(table.addParamUnitCell(0x40, "尾单最小量", [{"%", 2, 1, 100}, {"股", 2, 100, 1000000}], 100.0, -1.0))"},

    {"start count: none in Hong Kong", {7, 11}, 5, 0x4, ""},
    {"start count: a step of 0", {1, 2, 3, 4, 5, 6, 8, 10, 1001, 1002, 99}, 5, 0x4,
     R"(table.addParamCell(0x4, "超价启用笔数", 2, 1.0, 1000000.0, 0.0, "笔", 1.0, 4))"},

    {"fluctuation: points", {1, 4, 5, 1001, 1002}, 5, 0x8,
     R"(table.addCheckParamUnitCell(0x8, "波动区间", "单向", false, [{"%", 6, 0.0, 100.0, 0.01}, {"点", 6, 0, 1000000.0}], 3.0, -1.0))"},
    {"fluctuation: Hong Kong dollars", {7, 11}, 5, 0x8,
     R"(table.addCheckParamUnitCell(0x8, "波动区间", "单向", false, [{"%", 6, 0.0, 100.0, 0.01}, {"港币", 6, 0, 1000000.0}], 3.0, -1.0))"},
    {"fluctuation: options", {6}, 5, 0x8,
     R"(table.addCheckParamUnitCell(0x8, "波动区间", "单向", false, [{"%", 6, 0.0, 100.0, 0.0001}, {"元", 6, 0, 1000000.0, 0.0001}], 3.0, -1.0))"},
    {"fluctuation: others", {2, 3, 8, 10, 99}, 5, 0x8,
     R"(table.addCheckParamUnitCell(0x8, "波动区间", "单向", false, [{"%", 6, 0.0, 100.0, 0.01}, {"元", 6, 0, 1000000.0}], 3.0, -1.0))"},
    {"fluctuation: table 7", {2, 3, 8, 10, 99}, 7, 0x8,
     R"(table.addCheckParamUnitCell(0x8, "波动区间", "单向", false, [{"%", 6, 0.0, 100.0, 0.01}, {"元", 6, 0, 1000000.0}], 5.0, -1.0))"},

    {"smallest volume: points", {1, 4, 5, 1001, 1002}, 5, 0x200,
     R"(table.addParamCell(0x200, "单笔最小量", 2, 1.0, 1000000.0, 1.0, "手", 100.0, 4))"},
    {"smallest volume: options", {6}, 5, 0x200,
     R"(table.addParamCell(0x200, "单笔最小量", 2, 1.0, 1000000.0, 1.0, "张", 100.0, 4))"},
    {"smallest volume: others", {2, 3, 7, 8, 10, 11, 99}, 5, 0x200,
     R"(table.addParamCell(0x200, "单笔最小量", 2, 100.0, 1000000.0, 100.0, "股", 10000.0, 4))"},
    {"largest volume: points", {1, 4, 5, 1001, 1002}, 5, 0x400,
     R"(table.addParamCell(0x400, "单笔最大量", 2, 1.0, 1000000.0, 1.0, "手", 100.0, 4))"},
    {"largest volume: options", {6}, 5, 0x400,
     R"(table.addParamCell(0x400, "单笔最大量", 2, 1.0, 1000000.0, 1.0, "张", 100.0, 4))"},
    {"largest volume: others", {2, 3, 7, 8, 10, 11, 99}, 5, 0x400,
     R"(table.addParamCell(0x400, "单笔最大量", 2, 100.0, 1000000.0, 100.0, "股", 10000.0, 4))"},

    {"valid time: futures", {1, 4, 5}, 5, 0x800, R"(table.addTimePeriod(0x800, "有效时间", 09:00:00, 15:15:00))"},
    {"valid time: others", {2, 3, 6, 7, 8, 10, 11, 1001, 1002, 99}, 5, 0x800,
     R"(table.addTimePeriod(0x800, "有效时间", 09:30:00, 15:00:00))"},

    {"order count", {1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 1001, 1002, 99}, 5, 0x1000,
     R"(table.addParamCell(0x1000, "最大委托次数", 2, 1.0, 10000.0, 1.0, "次", 1000.0, 4))"},

    {"order handling: futures", {1, 4, 5}, 5, 0x2000,
     R"(table.addComboBox(0x2000, "未成委托处理", ["不处理", "按卖①价委托", "按最新价委托", "按买①价委托", "按挂单价委托", "按对手价委托"], [-1, 4, 5, 6, 13, 14], )" COMBO_END},
    {"order handling: Hong Kong", {7, 11}, 5, 0x2000,
     R"(table.addComboBox(0x2000, "未成委托处理", ["不处理", "按卖①价委托", "按最新价委托", "按买①价委托", "按对手价委托"], [-1, 4, 5, 6, 14], )" COMBO_END},
    {"order handling: options", {6}, 5, 0x2000,
     R"(table.addComboBox(0x2000, "未成委托处理", ["不处理", "按限价即全成否则撤委托", "按市价即成剩撤委托", "按市价即全成否则撤委托", "按市价剩转限价委托", "按卖①价委托", "按最新价委托", "按买①价委托", "按对手价委托"], [-1, 26, 27, 28, 29, 4, 5, 6, 14], )" COMBO_END},
    {"order handling: options on table 43", {6}, 43, 0x2000,
     R"(table.addComboBox(0x2000, "未成委托处理", ["不处理", "按限价即全成否则撤委托", "按卖①价委托", "按最新价委托", "按买①价委托", "按对手价委托"], [-1, 26, 4, 5, 6, 14], )" COMBO_END},
    {"order handling: others", {3, 8, 10, 1001, 1002, 99}, 5, 0x2000,
     R"(table.addComboBox(0x2000, "未成委托处理", ["不处理", "按卖⑤价委托", "按卖④价委托", "按卖③价委托", "按卖②价委托", "按卖①价委托", "按最新价委托", "按买①价委托", "按买②价委托", "按买③价委托", "按买④价委托", "按买⑤价委托", "按挂单价委托", "按对手价委托"], [-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 13, 14], )" COMBO_END},
    {"order handling: previous close", {2}, 36, 0x2000,
     R"(table.addComboBox(0x2000, "未成委托处理", ["不处理", "按卖⑤价委托", "按卖④价委托", "按卖③价委托", "按卖②价委托", "按卖①价委托", "按最新价委托", "按买①价委托", "按买②价委托", "按买③价委托", "按买④价委托", "按买⑤价委托", "按挂单价委托", "按对手价委托", "按昨收价委托"], [-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 13, 14, 16], )" COMBO_END},

    {"volume range: on its tables", {2}, 33, 0x800000,
     R"(table.addRangeCell(0x800000, "单笔量区间", 2, 1.0, 1000000.0, 1.0, 1000000.0, 1.0, "股", 1.0, -1, " - ", false))"},
    {"volume range: on no other table", {2}, 6, 0x800000, ""},
    {"volume range: for no other broker type", {1, 3, 4, 5, 6, 7, 8, 10, 11, 1001, 1002, 99}, 5, 0x800000, ""},

    {"initial quote", {1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 1001, 1002, 99}, 5, 0x10000,
     R"(table.addComboBox(0x10000, "初始报价", ["卖⑤价", "卖④价", "卖③价", "卖②价", "卖①价", "最新价", "买①价", "买②价", "买③价", "买④价", "买⑤价"], [0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10], 6, false, right|vcenter, right|vcenter))"},
    {"handling", {1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 1001, 1002, 99}, 5, 0x20000,
     R"(table.addComboBox(0x20000, "未成处理", ["卖⑤价", "卖④价", "卖③价", "卖②价", "卖①价", "最新价", "买①价", "买②价", "买③价", "买④价", "买⑤价"], [0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10], 4, false, right|vcenter, right|vcenter))"},

    {"price fluctuation: options", {6}, 5, 0x80000,
     R"(table.addParamCell(0x80000, "波动区间", 6, 0.0, 100.0, 0.0001, "%", 0.0, 4))"},
    {"price fluctuation: others", {1, 2, 3, 4, 5, 7, 8, 10, 11, 1001, 1002, 99}, 5, 0x80000,
     R"(table.addParamCell(0x80000, "波动区间", 6, 0.0, 100.0, 0.01, "%", 0.0, 4))"},

    {"limit price: table 5", {1, 2, 6, 7, 1001, 99}, 5, 0x2000000,
     R"(table.addParamCell(0x2000000, "限价", 6, 0.0, 1000000.0, 0.01, "元", 0.0, 4))"},
    {"limit price: table 11", {2}, 11, 0x2000000,
     R"(table.addParamCell(0x2000000, "限价", 6, 0.0, 1000000.0, 0.01, "元", 0.0, 4))"},
    {"limit price: table 12", {2}, 12, 0x2000000,
     R"(table.addParamCell(0x2000000, "限价", 6, 0.0, 1000000.0, 0.01, "元", 0.0, 4))"},
    {"limit price: table 13", {2}, 13, 0x2000000,
     R"(table.addParamCell(0x2000000, "限价", 6, 0.0, 1000000.0, 0.01, "元", 0.0, 4))"},
    {"limit price: none on table 14", {2}, 14, 0x2000000, ""},

    {"remark", {1, 2, 6, 7, 99}, 5, 0x4000000, R"(table.addLineEdit(0x4000000, "投资备注", "", false, ""))"},
};
// clang-format on
