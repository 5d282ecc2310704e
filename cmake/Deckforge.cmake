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
  target_link_libraries(${target} PRIVATE deckforge_${subsystem} GTest::gtest GTest::gtest_main)
  target_compile_definitions(${target} PRIVATE
    DECKFORGE_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
    DECKFORGE_BINARY_DIR="${PROJECT_BINARY_DIR}"
    DECKFORGE_SHARED_DIR="${PROJECT_SOURCE_DIR}/../shared")
  gtest_discover_tests(${target} DISCOVERY_TIMEOUT 60 PROPERTIES LABELS unit)
endfunction()
