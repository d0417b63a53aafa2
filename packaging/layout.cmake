# What Debian packages want otherwise than `make install`: the folders of /usr, and no run paths,
# because the loader knows where the libraries are.
set(CMAKE_INSTALL_PREFIX /usr)
if(KFM_TARGET STREQUAL "i386")
    set(KFM_DEBIAN_ARCHITECTURE i386)
    set(CMAKE_INSTALL_LIBDIR lib/i386-linux-gnu)
else()
    set(KFM_DEBIAN_ARCHITECTURE amd64)
    set(CMAKE_INSTALL_LIBDIR lib/x86_64-linux-gnu)
endif()
set(CMAKE_SKIP_INSTALL_RPATH ON)
set(KFM_ZSH_FOLDER zsh/vendor-completions)
