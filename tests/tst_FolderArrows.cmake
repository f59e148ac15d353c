cmake_minimum_required(VERSION 3.25)

# cmake -DROOT=<source tree> -DQT_CORE=<QtCore's include folder> -DSCRATCH=<folder> -P tst_FolderArrows.cmake
#
# The includes of the whole tree follow the arrows between the folders; and the check sees each kind of breach.

include("${ROOT}/cmake/FolderArrows.cmake")

# file that includes | what it includes | the arrow is: kept, broken
set(cases
    "OrderParamTable_mini/semantics/Rule.cpp|OrderParamTable_mini/semantics/Rule.h|kept"
    "OrderParamTable_mini/semantics/Rule.cpp|ttservice/Record.h|kept"
    "OrderParamTable_mini/semantics/Rule.cpp|QString|kept"
    "OrderParamTable_mini/semantics/Rule.cpp|QtCore/QString|kept"
    "OrderParamTable_mini/semantics/Rule.cpp|vector|kept"
    "OrderParamTable_mini/semantics/Rule.cpp|QtGlobal|kept"
    "OrderParamTable_mini/semantics/Rule.cpp|QtCore|kept"
    "OrderParamTable_mini/semantics/Rule.cpp|QWidget|broken"
    "OrderParamTable_mini/semantics/Rule.cpp|QtWidgets|broken"
    "OrderParamTable_mini/semantics/Rule.cpp|QtGui|broken"
    "OrderParamTable_mini/semantics/Rule.cpp|qwidget.h|broken"
    "OrderParamTable_mini/semantics/Rule.cpp|QtWidgets/QWidget|broken"
    "OrderParamTable_mini/semantics/Rule.h|QColor|broken"
    "OrderParamTable_mini/semantics/Rule.cpp|WQ/CellTable.h|broken"
    "OrderParamTable_mini/semantics/Rule.cpp|TC/Service.h|broken"
    "OrderParamTable_mini/semantics/Rule.cpp|../frame/Frame.h|broken"
    "OrderParamTable_mini/semantics/COrderParamBaseTable_Area.cpp|WQ/CellTable.h|kept"
    "OrderParamTable_mini/semantics/COrderParamBaseTable_Area.cpp|OrderParamTable_mini/frame/Frame.h|kept"
    "OrderParamTable_mini/semantics/COrderParamBaseTable_Area.cpp|OrderParamTable_mini/tables/Table.h|broken"
    "OrderParamTable_mini/frame/Frame.cpp|OrderParamTable_mini/semantics/Rule.h|kept"
    "OrderParamTable_mini/frame/Frame.cpp|OrderParamTable_mini/tables/Table.h|broken"
    "OrderParamTable_mini/frame/Frame.cpp|QtWidgets|kept"
    "OrderParamTable_mini/frame/Frame.cpp|reference/toolkit/Item.h|broken"
    "OrderParamTable_mini/frame/Frame.cpp|docs/Bridge.h|broken"
    "OrderParamTable_mini/frame/Frame.cpp|../Bridge.h|broken"
    "OrderParamTable_mini/frame/Frame.cpp|OrderParamTable_mini/frame/Rows.inc|broken"
    "OrderParamTable_mini/tables/Table.cpp|OrderParamTable_mini/frame/Frame.h|kept"
    "OrderParamTable_mini/tables/Table.cpp|OrderParamTable_mini/credit/Credit.h|broken"
    "OrderParamTable_mini/credit/Credit.cpp|OrderParamTable_mini/tables/Table.h|broken"
    "OrderParamTable_mini/credit/Credit.cpp|../../reference/toolkit/Item.h|broken"
    "OrderParamTable_mini/platform/WQ/CellTable.h|ttservice/Record.h|kept"
    "OrderParamTable_mini/platform/WQ/CellTable.h|reference/toolkit/Item.h|broken"
    "OrderParamTable_mini/platform/WQ/CellTable.h|OrderParamTable_mini/semantics/Rule.h|broken"
    "OrderParamTable_mini/platform/ttservice/Record.h|WQ/WqExport.h|kept"
    "OrderParamTable_mini/platform/ttservice/Record.h|WQ/CellTable.h|broken"
    "OrderParamTable_mini/platform/ttservice/Record.h|QWidget|broken"
    "reference/toolkit/Item.cpp|WQ/CellTable.h|kept"
    "reference/toolkit/Item.cpp|reference/toolkit/Item.h|kept"
    "reference/toolkit/Item.cpp|OrderParamTable_mini/semantics/Rule.h|broken"
    "reference/toolkit/Item.cpp|OrderParamTable_mini/frame/Frame.h|broken"
    "reference/toolkit/Item.cpp|workbench/Window.h|broken"
    "workbench/Window.cpp|reference/toolkit/Item.h|kept"
    "workbench/Window.cpp|OrderParamTable_mini/tables/Table.h|kept"
    "workbench/Window.cpp|../tests/Helper.h|broken"
    "examples/embed/main.cpp|workbench/Window.h|broken"
    "tests/tst_Thing.cpp|workbench/Window.h|kept"
)

set(failures "")
foreach(case IN LISTS cases)
    string(REPLACE "|" ";" columns "${case}")
    list(GET columns 0 file)
    list(GET columns 1 included)
    list(GET columns 2 expected)
    file(REMOVE_RECURSE "${SCRATCH}")
    foreach(header IN ITEMS
            OrderParamTable_mini/semantics/Rule.h OrderParamTable_mini/frame/Frame.h OrderParamTable_mini/tables/Table.h
            OrderParamTable_mini/credit/Credit.h OrderParamTable_mini/platform/WQ/CellTable.h
            OrderParamTable_mini/platform/WQ/WqExport.h OrderParamTable_mini/platform/TC/Service.h OrderParamTable_mini/platform/ttservice/Record.h
            reference/toolkit/Item.h workbench/Window.h tests/Helper.h
            docs/Bridge.h OrderParamTable_mini/Bridge.h OrderParamTable_mini/frame/Rows.inc)
        file(WRITE "${SCRATCH}/${header}" "#pragma once\n")
    endforeach()
    foreach(spelling IN ITEMS "#include <${included}>" "  #  include \"${included}\"  // why")
        file(WRITE "${SCRATCH}/${file}" "#pragma once\n${spelling}\n")
        orderparam_arrow_violations("${SCRATCH}" "${QT_CORE}" found)
        if(expected STREQUAL "kept" AND found)
            list(APPEND failures "the check objects to an allowed include: ${found}")
        elseif(expected STREQUAL "broken" AND NOT found STREQUAL "${file}: includes ${included}")
            list(APPEND failures "the check does not see that ${file} includes ${included} (it found: '${found}')")
        endif()
    endforeach()
endforeach()
file(REMOVE_RECURSE "${SCRATCH}")

orderparam_arrow_violations("${ROOT}" "${QT_CORE}" violations)
list(APPEND failures ${violations})
if(failures)
    list(JOIN failures "\n  " text)
    message(FATAL_ERROR "The arrows between the folders do not hold:\n  ${text}")
endif()
