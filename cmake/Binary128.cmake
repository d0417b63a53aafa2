# The target binary128: arithmetic in binary128, which the generator and the tests compute in.
add_library(binary128 INTERFACE)
set(KFM_BINARY128 ON)
target_include_directories(binary128 INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(KFM_TARGET STREQUAL "aarch64")
    # Its long double is binary128.
elseif(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_link_libraries(binary128 INTERFACE quadmath)
elseif(KFM_TARGET STREQUAL "i386")
    # clang 14 aligns arguments to 4 bytes that GCC's libraries expect at multiples of 16.
    set(KFM_BINARY128 OFF)
else()
    target_link_libraries(binary128 INTERFACE quadmath)
    # The header is one of GCC's own, beside the library. It is searched last, because others there
    # would take the place of the compiler's.
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libquadmath.so
        OUTPUT_VARIABLE library OUTPUT_STRIP_TRAILING_WHITESPACE)
    cmake_path(GET library PARENT_PATH folder)
    target_compile_options(binary128 INTERFACE "SHELL:-idirafter \"${folder}/include\"")
endif()
