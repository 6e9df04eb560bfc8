# Windows programs made on Linux, by the toolchain that the preset names:
# SKERRAND_WINDOWS_PROCESSOR is x86_64 or i686. What is built runs under Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES SKERRAND_WINDOWS_PROCESSOR)
set(CMAKE_SYSTEM_PROCESSOR ${SKERRAND_WINDOWS_PROCESSOR})
set(toolchain ${SKERRAND_WINDOWS_PROCESSOR}-w64-mingw32)
set(CMAKE_C_COMPILER ${toolchain}-gcc-posix)  # of the test library
set(CMAKE_CXX_COMPILER ${toolchain}-g++-posix)
set(CMAKE_RC_COMPILER ${toolchain}-windres)

# Windows 7 is the oldest that the programs run on.
set(CMAKE_CXX_FLAGS_INIT "-D_WIN32_WINNT=0x0601 -DUNICODE -ffunction-sections -fdata-sections")
if(SKERRAND_WINDOWS_PROCESSOR STREQUAL i686)
    # Doubles of 64 bits and not of 80, so that the same positions come out.
    string(APPEND CMAKE_CXX_FLAGS_INIT " -msse2 -mfpmath=sse")
endif()
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--gc-sections")
set(CMAKE_EXE_LINKER_FLAGS_RELEASE_INIT "-s")

set(CMAKE_FIND_ROOT_PATH /usr/${toolchain})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/wine)
