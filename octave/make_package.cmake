# Stages the package root as an Octave package (DESCRIPTION, COPYING, PKG_ADD
# at the top, everything else under inst/) and packs it.
#   cmake -DROOT= -DSTAGE= -DDESCRIPTION= -DCOPYING= -DTARBALL= -P make_package.cmake
file(REMOVE_RECURSE ${STAGE})
set(pkg ${STAGE}/deckforge)
file(MAKE_DIRECTORY ${pkg}/inst)
file(COPY ${DESCRIPTION} ${COPYING} ${ROOT}/PKG_ADD DESTINATION ${pkg})
file(COPY ${ROOT}/__deckforge_gw__.oct ${ROOT}/libdeckforge_ppt.so ${ROOT}/toolboxdir.m ${ROOT}/picmeta.m
     ${ROOT}/picfigure.m ${ROOT}/+deckforge ${ROOT}/+brieflet
     DESTINATION ${pkg}/inst)
# Debug information would make the package many times its size.
if(STRIP)
  execute_process(COMMAND ${STRIP} --strip-debug ${pkg}/inst/libdeckforge_ppt.so ${pkg}/inst/__deckforge_gw__.oct)
endif()
set(template toolbox/shared/deckforge/ppt/resources/templates/pptx/default.pptx)
get_filename_component(template_dir ${template} DIRECTORY)
file(COPY ${ROOT}/${template} DESTINATION ${pkg}/inst/${template_dir})
execute_process(COMMAND ${CMAKE_COMMAND} -E tar czf ${TARBALL} deckforge
                WORKING_DIRECTORY ${STAGE} RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "packing ${TARBALL} failed")
endif()
message(STATUS "Octave package: ${TARBALL}")
