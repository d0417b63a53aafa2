# The packages that CPack makes: for each target the libraries, what programs are built with, the
# command-line tool where it is built, and the debug symbols; and the sources as an archive.
set(KFM_MAINTAINER
    "Seed af296dbe maintainers <maintainers@users.noreply.c-seed-af296dbe.example>")
set(CPACK_PACKAGE_CONTACT "${KFM_MAINTAINER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")   # each package has its own
set(CPACK_OUTPUT_FILE_PREFIX ${PROJECT_BINARY_DIR}/packages)

set(CPACK_SOURCE_GENERATOR TXZ)
set(CPACK_SOURCE_PACKAGE_FILE_NAME kfmgen-${PROJECT_VERSION})
string(REGEX REPLACE "([][+.*()^$?|\\])" "\\\\\\1" here "${PROJECT_SOURCE_DIR}")
set(CPACK_SOURCE_IGNORE_FILES "^${here}/build/" "^${here}/\\.git(/|$)" "~$" "\\.swp$")
set(CPACK_VERBATIM_VARIABLES ON)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE ${KFM_DEBIAN_ARCHITECTURE})
set(CPACK_DEBIAN_PACKAGE_SOURCE kfmgen)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
    GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/complete.cmake)
set(CPACK_KFM_COMPLETE ${CMAKE_CURRENT_LIST_DIR}/complete.sh)
set(CPACK_COMPONENTS_ALL "")

# kfm_package(<component> <name> SECTION <section> DESCRIPTION <text> [DEPENDS <relations>]
# [FIELDS <further lines of the control file>...]). They go where the section is written: of
# Multi-Arch this CPack knows nothing.
macro(kfm_package component name)
    cmake_parse_arguments(arg "" "SECTION;DESCRIPTION;DEPENDS" "FIELDS" ${ARGN})
    string(TOUPPER ${component} upper)
    list(PREPEND arg_FIELDS ${arg_SECTION})
    list(JOIN arg_FIELDS "\n" section)
    list(APPEND CPACK_COMPONENTS_ALL ${component})
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name})
    set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION "${section}")
    set(CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS "${arg_DEPENDS}")
    set(CPACK_DEBIAN_${upper}_DESCRIPTION "${arg_DESCRIPTION}")
endmacro()

# kfm_debug_symbols(<component>): the package of what complete.sh takes out of a component's files.
macro(kfm_debug_symbols component)
    string(TOUPPER ${component} upper)
    set(package ${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    kfm_package(${component}_dbgsym ${package}-dbgsym SECTION debug
        DESCRIPTION "debug symbols for ${package}"
        DEPENDS "${package} (= ${PROJECT_VERSION})"
        FIELDS "Multi-Arch: same" "Auto-Built-Package: debug-symbols")
    install(DIRECTORY DESTINATION lib/debug/.build-id COMPONENT ${component}_dbgsym)
endmacro()

# kfm_documents(<component> <package>): what every package says of itself.
function(kfm_documents component package)
    install(FILES ${PROJECT_SOURCE_DIR}/packaging/copyright ${PROJECT_BINARY_DIR}/changelog
        DESTINATION share/doc/${package} COMPONENT ${component})
    set(overrides ${PROJECT_SOURCE_DIR}/packaging/overrides/${package})
    if(EXISTS ${overrides})
        install(FILES ${overrides} DESTINATION share/lintian/overrides COMPONENT ${component})
    endif()
endfunction()

# Lines and functions: a kernel has no other variables than lanes of vectors.
set(debug_symbols -g1 -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
target_compile_options(library_flags INTERFACE ${debug_symbols})

configure_file(packaging/changelog.in ${PROJECT_BINARY_DIR}/changelog @ONLY)
set(runtime libkfmgenw7-${PROJECT_VERSION})
kfm_package(runtime ${runtime} SECTION libs FIELDS "Multi-Arch: same"
    DESCRIPTION "signal transforms of short fixed length
Complex and real DFT, Hartley and Walsh-Hadamard transforms, each length by a
function of its own with all constants built in, and the DCT-IV of any power
of two. Further, the same transforms of many rows at once.

On amd64 the dynamic loader chooses code for processors with AVX2 by itself.")
kfm_package(development libkfmgen-dev SECTION libdevel FIELDS "Multi-Arch: same"
    DEPENDS "${runtime} (= ${PROJECT_VERSION})"
    DESCRIPTION "signal transforms of short fixed length, development files
Headers for C and C++20, the static library, and what pkg-config and CMake
need to find them.")
kfm_documents(runtime ${runtime})
kfm_documents(development libkfmgen-dev)
kfm_debug_symbols(runtime)
if(TARGET kfmgen)
    target_compile_options(kfmgen PRIVATE ${debug_symbols})
    kfm_package(tool kfmgen SECTION sound FIELDS "Recommends: gnuplot-nox"
        DESCRIPTION "signal transforms of short fixed length at the command line
Applies the transforms of libkfmgenw7 to the frames of a sound or of a text
file with a sample per line and back, lists what there is, and shows spectra
and spectrograms of a sound, in the terminal or drawn by gnuplot.")
    kfm_documents(tool kfmgen)
    kfm_debug_symbols(tool)
endif()
if(TARGET kfmgen_python)
    target_compile_options(kfmgen_python PRIVATE ${debug_symbols})
    # What of NumPy's binary interface the module is built for, under the name that Debian has for it.
    file(STRINGS /usr/share/numpy3/versions numpy REGEX "^abi ")
    string(REPLACE "abi " python3-numpy-abi numpy "${numpy}")
    math(EXPR next "${KFM_PYTHON_MINOR} + 1")
    kfm_package(python python3-kfmgen SECTION python FIELDS "Suggests: python3-scipy, python3-dask"
        DEPENDS "python3 (>= 3.${KFM_PYTHON_MINOR}), python3 (<< 3.${next}), python3-numpy, ${numpy}"
        DESCRIPTION "signal transforms of short fixed length for NumPy arrays
The transforms of libkfmgenw7 along any axis of arrays of any shape and
strides, many rows at a time, and a backend for scipy.fft.")
    kfm_documents(python python3-kfmgen)
    kfm_debug_symbols(python)
    set(CPACK_DEBIAN_PYTHON_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/python/postinst
        ${PROJECT_SOURCE_DIR}/packaging/python/prerm)
endif()
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/control/shlibs
    ${PROJECT_BINARY_DIR}/control/symbols ${PROJECT_SOURCE_DIR}/packaging/triggers)
# For what another machine runs the tools are its own.
foreach(tool IN ITEMS OBJCOPY READELF STRIP)
    set(CPACK_KFM_${tool} ${CMAKE_${tool}})
endforeach()
set(CPACK_KFM_CONTROL ${PROJECT_BINARY_DIR}/control)
include(CPack)
