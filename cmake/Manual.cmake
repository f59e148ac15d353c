# The target "docs" writes the manual of the public headers into docs/html of the build folder. Without Doxygen there is none.
find_program(DOXYGEN_PROGRAM doxygen)
if(NOT DOXYGEN_PROGRAM)
    return()
endif()

set(orderparam_manual_folder "${CMAKE_BINARY_DIR}/docs")
set(manual_headers ${orderparam_public_headers} platform)
list(TRANSFORM manual_headers PREPEND "${PROJECT_SOURCE_DIR}/OrderParamTable_mini/")
list(JOIN manual_headers "\" \"" orderparam_manual_headers)
set(orderparam_manual_headers "\"${orderparam_manual_headers}\"")
file(MAKE_DIRECTORY "${orderparam_manual_folder}")
configure_file("${PROJECT_SOURCE_DIR}/cmake/Doxyfile.in" "${orderparam_manual_folder}/Doxyfile" @ONLY)

add_custom_target(docs
    COMMAND "${DOXYGEN_PROGRAM}" "${orderparam_manual_folder}/Doxyfile"
    COMMENT "Writing the manual into ${orderparam_manual_folder}/html" VERBATIM)
