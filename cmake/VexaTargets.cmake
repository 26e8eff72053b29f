# SPDX-License-Identifier: GPL-3.0-or-later
# Common compile settings, and the functions that declare this project's targets.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(VEXA_WERROR)
  add_compile_options(-Werror)
endif()
add_compile_definitions(
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT VEXA_VERSION="${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}")

if(VEXA_SANITIZE OR VEXA_FUZZ)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(VEXA_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

if(VEXA_PRECOMPILED)
  add_compile_options(-fpch-preprocess)  # ccache reads it
endif()

# vexa_precompile(TARGET HEADER...): reads once what nearly every source of the target includes.
function(vexa_precompile target)
  if(VEXA_PRECOMPILED)
    target_precompile_headers(${target} PRIVATE
      <QtCore> <algorithm> <array> <cmath> <functional> <memory> <optional> <span> <string> <vector> ${ARGN})
  endif()
endfunction()

# vexa_library(NAME SOURCES... LINKS... [PRECOMPILE...]): one floor of the house, as the static library
# vexa_NAME. PRECOMPILE names headers that most of its sources include.
function(vexa_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;PRECOMPILE" ${ARGN})
  add_library(vexa_${name} STATIC ${ARG_SOURCES})
  target_include_directories(vexa_${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(vexa_${name} PUBLIC ${ARG_LINKS})
  set_target_properties(vexa_${name} PROPERTIES AUTOMOC ON)
  vexa_precompile(vexa_${name} ${ARG_PRECOMPILE})
endfunction()

# vexa_test(NAME SOURCES... LINKS... [PRECOMPILE...]): the tests of one floor, as the executable NAME_test.
function(vexa_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;PRECOMPILE" ${ARGN})
  add_executable(${name}_test ${ARG_SOURCES})
  target_include_directories(${name}_test PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  target_link_libraries(${name}_test PRIVATE ${ARG_LINKS} GTest::gtest)
  set_target_properties(${name}_test PROPERTIES AUTOMOC ON)
  vexa_precompile(${name}_test <gtest/gtest.h> ${ARG_PRECOMPILE})
  gtest_discover_tests(${name}_test
    TEST_PREFIX "${name}."
    PROPERTIES TIMEOUT 120
    DISCOVERY_TIMEOUT 60)
endfunction()
