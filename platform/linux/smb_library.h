// The SMB client library's functions, found when a share is first asked for: the library brings
// more than a hundred others along, and most runs of the program never meet a share.
#pragma once

#include <libsmbclient.h>

namespace platform::smb {

struct Library {
    Library();

    decltype(&smbc_new_context) NewContext = nullptr;
    decltype(&smbc_init_context) InitContext = nullptr;
    decltype(&smbc_set_context) SetContext = nullptr;
    decltype(&smbc_setDebug) SetDebug = nullptr;
    decltype(&smbc_setLogCallback) SetLogCallback = nullptr;
    decltype(&smbc_setTimeout) SetTimeout = nullptr;
    decltype(&smbc_setOptionUseKerberos) SetOptionUseKerberos = nullptr;
    decltype(&smbc_setOptionFallbackAfterKerberos) SetOptionFallbackAfterKerberos = nullptr;
    decltype(&smbc_setFunctionAuthData) SetFunctionAuthData = nullptr;
    decltype(&smbc_stat) Stat = nullptr;
    decltype(&smbc_open) Open = nullptr;
    decltype(&smbc_write) Write = nullptr;
    decltype(&smbc_close) Close = nullptr;
    decltype(&smbc_utimes) SetTimes = nullptr;
    decltype(&smbc_rename) Rename = nullptr;
    decltype(&smbc_unlink) Unlink = nullptr;
    decltype(&smbc_getxattr) GetAttribute = nullptr;
    decltype(&smbc_setxattr) SetAttribute = nullptr;
    decltype(&smbc_opendir) OpenFolder = nullptr;
    decltype(&smbc_readdir) ReadFolder = nullptr;
    decltype(&smbc_closedir) CloseFolder = nullptr;

    bool complete = false; ///< false, and nothing above to be called, without the library
};

/// Loads the library at the first call, which takes a moment; it stays until the program ends. A
/// child process has what its parent had loaded.
const Library& GetLibrary();

} // namespace platform::smb
