# kfm_add_transform_library(<name> INSTRUCTIONS <row of the generator> [FOLDER <below lib>]
# [FLAGS <compiler flags>...]): generates the kernels for an instruction set and builds the library
# from them. Its parts are targets as well: <name>-sources, <name>-kernels, the DCT-IV below its public
# calls as objects that tests reach, <name>-codelets and <name>-planner, and the rest, <name>-calls.
function(kfm_add_transform_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "INSTRUCTIONS;FOLDER" "FLAGS")
    string(REPLACE kfmgenw7 generated folder ${name})
    set(generated ${PROJECT_BINARY_DIR}/${folder})
    kfm_generated_kernels(kernels)
    kfm_generated_codelets(codelets)
    list(TRANSFORM kernels PREPEND ${generated}/)
    list(TRANSFORM codelets PREPEND ${generated}/)
    set(entries ${generated}/core/generic_entries.cpp)
    set(map ${generated}/kfmgenw7.map)

    kfm_run_kernelgen(${name} build ${arg_INSTRUCTIONS} ${generated}
        ${kernels} ${codelets} ${entries} ${generated}/registry/functions.cpp ${map})

    add_library(${name}-kernels OBJECT ${kernels})
    target_compile_options(${name}-kernels PRIVATE ${KFM_GENERATED_FLAGS} ${arg_FLAGS})
    kfm_precompile(${name}-kernels core/complex_kernel.h core/real_kernel.h)

    add_library(${name}-codelets OBJECT ${codelets} dct4/odd_transform.cpp)
    set_source_files_properties(${codelets} PROPERTIES COMPILE_OPTIONS "${KFM_GENERATED_FLAGS}")
    add_library(${name}-planner OBJECT
        dct4/arena.cpp dct4/env_list.cpp dct4/index_maps.cpp dct4/input_stage.cpp dct4/numbers.cpp
        dct4/output_stage.cpp dct4/recursion.cpp dct4/root.cpp)
    foreach(part IN ITEMS codelets planner)
        target_compile_options(${name}-${part} PRIVATE ${KFM_LONG_FRAME_FLAGS} ${arg_FLAGS})
    endforeach()
    add_library(${name}-calls OBJECT
        ${entries} core/version.cpp wht/buffer_size.cpp dct4/calls.cpp)
    target_compile_options(${name}-calls PRIVATE ${arg_FLAGS})
    foreach(part IN ITEMS kernels codelets planner calls)
        kfm_library_part(${name}-${part} ${name}-sources)
    endforeach()

    add_library(${name} SHARED
        $<TARGET_OBJECTS:${name}-kernels> $<TARGET_OBJECTS:${name}-codelets>
        $<TARGET_OBJECTS:${name}-planner> $<TARGET_OBJECTS:${name}-calls>)
    target_link_libraries(${name} PRIVATE library_flags kfmcore m)
    target_link_options(${name} PRIVATE -Wl,--version-script=${map})
    set_target_properties(${name} PROPERTIES LINK_DEPENDS ${map}
        OUTPUT_NAME kfmgenw7 LINKER_LANGUAGE CXX)
    kfm_place_variant(${name} kfmgenw7 "${arg_FOLDER}")
endfunction()

# kfm_run_kernelgen(<name> <command> <row of the generator> <folder> <file>...): the target
# <name>-sources, which writes the files. The stamp is what depends on the generator: kernelgen leaves
# files that would not change alone, so their objects are not compiled again.
function(kfm_run_kernelgen name command instructions folder)
    set(stamp ${folder}.stamp)
    add_custom_command(
        OUTPUT ${stamp}
        BYPRODUCTS ${ARGN}
        COMMAND kernelgen ${command} --target ${instructions} --output ${folder}
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS kernelgen ${KFM_KERNELGEN}
        COMMENT "Generating ${name} for ${instructions}"
        VERBATIM)
    add_custom_target(${name}-sources DEPENDS ${stamp})
endfunction()

# kfm_library_part(<objects> [<sources>]): objects of a library, compiled when these sources are there.
function(kfm_library_part objects)
    if(ARGN)
        add_dependencies(${objects} ${ARGN})
    endif()
    target_link_libraries(${objects} PRIVATE library_flags)
    target_include_directories(${objects} PUBLIC
        ${CMAKE_CURRENT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include)
    set_target_properties(${objects} PROPERTIES POSITION_INDEPENDENT_CODE ON)
endfunction()

# kfm_place_variant(<name> <base> <folder>): where a library goes below lib: the base itself, or in
# its folder the variant that the loader takes instead of it.
function(kfm_place_variant name base folder)
    set_target_properties(${name} PROPERTIES
        LIBRARY_OUTPUT_DIRECTORY ${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/${folder})
    if(folder)
        set_property(GLOBAL APPEND PROPERTY KFM_VARIANTS ${name})
        set_property(TARGET ${name} PROPERTY KFM_FOLDER ${folder})
        # The loader would take a variant that is older than the library it stands for.
        add_dependencies(${name} ${base})
        set(variant ${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/${folder})
        add_custom_command(TARGET ${base} POST_BUILD
            COMMAND ${CMAKE_COMMAND} -E rm -f ${variant}/$<TARGET_FILE_NAME:${base}>
            COMMAND ${CMAKE_COMMAND} -E make_directory ${variant} VERBATIM)
        set_property(TARGET ${name} APPEND PROPERTY LINK_DEPENDS $<TARGET_FILE:${base}>)
    endif()
    # The loader looks for the companions beside a variant, and finds them where the folder hangs.
    file(RELATIVE_PATH up /${folder} /)
    string(REGEX REPLACE "/$" "" up "${up}")
    kfm_public_library(${name} "$ORIGIN$<$<BOOL:${up}>::$ORIGIN/${up}>")
endfunction()

# kfm_public_library(<name> <run path>): what programs link, found wherever the folder is put.
function(kfm_public_library name run_path)
    target_include_directories(${name} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    set_target_properties(${name} PROPERTIES
        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION}
        BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH "${run_path}")
    add_library(kfm::${name} ALIAS ${name})   # as in the installed package
endfunction()
