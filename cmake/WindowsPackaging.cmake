# SPDX-FileCopyrightText: 2026 Marivox Developers
# SPDX-License-Identifier: GPL-3.0-or-later
# The Windows package from the cross build: one program folder (the game, its sounds and
# help, the licence), as a zip and as an installer with a Start menu entry and an
# uninstaller (cpack -G "ZIP;NSIS").
install(TARGETS marivox RUNTIME DESTINATION .)
get_property(sound_files GLOBAL PROPERTY MARIVOX_SOUND_FILES)
install(FILES ${sound_files} ${CMAKE_BINARY_DIR}/marvox.hlp ${CMAKE_BINARY_DIR}/marvox.htm
    DESTINATION .)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION . RENAME LICENSE.txt)

set(CPACK_PACKAGE_NAME Marivox)
set(CPACK_PACKAGE_VENDOR "Marivox Developers")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Spoken naval guessing game for blind players")
set(CPACK_PACKAGE_FILE_NAME marivox-${PROJECT_VERSION}-windows-x86_64)
set(CPACK_PACKAGE_INSTALL_DIRECTORY Marivox)
set(CPACK_PACKAGE_EXECUTABLES marivox Marivox)
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR ZIP NSIS)
set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY ON)
# A 64-bit installer, for a 64-bit game.
set(CPACK_NSIS_DEFINES "Target amd64-unicode")
set(CPACK_NSIS_INSTALL_ROOT "$PROGRAMFILES64")
set(CPACK_NSIS_DISPLAY_NAME Marivox)
set(CPACK_NSIS_PACKAGE_NAME Marivox)
set(CPACK_NSIS_INSTALLED_ICON_NAME marivox.exe)
set(CPACK_NSIS_MUI_ICON ${PROJECT_SOURCE_DIR}/assets/icons/marivox.ico)
set(CPACK_NSIS_MUI_UNIICON ${PROJECT_SOURCE_DIR}/assets/icons/marivox.ico)
set(CPACK_NSIS_ENABLE_UNINSTALL_BEFORE_INSTALL ON)
include(CPack)
