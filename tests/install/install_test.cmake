# See CMakeLists.txt for what this script is given.
include(${CMAKE_CURRENT_LIST_DIR}/../support/refused.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/taken_libraries.cmake)
set(consumer ${CMAKE_CURRENT_LIST_DIR}/consumer)
file(REMOVE_RECURSE ${scratch})
set(ENV{DESTDIR})
set(ENV{LD_LIBRARY_PATH})

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# What is installed may be moved.
run(${CMAKE_COMMAND} --install ${binary_dir} --prefix ${scratch}/staged)
set(prefix ${scratch}/prefix)
set(libraries ${prefix}/${libdir})
file(RENAME ${scratch}/staged ${prefix})
if(EXISTS ${prefix}/bin/kfmgen)
    takes(${libraries} ldd ${prefix}/bin/kfmgen)
    takes(${libraries} ${prefix}/bin/kfmgen info)
endif()
execute_process(COMMAND grep -rlF ${binary_dir} ${prefix} OUTPUT_VARIABLE leaks)
if(leaks)
    message(SEND_ERROR "The build folder is named in\n${leaks}")
endif()

# Staged for a package: the same files.
run(${CMAKE_COMMAND} -E env "DESTDIR=${scratch}/package"
    ${CMAKE_COMMAND} --install ${binary_dir} --prefix /usr)
file(GLOB_RECURSE installed RELATIVE ${prefix} ${prefix}/*)
file(GLOB_RECURSE packaged RELATIVE ${scratch}/package/usr ${scratch}/package/*)
if(NOT installed STREQUAL packaged)
    message(SEND_ERROR "Staged for a package are\n${packaged}, installed were\n${installed}")
endif()

# Over another build of the same version: no variant of that one is left, and nothing else is gone.
set(folders ${libraries}/glibc-hwcaps)
file(MAKE_DIRECTORY ${folders}/x86-64-v9)
file(TOUCH ${folders}/x86-64-v9/libkfmgenw7.so.6.1 ${folders}/x86-64-v9/libkfmgenw7.so.5.0)
run(${CMAKE_COMMAND} --install ${binary_dir} --prefix ${prefix})
file(GLOB_RECURSE now RELATIVE ${prefix} ${prefix}/*)
list(REMOVE_ITEM now ${libdir}/glibc-hwcaps/x86-64-v9/libkfmgenw7.so.5.0)
if(NOT installed STREQUAL now)
    message(SEND_ERROR "Installed again are\n${now}, installed were\n${installed}")
endif()

# CMake package, with the version a user would ask for.
set(configure ${CMAKE_COMMAND} -S ${consumer} -D CMAKE_PREFIX_PATH=${prefix}
    -D CMAKE_C_COMPILER=${c_compiler})
set(for_target -D "CMAKE_C_FLAGS=${c_flags}")
run(${configure} -B ${scratch}/cmake ${for_target}
    -D "wanted=6.0 COMPONENTS kfmgenw7")
run(${CMAKE_COMMAND} --build ${scratch}/cmake)
run(${scratch}/cmake/consumer)
takes(${libraries} ldd ${scratch}/cmake/consumer)

# An older major version, what does not exist, and a target whose libraries are not there.
refused("version \"5.0\"" -B ${scratch}/refused ${for_target} -D wanted=5.0)
refused("kfmgen has no component nonsense" -B ${scratch}/refused ${for_target}
    -D "wanted=COMPONENTS kfmcore nonsense")
if(target STREQUAL "i386")
    refused("kfmgen is not installed for x86-64" -B ${scratch}/another_target)
endif()

# pkg-config, for a C89 program that has a run path, and one that asks for the library by its name.
set(ENV{PKG_CONFIG_PATH} ${libraries}/pkgconfig)
execute_process(COMMAND ${pkg_config} --cflags --libs kfmgen kfmcore
    OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
separate_arguments(c_flags UNIX_COMMAND "${c_flags}")
set(compile ${c_compiler} ${c_flags} -std=c89 -pedantic -Wall -Werror)
set(run_path -Wl,-rpath,${libraries})
run(${compile} ${consumer}/consumer.c -o ${scratch}/consumer ${flags} ${run_path})
run(${scratch}/consumer)
takes(${libraries} ldd ${scratch}/consumer)
run(${compile} ${consumer}/by_name.c -o ${scratch}/by_name -ldl ${run_path})
takes(${libraries} ${scratch}/by_name)

# Without a run path, where the environment names the folder.
run(${compile} ${consumer}/consumer.c -o ${scratch}/pathless ${flags})
run(${compile} ${consumer}/by_name.c -o ${scratch}/pathless_by_name -ldl)
set(ENV{LD_LIBRARY_PATH} ${libraries})
run(${scratch}/pathless)
takes(${libraries} ldd ${scratch}/pathless)
takes(${libraries} ${scratch}/pathless_by_name)

# Linked statically, the program needs no library any more.
set(ENV{LD_LIBRARY_PATH})
execute_process(COMMAND ${pkg_config} --static --cflags --libs kfmgen kfmcore
    OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
run(${compile} -static ${consumer}/consumer.c -o ${scratch}/static ${flags})
file(REMOVE_RECURSE ${libraries})
run(${scratch}/static)
