#include "replay/DialogState.h"

#include "replay/Numbers.h"
#include "replay/State.h"
#include "replay/Values.h"

#include <OrderParamTable_mini/tables/CBaseTaskParamWidget.h>
#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>
#include <OrderParamTable_mini/tables/CHpfBasketTaskParamWidget.h>

#include <WQ/CParameterCell.h>
#include <WQ/CPushButton.h>

namespace replay {

namespace {

/// What the dialogs keep for the classes derived from them.
struct TaskMembers : TC::CBaseTaskParamWidget
{
    static constexpr auto kButton = &TaskMembers::m_expandButton;
    static constexpr auto kTable = &TaskMembers::m_table;
    static constexpr auto kExpanded = &TaskMembers::m_expanded;
};

struct BasketMembers : TC::CHpfBasketTaskParamWidget
{
    static constexpr auto kButton = &BasketMembers::m_swapButton;
    static constexpr auto kSecondIsNext = &BasketMembers::m_flag;
};

struct DialogParts
{
    bool isExpanded = false;
    const QWidget* button = nullptr;
    const QWidget* table = nullptr;
};

Json buttonState(const QWidget* button)
{
    if (!button)
        return nullptr;
    const auto* const withIcon = dynamic_cast<const WQ::CPushButton*>(button);
    Json json = Json::object();
    json["hidden"] = button->isHidden();
    json["icon"] = written(withIcon ? withIcon->iconKey() : QString());
    return json;
}

Json factState(const WQ::CParameterCell& fact)
{
    Json json = Json::object();
    json["label"] = written(fact.label());
    json["text"] = written(fact.text());
    json["min"] = numberJson(fact.minimum());
    json["max"] = numberJson(fact.maximum());
    json["step"] = numberJson(fact.step());
    json["enabled"] = fact.isEnabled();
    return json;
}

Json state(const QWidget& dialog, const std::string& className, const DialogParts& parts)
{
    Json json = Json::object();
    json["class"] = className;
    json["title"] = written(dialog.windowTitle());
    json["size"] = Json::array({dialog.width(), dialog.height()});
    json["expanded"] = parts.isExpanded;
    json["button"] = buttonState(parts.button);
    json["table"] = stateOf(parts.table);
    Json& facts = json["facts"] = Json::array();
    for (const WQ::CParameterCell* fact : dialog.findChildren<WQ::CParameterCell*>())
        facts.push_back(factState(*fact));
    json["deleteOnClose"] = dialog.testAttribute(Qt::WA_DeleteOnClose);
    return json;
}

} // namespace

Json dialogState(const TC::CBaseTaskParamWidget& dialog, const std::string& className)
{
    return state(dialog, className,
                 {dialog.*TaskMembers::kExpanded, dialog.*TaskMembers::kButton, dialog.*TaskMembers::kTable});
}

Json dialogState(const TC::CHpfBasketTaskParamWidget& dialog, const std::string& className)
{
    return state(dialog, className, {dialog.*BasketMembers::kSecondIsNext, dialog.*BasketMembers::kButton, nullptr});
}

} // namespace replay
