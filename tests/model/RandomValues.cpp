#include "model/RandomValues.h"

#include <limits>

namespace model::values {

namespace {

constexpr int kLargest = std::numeric_limits<int>::max();
constexpr int kSmallest = std::numeric_limits<int>::min();

rc::Gen<Json> anyOf(std::vector<rc::Gen<Json>> gens)
{
    return rc::gen::join(rc::gen::elementOf(std::move(gens)));
}

rc::Gen<Json> between(int first, int last)
{
    return rc::gen::map(rc::gen::inRange(first, last + 1), [](int value) { return Json(value); });
}

} // namespace

rc::Gen<Json> oneOf(std::initializer_list<Json> values)
{
    return rc::gen::elementOf(std::vector<Json>(values));
}

rc::Gen<Json> boolean()
{
    return oneOf({false, true});
}

rc::Gen<Json> identity()
{
    return anyOf({oneOf({5, 7, 9, 10, 11, 14, 15, 17, 22, 24, 30, 31, 33, 34, 35, 36, 38, 39, 40, 43, 51, 52, 3, 4, 8}),
                  between(0, 55), oneOf({-1, 100, kLargest, kSmallest})});
}

rc::Gen<Json> broker()
{
    return anyOf({between(1, 12), oneOf({2, 3, 6, 7, 1001, 1002}), oneOf({2, 0, -1, 1000, kLargest})});
}

rc::Gen<Json> trader()
{
    return oneOf({1, 4, 4096, 2, 3, 0, -1});
}

rc::Gen<Json> orderType()
{
    return anyOf(
        {oneOf({0, 1, 2, 3, 4, 5, 8, 11, 12, 13}), between(-2, 16), oneOf({0, 1, 104, 105, kLargest, kSmallest})});
}

rc::Gen<Json> operationType()
{
    return oneOf({-1, 21, 0, 1, -2, 18, 22, 1021, 1000000});
}

rc::Gen<Json> priceType()
{
    return anyOf(
        {between(-1, 30), oneOf({5, 11, 12, 14, 49, 45}), between(40, 50), oneOf({1000, kLargest, kSmallest})});
}

rc::Gen<Json> flags()
{
    return anyOf({oneOf({0x7103FFF, 0, 0x7FFFFFF, 0xFFFFFFF, -1, 0x7103FFE, 0x6B3FFFF}),
                  rc::gen::map(rc::gen::inRange(0, 0x10000000), [](int value) { return Json(value); })});
}

rc::Gen<Json> cell()
{
    return oneOf({0x1,    0x2,    0x4,     0x8,     0x10,    0x40,     0x200,    0x400,     0x800,     0x1000, 0x2000,
                  0x4000, 0x8000, 0x10000, 0x20000, 0x80000, 0x100000, 0x800000, 0x2000000, 0x4000000, 0x20,   12345});
}

rc::Gen<Json> cells()
{
    return rc::gen::map(rc::gen::resize(5, rc::gen::container<std::vector<Json>>(cell())),
                        [](const std::vector<Json>& ids) { return Json(ids); });
}

rc::Gen<Json> buttonId()
{
    return oneOf({600, 601, 602, 603, 604, 605, 608, 611, 612, 613, 617, 599, 7, 0, -1});
}

rc::Gen<Json> buttonText()
{
    return oneOf({"隔时交易", "普通交易", "算法", "跟量", "none such"});
}

rc::Gen<Json> price()
{
    return oneOf({0.0,   1.0,    10.05,     -1.5, 3.0,  6.5,   7.25,   -6.0,     0.01,  99.99, 100.0,
                  250.0, 1999.0, 123456.78, 5e6,  -2e7, 1e300, -1e300, kNoPrice, "nan", "inf", "-inf"});
}

rc::Gen<Json> wholeNumber()
{
    return oneOf({0,   1,    2,    10,    11,      99,      100, 101,  150,      199,
                  250, 1000, 1999, 10000, 1000000, 1000001, -1,  -250, kLargest, kSmallest});
}

rc::Gen<Json> unit()
{
    return oneOf({"%", "元", "点", "港币", "股", "手", "张", "笔", "次"});
}

rc::Gen<Json> text()
{
    return oneOf({"", "600000", "备注", "a+b-c=d^e", "12", "1.5", "-3", "clr_global_text", "00700 HK", "X1"});
}

rc::Gen<Json> setting()
{
    const auto reals =
        oneOf({0.0, 0.0625, 0.0005, 1.0005, -0.0004, 2.5, 30.0, 1e15, 123456.7895, "nan", "inf", kNoPrice});
    return rc::gen::map(rc::gen::tuple(orderType(), wholeNumber(), reals, reals, boolean(), flags()),
                        [](const std::tuple<Json, Json, Json, Json, Json, Json>& values) {
                            const auto& [type, whole, first, second, flag, word] = values;
                            return Json{{"orderType", type},     {"intField3", whole},   {"realField4", first},
                                        {"realField14", second}, {"realField24", first}, {"intField25", whole},
                                        {"realField32", second}, {"flag35", flag},       {"cellWord1", word},
                                        {"cellWord3", whole},    {"cellWord5", 7}};
                        });
}

rc::Gen<Json> modules()
{
    const auto module =
        oneOf({"mdl_order/mdl_order_algorithm3", "mdl_order/mdl_order_multi_market_price",
               "mdl_order/mdl_order_stock_multi_market_price",
               "mdl_order/mdl_order_credit_opt_slosell_only_fixed_price", "mdl_order/mdl_order_compose_full_pricetype",
               "mdl_order/mdl_order_command_remark", "mdl_order/mdl_order_trigger_price",
               "mdl_order/mdl_order_stop_profit_loss", "mdl_alg/mdl_alg_randvolume", "mdl_order/no_such_module"});
    return rc::gen::map(rc::gen::resize(7, rc::gen::container<std::vector<Json>>(module)),
                        [](const std::vector<Json>& on) { return Json(on); });
}

} // namespace model::values
