#pragma once

#include <QString>

/// Every key that the theme files answer, with the place where it shows. Widgets name keys by these constants alone.
namespace WQ::keys {

// Colours, one value a theme.
inline const QString kWindow = QStringLiteral("clr_order_operation_background"); ///< window: behind panels and dialogs
inline const QString kRow = QStringLiteral("clr_btn_algorithm_normal"); ///< row of a table, popup, checked button
inline const QString kLabel =
    QStringLiteral("clr_param_table_order_mode_inactive");                         ///< label; value of a disabled cell
inline const QString kValue = QStringLiteral("clr_param_table_order_mode_active"); ///< value, text of a checked button
inline const QString kGlobalText = QStringLiteral("clr_global_text");            ///< text a host shows for a live table
inline const QString kDisabledText = QStringLiteral("clr_disabled_widget_text"); ///< text a host shows for a dead table
inline const QString kSeparator = QStringLiteral("clr_separator"); ///< last pixel of a row, frame of a popup or dialog
inline const QString kUnit = QStringLiteral("clr_unit");           ///< unit, chevron, box; label of a disabled cell
inline const QString kAccent = QStringLiteral("clr_accent");       ///< focus frame, checked underline, chosen entry
inline const QString kRowFocus = QStringLiteral("clr_row_focus");  ///< row that has the focus, entry being chosen
inline const QString kRowMouse = QStringLiteral("clr_row_mouse");  ///< row under the mouse
inline const QString kWrongFrame = QStringLiteral("clr_wrong_frame"); ///< frame of a row or notice that is wrong
inline const QString kWrongFill = QStringLiteral("clr_wrong_fill");   ///< ground of a row that is wrong
inline const QString kNotice = QStringLiteral("clr_notice"); ///< bar of a value off the grid, dot of a critical mark
inline const QString kBuy = QStringLiteral("clr_buy");       ///< buy, prices that rise
inline const QString kSell = QStringLiteral("clr_sell");     ///< sell, prices that fall
inline const QString kInput = QStringLiteral("clr_input");   ///< input field, fact values of dialogs
inline const QString kSelection = QStringLiteral("clr_selection");        ///< behind the selected text of an editor
inline const QString kCheckMark = QStringLiteral("clr_check_mark");       ///< tick on the accent of a checked box
inline const QString kScrollHandle = QStringLiteral("clr_scroll_handle"); ///< handle of a scroll bar

// Sizes, in pixels at scale 1.
inline const QString kPanelWidth = QStringLiteral("tc_siz_operation_panel_param_table_width"); ///< width of a panel
inline const QString kPanelQuotesHeight = QStringLiteral("tc_siz_code_quotes_height"); ///< panel height, lower part
inline const QString kPanelTopHeight =
    QStringLiteral("tc_siz_operation_panel_top_height");            ///< panel height, upper part
inline const QString kRowHeight = QStringLiteral("siz_row_height"); ///< row of the cell table, separator included
inline const QString kPadding = QStringLiteral("siz_padding");      ///< left and right of a row, a title, a popup entry
inline const QString kUnitGap = QStringLiteral("siz_unit_gap");     ///< between value, unit and chevron
inline const QString kStripHeight = QStringLiteral("siz_strip_height");    ///< order-mode strip; never scaled
inline const QString kStripTextMax = QStringLiteral("siz_strip_text_max"); ///< largest text of a button; never scaled
inline const QString kUnderline = QStringLiteral("siz_underline");         ///< underline of the checked button
inline const QString kNoticeBar = QStringLiteral("siz_notice_bar");        ///< bar at the left of a value off the grid
inline const QString kPopupRowHeight = QStringLiteral("siz_popup_row_height"); ///< entry of a popup list
inline const QString kFilterFooter = QStringLiteral("siz_filter_footer"); ///< filter button's footer under the rows
inline const QString kScrollBar = QStringLiteral("siz_scroll_bar");       ///< width of a scroll bar
inline const QString kScrollHandleLength = QStringLiteral("siz_scroll_handle"); ///< least length of a bar's handle
inline const QString kTitleBar = QStringLiteral("siz_title_bar"); ///< title bar of a floating dialog; never scaled
inline const QString kChevron = QStringLiteral("siz_chevron");    ///< chevron of a row or button, square
inline const QString kCheckBox = QStringLiteral("siz_check_box"); ///< box of a check, square
inline const QString kIcon = QStringLiteral("siz_icon");          ///< icon of a button, square
inline const QString kHelpIcon = QStringLiteral("siz_help_icon"); ///< help mark of a button group, square
inline const QString kCriticalDot = QStringLiteral("siz_critical_dot");        ///< dot of a critical help mark, square
inline const QString kButtonPadding = QStringLiteral("siz_button_padding");    ///< left and right of a button's text
inline const QString kButtonGap = QStringLiteral("siz_button_gap");            ///< between neighbours of a group
inline const QString kHelpButton = QStringLiteral("siz_help_button");          ///< width of a group's help button
inline const QString kDropDownButton = QStringLiteral("siz_drop_down_button"); ///< width of a group's drop-down button
inline const QString kCloseButton = QStringLiteral("siz_close_button");        ///< a dialog's close button, square
inline const QString kCloseIcon = QStringLiteral("siz_close_icon");       ///< cross of a dialog's close button, square
inline const QString kFieldPadding = QStringLiteral("siz_field_padding"); ///< inside an input field, left and right
inline const QString kFieldLabelWidth = QStringLiteral("siz_field_label_width"); ///< label column of single cells
inline const QString kFieldGap = QStringLiteral("siz_field_gap");       ///< between label column and input field
inline const QString kFieldWidth = QStringLiteral("siz_field_width");   ///< input field of a single cell, wished for
inline const QString kFieldHeight = QStringLiteral("siz_field_height"); ///< single cell

// Fonts.
inline const QString kTextFont = QStringLiteral("fnt_default_normal_fix"); ///< labels, values, buttons
inline const QString kCheckedFont = QStringLiteral("fnt_button_checked");  ///< text of a checked button
inline const QString kNoticeFont = QStringLiteral("fnt_notice");           ///< notices and tooltips
inline const QString kTitleFont = QStringLiteral("fnt_title");             ///< title of a dialog

// Images.
inline const QString kShowHideImage =
    QStringLiteral("tc_img_operation_showhide_btn");                               ///< task dialog's button at first
inline const QString kExpandImage = QStringLiteral("tc_img_operation_expand_btn"); ///< optional cells are hidden
inline const QString kContractImage = QStringLiteral("tc_img_operation_contract_btn"); ///< optional cells are shown
inline const QString kChevronImage = QStringLiteral("img_chevron");                    ///< a list opens below
inline const QString kCheckImage = QStringLiteral("img_check");                        ///< tick of a checked box
inline const QString kCloseImage = QStringLiteral("img_close");                        ///< closes a dialog
inline const QString kHelpImage = QStringLiteral("img_help");                          ///< help mark of a button group
inline const QString kFilterImage = QStringLiteral("img_filter"); ///< filter button of the cell table

} // namespace WQ::keys
