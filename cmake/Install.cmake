# Installation: libraries with their development links, headers, pkg-config files, CMake package.
# Component "runtime" is what programs need to run, "development" to be built; the tool's is "tool".
include(CMakePackageConfigHelpers)
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME development)

# The loader prefers any variant to the base library: one that is there already is of another build.
install(CODE "
    cmake_path(ABSOLUTE_PATH CMAKE_INSTALL_PREFIX NORMALIZE OUTPUT_VARIABLE libraries)
    cmake_path(APPEND libraries [[${CMAKE_INSTALL_LIBDIR}]])
    set(folders \"\$ENV{DESTDIR}\${libraries}/glibc-hwcaps/*\")
    file(GLOB variants \"\${folders}/$<TARGET_FILE_NAME:kfmgenw7>\"
        \"\${folders}/$<TARGET_FILE_NAME:kfmrows>\")
    if(variants)
        file(REMOVE \${variants})
    endif()" COMPONENT runtime)
install(TARGETS kfmgenw7 kfmrows kfmcore kfmgen-static EXPORT kfmgen-targets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
get_property(variants GLOBAL PROPERTY KFM_VARIANTS)
foreach(variant IN LISTS variants)
    get_target_property(folder ${variant} KFM_FOLDER)
    install(TARGETS ${variant}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/${folder} COMPONENT runtime NAMELINK_SKIP)
endforeach()
install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

# In a folder that CMake searches for every target: lib32 it does not search on Debian.
set(package_dir ${CMAKE_INSTALL_DATADIR}/cmake/kfmgen)
install(EXPORT kfmgen-targets NAMESPACE kfm:: DESTINATION ${package_dir}
        FILE kfmgen-targets-${KFM_TARGET}.cmake)
function(kfm_version_file)
    set(CMAKE_SIZEOF_VOID_P "")   # the file is the same for all targets
    write_basic_package_version_file(${PROJECT_BINARY_DIR}/kfmgen-config-version.cmake
        COMPATIBILITY SameMajorVersion)
endfunction()
kfm_version_file()
install(FILES cmake/kfmgen-config.cmake ${PROJECT_BINARY_DIR}/kfmgen-config-version.cmake
        DESTINATION ${package_dir})

# kfm_pkgconfig(<file> <library> <description> [<packages that it requires>])
function(kfm_pkgconfig name library description)
    set(requires ${ARGN})
    set(here /${CMAKE_INSTALL_LIBDIR}/pkgconfig)
    file(RELATIVE_PATH prefix_from_here ${here} /)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/package.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${name}.pc
            DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()
kfm_pkgconfig(kfmgen kfmgenw7 "${PROJECT_DESCRIPTION}")
kfm_pkgconfig(kfmrows kfmrows "Many short transforms at once, with strides" kfmgen)
kfm_pkgconfig(kfmcore kfmcore "Aligned memory blocks, the companion of kfmgen")
