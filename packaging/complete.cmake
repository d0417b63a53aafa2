# Run by CPack between installing the components into folders and packing these.
if(NOT CPACK_GENERATOR STREQUAL "DEB")
    return()   # the sources go as they are
endif()
set(ENV{OBJCOPY} ${CPACK_KFM_OBJCOPY})
set(ENV{READELF} ${CPACK_KFM_READELF})
set(ENV{STRIP} ${CPACK_KFM_STRIP})
execute_process(COMMAND ${CPACK_KFM_COMPLETE} ${CPACK_TEMPORARY_DIRECTORY} ${CPACK_KFM_CONTROL}
    ${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME} ${CPACK_PACKAGE_VERSION}
    ${CPACK_DEBIAN_PACKAGE_ARCHITECTURE} COMMAND_ERROR_IS_FATAL ANY)
foreach(component IN ITEMS runtime tool python)
    string(TOUPPER CPACK_DEBIAN_${component}_PACKAGE package)
    if(DEFINED ${package}_NAME)
        file(STRINGS ${CPACK_KFM_CONTROL}/${component}.depends libraries)
        list(PREPEND ${package}_DEPENDS ${libraries})
        list(JOIN ${package}_DEPENDS ", " ${package}_DEPENDS)
    endif()
endforeach()
