# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Quindar developers
# Computes one shipped example document in place, from a copy of the examples folder so that
# the data files it names are found beside it, and finds it unchanged: every stored answer,
# declaration and setting comes back byte for byte.
#   CLI       the program
#   EXAMPLES  the examples folder
#   NAME      the document's file name
#   WORK      a folder of this test's own
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${WORK})
file(COPY ${EXAMPLES}/ DESTINATION ${WORK})
execute_process(COMMAND ${CLI} --in-place ${NAME} WORKING_DIRECTORY ${WORK}
    OUTPUT_VARIABLE printed ERROR_VARIABLE errors RESULT_VARIABLE code)
if(NOT code STREQUAL "0" OR NOT printed STREQUAL "" OR NOT errors STREQUAL "")
    message(FATAL_ERROR "${NAME}: exit status ${code}\n--- stdout ---\n${printed}\n"
        "--- stderr ---\n${errors}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${WORK}/${NAME} ${EXAMPLES}/${NAME}
    RESULT_VARIABLE different)
if(different)
    file(READ ${WORK}/${NAME} computed)
    message(FATAL_ERROR "${NAME} changed when computed again; it became:\n${computed}")
endif()
