# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Quindar developers
# What an installation puts under its prefix: the programs in bin/, their folders in
# share/quindar/ (where the desktop program looks when its own folder has no Library), and the
# desktop entry, MIME type and icons where the desktop finds them.
include(GNUInstallDirs)
set(QUINDAR_INSTALL_SHARE ${CMAKE_INSTALL_DATADIR}/quindar)

foreach(program IN ITEMS quindar-cli quindar)
    if(TARGET ${program})
        install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    endif()
endforeach()

install(DIRECTORY ${PROJECT_SOURCE_DIR}/Library/ DESTINATION ${QUINDAR_INSTALL_SHARE}/Library
    PATTERN tools EXCLUDE PATTERN README.md EXCLUDE)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/Examples/ DESTINATION ${QUINDAR_INSTALL_SHARE}/Examples)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/help/ DESTINATION ${QUINDAR_INSTALL_SHARE}/help)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/resources/icons/
    DESTINATION ${QUINDAR_INSTALL_SHARE}/icons)

if(TARGET quindar_assets)
    install(DIRECTORY ${QUINDAR_SOUNDS_DIR}/ DESTINATION ${QUINDAR_INSTALL_SHARE}/Sounds)
    install(FILES ${QUINDAR_DESKTOP_FILES_DIR}/quindar.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
    install(FILES ${QUINDAR_DESKTOP_FILES_DIR}/quindar.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
endif()
if(TARGET quindar_bitmaps)
    install(FILES ${QUINDAR_PROGRAM_DIR}/QuindarSplash.bmp DESTINATION ${QUINDAR_INSTALL_SHARE})
    install(DIRECTORY ${QUINDAR_ICON_THEME_DIR}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
endif()
install(FILES ${PROJECT_SOURCE_DIR}/resources/icons/1001.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps RENAME quindar.svg)
install(FILES ${PROJECT_SOURCE_DIR}/resources/icons/1002.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/mimetypes
    RENAME application-x-quindar.svg)
