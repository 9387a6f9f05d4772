#include "platform/ui/link_role.h"

#include <wx/window.h>

#include <functional>
#include <initguid.h>
#include <oleacc.h>
#include <windows.h>

namespace platform::ui {

namespace {

constexpr DWORD kClientArea = static_cast<DWORD>(OBJID_CLIENT);

// Where the system does not offer the service, nobody listens either.
void WithServices(const std::function<void(IAccPropServices&)>& act) {
    void* made = nullptr;
    if (SUCCEEDED(::CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER,
                                     IID_IAccPropServices, &made))) {
        auto* const services = static_cast<IAccPropServices*>(made);
        act(*services);
        services->Release();
    }
}

} // namespace

void TellLink(wxWindow& control) {
    const HWND handle = control.GetHandle();
    WithServices([handle](IAccPropServices& services) {
        VARIANT role{};
        role.vt = VT_I4;
        role.lVal = ROLE_SYSTEM_LINK;
        services.SetHwndProp(handle, kClientArea, CHILDID_SELF, PROPID_ACC_ROLE, role);
    });
    // The service keeps what it was told by window handle, and handles are used again.
    control.Bind(wxEVT_DESTROY, [handle, own = &control](wxWindowDestroyEvent& event) {
        if (event.GetWindow() == own) {
            WithServices([handle](IAccPropServices& services) {
                const MSAAPROPID properties[] = {PROPID_ACC_ROLE};
                services.ClearHwndProps(handle, kClientArea, CHILDID_SELF, properties, 1);
            });
        }
        event.Skip();
    });
}

} // namespace platform::ui
