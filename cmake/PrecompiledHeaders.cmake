# kfm_precompile(<target> <header>...): headers that all files of a target read, read once. Most of
# the compile time of a short file is its headers. A compiler cache wants to see the sources.
function(kfm_precompile target)
    if(NOT CMAKE_CXX_COMPILER_LAUNCHER)
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
endfunction()
