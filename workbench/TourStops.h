#pragma once

#include "workbench/Vocabulary.h"

#include <QString>

namespace workbench {

/// What a person has done to the order panel of a picture.
enum class PanelState {
    AtRest,
    RowFocused,
    EditorOpen,
    WrongInput,
    OffGrid,
    UnitListOpen,
    EntryListOpen,
    PeriodEditorOpen,
    FilterOpen,
    FilterButtonFocused,
    MenuOpen,
    UnitMenuOpen,
    PasteRefused,
    RangeToolTip,
    Disabled,
    Scrolled
};

/// One picture of an order panel.
struct PanelStop
{
    const char* name;
    int identity;
    int brokerType;
    int orderType;
    bool expanded;
    PanelState state;
};

/// One picture of a task dialog.
struct TaskStop
{
    const char* name;
    int brokerType; ///< 0: a task without an account
    int orderType;
    int operationType;
    int traderType;
    bool expanded;
};

/// One picture of the credit table; operation -1 is the table as constructed.
struct CreditStop
{
    const char* name;
    int operation;
};

/// One picture of the whole window; order type -1 leaves its panel as constructed.
struct WindowStop
{
    const char* name;
    const char* language;
    const char* dock; ///< in front of its tabs; "finder" opens the list of all commands over the window
    int orderType;
    int width;
    int height;
};

Rows<PanelStop> panelStops();
Rows<TaskStop> taskStops();
Rows<CreditStop> creditStops();
Rows<WindowStop> windowStops();

} // namespace workbench
