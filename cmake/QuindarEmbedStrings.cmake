# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Quindar developers
# Writes OUTPUT, a C++ file holding the text of every string file in INPUTS, one after the
# other, as the array quindar::kStringTableText. Run with cmake -P at build time.
set(body "")
foreach(input IN LISTS INPUTS)
    file(READ ${input} content)
    string(APPEND body "R\"quindar_strings(${content}\n)quindar_strings\"\n")
endforeach()
if(body STREQUAL "")
    set(body "\"\"")
endif()
file(WRITE ${OUTPUT}.new "// Generated from resources/strings/*.tsv; do not edit.\n"
    "namespace quindar {\nextern const char kStringTableText[];\nconst char kStringTableText[] =\n"
    "${body};\n}  // namespace quindar\n")
file(COPY_FILE ${OUTPUT}.new ${OUTPUT} ONLY_IF_DIFFERENT)
