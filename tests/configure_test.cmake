# What configuring refuses. See CMakeLists.txt for what this script is given.
set(configure ${CMAKE_COMMAND} -S ${source_dir} -D CMAKE_C_COMPILER=${c_compiler}
    -D CMAKE_CXX_COMPILER=${cxx_compiler} -D CMAKE_C_FLAGS=${flags} -D KFM_KERNELGEN=${kernelgen})
file(REMOVE_RECURSE ${scratch})
unset(ENV{CXX})

# refused(<words> <arguments of cmake...>): the words are all there is to read about it.
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

refused("is for x86 processors" -B ${scratch}/another_processor
    -D "CMAKE_CXX_FLAGS=${flags} -U__x86_64__ -U__i386__")

execute_process(COMMAND ${configure} -B ${scratch}/folder -D CMAKE_CXX_FLAGS=${flags}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
set(ENV{CXX} ${CMAKE_COMMAND})   # any other program
refused("is configured for .*, not for" -B ${scratch}/folder)
