# SPDX-License-Identifier: GPL-3.0-or-later
# Runs quindar-cli once and checks what it printed, wrote and returned.
#   CLI     the program
#   WORK    a folder of this test's own
#   MODE    file | enter | stdin | in-place: compute INPUT and compare with EXPECTED (and
#           ERRORS, when that file exists); document: the same with --save, and the saved
#           document compared with SAVED; document-in-place: INPUT, a document, computed
#           in place must become SAVED; usage: run with ARGS (and ARGS2) and check CODE,
#           and that
#           standard output holds STDOUT_HAS or standard error STDERR_HAS, or standard
#           output is exactly STDOUT_IS, or the file STDOUT_FILE; "|" separates several
#           arguments in ARGS; golden: run with ARGS (INPUT on standard input, if given),
#           check CODE, and compare standard output with EXPECTED;
#           graph: --graph GRAPH (with ARGS) on INPUT, standard output compared with EXPECTED,
#           standard error with ERRORS (or empty), the exit status with CODE, and with SAVED
#           the graph file written by --save-graph compared with it
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
set(out ${WORK}/stdout)
set(err ${WORK}/stderr)

function(fail message)
    foreach(stream stdout stderr)
        if(EXISTS ${WORK}/${stream})
            file(READ ${WORK}/${stream} text)
            string(APPEND message "\n--- ${stream} ---\n${text}")
        endif()
    endforeach()
    message(FATAL_ERROR "${message}")
endfunction()

function(same_file actual expected what)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${actual} ${expected}
        RESULT_VARIABLE different)
    if(different)
        file(READ ${expected} wanted)
        fail("${what} differs from ${expected}; expected:\n${wanted}")
    endif()
endfunction()

# Computes a copy of INPUT named `name` in place: nothing printed, no temporary file left;
# the copy becomes the output to compare.
macro(run_in_place name)
    set(copy ${WORK}/${name})
    file(COPY_FILE ${INPUT} ${copy})
    execute_process(COMMAND ${CLI} --in-place ${copy} OUTPUT_FILE ${out} ERROR_FILE ${err}
        RESULT_VARIABLE code)
    file(SIZE ${out} printed)
    if(NOT printed EQUAL 0)
        fail("--in-place printed the text")
    endif()
    file(GLOB left_over ${WORK}/${name}.*)
    if(left_over)
        fail("temporary files left: ${left_over}")
    endif()
    set(out ${copy})
endmacro()

# golden: run with ARGS, check CODE, and standard output against the file EXPECTED.
if(MODE STREQUAL "golden")
    string(REPLACE "|" ";" ARGS "${ARGS}")
    if(DEFINED INPUT)
        execute_process(COMMAND ${CLI} ${ARGS} INPUT_FILE ${INPUT} OUTPUT_FILE ${out}
            ERROR_FILE ${err} RESULT_VARIABLE code)
    else()
        execute_process(COMMAND ${CLI} ${ARGS} OUTPUT_FILE ${out} ERROR_FILE ${err}
            RESULT_VARIABLE code)
    endif()
    if(NOT code STREQUAL CODE)
        fail("exit status ${code}, expected ${CODE}")
    endif()
    same_file(${out} ${EXPECTED} "standard output")
    return()
endif()

if(MODE STREQUAL "usage")
    string(REPLACE "|" ";" ARGS "${ARGS}")
    execute_process(COMMAND ${CLI} ${ARGS} ${ARGS2} OUTPUT_FILE ${out} ERROR_FILE ${err}
        RESULT_VARIABLE code)
    if(NOT code STREQUAL CODE)
        fail("exit status ${code}, expected ${CODE}")
    endif()
    foreach(stream STDOUT STDERR)
        if(DEFINED ${stream}_HAS)
            string(TOLOWER ${stream} file)
            file(READ ${WORK}/${file} text)
            string(FIND "${text}" "${${stream}_HAS}" at)
            if(at EQUAL -1)
                fail("${file} lacks \"${${stream}_HAS}\"")
            endif()
        endif()
    endforeach()
    if(DEFINED STDOUT_IS)
        file(READ ${out} text)
        if(NOT text STREQUAL "${STDOUT_IS}\n")
            fail("standard output is not \"${STDOUT_IS}\"")
        endif()
    endif()
    if(DEFINED STDOUT_FILE)
        same_file(${out} ${STDOUT_FILE} "standard output")
    endif()
    return()
endif()

if(MODE STREQUAL "graph")
    string(REPLACE "|" ";" ARGS "${ARGS}")
    set(save_args)
    if(DEFINED SAVED)
        get_filename_component(extension ${SAVED} LAST_EXT)
        set(written ${WORK}/written${extension})
        set(save_args --save-graph ${written})
    endif()
    execute_process(COMMAND ${CLI} --graph ${GRAPH} ${ARGS} ${save_args} ${INPUT}
        OUTPUT_FILE ${out} ERROR_FILE ${err} RESULT_VARIABLE code)
    if(NOT code STREQUAL CODE)
        fail("exit status ${code}, expected ${CODE}")
    endif()
    same_file(${out} ${EXPECTED} "the chart data")
    if(NOT EXISTS ${ERRORS})
        set(ERRORS ${WORK}/no-errors)
        file(WRITE ${ERRORS} "")
    endif()
    same_file(${err} ${ERRORS} "standard error")
    if(DEFINED SAVED)
        same_file(${written} ${SAVED} "the graph file")
    endif()
    return()
endif()

if(EXISTS ${ERRORS})
    set(expected_code 1)
else()
    set(expected_code 0)
    set(ERRORS ${WORK}/no-errors)
    file(WRITE ${ERRORS} "")
endif()

if(MODE STREQUAL "file")
    execute_process(COMMAND ${CLI} ${INPUT} OUTPUT_FILE ${out} ERROR_FILE ${err}
        RESULT_VARIABLE code)
elseif(MODE STREQUAL "enter")
    execute_process(COMMAND ${CLI} --enter ${INPUT} OUTPUT_FILE ${out} ERROR_FILE ${err}
        RESULT_VARIABLE code)
elseif(MODE STREQUAL "stdin")
    execute_process(COMMAND ${CLI} - INPUT_FILE ${INPUT} OUTPUT_FILE ${out} ERROR_FILE ${err}
        RESULT_VARIABLE code)
elseif(MODE STREQUAL "document")
    set(saved ${WORK}/saved.qnd)
    execute_process(COMMAND ${CLI} --save ${saved} ${INPUT} OUTPUT_FILE ${out} ERROR_FILE ${err}
        RESULT_VARIABLE code)
    if(NOT EXISTS ${saved})
        fail("no document saved")
    endif()
    same_file(${saved} ${SAVED} "the saved document")
elseif(MODE STREQUAL "document-in-place")
    run_in_place(document.qnd)
    set(EXPECTED ${SAVED})
elseif(MODE STREQUAL "in-place")
    run_in_place(document.txt)
else()
    message(FATAL_ERROR "unknown MODE \"${MODE}\"")
endif()

if(NOT code STREQUAL expected_code)
    fail("exit status ${code}, expected ${expected_code}")
endif()
same_file(${out} ${EXPECTED} "the text")
same_file(${err} ${ERRORS} "standard error")
