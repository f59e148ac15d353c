# The arrows of FolderArrows.cmake as a picture: run as a script it prints them for Graphviz. An arrow that follows from two
# others is left out, and so is the export mark; the base table's member operations count as the frame that they belong to.
#
#     cmake -P cmake/FolderPicture.cmake | dot -Tsvg

cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/FolderArrows.cmake")

# layer | what its box says
set(orderparam_boxes
    "workbench|workbench/|a person drives every table"
    "replay|replay/|scripts drive them"
    "benchmarks|benchmarks/|timings beside peers"
    "examples|examples/|smallest hosts"
    "tests|tests/|the same folders again"
    "tables|tables/|tables, task dialogs"
    "credit|credit/|credit table"
    "frame|frame/|base table: cells, events"
    "rules|semantics/|rules without widgets"
    "records|platform/ttservice/|records, enumerations"
    "platform|platform/|toolkit and services, declared"
    "reference|reference/|toolkit and services, implemented"
)

# Sets OUT to "from>to" for each arrow that follows from no two others.
function(orderparam_folder_edges out)
    foreach(row IN LISTS orderparam_arrows)
        string(REGEX MATCH "^([a-z]+)\\|(.*)$" unused "${row}")
        string(REPLACE " " ";" targets "${CMAKE_MATCH_2}")
        set(to_${CMAKE_MATCH_1} "${targets}")
    endforeach()
    set(edges "")
    foreach(box IN LISTS orderparam_boxes)
        string(REGEX REPLACE "\\|.*" "" from "${box}")
        set(shown ${to_${from}})
        list(REMOVE_ITEM shown marks ${from})
        foreach(to IN LISTS shown)
            set(follows FALSE)
            foreach(between IN LISTS shown)
                if(NOT between STREQUAL to AND to IN_LIST to_${between})
                    set(follows TRUE)
                endif()
            endforeach()
            if(NOT follows)
                list(APPEND edges "${from}>${to}")
            endif()
        endforeach()
    endforeach()
    set(${out} "${edges}" PARENT_SCOPE)
endfunction()

if(CMAKE_SCRIPT_MODE_FILE STREQUAL CMAKE_CURRENT_LIST_FILE)
    set(text "digraph folders {\n  graph [bgcolor=white, ranksep=0.45, nodesep=0.25];\n")
    string(APPEND text "  node [shape=box, style=\"rounded,filled\", fillcolor=\"#eef3f8\", color=\"#5b7083\", ")
    string(APPEND text "fontname=\"sans-serif\", fontsize=11];\n  edge [color=\"#5b7083\", arrowsize=0.7];\n")
    foreach(box IN LISTS orderparam_boxes)
        string(REPLACE "|" ";" columns "${box}")
        list(GET columns 0 layer)
        list(GET columns 1 folder)
        list(GET columns 2 words)
        string(APPEND text "  ${layer} [label=\"${folder}\\n${words}\"];\n")
    endforeach()
    orderparam_folder_edges(edges)
    foreach(edge IN LISTS edges)
        string(REPLACE ">" " -> " arrow "${edge}")
        string(APPEND text "  ${arrow};\n")
    endforeach()
    execute_process(COMMAND ${CMAKE_COMMAND} -E echo "${text}}")
endif()
