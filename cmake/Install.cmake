# Installation: libraries with their development links, headers, pkg-config files, CMake package.
include(CMakePackageConfigHelpers)

install(TARGETS kfmgenw7 kfmcore EXPORT kfmgen-targets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
if(TARGET kfmgenw7-v3)
    install(TARGETS kfmgenw7-v3
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/glibc-hwcaps/x86-64-v3 NAMELINK_SKIP)
endif()
install(FILES include/kfmgen.h include/kfmcore.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

# In a folder that CMake searches for every target: lib32 it does not search on Debian.
set(package_dir ${CMAKE_INSTALL_DATADIR}/cmake/kfmgen)
install(EXPORT kfmgen-targets NAMESPACE kfm:: DESTINATION ${package_dir}
        FILE kfmgen-targets-${KFM_TARGET}.cmake)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/kfmgen-config-version.cmake
    COMPATIBILITY SameMajorVersion ARCH_INDEPENDENT)
install(FILES cmake/kfmgen-config.cmake ${PROJECT_BINARY_DIR}/kfmgen-config-version.cmake
        DESTINATION ${package_dir})

# kfm_pkgconfig(<file> <library> <description>)
function(kfm_pkgconfig name library description)
    set(here /${CMAKE_INSTALL_LIBDIR}/pkgconfig)
    file(RELATIVE_PATH prefix_from_here ${here} /)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/package.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${name}.pc
            DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()
kfm_pkgconfig(kfmgen kfmgenw7 "${PROJECT_DESCRIPTION}")
kfm_pkgconfig(kfmcore kfmcore "Aligned memory blocks, the companion of kfmgen")
