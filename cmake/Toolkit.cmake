# The libraries that are not ours, each as one target:
#   qs::system    what platform/ calls
#   qs::desktop   what platform/ui calls beside the windowing toolkit
#   qs::wx        the windowing toolkit

add_library(qs::system INTERFACE IMPORTED)
add_library(qs::desktop INTERFACE IMPORTED)
add_library(qs::wx INTERFACE IMPORTED)

find_package(Threads REQUIRED)
target_link_libraries(qs::system INTERFACE Threads::Threads)

if(WIN32)
    set(QUEUESHIFT_WX_ROOT "" CACHE PATH
        "Cross-built wxWidgets; script/lib/windows-toolkit builds it and prints its folder")
    if(NOT QUEUESHIFT_WX_ROOT)
        execute_process(COMMAND "${PROJECT_SOURCE_DIR}/script/lib/windows-toolkit"
            OUTPUT_VARIABLE printed OUTPUT_STRIP_TRAILING_WHITESPACE
            COMMAND_ERROR_IS_FATAL ANY)
        string(REGEX REPLACE "^.*\n" "" wx_root "${printed}")
    else()
        set(wx_root "${QUEUESHIFT_WX_ROOT}")
    endif()
    if(NOT EXISTS "${wx_root}/COMPLETE")
        message(FATAL_ERROR "No wxWidgets for Windows in '${wx_root}': "
            "run script/lib/windows-toolkit")
    endif()

    set(system_libraries ole32 oleaut32 uuid advapi32 activeds adsiid netapi32 ws2_32 mpr
        shlwapi version winspool)
    set(desktop_libraries comctl32 comdlg32 gdi32 shell32 user32 uxtheme oleacc)
    set(wx_libraries winmm rpcrt4 imm32 msimg32 gdiplus)
    target_link_libraries(qs::system INTERFACE ${system_libraries})
    target_link_libraries(qs::desktop INTERFACE ${desktop_libraries})

    set(wx_archives "${wx_root}/lib/gcc_x64_lib")
    target_include_directories(qs::wx SYSTEM INTERFACE "${wx_archives}/mswu" "${wx_root}/include")
    target_compile_definitions(qs::wx INTERFACE __WXMSW__)
    set(QUEUESHIFT_WX_RESOURCES "${wx_root}/include")
    foreach(part IN ITEMS wxmsw32u_html wxmsw32u_core wxbase32u_net wxbase32u wxregexu)
        target_link_libraries(qs::wx INTERFACE "${wx_archives}/lib${part}.a")
    endforeach()
    target_link_libraries(qs::wx INTERFACE "${wx_root}/lib/libpng16.a" z
        ${desktop_libraries} ${system_libraries} ${wx_libraries})
else()
    find_package(PkgConfig REQUIRED)
    pkg_check_modules(GTK REQUIRED IMPORTED_TARGET gtk+-3.0 x11)
    target_link_libraries(qs::desktop INTERFACE PkgConfig::GTK)
    find_package(wxWidgets 3.2 REQUIRED COMPONENTS html core net base)
    target_include_directories(qs::wx SYSTEM INTERFACE ${wxWidgets_INCLUDE_DIRS})
    target_compile_definitions(qs::wx INTERFACE ${wxWidgets_DEFINITIONS})
    target_compile_options(qs::wx INTERFACE ${wxWidgets_CXX_FLAGS})
    target_link_directories(qs::wx INTERFACE ${wxWidgets_LIBRARY_DIRS})
    target_link_libraries(qs::wx INTERFACE ${wxWidgets_LIBRARIES})

    # LDAP, Kerberos, winbind and the SMB client: what the directory and UNC paths stand on. The
    # last one is loaded by the program itself, when it meets a share.
    pkg_check_modules(LDAP REQUIRED IMPORTED_TARGET ldap lber)
    pkg_check_modules(WINBIND REQUIRED IMPORTED_TARGET wbclient)
    pkg_check_modules(SMB REQUIRED IMPORTED_TARGET smbclient)
    target_include_directories(qs::system SYSTEM INTERFACE ${SMB_INCLUDE_DIRS})
    target_link_libraries(qs::system INTERFACE PkgConfig::LDAP PkgConfig::WINBIND
        gssapi_krb5 krb5 resolv ${CMAKE_DL_LIBS})
endif()
