# SPDX-License-Identifier: MIT
# What every target of the project shares: the language, the warnings, the layer rule.

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
  # gcc 12 warns of null dereferences and overlapping copies inside its own library under optimisation and
  # sanitizers.
  target_compile_options(mero_options INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wno-null-dereference -Wno-restrict>)
endif()
# Results must not depend on the optimiser's taste: no fused or reordered floating point.
target_compile_options(mero_options INTERFACE -ffp-contract=off)
if(MERO_SANITIZE)
  target_compile_options(mero_options INTERFACE -fsanitize=${MERO_SANITIZE} -fno-omit-frame-pointer
    -fno-sanitize-recover=all)
  target_link_options(mero_options INTERFACE -fsanitize=${MERO_SANITIZE})
endif()
if(MERO_COVERAGE)
  # Threads and several programs at once count into the same places.
  target_compile_options(mero_options INTERFACE --coverage -fprofile-update=atomic)
  target_link_options(mero_options INTERFACE --coverage)
endif()

# mero_library(NAME SOURCES ... LINKS ...): one room. It links only what lies below it.
function(mero_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC mero_options ${arg_LINKS})
endfunction()

# The test library's headers are most of what a test compiles: they are compiled once for all tests. Tests of
# widgets are compiled as position-independent code and cannot share them.
function(mero_share_test_headers name)
  if(NOT TARGET mero_test_headers)
    file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/test_headers.cpp CONTENT "")
    add_library(mero_test_headers OBJECT ${CMAKE_BINARY_DIR}/test_headers.cpp)
    target_link_libraries(mero_test_headers PRIVATE mero_options GTest::gmock)
    target_precompile_headers(mero_test_headers PRIVATE
      <gmock/gmock.h> <gtest/gtest.h> <functional> <map> <memory> <string> <vector>)
  endif()
  target_precompile_headers(${name} REUSE_FROM mero_test_headers)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # gcc 12 warns of bounds inside its own library when its headers are compiled beforehand.
    target_compile_options(${name} PRIVATE -Wno-array-bounds -Wno-stringop-overflow)
  endif()
endfunction()

# mero_test(NAME SOURCES ... LINKS ...): one GoogleTest program; its cases run shuffled.
function(mero_test name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE mero_options ${arg_LINKS} GTest::gmock GTest::gtest_main)
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  if(NOT "${arg_LINKS}" MATCHES "mero_qt|mero_window|mero_layout|mero_dialogs_layout|Qt6")
    mero_share_test_headers(${name})
  endif()
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  add_test(NAME ${name} COMMAND ${name} --gtest_shuffle --gtest_brief=1)
  set_tests_properties(${name} PROPERTIES TIMEOUT 300)
endfunction()
