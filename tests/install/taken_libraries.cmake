# takes(<folder> <command...>): of the libraries in a folder the dynamic loader takes the variant
# for this machine, and the base library when told that there is no AVX2; the companion is the same
# file. The command names the files that a program takes, as ldd does.
#
# `variant` is the folder below where the loader has to look on this machine; empty: none.
cmake_policy(SET CMP0057 NEW)   # if(... IN_LIST ...)

function(takes folder)
    foreach(tunables IN ITEMS "" glibc.cpu.hwcaps=-AVX2)
        if(variant AND NOT tunables)
            set(wanted ${folder}/${variant}/libkfmgenw7.so.6.1)
            set(bits 256)
        else()
            set(wanted ${folder}/libkfmgenw7.so.6.1)
            set(bits 128)
        endif()
        execute_process(COMMAND ${CMAKE_COMMAND} -E env "GLIBC_TUNABLES=${tunables}" ${ARGN}
            OUTPUT_VARIABLE said COMMAND_ERROR_IS_FATAL ANY)
        string(REGEX MATCHALL "/[^\n]*/libkfm[a-z0-9]*\\.so\\.[0-9.]+" named "${said}")
        set(taken "")
        foreach(file IN LISTS named)
            cmake_path(NORMAL_PATH file)
            list(APPEND taken ${file})
        endforeach()
        set(others ${taken})
        list(REMOVE_ITEM others ${wanted} ${folder}/libkfmcore.so.6.1)
        if(NOT wanted IN_LIST taken OR others OR said MATCHES "not found"
           OR (said MATCHES "vectors of ([0-9]+) bits" AND NOT CMAKE_MATCH_1 EQUAL bits))
            message(SEND_ERROR "${ARGN} with \"${tunables}\" takes\n${said}")
        endif()
    endforeach()
endfunction()
