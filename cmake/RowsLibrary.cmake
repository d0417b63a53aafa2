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
    kfm_run_kernelgen(${name} rows ${arg_INSTRUCTIONS} ${generated} ${kernels} ${entries} ${map})

    add_library(${name}-kernels OBJECT ${kernels})
    target_compile_options(${name}-kernels PRIVATE ${KFM_GENERATED_FLAGS} ${arg_FLAGS})
    kfm_precompile(${name}-kernels rows/run.h)
    add_library(${name}-calls OBJECT
        ${entries} rows/any_spacing.cpp rows/dct4.cpp rows/wht.cpp)
    target_compile_options(${name}-calls PRIVATE ${arg_FLAGS})
    foreach(part IN ITEMS kernels calls)
        kfm_library_part(${name}-${part} ${name}-sources)
    endforeach()
    add_library(${name} SHARED
        $<TARGET_OBJECTS:${name}-kernels> $<TARGET_OBJECTS:${name}-calls>)
    target_link_libraries(${name} PUBLIC ${arg_OF} PRIVATE library_flags kfmcore)
    target_link_options(${name} PRIVATE -Wl,--version-script=${map})
    set_target_properties(${name} PROPERTIES LINK_DEPENDS ${map}
        OUTPUT_NAME kfmrows LINKER_LANGUAGE CXX)
    kfm_place_variant(${name} kfmrows "${arg_FOLDER}")
endfunction()
