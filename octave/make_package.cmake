# Stages the Octave source package and packs it:
#   DESCRIPTION, COPYING, INDEX, PKG_ADD
#   inst/  the script files (the classdef files as generated from the class
#          registry), the default template
#   src/   the C++ sources and the Makefile that `pkg install` runs; it
#          builds the library and the gateway against the installing Octave
# Nothing compiled goes in.
#   cmake -DROOT= -DSOURCE= -DSTAGE= -DDESCRIPTION= -DCOPYING= -DTARBALL= -P make_package.cmake
file(REMOVE_RECURSE ${STAGE})
set(pkg ${STAGE}/deckforge)
file(MAKE_DIRECTORY ${pkg}/inst ${pkg}/src)
file(COPY ${DESCRIPTION} ${COPYING} ${ROOT}/PKG_ADD DESTINATION ${pkg})
file(COPY ${ROOT}/toolboxdir.m ${ROOT}/picmeta.m ${ROOT}/picfigure.m ${ROOT}/+deckforge ${ROOT}/+brieflet
     DESTINATION ${pkg}/inst)
set(template toolbox/shared/deckforge/ppt/resources/templates/pptx/default.pptx)
get_filename_component(template_dir ${template} DIRECTORY)
file(COPY ${ROOT}/${template} DESTINATION ${pkg}/inst/${template_dir})

# The sources: the libraries under src/deckforge (headers are included as
# "<folder>/<file>.h"), the Octave glue and the gateway.
file(COPY ${SOURCE}/src/ DESTINATION ${pkg}/src/deckforge
     FILES_MATCHING PATTERN "*.cpp" PATTERN "*.h" PATTERN "*.def")
file(COPY ${SOURCE}/octave/glue ${SOURCE}/octave/gateway DESTINATION ${pkg}/src)
file(COPY ${SOURCE}/octave/pkgsrc/Makefile DESTINATION ${pkg}/src)
# What pkg install takes from src/: both are architecture dependent and go
# into the same folder, where the gateway finds the library.
file(WRITE ${pkg}/src/FILES "__deckforge_gw__.oct\nlibdeckforge_ppt.so\n")

# INDEX: the classes of the package.
file(GLOB classes RELATIVE ${ROOT}/+deckforge/+ppt ${ROOT}/+deckforge/+ppt/*.m)
list(SORT classes)
set(index "deckforge >> PowerPoint decks from templates\nClasses of deckforge.ppt\n")
set(functions "")
foreach(c ${classes})
  file(STRINGS ${ROOT}/+deckforge/+ppt/${c} first LIMIT_COUNT 1)
  string(REGEX REPLACE "\\.m$" "" c ${c})
  if(first MATCHES "^classdef")
    string(APPEND index " deckforge.ppt.${c}\n")
  else()
    string(APPEND functions " deckforge.ppt.${c}\n")
  endif()
endforeach()
if(functions)
  string(APPEND index "Functions of deckforge.ppt\n${functions}")
endif()
string(APPEND index "Events\n deckforge.Listener\n")
file(WRITE ${pkg}/INDEX ${index})

execute_process(COMMAND ${CMAKE_COMMAND} -E tar czf ${TARBALL} deckforge
                WORKING_DIRECTORY ${STAGE} RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "packing ${TARBALL} failed")
endif()
message(STATUS "Octave package: ${TARBALL}")
