# SPDX-FileCopyrightText: 2026 Marivox Developers
# SPDX-License-Identifier: GPL-3.0-or-later
# Installing Marivox the way a Debian game is installed, and its .deb (cpack -G DEB).
#
#   <prefix>/lib/marivox/        the program folder: the game, its help viewer, sounds, help
#   <prefix>/bin/marivox         a link to the game (games/ when the prefix is /usr)
#   <prefix>/share/applications, metainfo, icons/hicolor   the desktop's entries
#
# The game finds its sounds and help beside the binary the link resolves to, so the tree
# may be installed under any prefix.

add_subdirectory(${PROJECT_SOURCE_DIR}/tools/iconrender ${CMAKE_BINARY_DIR}/tools/iconrender)

set(MARIVOX_ID org.marivox.Marivox)
set(program_folder lib/marivox)

install(TARGETS marivox marivox-help RUNTIME DESTINATION ${program_folder})
get_property(sound_files GLOBAL PROPERTY MARIVOX_SOUND_FILES)
install(FILES ${sound_files} ${CMAKE_BINARY_DIR}/marvox.hlp
    DESTINATION ${program_folder})

# Decided at install time: cpack installs under its own prefix, not the configured one.
install(CODE [[
    if(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
        set(launcher_dir games)
    else()
        set(launcher_dir bin)
    endif()
    set(launcher "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/${launcher_dir}/marivox")
    message(STATUS "Installing: ${launcher} -> ../lib/marivox/marivox")
    file(MAKE_DIRECTORY "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/${launcher_dir}")
    file(REMOVE "${launcher}")
    file(CREATE_LINK ../lib/marivox/marivox "${launcher}" SYMBOLIC)
]])

install(FILES ${PROJECT_SOURCE_DIR}/assets/desktop/${MARIVOX_ID}.desktop
    DESTINATION share/applications)
install(FILES ${PROJECT_SOURCE_DIR}/assets/desktop/${MARIVOX_ID}.metainfo.xml
    DESTINATION share/metainfo)
install(FILES ${PROJECT_SOURCE_DIR}/assets/icons/${MARIVOX_ID}.svg
    DESTINATION share/icons/hicolor/scalable/apps)
foreach(size 16 24 32 48 64 128 256)
    install(FILES ${MARIVOX_ICON_DIR}/${size}x${size}/${MARIVOX_ID}.png
        DESTINATION share/icons/hicolor/${size}x${size}/apps)
endforeach()

# What Debian asks of every package's documentation folder: the licence, machine-readable,
# and a changelog compressed without a time stamp so that builds are reproducible.
# The manual page is compressed the same way, as Debian's policy asks.
set(changelog_gz ${CMAKE_BINARY_DIR}/changelog.gz)
set(manual_gz ${CMAKE_BINARY_DIR}/marivox.6.gz)
add_custom_command(OUTPUT ${changelog_gz} ${manual_gz}
    COMMAND gzip -9nc ${PROJECT_SOURCE_DIR}/assets/debian/changelog > ${changelog_gz}
    COMMAND gzip -9nc ${PROJECT_SOURCE_DIR}/assets/man/marivox.6 > ${manual_gz}
    DEPENDS ${PROJECT_SOURCE_DIR}/assets/debian/changelog ${PROJECT_SOURCE_DIR}/assets/man/marivox.6
    VERBATIM)
add_custom_target(marivox_documents ALL DEPENDS ${changelog_gz} ${manual_gz})
install(FILES ${PROJECT_SOURCE_DIR}/assets/debian/copyright ${changelog_gz}
    DESTINATION share/doc/marivox)
install(FILES ${manual_gz} DESTINATION share/man/man6)

set(CPACK_PACKAGE_NAME marivox)
set(CPACK_PACKAGE_VENDOR "Marivox Developers")
set(CPACK_PACKAGE_CONTACT "Marivox Developers <dev@marivox.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "spoken naval guessing game for blind players")
set(CPACK_PACKAGE_DESCRIPTION
    "You and the computer each hide six ships on a nine by nine ocean and fire
in turns. Every event is spoken through speech-dispatcher, as Orca speaks,
and most play a short sound; the board is a keyboard grid. Nothing in the
game needs the screen.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Qt's X11 platform plugin is loaded at run time, so shlibdeps cannot see it.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "speech-dispatcher, pulseaudio | pipewire-pulse")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "orca")
set(CPACK_GENERATOR DEB)
include(CPack)
