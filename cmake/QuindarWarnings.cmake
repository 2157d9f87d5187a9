# SPDX-License-Identifier: GPL-3.0-or-later
# Warnings for the project's own targets.
function(quindar_warnings target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow=local
        # GCC 12 reports false overlaps inside std::string (its bug 105329).
        $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
endfunction()
