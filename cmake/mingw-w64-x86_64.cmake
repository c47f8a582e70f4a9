# SPDX-FileCopyrightText: 2026 Marivox Developers
# SPDX-License-Identifier: GPL-3.0-or-later
# Cross-compiling the Windows game with Debian's MinGW-w64; programs built for the build
# itself (the sound generator, the tests) run under Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
# Quiet, and without asking for the .NET and browser engines a fresh Wine prefix offers.
set(CMAKE_CROSSCOMPILING_EMULATOR env WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml= wine)
# MinGW's runtime goes inside each program and library, so they run from any folder alone.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_SHARED_LINKER_FLAGS_INIT -static)
