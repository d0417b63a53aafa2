# See CMakeLists.txt for what this script is given.
include(${CMAKE_CURRENT_LIST_DIR}/../support/refused.cmake)
set(consumer ${CMAKE_CURRENT_LIST_DIR}/consumer)
file(REMOVE_RECURSE ${scratch})
set(ENV{DESTDIR})

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# What is installed may be moved.
run(${CMAKE_COMMAND} --install ${binary_dir} --prefix ${scratch}/staged)
set(prefix ${scratch}/prefix)
file(RENAME ${scratch}/staged ${prefix})
if(EXISTS ${prefix}/bin/kfmgen)
    run(${prefix}/bin/kfmgen info)
endif()

# CMake package, with the version a user would ask for.
set(configure ${CMAKE_COMMAND} -S ${consumer} -D CMAKE_PREFIX_PATH=${prefix}
    -D CMAKE_C_COMPILER=${c_compiler})
set(for_target -D "CMAKE_C_FLAGS=${c_flags}")
run(${configure} -B ${scratch}/cmake ${for_target}
    -D "wanted=6.0 COMPONENTS kfmgenw7")
run(${CMAKE_COMMAND} --build ${scratch}/cmake)
run(${scratch}/cmake/consumer)

# An older major version, what does not exist, and a target whose libraries are not there.
refused("version \"5.0\"" -B ${scratch}/refused ${for_target} -D wanted=5.0)
refused("kfmgen has no component nonsense" -B ${scratch}/refused ${for_target}
    -D "wanted=COMPONENTS kfmcore nonsense")
if(target STREQUAL "i386")
    refused("kfmgen is not installed for x86-64" -B ${scratch}/another_target)
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
