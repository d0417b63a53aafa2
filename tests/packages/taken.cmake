# The libraries that the installed packages have programs take. See installed_test.sh for what this
# script is given.
include(${CMAKE_CURRENT_LIST_DIR}/taken_libraries.cmake)
takes(/lib/${multiarch} ldd ${program})   # a link to the folder below, whose name the kernel has
if(NOT multiarch MATCHES "^i386")
    takes(/usr/lib/${multiarch} kfmgen info)
endif()
