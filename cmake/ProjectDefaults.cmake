# What every target of the project is built with. Warnings are set per target, by orderparam_defaults().

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

set(orderparam_sanitize_flags "")
if(ORDERPARAM_SANITIZE)
    set(orderparam_sanitize_flags -fsanitize=${ORDERPARAM_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
endif()
# Clang counts the branches of the source; GCC those of its code, the clean-up after exceptions among them.
if(ORDERPARAM_COVERAGE AND CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    list(APPEND orderparam_sanitize_flags -fprofile-instr-generate -fcoverage-mapping)
elseif(ORDERPARAM_COVERAGE)
    list(APPEND orderparam_sanitize_flags --coverage)
endif()

# Warnings, Qt's traps off, sanitizers, moc and rcc for one target.
function(orderparam_defaults target)
    set_target_properties(${target} PROPERTIES AUTOMOC ON AUTORCC ON)
    target_compile_definitions(${target} PRIVATE
        QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wshadow -Wconversion ${orderparam_sanitize_flags})
    target_link_options(${target} PRIVATE ${orderparam_sanitize_flags})
    if(ORDERPARAM_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    # Clang links its sanitizers' runtime into programs alone.
    if(NOT (ORDERPARAM_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL "Clang"))
        target_link_options(${target} PRIVATE -Wl,--no-undefined)
    endif()
endfunction()

# orderparam_exports(TARGET MAP): a shared library offers no more than its linker map names. The sanitizers and the
# coverage counters share symbols of their own between libraries.
function(orderparam_exports target map)
    if(NOT ORDERPARAM_SANITIZE AND NOT ORDERPARAM_COVERAGE)
        target_link_options(${target} PRIVATE "LINKER:--version-script=${map}")
        set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${map}")
    endif()
endfunction()
