# One static library per folder, and the program.

# qs_add_room(NAME FOLDER folder [WX] [LINKS targets...])
#
# The sources are those of the folder and of its sub-folder named for the system; a new source
# is found by the next build. WX gives the toolkit's headers and the precompiled header.
function(qs_add_room name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "WX" "FOLDER" "LINKS")
    file(GLOB sources CONFIGURE_DEPENDS
        "${PROJECT_SOURCE_DIR}/${arg_FOLDER}/*.cpp"
        "${PROJECT_SOURCE_DIR}/${arg_FOLDER}/${QUEUESHIFT_SYSTEM}/*.cpp")
    if(NOT sources)
        add_library(${name} INTERFACE)
        target_link_libraries(${name} INTERFACE qs_options ${arg_LINKS})
        if(arg_WX)
            target_link_libraries(${name} INTERFACE qs::wx)
        endif()
        return()
    endif()
    add_library(${name} STATIC ${sources})
    target_link_libraries(${name} PUBLIC qs_options ${arg_LINKS})
    if(arg_WX)
        qs_use_toolkit(${name})
    endif()
endfunction()

# The toolkit's headers take some seconds to read; one precompiled header serves all who do.
function(qs_use_toolkit name)
    if(NOT TARGET qs_toolkit_headers)
        file(WRITE "${PROJECT_BINARY_DIR}/generated/toolkit_headers.cpp" "")
        add_library(qs_toolkit_headers OBJECT
            "${PROJECT_BINARY_DIR}/generated/toolkit_headers.cpp")
        target_link_libraries(qs_toolkit_headers PRIVATE qs_options qs::wx Threads::Threads)
        target_precompile_headers(qs_toolkit_headers PRIVATE
            <algorithm> <functional> <memory> <optional> <string> <string_view> <vector>
            <wx/wx.h>)
    endif()
    target_link_libraries(${name} PUBLIC qs::wx)
    target_precompile_headers(${name} REUSE_FROM qs_toolkit_headers)
endfunction()

# queueshift-toolkit, on Windows QueueshiftToolkit.exe.
function(qs_add_program)
    file(GLOB sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/app/*.cpp")
    if(NOT sources)
        message(WARNING "app/ has no source yet: the program is not built")
        return()
    endif()
    add_executable(queueshift-toolkit ${sources})
    target_link_libraries(queueshift-toolkit PRIVATE qs_wizard)
    qs_use_toolkit(queueshift-toolkit)
    if(WIN32)
        qs_add_windows_resources(queueshift-toolkit)
        target_link_options(queueshift-toolkit PRIVATE $<$<CONFIG:Release>:-s>)
        set_target_properties(queueshift-toolkit PROPERTIES
            OUTPUT_NAME QueueshiftToolkit
            WIN32_EXECUTABLE ON)
    endif()
endfunction()

# Icon, version and manifest; the window tests carry them as well, so that they see the
# controls the program shows.
function(qs_add_windows_resources name)
    target_sources(${name} PRIVATE "${PROJECT_SOURCE_DIR}/resources/windows/queueshift.rc")
    set_source_files_properties("${PROJECT_SOURCE_DIR}/resources/windows/queueshift.rc"
        TARGET_DIRECTORY ${name}
        PROPERTIES
        INCLUDE_DIRECTORIES "${QUEUESHIFT_WX_RESOURCES};${PROJECT_BINARY_DIR}/generated"
        OBJECT_DEPENDS "${PROJECT_SOURCE_DIR}/resources/windows/queueshift.manifest")
endfunction()
