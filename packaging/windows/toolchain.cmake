# Builds for 64-bit Windows with the mingw compiler. ORDEX_WINDOWS_LIBRARIES is the folder in which the
# static libraries stand (see libraries.sh); without it only the compiler's own are found.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)

# The variant with the posix threads: the other one has no std::thread, which the libraries use.
set(triplet x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${triplet}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triplet}-g++-posix)
set(CMAKE_RC_COMPILER ${triplet}-windres)

# CMake asks the compiler in projects of its own, which are to know the folder too.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES ORDEX_WINDOWS_LIBRARIES)
set(CMAKE_FIND_ROOT_PATH ${ORDEX_WINDOWS_LIBRARIES} /usr/${triplet})
set(CMAKE_PREFIX_PATH ${ORDEX_WINDOWS_LIBRARIES})
# Programs are those of this machine; nothing else of it may get in.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# The libraries' own descriptions, where CMake's would look for this machine's.
set(CMAKE_FIND_PACKAGE_PREFER_CONFIG ON)
set(ENV{PKG_CONFIG_LIBDIR} ${ORDEX_WINDOWS_LIBRARIES}/lib/pkgconfig)
set(ENV{PKG_CONFIG_PATH} "")

# Windows 10 is the oldest system that the programs are for.
add_compile_definitions(_WIN32_WINNT=0x0A00 WINVER=0x0A00 NTDDI_VERSION=0x0A000000)
# No library of the compiler goes along as a DLL.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
