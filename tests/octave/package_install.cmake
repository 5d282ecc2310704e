# Installs the package tarball with Octave's pkg into a fresh HOME and runs a
# check script against the installed copy.
if(NOT EXISTS ${TARBALL})
  message(FATAL_ERROR "${TARBALL} is missing: build the target deckforge_octave_package (make package)")
endif()
file(REMOVE_RECURSE ${SCRATCH})
file(MAKE_DIRECTORY ${SCRATCH}/home ${SCRATCH}/work)
get_filename_component(script_dir ${SCRIPT} DIRECTORY)
get_filename_component(script_name ${SCRIPT} NAME_WE)
# pkg install compiles the library; the compiler cache of the real HOME
# keeps a second run short.
find_program(ccache ccache)
if(ccache AND NOT DEFINED ENV{CCACHE_DIR})
  execute_process(COMMAND ${ccache} -k cache_dir OUTPUT_VARIABLE cache_dir OUTPUT_STRIP_TRAILING_WHITESPACE
                  RESULT_VARIABLE rc)
  if(rc EQUAL 0 AND cache_dir)
    set(ENV{CCACHE_DIR} ${cache_dir})
  endif()
endif()
set(ENV{HOME} ${SCRATCH}/home)
# What counts here is that the sources compile and work as installed; an
# unoptimised build takes half the time.
set(ENV{DECKFORGE_OPTFLAGS} -O0)
execute_process(
  COMMAND ${OCTAVE} --no-gui --norc --no-window-system --no-history --eval
    "pkg install -local '${TARBALL}'; pkg load deckforge; addpath('${script_dir}'); ${script_name}; disp('installed package: passed');"
  WORKING_DIRECTORY ${SCRATCH}/work
  RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
message("${out}")
if(NOT rc EQUAL 0 OR NOT out MATCHES "installed package: passed")
  message(FATAL_ERROR "installed package check failed (${rc}):\n${err}")
endif()
if(VALIDATE AND EXISTS ${VALIDATE})
  execute_process(COMMAND ${VALIDATE} ${SCRATCH}/work/installed_table.pptx RESULT_VARIABLE rc OUTPUT_VARIABLE out
                  ERROR_VARIABLE out)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "the installed package's deck is not valid:\n${out}")
  endif()
endif()
