#include "platform/ui/message_box.h"

#include "platform/message.h"
#include "platform/ui/native_message_dialog.h"
#include "platform/ui/text.h"

#include <wx/toplevel.h>

namespace platform::ui {

namespace {

long ButtonStyle(Buttons buttons) {
    switch (buttons) {
    case Buttons::YesNo:
        return wxYES_NO;
    case Buttons::YesNoCancel:
        return wxYES_NO | wxCANCEL;
    case Buttons::Ok:
        break;
    }
    return wxOK;
}

long IconStyle(Icon icon) {
    switch (icon) {
    case Icon::Critical:
        return wxICON_ERROR;
    case Icon::Question:
        return wxICON_QUESTION;
    case Icon::Exclamation:
        return wxICON_EXCLAMATION;
    case Icon::Information:
        return wxICON_INFORMATION;
    case Icon::None:
        break;
    }
    // Said outright: the toolkit picks an icon by the buttons for a box that names none.
    return wxICON_NONE;
}

// A box that is closed without an answer agrees to nothing.
Answer AnswerOf(int id, Buttons buttons) {
    switch (buttons) {
    case Buttons::YesNo:
        return id == wxID_YES ? Answer::Yes : Answer::No;
    case Buttons::YesNoCancel:
        return id == wxID_YES ? Answer::Yes : id == wxID_NO ? Answer::No : Answer::Cancel;
    case Buttons::Ok:
        break;
    }
    return Answer::Ok;
}

Answer ShowBox(const Message& message) {
    wxString text = ToWx(message.text);
    text.Replace("\r\n", "\n");
    NativeMessageDialog box(ActiveOwner(), text, ToWx(message.caption),
                            ButtonStyle(message.buttons) | IconStyle(message.icon));
    return AnswerOf(box.ShowModal(), message.buttons);
}

} // namespace

wxWindow* ActiveOwner() {
    wxTopLevelWindow* newest = nullptr;
    for (wxWindow* const window : wxTopLevelWindows) {
        auto* const top = dynamic_cast<wxTopLevelWindow*>(window);
        if (top == nullptr || !top->IsShown() || top->IsBeingDeleted()) {
            continue;
        }
        if (top->IsActive()) {
            return top;
        }
        newest = top;
    }
    return newest;
}

void InstallMessageBoxes() {
    SetMessageHandler(ShowBox);
}

} // namespace platform::ui
