# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Quindar developers
# Installs the build under a fresh prefix and checks the tree it made.
#   BUILD   the build folder
#   PREFIX  the prefix to install under, emptied first
#   FILES   the paths, relative to the prefix, that must be there ("|" between them)
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${PREFIX}
    OUTPUT_VARIABLE printed ERROR_VARIABLE errors RESULT_VARIABLE code)
if(NOT code STREQUAL "0")
    message(FATAL_ERROR "cmake --install failed (${code}):\n${printed}\n${errors}")
endif()
string(REPLACE "|" ";" FILES "${FILES}")
foreach(path IN LISTS FILES)
    if(NOT EXISTS ${PREFIX}/${path})
        message(FATAL_ERROR "the installation lacks ${path}")
    endif()
endforeach()
# The programs run from where they were put.
if(NOT IS_DIRECTORY ${PREFIX}/bin OR EXISTS ${PREFIX}/share/quindar/Library/tools)
    message(FATAL_ERROR "the programs or the library folder are not as they should be")
endif()
file(READ ${PREFIX}/share/applications/quindar.desktop entry)
if(NOT entry MATCHES "\nExec=quindar %f\n" OR NOT entry MATCHES "\nMimeType=application/x-quindar;\n")
    message(FATAL_ERROR "the desktop entry does not open documents with the program:\n${entry}")
endif()
