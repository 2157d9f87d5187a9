# SPDX-License-Identifier: GPL-3.0-or-later
# quindar-cli --functions, --describe and --precision over a text, against golden files in
# data/describe.
set(describe_dir ${CMAKE_CURRENT_SOURCE_DIR}/data/describe)

function(quindar_describe_test name args code)
    quindar_cli_test(cli.describe.${name} -DMODE=golden "-DARGS=${args}" -DCODE=${code}
        -DEXPECTED=${describe_dir}/${name}.expected ${ARGN})
endfunction()

quindar_describe_test(categories "--functions" 0)
quindar_describe_test(complex "--functions|COMPLEX" 0)
quindar_describe_test(statistical "--functions|statistical" 0)
quindar_describe_test(constants "--functions|CONSTANTS" 0)
quindar_describe_test(geometry "--functions|GEOMETRY" 0)
quindar_describe_test(sqrt "--describe|sqrt" 0)
quindar_describe_test(norprob "--describe|NORPROB[1,2,3,4]" 0)
quindar_describe_test(sound "--describe|SOUND" 0)
quindar_describe_test(library-function "--describe|CIRCLEAREA" 0)
quindar_describe_test(precision "--precision|4" 0 -DINPUT=${describe_dir}/precision.txt)

quindar_cli_test(cli.describe.unknown-name -DMODE=usage "-DARGS=--describe|pi" -DCODE=1
    "-DSTDERR_HAS=\"pi\" is no function or constant of the Function Library; did you mean \"PI\"?")
quindar_cli_test(cli.describe.unknown-category -DMODE=usage "-DARGS=--functions|NOPE" -DCODE=2
    "-DSTDERR_HAS=no category \"NOPE\"")
quindar_cli_test(cli.describe.with-file -DMODE=usage "-DARGS=--describe|SIN|a.txt" -DCODE=2
    "-DSTDERR_HAS=--functions and --describe stand alone")
quindar_cli_test(cli.describe.no-name -DMODE=usage "-DARGS=--describe" -DCODE=2
    "-DSTDERR_HAS=\"--describe\" needs a value")
quindar_cli_test(cli.precision.too-high -DMODE=usage "-DARGS=--precision|15" -DCODE=2
    "-DSTDERR_HAS=--precision must be a whole number from 1 to 14, not \"15\"")
quindar_cli_test(cli.precision.not-alone -DMODE=usage "-DARGS=--order|2" -DCODE=2
    "-DSTDERR_HAS=--order needs --integrate, --derivative, --differentiate or --root")
