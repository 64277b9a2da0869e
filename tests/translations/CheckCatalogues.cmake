# Fails when a shipped catalogue has an entry without its translation, or when
# the sources hold a text a catalogue lacks (lupdate would add it).
#   cmake -D LUPDATE=<lupdate> -D CATALOGUES=<folder of .ts> -D SOURCES=<src/tovukit_io>
#         -D WORK=<scratch folder> -P CheckCatalogues.cmake
file(GLOB catalogues "${CATALOGUES}/*.ts")
if(NOT catalogues)
  message(FATAL_ERROR "No catalogues in ${CATALOGUES}")
endif()

set(failures)
set(copies)
file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")
foreach(catalogue IN LISTS catalogues)
  get_filename_component(name "${catalogue}" NAME)
  file(READ "${catalogue}" content)
  string(REGEX MATCHALL "<translation type=\"(unfinished|vanished|obsolete)\"|<translation/>|<translation></translation>"
    empty "${content}")
  list(LENGTH empty count)
  if(count GREATER 0)
    list(APPEND failures "${name}: ${count} entries without a translation")
  endif()
  file(COPY "${catalogue}" DESTINATION "${WORK}")
  list(APPEND copies "${WORK}/${name}")
endforeach()

# The same folders the build's lupdate reads.
set(folders)
foreach(folder IN ITEMS network viewmodel ui quick web)
  list(APPEND folders "${SOURCES}/${folder}")
endforeach()
execute_process(
  COMMAND "${LUPDATE}" -locations none -no-obsolete -extensions cpp,h,qml ${folders} -ts ${copies}
  OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "lupdate failed:\n${output}")
endif()
string(REGEX MATCHALL "Found [0-9]+ source text\\(s\\) \\([0-9]+ new" found "${output}")
list(LENGTH found reports)
list(LENGTH copies expected)
if(NOT reports EQUAL expected)
  list(APPEND failures "lupdate reported on ${reports} of ${expected} catalogues:\n${output}")
endif()
foreach(report IN LISTS found)
  if(NOT report MATCHES "\\(0 new$")
    list(APPEND failures "out of date with the sources: ${report} new; build the target update_translations")
  endif()
endforeach()

if(failures)
  list(JOIN failures "\n" text)
  message(FATAL_ERROR "${text}")
endif()
message(STATUS "${expected} catalogues complete and up to date")
