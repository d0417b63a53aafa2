# kfm_precompile(<target> <header>...): headers that all files of a target read, read once. Most of the
# compile time of a short file is its headers. A compiler cache wants to see the sources themselves.
function(kfm_precompile target)
    if(NOT CMAKE_CXX_COMPILER_LAUNCHER)
        list(TRANSFORM ARGN REPLACE "^([^<].*)$" "${CMAKE_CURRENT_SOURCE_DIR}/\\1")
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
endfunction()
