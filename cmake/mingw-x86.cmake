# Cross-compiles for x86 Windows with mingw-w64 (posix threads).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(TELVIX_TRIPLE i686-w64-mingw32)
set(CMAKE_C_COMPILER ${TELVIX_TRIPLE}-gcc-posix) # GoogleTest asks for one
set(CMAKE_CXX_COMPILER ${TELVIX_TRIPLE}-g++-posix)
set(CMAKE_RC_COMPILER ${TELVIX_TRIPLE}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${TELVIX_TRIPLE})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_CROSSCOMPILING_EMULATOR wine)
# Both architectures compute alike, and a host whose stack is aligned to 4 bytes, as many are, is safe.
set(CMAKE_C_FLAGS_INIT "-msse2 -mfpmath=sse -mstackrealign")
set(CMAKE_CXX_FLAGS_INIT ${CMAKE_C_FLAGS_INIT})
