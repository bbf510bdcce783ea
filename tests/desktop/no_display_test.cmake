# cmake -DPROGRAM=quintara -P no_display_test.cmake: where there is no display, the game says so and ends in order.
set(ENV{QT_QPA_PLATFORM} xcb)
foreach(display "" ":12345")
  set(ENV{DISPLAY} "${display}")
  execute_process(COMMAND ${PROGRAM} RESULT_VARIABLE result ERROR_VARIABLE said)
  if(NOT result EQUAL 1 OR NOT said MATCHES "quintara: no window can be opened here")
    message(FATAL_ERROR "On the display \"${display}\" the game ended with ${result}: ${said}")
  endif()
endforeach()
