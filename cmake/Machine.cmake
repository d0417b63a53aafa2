# What cannot be built is refused here, in one sentence, and not by a compiler in the middle.
include(CheckCXXSourceCompiles)

check_cxx_source_compiles("
#if !defined __SSE2__ || !(defined __i386__ || (defined __x86_64__ && defined __LP64__))
#error
#endif
int main() {}" KFM_X86_WITH_SSE2)
if(NOT KFM_X86_WITH_SSE2)
    message(FATAL_ERROR "kfmgen is for x86 processors with SSE2 (x86-64, i386), and "
        "${CMAKE_CXX_COMPILER} compiles for another.")
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
