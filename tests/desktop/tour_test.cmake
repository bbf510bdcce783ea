# cmake -DPROGRAM=quintara -DFOLDER=SCRATCH_FOLDER -P tour_test.cmake: the tour from the command line, with what
# goes wrong, and without a trace in the player's files.
get_filename_component(data ${PROGRAM} DIRECTORY)
string(APPEND data /data)
file(REMOVE_RECURSE ${FOLDER})

# tour(STATUS PATTERN ARGUMENT...): what it says has to match the pattern.
function(tour status pattern)
  execute_process(COMMAND ${PROGRAM} --tour ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE said ERROR_VARIABLE said)
  if(NOT result EQUAL ${status} OR NOT said MATCHES "${pattern}")
    message(FATAL_ERROR "--tour ${ARGN} ended with ${result}, not ${status}: ${said}")
  endif()
endfunction()

execute_process(COMMAND ${CMAKE_COMMAND} -E md5sum ${data}/Masters.txt ${data}/extra.txt OUTPUT_VARIABLE before)
tour(0 "All went well" ${FOLDER}/new/pictures)
execute_process(COMMAND ${CMAKE_COMMAND} -E md5sum ${data}/Masters.txt ${data}/extra.txt OUTPUT_VARIABLE after)
if(NOT before STREQUAL after)
  message(FATAL_ERROR "The tour changed the player's own files.")
endif()
file(GLOB pictures ${FOLDER}/new/pictures/*.png)
list(LENGTH pictures count)
if(NOT count EQUAL 23)
  message(FATAL_ERROR "The tour left ${count} pictures.")
endif()

file(WRITE ${FOLDER}/file "")
tour(1 "could not be made" ${FOLDER}/file/below)

# A machine without a single font.
if(CMAKE_HOST_UNIX AND NOT CMAKE_HOST_APPLE)
  file(WRITE ${FOLDER}/fonts.conf "<fontconfig><cachedir>${FOLDER}</cachedir></fontconfig>")
  set(ENV{FONTCONFIG_FILE} ${FOLDER}/fonts.conf)
  tour(0 "no font was found.*All went well" ${FOLDER}/without-fonts)
endif()
