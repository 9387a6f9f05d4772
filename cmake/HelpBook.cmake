# The help book Queueshift.hlp, beside the program: a zip of the topics in help/ with the project,
# contents and index files that the viewer reads, which are made from help/topics.txt.

set(help_folder "${PROJECT_SOURCE_DIR}/help")
set(help_book "${PROJECT_BINARY_DIR}/Queueshift.hlp")
file(GLOB help_sources CONFIGURE_DEPENDS "${help_folder}/*.html" "${help_folder}/topics.txt")

add_custom_command(OUTPUT "${help_book}"
    COMMAND "${CMAKE_COMMAND}"
        "-DSOURCES=${help_folder}"
        "-DWORK=${PROJECT_BINARY_DIR}/generated/help"
        "-DBOOK=${help_book}"
        -P "${PROJECT_SOURCE_DIR}/cmake/MakeHelpBook.cmake"
    DEPENDS ${help_sources} "${PROJECT_SOURCE_DIR}/cmake/MakeHelpBook.cmake"
    COMMENT "Binding the help book"
    VERBATIM)
add_custom_target(qs_help_book ALL DEPENDS "${help_book}")

if(TARGET queueshift-toolkit)
    add_dependencies(queueshift-toolkit qs_help_book)
endif()
if(TARGET queueshift-window-tests)
    add_dependencies(queueshift-window-tests qs_help_book)
    if(WIN32)
        set(help_book_for_tests "Z:${help_book}")
    else()
        set(help_book_for_tests "${help_book}")
    endif()
    target_compile_definitions(queueshift-window-tests PRIVATE
        QUEUESHIFT_HELP_BOOK="${help_book_for_tests}")
endif()
