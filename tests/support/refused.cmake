# refused(<words> <arguments of cmake...>): the command ${configure} fails with these arguments, and
# the words, a regular expression, are in the one error that it reports.
function(refused words)
    execute_process(COMMAND ${configure} ${ARGN}
        RESULT_VARIABLE status OUTPUT_QUIET ERROR_VARIABLE errors)
    string(REGEX REPLACE "[ \n]+" " " text "${errors}")
    string(REGEX MATCHALL "CMake Error" complaints "${text}")
    list(LENGTH complaints count)
    if(status EQUAL 0 OR NOT text MATCHES "${words}" OR NOT count EQUAL 1)
        message(FATAL_ERROR "not refused with \"${words}\":\n${errors}")
    endif()
endfunction()
