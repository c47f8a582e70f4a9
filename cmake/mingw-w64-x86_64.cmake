# SPDX-FileCopyrightText: 2026 Marivox Developers
# SPDX-License-Identifier: GPL-3.0-or-later
# Cross-compiling the Windows game with Debian's MinGW-w64; programs built for the build
# itself (the sound generator, the tests) run under Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
# C is for what must catch a structured exception (an RPC call that fails raises one): clang
# compiles __try/__except for MinGW's target, MinGW's gcc does not. It links with that gcc's
# runtime, whose folder it does not find alone.
set(CMAKE_C_COMPILER clang)
set(CMAKE_C_COMPILER_TARGET x86_64-w64-mingw32)
execute_process(COMMAND x86_64-w64-mingw32-gcc-posix -print-libgcc-file-name
    OUTPUT_VARIABLE mingw_libgcc OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
get_filename_component(mingw_runtime ${mingw_libgcc} DIRECTORY)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
# Quiet, and without asking for the .NET and browser engines a fresh Wine prefix offers.
set(CMAKE_CROSSCOMPILING_EMULATOR env WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml= wine)
# MinGW's runtime goes inside each program and library, so they run from any folder alone.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -L${mingw_runtime}")
set(CMAKE_SHARED_LINKER_FLAGS_INIT -static)
