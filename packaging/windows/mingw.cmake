# Cross-compiling for Windows with Debian's mingw-w64; the -posix compilers bring std::thread.
# KOVA_WINDOWS_ARCH comes from the environment, so that CMake's own trial builds see it too.
set(CMAKE_SYSTEM_NAME Windows)
set(KOVA_WINDOWS_ARCH $ENV{KOVA_WINDOWS_ARCH})
set(CMAKE_SYSTEM_PROCESSOR ${KOVA_WINDOWS_ARCH})
set(triple ${KOVA_WINDOWS_ARCH}-w64-mingw32)

set(CMAKE_C_COMPILER ${triple}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triple}-g++-posix)
set(CMAKE_RC_COMPILER ${triple}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${triple} $ENV{KOVA_WINDOWS_PREFIX})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The compiler's runtime is part of each file: a host may have loaded other versions of its DLLs.
foreach(kind EXE MODULE SHARED)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT -static)
endforeach()
