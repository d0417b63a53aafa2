# What cannot be built is refused here, in one sentence, and not by a compiler in the middle.
include(CheckCXXSourceCompiles)

# kfm_find_target(<target> <instructions> <condition>): sets KFM_TARGET and KFM_INSTRUCTIONS, the row
# of the generator for any machine of this target, where the condition holds for the preprocessor.
# Looks no further where they are set.
function(kfm_find_target target instructions condition)
    if(KFM_TARGET)
        return()
    endif()
    string(MAKE_C_IDENTIFIER KFM_IS_${target} is)
    check_cxx_source_compiles("
#if !(${condition})
#error
#endif
int main() {}" ${is})
    if(${is})
        set(KFM_TARGET ${target} PARENT_SCOPE)
        set(KFM_INSTRUCTIONS ${instructions} PARENT_SCOPE)
    endif()
endfunction()
set(KFM_TARGET "")
kfm_find_target(x86-64 sse2-x86-64 "defined __x86_64__ && defined __LP64__ && defined __SSE2__")
kfm_find_target(i386 sse2-i386 "defined __i386__ && defined __SSE2__")
kfm_find_target(aarch64 neon-aarch64 "defined __AARCH64EL__ && defined __LP64__ && defined __ARM_NEON")
if(NOT KFM_TARGET)
    message(FATAL_ERROR "kfmgen is for x86-64, i386 with SSE2 and AArch64, and "
        "${CMAKE_CXX_COMPILER} compiles for another machine.")
endif()

# Whether the target is that of this machine's own programs: not its 32 bits, nor an emulated one.
# What needs further libraries, and what one target is enough for, is built there.
set(KFM_OF_THIS_MACHINE ON)
if(CMAKE_CROSSCOMPILING OR KFM_TARGET STREQUAL "i386")
    set(KFM_OF_THIS_MACHINE OFF)
endif()

# A folder keeps the compiler it was configured with; CMake says nothing when CXX names another.
set(KFM_CXX "$ENV{CXX}" CACHE STRING "What CXX was when this folder was configured")
mark_as_advanced(KFM_CXX)
if(NOT "$ENV{CXX}" STREQUAL "" AND NOT "$ENV{CXX}" STREQUAL KFM_CXX)
    separate_arguments(wanted UNIX_COMMAND "$ENV{CXX}")
    list(POP_FRONT wanted wanted)
    find_program(wanted_path NAMES ${wanted} NO_CACHE)
    file(REAL_PATH "${wanted_path}" wanted_path)
    file(REAL_PATH "${CMAKE_CXX_COMPILER}" present_path)
    if(NOT wanted_path STREQUAL present_path)
        message(FATAL_ERROR "This folder is configured for ${CMAKE_CXX_COMPILER}, not for $ENV{CXX}: "
            "take another folder, or remove this one first.")
    endif()
endif()
