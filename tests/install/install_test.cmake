# See CMakeLists.txt for what this script is given.
set(consumer ${CMAKE_CURRENT_LIST_DIR}/consumer)
set(prefix ${scratch}/prefix)
file(REMOVE_RECURSE ${scratch})
set(ENV{DESTDIR})

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

run(${CMAKE_COMMAND} --install ${binary_dir} --prefix ${prefix})

# CMake package, with the version a user would ask for; an older major version must be refused.
set(configure ${CMAKE_COMMAND} -S ${consumer} -B ${scratch}/cmake -D CMAKE_PREFIX_PATH=${prefix}
    -D kfmgen_DIR=${prefix}/${libdir}/cmake/kfmgen
    -D CMAKE_C_COMPILER=${c_compiler} -D "CMAKE_C_FLAGS=${c_flags}")
run(${configure} -D wanted_version=6.0)
run(${CMAKE_COMMAND} --build ${scratch}/cmake)
run(${scratch}/cmake/consumer)
execute_process(COMMAND ${configure} -D wanted_version=5.0
    RESULT_VARIABLE refused OUTPUT_QUIET ERROR_QUIET)
if(refused EQUAL 0)
    message(FATAL_ERROR "a request for version 5.0 was granted")
endif()

# pkg-config, for a C89 program.
set(ENV{PKG_CONFIG_PATH} ${prefix}/${libdir}/pkgconfig)
execute_process(COMMAND ${pkg_config} --cflags --libs kfmgen kfmcore
    OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
separate_arguments(c_flags UNIX_COMMAND "${c_flags}")
run(${c_compiler} ${c_flags} -std=c89 -pedantic -Wall -Werror ${consumer}/consumer.c
    -o ${scratch}/consumer ${flags} -Wl,-rpath,${prefix}/${libdir})
run(${scratch}/consumer)
