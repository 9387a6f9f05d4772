# CTest entries from what a test binary itself says it holds.

# qs_add_suites(TARGET PREFIX prefix)
#
# After each link the binary is asked for its suites and one entry per suite is written; a binary
# that cannot be asked, or has none, fails the build. Per suite, not per test: a start under Wine
# or of the toolkit is paid once for all tests of a suite.
function(qs_add_suites target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "PREFIX" "")
    set(suites "${CMAKE_CURRENT_BINARY_DIR}/${target}-suites.cmake")
    set(environment "")
    set(suffix "")
    if(QUEUESHIFT_SANITIZE)
        set(suffix ".asan")
        set(suppressions "${PROJECT_SOURCE_DIR}/cmake/sanitizers")
        list(APPEND environment
            "ASAN_OPTIONS=detect_stack_use_after_return=1:strict_string_checks=1"
            "LSAN_OPTIONS=suppressions=${suppressions}/leaks.txt:print_suppressions=0"
            "UBSAN_OPTIONS=print_stacktrace=1:suppressions=${suppressions}/undefined.txt")
    endif()
    if(CMAKE_CROSSCOMPILING_EMULATOR)
        set(suffix ".windows")
        set(launcher "${CMAKE_CROSSCOMPILING_EMULATOR}")
    else()
        set(launcher "${PROJECT_SOURCE_DIR}/script/lib/with-display")
    endif()
    add_custom_command(TARGET ${target} POST_BUILD
        COMMAND "${CMAKE_COMMAND}"
            "-DBINARY=$<TARGET_FILE:${target}>"
            "-DLAUNCHER=${launcher}"
            "-DPREFIX=${arg_PREFIX}"
            "-DSUFFIX=${suffix}"
            "-DENVIRONMENT=${environment}"
            "-DFOLDER=${CMAKE_CURRENT_BINARY_DIR}"
            "-DOUTPUT=${suites}"
            -P "${PROJECT_SOURCE_DIR}/cmake/ListSuites.cmake"
        BYPRODUCTS "${suites}"
        COMMENT "Listing the suites of ${target}"
        VERBATIM)

    # Until the binary is built the entry that stands for it fails.
    set(gate "${CMAKE_CURRENT_BINARY_DIR}/${target}-gate.cmake")
    file(WRITE "${gate}" "if(EXISTS \"${suites}\")\n    include(\"${suites}\")\nelse()\n"
        "    add_test(\"${arg_PREFIX}.NOT_BUILT${suffix}\" \"${CMAKE_COMMAND}\" -E false)\nendif()\n")
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${gate}")
endfunction()
