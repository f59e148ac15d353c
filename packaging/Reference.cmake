# What a host says to the reference platform: its services and its look. The rest of that folder is its own business.
target_include_directories(reference INTERFACE "$<INSTALL_INTERFACE:${orderparam_headers}>")
install(FILES
    "${PROJECT_SOURCE_DIR}/reference/services/LoadReport.h"
    "${PROJECT_SOURCE_DIR}/reference/services/ServiceControl.h"
    DESTINATION "${orderparam_headers}/reference/services" COMPONENT dev)
install(FILES "${PROJECT_SOURCE_DIR}/reference/toolkit/Resources.h"
    DESTINATION "${orderparam_headers}/reference/toolkit" COMPONENT dev)
configure_file(OrderParamTable_mini-reference.pc.in OrderParamTable_mini-reference.pc @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/OrderParamTable_mini-reference.pc"
    DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT dev)
