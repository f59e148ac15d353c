# The picture of the folders shows the arrows that are in force, no more and no fewer.

include("${ROOT}/cmake/FolderPicture.cmake")

orderparam_folder_edges(expected)
list(LENGTH expected count)
if(count LESS 15)
    message(FATAL_ERROR "There are only ${count} arrows between the folders: ${expected}")
endif()

file(READ "${ROOT}/docs/pictures/folders.svg" picture)
string(REPLACE "&#45;&gt;" ">" picture "${picture}") # a semicolon would end an element of a list
string(REGEX MATCHALL "<title>[a-z]+>[a-z]+</title>" titles "${picture}")
set(drawn "")
foreach(title IN LISTS titles)
    string(REGEX REPLACE "<title>([a-z]+)>([a-z]+)</title>" "\\1>\\2" edge "${title}")
    list(APPEND drawn "${edge}")
endforeach()
list(SORT expected)
list(SORT drawn)
if(NOT drawn STREQUAL expected)
    message(FATAL_ERROR "docs/pictures/folders.svg is out of date, run scripts/update-pictures.sh.\n"
        "  drawn: ${drawn}\n  in force: ${expected}")
endif()
