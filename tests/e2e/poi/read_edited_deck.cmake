# Makes the edited deck (tests/octave/edited_deck.m) on the default template
# and on a real one with slides, notes, charts and pictures, and reads both
# back with Apache POI: the slides in order by title, the notes of each, the
# core title and author.
#   cmake -DOCTAVE=... -DBINARY_DIR=... -DTESTS_OCTAVE=... -DTEMPLATE=...
#         -DJAVA=... -DCLASSPATH=... -DSCRATCH=... -P read_edited_deck.cmake
file(REMOVE_RECURSE ${SCRATCH})
file(MAKE_DIRECTORY ${SCRATCH}/default ${SCRATCH}/real)
execute_process(
  COMMAND ${OCTAVE} --no-gui --norc --no-window-system --no-history --eval
    "addpath('${BINARY_DIR}', '${TESTS_OCTAVE}'); edited_deck('${SCRATCH}/default', ''); \
     edited_deck('${SCRATCH}/real', '${TEMPLATE}'); disp('made');"
  RESULT_VARIABLE status OUTPUT_VARIABLE made ERROR_VARIABLE errors)
if(NOT status EQUAL 0 OR NOT made MATCHES "made")
  message(FATAL_ERROR "The edited decks could not be made (${status}):\n${made}\n${errors}")
endif()

foreach(kind default real)
  execute_process(
    COMMAND ${JAVA} -cp ${CLASSPATH} ReadDeckEdits ${SCRATCH}/${kind}/edited.pptx
    RESULT_VARIABLE status OUTPUT_VARIABLE seen ERROR_VARIABLE errors)
  file(WRITE ${SCRATCH}/${kind}/poi.txt "${seen}")
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "Apache POI failed on the ${kind} edited deck (${status}):\n${errors}\n${seen}")
  endif()
  # The second and last slides are the template's (or the stand-in's) first
  # slide and its copy without notes.
  set(expected
    "^slides: 5\n1 title: Beta\n1 notes: Beta notes \\| second line\n2 title: [^\n]*\n2 notes: [^\n]+\n"
    "3 title: Alpha\n3 notes: Say alpha \\| slowly\n4 title: Alpha copy\n4 notes: Say alpha \\| slowly\n"
    "5 title: [^\n]*\n5 notes: \n"
    "core title: Edited deck\ncore author: A\\. Engineer\n")
  foreach(pattern ${expected})
    if(NOT seen MATCHES "${pattern}")
      message(FATAL_ERROR "Apache POI did not see \"${pattern}\" in the ${kind} edited deck:\n${seen}")
    endif()
  endforeach()
endforeach()
