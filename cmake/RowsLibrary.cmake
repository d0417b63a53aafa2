# kfm_add_rows_library(<name> OF <transform library> INSTRUCTIONS <row of the generator>
# [FOLDER <below lib>] [FLAGS <compiler flags>...]): the library of rows beside a library of
# transforms, for the same instruction set.
function(kfm_add_rows_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "OF;INSTRUCTIONS;FOLDER" "FLAGS")
    string(REPLACE kfmrows generated-rows folder ${name})
    set(generated ${PROJECT_BINARY_DIR}/${folder})
    kfm_generated_kernels(kernels)
    list(FILTER kernels EXCLUDE REGEX "^wht/")
    list(TRANSFORM kernels REPLACE "^.*/" "${generated}/rows/")
    set(entries ${generated}/rows/entries.cpp)
    set(map ${generated}/kfmrows.map)
    set(stamp ${generated}.stamp)
    add_custom_command(
        OUTPUT ${stamp}
        BYPRODUCTS ${kernels} ${entries} ${map}
        COMMAND kernelgen rows --target ${arg_INSTRUCTIONS} --output ${generated}
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS kernelgen ${KFM_KERNELGEN}
        COMMENT "Generating kernels of rows for ${arg_INSTRUCTIONS}"
        VERBATIM)
    add_custom_target(${name}-sources DEPENDS ${stamp})

    add_library(${name}-kernels OBJECT ${kernels})
    target_compile_options(${name}-kernels PRIVATE ${KFM_GENERATED_FLAGS} ${arg_FLAGS})
    kfm_precompile(${name}-kernels rows/run.h)
    add_library(${name} SHARED ${entries} rows/any_spacing.cpp rows/dct4.cpp
        rows/wht.cpp $<TARGET_OBJECTS:${name}-kernels>)
    target_compile_options(${name} PRIVATE ${arg_FLAGS})
    foreach(part IN ITEMS ${name} ${name}-kernels)
        add_dependencies(${part} ${name}-sources)
        target_link_libraries(${part} PRIVATE library_flags)
        target_include_directories(${part} PRIVATE
            ${CMAKE_CURRENT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include)
        set_target_properties(${part} PROPERTIES POSITION_INDEPENDENT_CODE ON)
    endforeach()
    target_link_libraries(${name} PUBLIC ${arg_OF} PRIVATE kfmcore)
    target_link_options(${name} PRIVATE -Wl,--version-script=${map})
    set_target_properties(${name} PROPERTIES LINK_DEPENDS ${map} OUTPUT_NAME kfmrows)
    kfm_place_variant(${name} kfmrows "${arg_FOLDER}")
endfunction()
