# Programs of a build folder take the libraries beside them when the folder has another name. See
# CMakeLists.txt for what this script is given.
file(REMOVE_RECURSE ${scratch})
file(COPY ${binary_dir}/lib DESTINATION ${scratch})
foreach(program IN LISTS programs)
    file(COPY ${binary_dir}/bin/${program} DESTINATION ${scratch}/bin)
    execute_process(COMMAND ldd ${scratch}/bin/${program}
        OUTPUT_VARIABLE libraries COMMAND_ERROR_IS_FATAL ANY)
    string(FIND "${libraries}" "libkfmgenw7" needed)
    string(FIND "${libraries}" " ${scratch}/bin/../lib/libkfmgenw7" found)
    if(needed EQUAL -1 OR found EQUAL -1)
        message(FATAL_ERROR "${program} of a moved folder takes\n${libraries}")
    endif()
endforeach()
