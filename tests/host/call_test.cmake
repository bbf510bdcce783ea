# How quintara-host is called and how it ends. HOST is the program.

# call(RESULT OUTPUT ERRORS [ARGUMENT...]) hands it the line "quit".
function(call wantedResult wantedOutput wantedErrors)
  execute_process(COMMAND ${CMAKE_COMMAND} -E echo quit COMMAND ${HOST} ${ARGN}
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
  if(NOT result EQUAL wantedResult OR NOT output MATCHES "^${wantedOutput}$" OR NOT errors MATCHES "^${wantedErrors}$")
    message(SEND_ERROR "quintara-host ${ARGN}: ended with ${result}, printed '${output}' and '${errors}'")
  endif()
endfunction()

get_filename_component(folder ${HOST} DIRECTORY)
call(0 "ok\n" "")
call(0 "ok\n" "" ${folder}/data/)
call(2 "" "[^\n]+\n" ${folder}/no-such-folder)
call(2 "" "[^\n]+\n" ${HOST})
call(2 "" "[^\n]+\n" ${folder}/data ${folder}/data)
