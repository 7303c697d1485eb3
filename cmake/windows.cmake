# The toolchain file for 64-bit Windows programs that need only the system's libraries. It uses
# Debian's MinGW-w64.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# Ignores the libraries and headers of this machine.
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${CMAKE_PREFIX_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_FIND_PACKAGE_PREFER_CONFIG ON)

set(CMAKE_CXX_FLAGS_INIT "-ffunction-sections -fdata-sections")
# The linker removes the symbols and writes no time, so the same sources give the same program.
# strip would write the time again.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -s -Wl,--gc-sections -Wl,--no-insert-timestamp")
