# The catalogue of cells in the documents is what the tables offer today.

execute_process(
    COMMAND ${CMAKE_COMMAND} "-DREPLAY=${REPLAY}" "-DOUTPUT=${SCRATCH}" -P "${ROOT}/cmake/CatalogueDocument.cmake"
    RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "The catalogue cannot be made")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files "${ROOT}/docs/catalogue.md" "${SCRATCH}" RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "docs/catalogue.md is out of date, run scripts/update-catalogue.sh (new: ${SCRATCH})")
endif()
