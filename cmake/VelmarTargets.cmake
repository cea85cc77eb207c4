# Every target of the project is made by one of the functions below.
#
#   velmar_add_library(<name> LAYER <floor> [HEADER_ROOT <dir>] SOURCES ... [HEADERS ...]
#                      [PUBLIC_DEPS ...] [PRIVATE_DEPS ...])
#   velmar_add_executable(<name> LAYER <floor> SOURCES ... [DEPS ...])
#   velmar_add_test(<name> SOURCES ... [DEPS ...] [QT] [ENVIRONMENT ...])
#   velmar_add_benchmark(<name> SOURCES ... [DEPS ...])
#   velmar_add_fuzzer(<name> SOURCES ... [DEPS ...])
#
# A library <name> is the target velmar_<name> with the alias velmar::<name>. Its public headers lie below HEADER_ROOT
# (by default the folder "include" beside its CMakeLists.txt), which is the only include directory that it hands on. One
# without SOURCES consists of its headers.
# LAYER is the floor of the house; a dependency on a higher floor stops the configuration.

include(GNUInstallDirs)

add_library(velmar_options INTERFACE)
target_compile_features(velmar_options INTERFACE cxx_std_20)
target_compile_options(velmar_options INTERFACE -Wall -Wextra -Wconversion -Wshadow -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 reports these falsely through inlined standard containers and variants.
    target_compile_options(velmar_options INTERFACE -Wno-maybe-uninitialized -Wno-restrict -Wno-dangling-pointer
                                                    -Wno-array-bounds -Wno-stringop-overflow)
endif()

set(VELMAR_SANITIZE "" CACHE STRING "Sanitizers for -fsanitize=, comma separated; empty for none")
if(VELMAR_SANITIZE)
    target_compile_options(velmar_options INTERFACE -fsanitize=${VELMAR_SANITIZE} -fno-omit-frame-pointer
                                                    -fno-sanitize-recover=all)
    target_link_options(velmar_options INTERFACE -fsanitize=${VELMAR_SANITIZE})
endif()

function(_velmar_check_layers target)
    get_target_property(own ${target} VELMAR_LAYER)
    foreach(dependency IN LISTS ARGN)
        if(dependency MATCHES "^velmar::(.+)$")
            # The target may be declared later, so the comparison waits for the end of the configuration.
            set_property(GLOBAL APPEND PROPERTY VELMAR_EDGES "${target}>velmar_${CMAKE_MATCH_1}")
        endif()
    endforeach()
endfunction()

# Called once, after the last target: no dependency climbs.
function(velmar_verify_layers)
    get_property(edges GLOBAL PROPERTY VELMAR_EDGES)
    foreach(edge IN LISTS edges)
        string(REPLACE ">" ";" ends "${edge}")
        list(GET ends 0 from)
        list(GET ends 1 to)
        if(NOT TARGET ${to})
            message(FATAL_ERROR "${from} depends on ${to}, which does not exist")
        endif()
        get_target_property(low ${from} VELMAR_LAYER)
        get_target_property(high ${to} VELMAR_LAYER)
        if(high GREATER low)
            message(FATAL_ERROR "${from} (floor ${low}) depends on ${to} (floor ${high}): dependencies never climb")
        endif()
    endforeach()
endfunction()

function(velmar_add_library name)
    cmake_parse_arguments(ARG "" "LAYER;HEADER_ROOT" "SOURCES;HEADERS;PUBLIC_DEPS;PRIVATE_DEPS" ${ARGN})
    if(NOT DEFINED ARG_LAYER OR ARG_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "velmar_add_library(${name}): LAYER is required; unknown: ${ARG_UNPARSED_ARGUMENTS}")
    endif()
    set(root ${CMAKE_CURRENT_SOURCE_DIR}/include)
    if(ARG_HEADER_ROOT)
        get_filename_component(root ${ARG_HEADER_ROOT} ABSOLUTE BASE_DIR ${CMAKE_CURRENT_SOURCE_DIR})
    endif()
    set(target velmar_${name})
    set(own PUBLIC)
    if(ARG_SOURCES)
        add_library(${target} STATIC ${ARG_SOURCES})
        target_link_libraries(${target} PRIVATE velmar_options ${ARG_PRIVATE_DEPS})
    else()
        add_library(${target} INTERFACE)
        set(own INTERFACE)
    endif()
    add_library(velmar::${name} ALIAS ${target})
    set_target_properties(${target} PROPERTIES VELMAR_LAYER ${ARG_LAYER} VERIFY_INTERFACE_HEADER_SETS ON)
    if(ARG_HEADERS)
        target_sources(${target} ${own} FILE_SET HEADERS BASE_DIRS ${root} FILES ${ARG_HEADERS})
    else()
        target_include_directories(${target} ${own} ${root})
    endif()
    target_link_libraries(${target} ${own} ${ARG_PUBLIC_DEPS})
    _velmar_check_layers(${target} ${ARG_PUBLIC_DEPS} ${ARG_PRIVATE_DEPS})
endfunction()

function(velmar_add_executable name)
    cmake_parse_arguments(ARG "" "LAYER" "SOURCES;DEPS" ${ARGN})
    if(NOT DEFINED ARG_LAYER OR ARG_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "velmar_add_executable(${name}): LAYER is required; unknown: ${ARG_UNPARSED_ARGUMENTS}")
    endif()
    add_executable(${name} ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES VELMAR_LAYER ${ARG_LAYER}
                          RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
    target_link_libraries(${name} PRIVATE velmar_options ${ARG_DEPS})
    _velmar_check_layers(${name} ${ARG_DEPS})
endfunction()

# A test program of GoogleTest cases, run whole by CTest. QT marks one that needs Qt: it gets the offscreen platform and
# is left out where Qt code is (the thread sanitizer).
function(velmar_add_test name)
    cmake_parse_arguments(ARG "QT" "" "SOURCES;DEPS;ENVIRONMENT" ${ARGN})
    if(NOT BUILD_TESTING)
        return()
    endif()
    set(target test_${name})
    add_executable(${target} ${ARG_SOURCES})
    set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    target_compile_definitions(${target} PRIVATE VELMAR_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
    target_link_libraries(${target} PRIVATE velmar_options ${ARG_DEPS} GTest::gmock GTest::gtest_main)
    add_test(NAME ${name} COMMAND ${target})
    # No test reaches a bus, a display or a home directory of the machine by accident.
    set(environment "DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nonexistent" "DBUS_SESSION_BUS_ADDRESS=unix:path=/nonexistent"
                    ${ARG_ENVIRONMENT})
    if(ARG_QT)
        list(APPEND environment "QT_QPA_PLATFORM=offscreen")
    endif()
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "${environment}" TIMEOUT 120 LABELS "$<IF:$<BOOL:${ARG_QT}>,qt,unit>")
endfunction()

function(velmar_add_benchmark name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPS" ${ARGN})
    if(NOT VELMAR_BENCHMARKS)
        return()
    endif()
    add_executable(bench_${name} ${ARG_SOURCES})
    set_target_properties(bench_${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/benchmarks)
    target_compile_definitions(bench_${name} PRIVATE VELMAR_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
    target_link_libraries(bench_${name} PRIVATE velmar_options ${ARG_DEPS})
endfunction()

# With VELMAR_FUZZ (clang) a libFuzzer program bin/fuzz_<name>; otherwise the same source with a main function that
# replays its corpus, Fuzzers/corpus/<name>, as an ordinary test.
function(velmar_add_fuzzer name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPS" ${ARGN})
    if(VELMAR_FUZZ)
        add_executable(fuzz_${name} ${ARG_SOURCES})
        set_target_properties(fuzz_${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
        target_link_libraries(fuzz_${name} PRIVATE velmar_options ${ARG_DEPS})
        target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
    elseif(BUILD_TESTING)
        add_executable(replay_${name} ${ARG_SOURCES} ${CMAKE_SOURCE_DIR}/Fuzzers/replay.cpp)
        set_target_properties(replay_${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
        target_link_libraries(replay_${name} PRIVATE velmar_options ${ARG_DEPS})
        add_test(NAME replay_${name} COMMAND replay_${name} ${CMAKE_SOURCE_DIR}/Fuzzers/corpus/${name})
        set_tests_properties(replay_${name} PROPERTIES TIMEOUT 120 LABELS unit)
    endif()
endfunction()
