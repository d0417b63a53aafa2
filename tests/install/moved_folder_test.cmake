# Programs of a build folder take the libraries beside them when the folder has another name. See
# CMakeLists.txt for what this script is given.
include(${CMAKE_CURRENT_LIST_DIR}/taken_libraries.cmake)
file(REMOVE_RECURSE ${scratch})
file(COPY ${binary_dir}/lib DESTINATION ${scratch})
foreach(program IN LISTS programs)
    file(COPY ${binary_dir}/bin/${program} DESTINATION ${scratch}/bin)
    takes(${scratch}/lib ldd ${scratch}/bin/${program})
endforeach()
