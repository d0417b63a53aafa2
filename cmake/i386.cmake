# 32-bit x86 by the compiler of a 64-bit machine. Scalar arithmetic is SSE2 as well, so that both
# targets round alike.
set(flags "-m32 -msse2 -mfpmath=sse")
set(CMAKE_C_FLAGS_INIT ${flags})
set(CMAKE_CXX_FLAGS_INIT ${flags})
set(CMAKE_INSTALL_LIBDIR lib32 CACHE PATH "Object libraries, beside those of the 64-bit target")
