#include "platform/identity.h"

#include "platform/ansi.h"
#include "platform/windows/wide.h"

#include <windows.h>

#include <oleauto.h>

#include <algorithm>

namespace platform {

namespace {

/// COM on this thread for as long as this object lives, whoever else uses it there.
class ComApartment {
public:
    ComApartment() : entered_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
    ~ComApartment() {
        if (entered_) {
            CoUninitialize();
        }
    }
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;

private:
    bool entered_;
};

class AutomationObject {
public:
    explicit AutomationObject(const wchar_t* programId) {
        CLSID classId{};
        if (SUCCEEDED(CLSIDFromProgID(programId, &classId))) {
            CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                             IID_IDispatch, reinterpret_cast<void**>(&object_));
        }
    }
    ~AutomationObject() {
        if (object_ != nullptr) {
            object_->Release();
        }
    }
    AutomationObject(const AutomationObject&) = delete;
    AutomationObject& operator=(const AutomationObject&) = delete;

    [[nodiscard]] std::optional<std::string> TextProperty(std::wstring name) const {
        DISPID id = 0;
        LPOLESTR names[] = {name.data()};
        if (object_ == nullptr ||
            FAILED(object_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id))) {
            return std::nullopt;
        }
        DISPPARAMS none{};
        VARIANT value;
        VariantInit(&value);
        const HRESULT result =
            object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &value,
                            nullptr, nullptr);
        std::optional<std::string> text;
        if (SUCCEEDED(result) && value.vt == VT_BSTR && value.bstrVal != nullptr) {
            text = Utf8FromWide({value.bstrVal, SysStringLen(value.bstrVal)});
        }
        VariantClear(&value);
        return text;
    }

private:
    IDispatch* object_ = nullptr;
};

} // namespace

std::string CurrentUserName() {
    constexpr DWORD kBufferSize = 255;
    std::string name(kBufferSize, ' ');
    DWORD size = kBufferSize;
    GetUserNameA(name.data(), &size);
    // After a failure the size is the one that would have been needed, which may be beyond ours.
    name.resize(std::min(size, kBufferSize));
    return Utf8FromAnsi(name);
}

std::optional<std::string> ComputerName() {
    const ComApartment apartment;
    return AutomationObject(L"WScript.Network").TextProperty(L"ComputerName");
}

} // namespace platform
