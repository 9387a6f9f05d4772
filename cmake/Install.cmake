# What "cmake --install" lays out, from which script/package makes the packages.
#
# The program's own folder is one folder: there it looks for its help book, and the administrator
# puts the engine and its control files beside it.

if(NOT TARGET queueshift-toolkit)
    return()
endif()

if(WIN32)
    install(TARGETS queueshift-toolkit RUNTIME DESTINATION .)
    install(FILES "${help_book}" DESTINATION .)
    return()
endif()

set(program_folder lib/queueshift)
install(TARGETS queueshift-toolkit RUNTIME DESTINATION "${program_folder}")
install(FILES "${help_book}" DESTINATION "${program_folder}")
# Started through the link, the program still finds the folder of the file behind it.
install(CODE "
    set(bin \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin\")
    file(MAKE_DIRECTORY \"\${bin}\")
    file(CREATE_LINK ../${program_folder}/queueshift-toolkit \"\${bin}/queueshift-toolkit\" SYMBOLIC)
")

set(linux_files "${PROJECT_SOURCE_DIR}/packaging/linux")
set(linux_generated "${PROJECT_BINARY_DIR}/generated/linux")
string(TIMESTAMP today "%Y-%m-%d" UTC)
set(QUEUESHIFT_RELEASE_DAY "${today}" CACHE STRING "Day of the release, as in 2026-01-31")
foreach(file IN ITEMS queueshift-toolkit.1 example.queueshift.toolkit.metainfo.xml)
    configure_file("${linux_files}/${file}.in" "${linux_generated}/${file}" @ONLY)
endforeach()
install(FILES "${linux_files}/queueshift-toolkit.desktop" DESTINATION share/applications)
install(FILES "${linux_generated}/example.queueshift.toolkit.metainfo.xml"
    DESTINATION share/metainfo)
install(FILES "${linux_generated}/queueshift-toolkit.1" DESTINATION share/man/man1)
install(FILES "${PROJECT_SOURCE_DIR}/resources/icons/queueshift.svg"
    DESTINATION share/icons/hicolor/scalable/apps RENAME queueshift-toolkit.svg)
