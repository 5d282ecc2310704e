# Makes the demo deck with Octave and reads it back with Apache POI: POI must
# open it, count the slides the engine wrote, and find the texts of
# placeholders, text boxes, runs with links and table cells, and the plot.
#   cmake -DOCTAVE=... -DBINARY_DIR=... -DEXAMPLES=... -DJAVA=... -DCLASSPATH=...
#         -DSCRATCH=... -P read_deck.cmake
file(REMOVE_RECURSE ${SCRATCH})
file(MAKE_DIRECTORY ${SCRATCH})

# Runs `script` in Octave, which makes `deck` in SCRATCH and prints the
# number of slides the engine wrote, then reads the deck with POI. Sets
# `count` and `seen` (what POI printed, also kept in SCRATCH/`keep`).
function(make_and_read what script deck keep)
  execute_process(
    COMMAND ${OCTAVE} --no-gui --norc --no-window-system --no-history --eval "${script}"
    RESULT_VARIABLE status OUTPUT_VARIABLE made ERROR_VARIABLE errors)
  if(NOT status EQUAL 0 OR NOT made MATCHES "engine slides: ([0-9]+)")
    message(FATAL_ERROR "${what} could not be made (${status}):\n${made}\n${errors}")
  endif()
  set(count ${CMAKE_MATCH_1} PARENT_SCOPE)
  execute_process(
    COMMAND ${JAVA} -cp ${CLASSPATH} ReadDeck ${SCRATCH}/${deck}
    RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE errors)
  file(WRITE ${SCRATCH}/${keep} "${out}")
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "Apache POI failed on ${what} (${status}):\n${errors}\n${out}")
  endif()
  set(seen "${out}" PARENT_SCOPE)
endfunction()

make_and_read("the demo deck"
  "warning('off', 'Octave:shadowed-function'); addpath('${BINARY_DIR}', '${EXAMPLES}'); \
   deck = demo('${SCRATCH}', false); \
   p = deckforge.ppt.Presentation(fullfile('${SCRATCH}', 'reread.pptx'), deck); p.open(); \
   printf('engine slides: %d\\n', numel(p.Children));"
  demo.pptx poi.txt)

# Slide numbers as POI counts them; the names are the shapes' own.
set(expected
  "^slides: ${count}\n"
  "\n1 Title: deckforge\n"
  "\n2 Content: placeholders filled by name\n"
  "\n3 Content: File format: ECMA-376\n"
  "\n5 Note 2: eighteen centimetres across, eight down\n"
  "\n6 Formats: Runs can be bold, italic, underlined, twice or struck through\\.\n"
  "\n6 Formats: Subscripts and superscripts: H2O, E = mc2\\.\n"
  "\n6 Aligned 3: right and bottom on #D8F0E0\n"
  "\n7 Picture: picture image/png\n"
  "\n[0-9]+ [^\n]+ \\[1,1\\]: [^\n]+\n")
foreach(pattern ${expected})
  if(NOT seen MATCHES "${pattern}")
    message(FATAL_ERROR "Apache POI did not see \"${pattern}\" in the demo deck:\n${seen}")
  endif()
endforeach()
message(STATUS "Apache POI read ${count} slides")

# The deck with every feature: every layout, format, picture kind and table
# kind. POI must open it and find a text of each kind of content.
make_and_read("the deck with every feature"
  "addpath('${BINARY_DIR}', '${TESTS_OCTAVE}'); [deck, ~, n] = every_feature_deck('${SCRATCH}'); \
   printf('engine slides: %d\\n', n);"
  every.pptx poi-every.txt)
foreach(pattern "^slides: ${count}\n" "Comparison / Text 2" "Formats box: Bold run" "link run"
                "\\[1,1\\]: Head A" "\\[2,1\\]: struct row" "picture image/tiff" "picture image/gif")
  if(NOT seen MATCHES "${pattern}")
    message(FATAL_ERROR "Apache POI did not see \"${pattern}\" in the deck with every feature:\n${seen}")
  endif()
endforeach()
message(STATUS "Apache POI read the deck with every feature: ${count} slides")

# The chart deck: POI finds every chart and reads its series' values from
# the chart parts. (It reads a series with a gap by position, so those are
# checked by the Octave test instead.)
make_and_read("the chart deck"
  "addpath('${BINARY_DIR}', '${TESTS_OCTAVE}'); [~, n] = chart_deck('${SCRATCH}'); \
   printf('engine slides: %d\\n', n);"
  charts.pptx poi-charts.txt)
foreach(pattern "^slides: ${count}\n" "\n1 chart 1 series 3: 2.0, 3.0, 1.0, 5.0\n"
                "\n10 chart 1 series 1: 3.0, 4.0, 6.0, 2.0\n" "\n13 chart 1 series 2: 0.12, 0.18, 0.07\n"
                "\n14 chart 1 series 2: 11.0, 8.0, 14.0\n" "\n15 chart 1 series 1: 1.0, 3.0\n")
  if(NOT seen MATCHES "${pattern}")
    message(FATAL_ERROR "Apache POI did not see \"${pattern}\" in the chart deck:\n${seen}")
  endif()
endforeach()
message(STATUS "Apache POI read the chart deck: ${count} slides")
