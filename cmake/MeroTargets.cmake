# SPDX-License-Identifier: MIT
# Settings and functions for all targets: language, warnings, libraries of the rooms, tests.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_LINK_DEPENDS_NO_SHARED ON)

add_library(mero_options INTERFACE)
target_include_directories(mero_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(mero_options INTERFACE
  $<$<COMPILE_LANGUAGE:CXX>:-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
  -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wnull-dereference
  $<$<BOOL:${MERO_WERROR}>:-Werror>>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # With optimisation or sanitizers gcc 12 warns of null dereferences and overlapping copies in its own library.
  target_compile_options(mero_options INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wno-null-dereference -Wno-restrict>)
endif()
# No fused or reordered floating point: results must be the same at every optimisation level.
target_compile_options(mero_options INTERFACE -ffp-contract=off)
if(MERO_SANITIZE)
  target_compile_options(mero_options INTERFACE -fsanitize=${MERO_SANITIZE} -fno-omit-frame-pointer
    -fno-sanitize-recover=all)
  target_link_options(mero_options INTERFACE -fsanitize=${MERO_SANITIZE})
endif()
if(MERO_COVERAGE)
  # Threads and processes update the same counters.
  target_compile_options(mero_options INTERFACE --coverage -fprofile-update=atomic)
  target_link_options(mero_options INTERFACE --coverage)
endif()

# mero_library(NAME SOURCES ... LINKS ...): the library of a room. tools/checks/rules.py reads the links.
function(mero_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC mero_options ${arg_LINKS})
  if(MERO_FUZZ)
    # Counts the covered branches, which guides the fuzzer. Other programs link stubs of these counters.
    target_compile_options(${name} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
endfunction()

# mero_compile_fast(NAME): compiles the sources of a test without optimisation. With sanitizers this halves the time to
# compile them, which saves several times what the tests then take longer.
function(mero_compile_fast name)
  if(MERO_SANITIZE)
    target_compile_options(${name} PRIVATE -O0)
  endif()
endfunction()

# mero_share_test_headers(NAME): GoogleTest's headers, most of what a test compiles, are compiled once for all tests.
# Tests of widgets are compiled as position-independent code and cannot share them: they share Qt's headers instead.
function(mero_share_test_headers name)
  if(NOT TARGET mero_test_headers)
    file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/test_headers.cpp CONTENT "")
    add_library(mero_test_headers OBJECT ${CMAKE_BINARY_DIR}/test_headers.cpp)
    target_link_libraries(mero_test_headers PRIVATE mero_options GTest::gmock)
    mero_compile_fast(mero_test_headers)
    target_precompile_headers(mero_test_headers PRIVATE
      <gmock/gmock.h> <gtest/gtest.h> <functional> <map> <memory> <string> <vector>)
  endif()
  target_precompile_headers(${name} REUSE_FROM mero_test_headers)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # With precompiled headers gcc 12 warns of array bounds in its own library.
    target_compile_options(${name} PRIVATE -Wno-array-bounds -Wno-stringop-overflow)
  endif()
endfunction()

# mero_test(NAME SOURCES ... LINKS ...): a GoogleTest program that runs its cases in random order.
function(mero_test name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE mero_options ${arg_LINKS} GTest::gmock GTest::gtest_main)
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  mero_compile_fast(${name})
  if(NOT "${arg_LINKS}" MATCHES "mero_qt|mero_window|mero_layout|mero_dialogs_layout|Qt6")
    mero_share_test_headers(${name})
  else()
    target_precompile_headers(${name} REUSE_FROM mero_qt)
  endif()
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  add_test(NAME ${name} COMMAND ${name} --gtest_shuffle --gtest_brief=1)
  set_tests_properties(${name} PROPERTIES TIMEOUT 300)
endfunction()
