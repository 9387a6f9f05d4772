// What screen readers are told of a control on Windows.

#include "platform/ui/control_name.h"

#include "tests/support/window/window_test.h"

#include <oleacc.h>
#include <windows.h>
#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/textctrl.h>

namespace window_test {
namespace {

std::wstring SpokenNameOf(const wxWindow& control, long child = CHILDID_SELF) {
    void* made = nullptr;
    if (FAILED(::AccessibleObjectFromWindow(control.GetHandle(), static_cast<DWORD>(OBJID_CLIENT),
                                            IID_IAccessible, &made))) {
        return L"no accessible object";
    }
    auto* const object = static_cast<IAccessible*>(made);
    VARIANT self{};
    self.vt = VT_I4;
    self.lVal = child;
    BSTR name = nullptr;
    object->get_accName(self, &name);
    std::wstring text = name == nullptr ? L"" : name;
    ::SysFreeString(name);
    object->Release();
    return text;
}

TEST(Accessible, AnEntryIsCalledByItsLabel) {
    HostFrame host;
    auto* const text = new wxTextCtrl(&host.Frame(), wxID_ANY);
    platform::ui::NameControl(*text, "txtFromServer", "&From Print Server:");
    EXPECT_EQ(SpokenNameOf(*text), L"From Print Server");
}

TEST(Accessible, AButtonIsCalledByItsOwnText) {
    HostFrame host;
    auto* const button = new wxButton(&host.Frame(), wxID_ANY, "N&ew");
    platform::ui::NameControl(*button, "cmdNew");
    EXPECT_EQ(SpokenNameOf(*button), L"New");
}

TEST(Accessible, TheRowsOfANamedListKeepWhatTheSystemCallsThem) {
    HostFrame host;
    auto* const list = new wxListBox(&host.Frame(), wxID_ANY);
    list->Append("OLD1 -> NEW1");
    const std::wstring rowBefore = SpokenNameOf(*list, 1);
    platform::ui::NameControl(*list, "lstServerPairs", "Server pairs");
    EXPECT_EQ(SpokenNameOf(*list), L"Server pairs");
    EXPECT_EQ(SpokenNameOf(*list, 1), rowBefore);
}

} // namespace
} // namespace window_test
