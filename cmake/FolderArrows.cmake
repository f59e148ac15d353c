# Which folder may include which. orderparam_arrow_violations(ROOT QT_CORE OUT) lists in OUT each include that goes
# against the rows below, as "file: includes what".

# layer | files, as a pattern on the path from the root (the first row that matches decides). "marks" is the export mark
# alone, which records carry as well as widgets.
set(orderparam_layers
    "members|^OrderParamTable_mini/semantics/COrderParamBaseTable_[A-Za-z]+\\.cpp$"
    "rules|^OrderParamTable_mini/semantics/"
    "frame|^OrderParamTable_mini/frame/"
    "tables|^OrderParamTable_mini/tables/"
    "credit|^OrderParamTable_mini/credit/"
    "marks|^OrderParamTable_mini/platform/WQ/WqExport\\.h$"
    "records|^OrderParamTable_mini/platform/ttservice/"
    "platform|^OrderParamTable_mini/platform/"
    "reference|^reference/"
    "workbench|^workbench/"
    "replay|^replay/"
    "examples|^examples/"
    "benchmarks|^benchmarks/"
    "tests|^tests/"
)

# layer | layers that its files may include, itself always
set(orderparam_library "rules frame tables credit marks records platform")
set(orderparam_arrows
    "members|rules frame marks records platform"
    "rules|marks records"
    "frame|rules marks records platform"
    "tables|rules frame marks records platform"
    "credit|rules frame marks records platform"
    "records|marks"
    "platform|marks records"
    "reference|marks records platform"
    "workbench|${orderparam_library} reference replay"
    "replay|${orderparam_library} reference"
    "examples|${orderparam_library} reference"
    "benchmarks|${orderparam_library} reference"
    "tests|${orderparam_library} reference workbench replay benchmarks"
)

# Layers that know no widget: of Qt they may include what Qt5::Core has.
set(orderparam_widgetless rules marks records)

# Sets OUT to the layer of a path from the root, empty for a file outside the house.
function(orderparam_layer_of path out)
    set(${out} "" PARENT_SCOPE)
    foreach(row IN LISTS orderparam_layers)
        string(REGEX MATCH "^([a-z]+)\\|(.*)$" unused "${row}")
        if(path MATCHES "${CMAKE_MATCH_2}")
            string(REGEX REPLACE "\\|.*" "" layer "${row}")
            set(${out} "${layer}" PARENT_SCOPE)
            return()
        endif()
    endforeach()
endfunction()

# Sets OUT to the path from the root of what an include names, empty for a header of the system or a generated one.
function(orderparam_resolve_include root from include out)
    set(${out} "" PARENT_SCOPE)
    get_filename_component(folder "${root}/${from}" DIRECTORY)
    foreach(base IN ITEMS "${folder}" "${root}" "${root}/OrderParamTable_mini/platform" "${root}/tests")
        get_filename_component(candidate "${base}/${include}" ABSOLUTE)
        if(EXISTS "${candidate}" AND NOT IS_DIRECTORY "${candidate}")
            file(RELATIVE_PATH relative "${root}" "${candidate}")
            set(${out} "${relative}" PARENT_SCOPE)
            return()
        endif()
    endforeach()
endfunction()

# Sets OUT to true for a Qt header that Qt5::Core does not have.
function(orderparam_is_gui_header include qt_core out)
    set(${out} FALSE PARENT_SCOPE)
    if(include MATCHES "^Qt[A-Z][A-Za-z]*/" AND NOT include MATCHES "^QtCore/")
        set(${out} TRUE PARENT_SCOPE)
    elseif(include MATCHES "^(Q[A-Za-z0-9]+|q[a-z0-9_]+\\.h)$" AND NOT EXISTS "${qt_core}/${include}")
        set(${out} TRUE PARENT_SCOPE)
    endif()
endfunction()

# Sets OUT to true when a file of layer FROM may include a file of layer TO.
function(orderparam_arrow_allowed from to out)
    set(allowed "")
    foreach(row IN LISTS orderparam_arrows)
        if(row MATCHES "^${from}\\|(.*)$")
            string(REPLACE " " ";" allowed "${CMAKE_MATCH_1}")
        endif()
    endforeach()
    if(to STREQUAL from OR to IN_LIST allowed)
        set(${out} TRUE PARENT_SCOPE)
    else()
        set(${out} FALSE PARENT_SCOPE)
    endif()
endfunction()

function(orderparam_file_violations root qt_core file out)
    set(violations "")
    orderparam_layer_of("${file}" from)
    file(STRINGS "${root}/${file}" lines REGEX "^[ \t]*#[ \t]*include[ \t]*[<\"]")
    foreach(line IN LISTS lines)
        string(REGEX REPLACE "^[^<\"]*[<\"]([^>\"]*)[>\"].*$" "\\1" include "${line}")
        orderparam_resolve_include("${root}" "${file}" "${include}" target)
        orderparam_layer_of("${target}" to)
        orderparam_arrow_allowed("${from}" "${to}" allowed)
        orderparam_is_gui_header("${include}" "${qt_core}" gui)
        # A file of the tree that is looked at by nobody would be a way around every row above.
        if(target AND NOT (to AND target MATCHES "\\.(h|cpp)$"))
            set(allowed FALSE)
        endif()
        if((target AND NOT allowed) OR (gui AND from IN_LIST orderparam_widgetless))
            list(APPEND violations "${file}: includes ${include}")
        endif()
    endforeach()
    set(${out} "${violations}" PARENT_SCOPE)
endfunction()

function(orderparam_arrow_violations root qt_core out)
    set(violations "")
    file(GLOB_RECURSE files RELATIVE "${root}"
        "${root}/OrderParamTable_mini/*.h" "${root}/OrderParamTable_mini/*.cpp"
        "${root}/reference/*.h" "${root}/reference/*.cpp" "${root}/workbench/*.h" "${root}/workbench/*.cpp"
        "${root}/replay/*.h" "${root}/replay/*.cpp" "${root}/examples/*.h" "${root}/examples/*.cpp"
        "${root}/benchmarks/*.h" "${root}/benchmarks/*.cpp" "${root}/tests/*.h" "${root}/tests/*.cpp")
    foreach(file IN LISTS files)
        orderparam_file_violations("${root}" "${qt_core}" "${file}" found)
        list(APPEND violations ${found})
    endforeach()
    set(${out} "${violations}" PARENT_SCOPE)
endfunction()
