#include "platform/linux/smb_library.h"

#include <dlfcn.h>

namespace platform::smb {

namespace {

class Finder {
public:
    Finder() : handle_(dlopen("libsmbclient.so.0", RTLD_NOW | RTLD_LOCAL)) {}

    template <typename Function> void Find(const char* name, Function& function) {
        void* const found = handle_ != nullptr ? dlsym(handle_, name) : nullptr;
        function = reinterpret_cast<Function>(found);
        complete_ = complete_ && found != nullptr;
    }
    [[nodiscard]] bool FoundAll() const { return complete_; }

private:
    void* handle_;
    bool complete_ = true;
};

} // namespace

Library::Library() {
    Finder finder;
    finder.Find("smbc_new_context", NewContext);
    finder.Find("smbc_init_context", InitContext);
    finder.Find("smbc_set_context", SetContext);
    finder.Find("smbc_setDebug", SetDebug);
    finder.Find("smbc_setLogCallback", SetLogCallback);
    finder.Find("smbc_setTimeout", SetTimeout);
    finder.Find("smbc_setOptionUseKerberos", SetOptionUseKerberos);
    finder.Find("smbc_setOptionFallbackAfterKerberos", SetOptionFallbackAfterKerberos);
    finder.Find("smbc_setFunctionAuthData", SetFunctionAuthData);
    finder.Find("smbc_stat", Stat);
    finder.Find("smbc_open", Open);
    finder.Find("smbc_write", Write);
    finder.Find("smbc_close", Close);
    finder.Find("smbc_utimes", SetTimes);
    finder.Find("smbc_rename", Rename);
    finder.Find("smbc_unlink", Unlink);
    finder.Find("smbc_getxattr", GetAttribute);
    finder.Find("smbc_setxattr", SetAttribute);
    finder.Find("smbc_opendir", OpenFolder);
    finder.Find("smbc_readdir", ReadFolder);
    finder.Find("smbc_closedir", CloseFolder);
    complete = finder.FoundAll();
}

const Library& GetLibrary() {
    static const Library library;
    return library;
}

} // namespace platform::smb
