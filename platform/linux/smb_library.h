// The SMB client library's functions, found when a share is first asked for: the library brings
// more than a hundred others along, and most runs of the program never meet a share.
#pragma once

#include <libsmbclient.h>

namespace platform::smb {

struct Library {
    Library();

    decltype(&smbc_new_context) NewContext;
    decltype(&smbc_init_context) InitContext;
    decltype(&smbc_set_context) SetContext;
    decltype(&smbc_setDebug) SetDebug;
    decltype(&smbc_setLogCallback) SetLogCallback;
    decltype(&smbc_setTimeout) SetTimeout;
    decltype(&smbc_setOptionUseKerberos) SetOptionUseKerberos;
    decltype(&smbc_setOptionFallbackAfterKerberos) SetOptionFallbackAfterKerberos;
    decltype(&smbc_setFunctionAuthData) SetFunctionAuthData;
    decltype(&smbc_stat) Stat;
    decltype(&smbc_open) Open;
    decltype(&smbc_write) Write;
    decltype(&smbc_close) Close;
    decltype(&smbc_utimes) SetTimes;
    decltype(&smbc_rename) Rename;
    decltype(&smbc_unlink) Unlink;
    decltype(&smbc_getxattr) GetAttribute;
    decltype(&smbc_setxattr) SetAttribute;
    decltype(&smbc_opendir) OpenFolder;
    decltype(&smbc_readdir) ReadFolder;
    decltype(&smbc_closedir) CloseFolder;

    bool complete; ///< false, and nothing above to be called, without the library
};

/// Loads the library at the first call, which takes a moment; it stays until the program ends. A
/// child process has what its parent had loaded.
const Library& GetLibrary();

} // namespace platform::smb
