# libkfmgen.a: all libraries in one archive, for programs that are linked statically. It is made for
# every processor, because there is no loader to choose. The names of the shared libraries lead to it as
# well, so that `cc -static ... $(pkg-config --static --libs kfmgen)` finds it.
set(objects)
foreach(part IN ITEMS kfmcore-calls kfmrows-kernels kfmrows-calls
        kfmgenw7-kernels kfmgenw7-codelets kfmgenw7-planner kfmgenw7-calls)
    list(APPEND objects $<TARGET_OBJECTS:${part}>)
endforeach()
add_library(kfmgen-static STATIC ${objects})
set_target_properties(kfmgen-static PROPERTIES
    OUTPUT_NAME kfmgen EXPORT_NAME kfmgen_static LINKER_LANGUAGE CXX
    ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
target_link_libraries(kfmgen-static INTERFACE m)
target_include_directories(kfmgen-static INTERFACE
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
add_library(kfm::kfmgen_static ALIAS kfmgen-static)   # as in the installed package

set(names)
foreach(library IN ITEMS kfmcore kfmgenw7 kfmrows)
    list(APPEND names ${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/lib${library}.a)
    add_custom_command(TARGET kfmgen-static POST_BUILD
        COMMAND ${CMAKE_COMMAND} -E create_symlink libkfmgen.a lib${library}.a
        WORKING_DIRECTORY ${CMAKE_LIBRARY_OUTPUT_DIRECTORY} VERBATIM)
endforeach()
install(FILES ${names} DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
