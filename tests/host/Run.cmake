# Runs a command whose failure is the test's; what it told is in `told`.
function(run)
  execute_process(COMMAND ${ARGV} OUTPUT_VARIABLE told ERROR_VARIABLE told RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGV}\n${told}")
  endif()
  set(told "${told}" PARENT_SCOPE)
endfunction()
