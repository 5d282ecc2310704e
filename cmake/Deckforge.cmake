# Precompiled headers (DECKFORGE_PCH): the standard, Boost and Xerces headers
# that most sources include, parsed once for all unit tests (TESTS), and once
# more for all libraries (ALL), instead of once for each source. Builds by
# hand leave it OFF, and so does the plain build of `make test` for the
# libraries, so that a source that forgets one of these includes still fails
# somewhere. (GCC 12 also reports bogus overflows in libstdc++'s strings at
# -O2 when the libraries use them.) Not <filesystem>: it brings std::quoted,
# which argument-dependent lookup then prefers to a helper of that name.
set(DECKFORGE_PCH_HEADERS
  <algorithm> <functional> <map> <memory> <set> <string> <vector>
  <boost/make_shared.hpp> <boost/shared_ptr.hpp> <boost/variant.hpp> <xercesc/dom/DOM.hpp>)

# Gives `target` the precompiled headers, made by the first target of its
# kind (`kind` is "libraries" or "unit_tests").
function(deckforge_precompile target kind)
  if(NOT (DECKFORGE_PCH STREQUAL "ALL" OR (DECKFORGE_PCH STREQUAL "TESTS" AND kind STREQUAL "unit_tests")))
    return()
  endif()
  get_property(first GLOBAL PROPERTY DECKFORGE_PCH_${kind})
  if(first)
    target_precompile_headers(${target} REUSE_FROM ${first})
  else()
    set_property(GLOBAL PROPERTY DECKFORGE_PCH_${kind} ${target})
    target_precompile_headers(${target} PRIVATE ${DECKFORGE_PCH_HEADERS} ${ARGN})
  endif()
endfunction()

# deckforge_library(<name> DEPS <targets...>)
# One static library per subsystem folder, made of every .cpp in that folder.
# Headers are included as "<folder>/<file>.h" from src/.
function(deckforge_library name)
  cmake_parse_arguments(ARG "" "" "DEPS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  if(sources)
    add_library(deckforge_${name} STATIC ${sources})
    target_include_directories(deckforge_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src ${PROJECT_BINARY_DIR}/generated)
    target_link_libraries(deckforge_${name} PUBLIC ${ARG_DEPS})
    # Coverage feedback for the fuzzer from every library; the tests need none.
    if(DECKFORGE_FUZZ)
      target_compile_options(deckforge_${name} PRIVATE -fsanitize=fuzzer-no-link)
    endif()
    deckforge_precompile(deckforge_${name} libraries)
  else()
    add_library(deckforge_${name} INTERFACE)
    target_include_directories(deckforge_${name} INTERFACE ${PROJECT_SOURCE_DIR}/src ${PROJECT_BINARY_DIR}/generated)
    target_link_libraries(deckforge_${name} INTERFACE ${ARG_DEPS})
  endif()
endfunction()

# deckforge_unit_tests(<subsystem>): one GoogleTest program per subsystem from
# tests/unit/<subsystem>/*.cpp, linked with that subsystem's library.
function(deckforge_unit_tests subsystem)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${subsystem}/*.cpp)
  if(NOT sources)
    return()
  endif()
  set(target unit_${subsystem})
  add_executable(${target} ${sources} ${CMAKE_CURRENT_SOURCE_DIR}/support/test_support.cpp)
  target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  # Test code only drives the libraries, which keep the build's flags; at -O2
  # gtest's templates took half of the plain build's time.
  target_compile_options(${target} PRIVATE -O0)
  target_link_libraries(${target} PRIVATE deckforge_${subsystem} GTest::gtest GTest::gtest_main)
  target_compile_definitions(${target} PRIVATE
    DECKFORGE_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
    DECKFORGE_BINARY_DIR="${PROJECT_BINARY_DIR}"
    DECKFORGE_SHARED_DIR="${PROJECT_SOURCE_DIR}/../shared")
  deckforge_precompile(${target} unit_tests <gtest/gtest.h>)
  gtest_discover_tests(${target} DISCOVERY_TIMEOUT 60 PROPERTIES LABELS unit)
endfunction()
