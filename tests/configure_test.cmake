# What configuring refuses, and that a project may be around this one. See CMakeLists.txt for what
# this script is given.
include(${CMAKE_CURRENT_LIST_DIR}/support/refused.cmake)
set(arguments -D CMAKE_C_COMPILER=${c_compiler} -D CMAKE_CXX_COMPILER=${cxx_compiler}
    -D CMAKE_C_FLAGS=${flags} -D KFM_KERNELGEN=${kernelgen})
set(configure ${CMAKE_COMMAND} -S ${source_dir} ${arguments})
file(REMOVE_RECURSE ${scratch})
unset(ENV{CXX})

refused("compiles for another machine" -B ${scratch}/another_processor
    -D "CMAKE_CXX_FLAGS=${flags} -U__x86_64__ -U__i386__ -U__AARCH64EL__")

# For a project around it, targets have the names of the installed package. A small one is built.
execute_process(COMMAND ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/install/consumer
    -B ${scratch}/around ${arguments} -D CMAKE_CXX_FLAGS=${flags} -D source_dir=${source_dir}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${scratch}/around --target kfmcore
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

# Without variants the loader must not find one that was built before.
set(variant ${scratch}/folder/lib/glibc-hwcaps/x86-64-v3/libkfmgenw7.so.6.1)
file(MAKE_DIRECTORY ${scratch}/folder/lib/glibc-hwcaps/x86-64-v3)
file(TOUCH ${variant})
execute_process(COMMAND ${configure} -B ${scratch}/folder -D CMAKE_CXX_FLAGS=${flags}
    -D KFM_VARIANTS=OFF OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
if(EXISTS ${variant})
    message(FATAL_ERROR "A folder without variants has ${variant}")
endif()
set(ENV{CXX} ${CMAKE_COMMAND})   # any other program
refused("is configured for .*, not for" -B ${scratch}/folder)
