#include "workbench/TourStops.h"

#include <array>

namespace workbench {

namespace {

constexpr bool kCollapsed = false;
constexpr bool kExpanded = true;

// clang-format off

constexpr std::array kPanelStops = {
    PanelStop{"order-stock-plain-collapsed",         5, 2, 0, kCollapsed, PanelState::AtRest},
    PanelStop{"order-stock-plain-expanded",          5, 2, 0, kExpanded,  PanelState::AtRest},
    PanelStop{"order-stock-algorithm-collapsed",     5, 2, 1, kCollapsed, PanelState::AtRest},
    PanelStop{"order-stock-algorithm-expanded",      5, 2, 1, kExpanded,  PanelState::AtRest},
    PanelStop{"order-futures-plain-collapsed",       5, 1, 0, kCollapsed, PanelState::AtRest},
    PanelStop{"order-futures-plain-expanded",        5, 1, 0, kExpanded,  PanelState::AtRest},
    PanelStop{"order-futures-algorithm-collapsed",   5, 1, 1, kCollapsed, PanelState::AtRest},
    PanelStop{"order-futures-algorithm-expanded",    5, 1, 1, kExpanded,  PanelState::AtRest},
    PanelStop{"order-option-plain-collapsed",        5, 6, 0, kCollapsed, PanelState::AtRest},
    PanelStop{"order-option-plain-expanded",         5, 6, 0, kExpanded,  PanelState::AtRest},
    PanelStop{"order-option-algorithm-collapsed",    5, 6, 1, kCollapsed, PanelState::AtRest},
    PanelStop{"order-option-algorithm-expanded",     5, 6, 1, kExpanded,  PanelState::AtRest},
    PanelStop{"order-hongkong-plain-collapsed",      5, 7, 0, kCollapsed, PanelState::AtRest},
    PanelStop{"order-hongkong-plain-expanded",       5, 7, 0, kExpanded,  PanelState::AtRest},
    PanelStop{"order-hongkong-algorithm-collapsed",  5, 7, 1, kCollapsed, PanelState::AtRest},
    PanelStop{"order-hongkong-algorithm-expanded",   5, 7, 1, kExpanded,  PanelState::AtRest},
    PanelStop{"order-stock-random-volume",           5, 2, 2, kExpanded,  PanelState::AtRest},
    PanelStop{"state-row-focused",                   5, 2, 1, kExpanded,  PanelState::RowFocused},
    PanelStop{"state-editor-open",                   5, 2, 1, kExpanded,  PanelState::EditorOpen},
    PanelStop{"state-wrong-input",                   5, 2, 1, kExpanded,  PanelState::WrongInput},
    PanelStop{"state-off-grid",                      5, 2, 1, kExpanded,  PanelState::OffGrid},
    PanelStop{"state-unit-list-open",                5, 2, 1, kExpanded,  PanelState::UnitListOpen},
    PanelStop{"state-entry-list-open",               5, 2, 1, kExpanded,  PanelState::EntryListOpen},
    PanelStop{"state-period-editor-open",            5, 2, 1, kExpanded,  PanelState::PeriodEditorOpen},
    PanelStop{"state-filter-open",                   5, 2, 1, kCollapsed, PanelState::FilterOpen},
    PanelStop{"state-filter-button-focused",         5, 2, 1, kCollapsed, PanelState::FilterButtonFocused},
    PanelStop{"state-menu-open",                     5, 2, 1, kExpanded,  PanelState::MenuOpen},
    PanelStop{"state-unit-menu-open",                5, 2, 1, kExpanded,  PanelState::UnitMenuOpen},
    PanelStop{"state-paste-refused",                 5, 2, 1, kExpanded,  PanelState::PasteRefused},
    PanelStop{"state-range-tooltip",                 5, 2, 1, kExpanded,  PanelState::RangeToolTip},
    PanelStop{"state-disabled",                      5, 2, 1, kExpanded,  PanelState::Disabled},
    PanelStop{"state-scrolled",                      5, 2, 1, kExpanded,  PanelState::Scrolled},
};

constexpr std::array kTaskStops = {
    TaskStop{"task-stock-plain",             2, 0, 18, 1, kCollapsed},
    TaskStop{"task-stock-algorithm",         2, 1, 18, 1, kCollapsed},
    TaskStop{"task-stock-expanded",          2, 1, 18, 1, kExpanded},
    TaskStop{"task-stock-without-facts",     2, 1, 18, 4, kCollapsed},
    TaskStop{"task-stock-without-base",      2, 1, 40, 1, kCollapsed},
    TaskStop{"task-futures-algorithm",       1, 1, 18, 1, kExpanded},
    TaskStop{"task-credit-algorithm",        3, 1, 22, 1, kExpanded},
    TaskStop{"task-option-algorithm",        6, 1, 18, 1, kExpanded},
    TaskStop{"task-hongkong-algorithm",      7, 1, 18, 1, kExpanded},
    TaskStop{"task-without-account",         0, 1, 18, 1, kCollapsed},
};

constexpr std::array kCreditStops = {
    CreditStop{"credit-as-constructed", -1},
    CreditStop{"credit-22",             22},
    CreditStop{"credit-23",             23},
    CreditStop{"credit-24",             24},
    CreditStop{"credit-25",             25},
    CreditStop{"credit-1021",           1021},
};

constexpr std::array kWindowStops = {
    WindowStop{"window-en",             "en",    "controlsDock", 1,  1180, 760},
    WindowStop{"window-zh",             "zh_CN", "controlsDock", 1,  1180, 760},
    WindowStop{"window-tasks",          "en",    "tasksDock",    1,  1180, 760},
    WindowStop{"window-credit",         "zh_CN", "creditDock",   1,  1180, 760},
    WindowStop{"window-small",          "en",    "controlsDock", -1, 1024, 700},
    WindowStop{"window-ticket",         "en",    "ticketDock",   1,  1180, 760},
    WindowStop{"window-finder",         "en",    "finder",       1,  1180, 760},
    WindowStop{"window-finder-zh",      "zh_CN", "finder",       1,  1180, 760},
    WindowStop{"window-host",           "en",    "setupDock",    1,  1180, 1160},
    WindowStop{"window-host-zh",        "zh_CN", "setupDock",    1,  1180, 1160},
    WindowStop{"window-recorder",       "en",    "recorderDock", 1,  1180, 760},
    WindowStop{"window-recorder-small", "zh_CN", "recorderDock", 1,  1024, 700},
    WindowStop{"window-why",            "en",    "whyDock",      1,  1180, 760},
    WindowStop{"window-why-small",      "zh_CN", "whyDock",      1,  1024, 700},
    WindowStop{"window-compare",        "en",    "compareDock",  1,  1180, 760},
    WindowStop{"window-compare-small",  "zh_CN", "compareDock",  1,  1024, 700},
};

// clang-format on

template <class Array>
constexpr auto rowsOf(const Array& array)
{
    return Rows<typename Array::value_type>{array.data(), static_cast<int>(array.size())};
}

} // namespace

Rows<PanelStop> panelStops()
{
    return rowsOf(kPanelStops);
}

Rows<TaskStop> taskStops()
{
    return rowsOf(kTaskStops);
}

Rows<CreditStop> creditStops()
{
    return rowsOf(kCreditStops);
}

Rows<WindowStop> windowStops()
{
    return rowsOf(kWindowStops);
}

} // namespace workbench
