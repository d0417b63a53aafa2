# Compiles some kernels of every family by clang and puts them in the place of the library's own
# while the test of the committed hashes runs on them. See CMakeLists.txt for what is given.
separate_arguments(flags UNIX_COMMAND "${flags}")
string(REPLACE "," ";" numbers "${numbers}")
set(sources)
set(filters)
foreach(number IN LISTS numbers)
    file(GLOB_RECURSE found ${generated}/*_${number}_[36]*.cpp)
    list(FILTER found EXCLUDE REGEX "/dct4/")
    list(APPEND sources ${found})
    list(APPEND filters "Hashes.*_${number}_*")
endforeach()
list(LENGTH sources count)
if(count EQUAL 0)
    message(FATAL_ERROR "no kernels in ${generated}")
endif()

file(REMOVE_RECURSE ${scratch})
file(MAKE_DIRECTORY ${scratch})
execute_process(COMMAND ${clang} -std=c++20 -O2 -Wall -Wextra -Werror -fPIC -shared ${flags}
    -I${include} -I${src} ${sources} -o ${scratch}/kernels.so COMMAND_ERROR_IS_FATAL ANY)
# A kernel is straight-line code: what a compiler does not put in place it would have to call.
execute_process(COMMAND ${nm} --defined-only ${scratch}/kernels.so
    OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
if(symbols MATCHES "_ZNK?St[^\n]*")
    message(FATAL_ERROR "kernels call a function of the standard library: ${CMAKE_MATCH_0}")
endif()
list(JOIN filters : filter)
# By a relative name: a space would end a path in LD_PRELOAD.
execute_process(COMMAND ${CMAKE_COMMAND} -E env LD_PRELOAD=./kernels.so
    ${tests} --gtest_brief=1 --gtest_filter=${filter}
    WORKING_DIRECTORY ${scratch} COMMAND_ERROR_IS_FATAL ANY)
