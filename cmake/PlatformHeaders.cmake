# The headers of the platform contract that moc must see, once for each target that implements the contract: they belong
# into its sources, and WQ_BUILDING into its definitions. A client's own platform project includes this file as well.
get_filename_component(orderparam_platform_folder "${CMAKE_CURRENT_LIST_DIR}/../OrderParamTable_mini/platform" ABSOLUTE)
set(orderparam_platform_headers
    ${orderparam_platform_folder}/TC/CUserConfig.h
    ${orderparam_platform_folder}/WQ/CBaseDialog.h
    ${orderparam_platform_folder}/WQ/CBaseWidget.h
    ${orderparam_platform_folder}/WQ/CCustomDialog.h
    ${orderparam_platform_folder}/WQ/CDropDownButtonGroup.h
    ${orderparam_platform_folder}/WQ/CFloatWidget.h
    ${orderparam_platform_folder}/WQ/CMultiParamsTable.h
    ${orderparam_platform_folder}/WQ/CParameterCell.h
    ${orderparam_platform_folder}/WQ/CPushButton.h
    ${orderparam_platform_folder}/WQ/CScrollArea.h
    ${orderparam_platform_folder}/WQ/CWidgetList.h
)
