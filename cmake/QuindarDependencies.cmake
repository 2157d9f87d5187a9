# SPDX-License-Identifier: GPL-3.0-or-later
# External libraries found once for the whole tree.

# Intel decimal floating-point library, built with arguments by value, rounding and
# exception flags passed per call (no global state).
find_path(BID_INCLUDE_DIR bid_functions.h REQUIRED)
find_library(BID_LIBRARY NAMES libbidgcc000.a bidgcc000 REQUIRED)
add_library(quindar_bid INTERFACE)
target_include_directories(quindar_bid SYSTEM INTERFACE ${BID_INCLUDE_DIR})
target_compile_definitions(quindar_bid INTERFACE
    DECIMAL_CALL_BY_REFERENCE=0 DECIMAL_GLOBAL_ROUNDING=0 DECIMAL_GLOBAL_EXCEPTION_FLAGS=0)
target_link_libraries(quindar_bid INTERFACE ${BID_LIBRARY})

find_path(MPFR_INCLUDE_DIR mpfr.h REQUIRED)
find_library(MPFR_LIBRARY mpfr REQUIRED)
find_library(GMP_LIBRARY gmp REQUIRED)
add_library(quindar_mpfr INTERFACE)
target_include_directories(quindar_mpfr SYSTEM INTERFACE ${MPFR_INCLUDE_DIR})
target_link_libraries(quindar_mpfr INTERFACE ${MPFR_LIBRARY} ${GMP_LIBRARY})

if(QUINDAR_BUILD_TESTS)
    find_package(GTest REQUIRED)
    include(GoogleTest)
endif()
if(QUINDAR_BUILD_BENCHMARKS)
    find_package(benchmark REQUIRED)
    # A double-precision expression library, the yardstick of the map benchmark.
    find_package(PkgConfig REQUIRED)
    pkg_check_modules(MUPARSER REQUIRED IMPORTED_TARGET muparser)
endif()

# Qt only for the desktop program and its tests; the engine and quindar-cli build without it.
if(QUINDAR_BUILD_DESKTOP)
    set(quindar_qt_components Widgets PrintSupport)
    if(QUINDAR_BUILD_TESTS)
        list(APPEND quindar_qt_components Test)
    endif()
    find_package(Qt6 REQUIRED COMPONENTS ${quindar_qt_components})
endif()
