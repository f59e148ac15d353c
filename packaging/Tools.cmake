# The programs, and the data that they start from.
install(TARGETS orderparam-workbench orderparam-replay RUNTIME COMPONENT tools)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/workbench/data/" DESTINATION "${CMAKE_INSTALL_DATADIR}/orderparam"
    COMPONENT tools)
install(FILES orderparam-workbench.desktop DESTINATION "${CMAKE_INSTALL_DATADIR}/applications" COMPONENT tools)
foreach(page IN ITEMS orderparam-replay.1 orderparam-workbench.1)
    orderparam_compress(man/${page} ${page}.gz)
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${page}.gz" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT tools)
endforeach()
