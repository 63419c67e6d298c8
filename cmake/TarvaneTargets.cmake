# How this project's targets are made: one place for the warnings, the numeric rules and the sanitizers.

add_library(tarvane_rules INTERFACE)
target_compile_features(tarvane_rules INTERFACE cxx_std_20)
target_include_directories(tarvane_rules INTERFACE ${CMAKE_SOURCE_DIR}/src)
# Results are compared digit by digit: no contraction into fused operations, no fast-math.
target_compile_options(tarvane_rules INTERFACE -Wall -Wextra -Wshadow -Wconversion -Werror -ffp-contract=off)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # This compiler sees overlapping copies in plain joins of strings where there are none.
  target_compile_options(tarvane_rules INTERFACE -Wno-restrict)
endif()
if(TARVANE_SANITIZE)
  # With its checks woven in the compiler takes the standard library's own members for uninitialized.
  target_compile_options(tarvane_rules INTERFACE -Wno-maybe-uninitialized)
  target_compile_options(tarvane_rules INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                 -fno-omit-frame-pointer)
  target_link_options(tarvane_rules INTERFACE -fsanitize=address,undefined)
endif()

# The tests' own code, which tarvane_fakes hands on to all of it: built for a short build, not for speed. A precompiled
# header serves equal options alone, so the position-independent code that Qt asks for is asked for everywhere.
add_library(tarvane_testrules INTERFACE)
target_include_directories(tarvane_testrules INTERFACE ${CMAKE_SOURCE_DIR}/tests)
target_compile_definitions(tarvane_testrules INTERFACE TARVANE_DATA="${CMAKE_SOURCE_DIR}/data"
                                                       TARVANE_TESTDATA="${CMAKE_SOURCE_DIR}/tests/data")
target_compile_options(tarvane_testrules INTERFACE -O0 -g1 -fPIC)

# tarvane_library(NAME SOURCES a.cpp ... LINKS tarvane::b ...). Under the sanitizers the standard library's headers are parsed
# once, for text and all that stands on it; optimised, this compiler warns of what it inlines from a precompiled header.
# PRECOMPILES for a target that says itself which headers.
function(tarvane_library name)
  cmake_parse_arguments(arg "PRECOMPILES" "" "SOURCES;LINKS" ${ARGN})
  if(arg_SOURCES)
    add_library(tarvane_${name} STATIC ${arg_SOURCES})
    target_link_libraries(tarvane_${name} PUBLIC tarvane_rules ${arg_LINKS})
  else()
    add_library(tarvane_${name} INTERFACE)
    target_link_libraries(tarvane_${name} INTERFACE tarvane_rules ${arg_LINKS})
  endif()
  add_library(tarvane::${name} ALIAS tarvane_${name})
  if(name MATCHES "_windows$")
    tarvane_windows(tarvane_${name})
  elseif(TARVANE_SANITIZE AND arg_SOURCES AND NOT arg_PRECOMPILES)
    target_precompile_headers(tarvane_${name} REUSE_FROM tarvane_text)
  endif()
endfunction()

# tarvane_windows(TARGET): the toolkit's headers are parsed once, for platform_qt and all that stands on it.
function(tarvane_windows target)
  target_precompile_headers(${target} REUSE_FROM tarvane_platform_qt)
endfunction()

# tarvane_test(FOLDER SOURCES a.cpp ... LINKS tarvane::a ...): one executable a folder, shuffled. PRECOMPILED headers take
# the place of those that the other tests share.
function(tarvane_test folder)
  cmake_parse_arguments(arg "OWN_MAIN" "" "SOURCES;LINKS;PRECOMPILED" ${ARGN})
  add_executable(test_${folder} ${arg_SOURCES})
  if(arg_PRECOMPILED)
    target_precompile_headers(test_${folder} PRIVATE ${arg_PRECOMPILED})
  else()
    target_precompile_headers(test_${folder} REUSE_FROM tarvane_fakes)
  endif()
  target_link_libraries(test_${folder} PRIVATE ${arg_LINKS} tarvane::fakes)
  if(NOT arg_OWN_MAIN)
    target_link_libraries(test_${folder} PRIVATE GTest::gtest_main)
  endif()
  add_test(NAME ${folder} COMMAND test_${folder} --gtest_shuffle --gtest_brief=1)
  set_tests_properties(${folder} PROPERTIES TIMEOUT 300)
endfunction()
