#include "tests/support/window/modal_script.h"

#include "tests/support/window/wait.h"

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/dirdlg.h>
#include <wx/filedlg.h>
#include <wx/modalhook.h>
#include <wx/msgdlg.h>
#include <wx/weakref.h>

#include <exception>
#include <set>
#include <utility>

namespace window_test {

namespace {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

ModalScript* g_script = nullptr;

std::string WithPlainLineEnds(const std::string& text) {
    wxString plain = wxString::FromUTF8(text);
    plain.Replace("\r\n", "\n");
    return plain.utf8_string();
}

Buttons ButtonsOf(long style) {
    if ((style & wxYES_NO) != wxYES_NO) {
        return Buttons::Ok;
    }
    return (style & wxCANCEL) != 0 ? Buttons::YesNoCancel : Buttons::YesNo;
}

Icon IconOf(long style) {
    switch (style & wxICON_MASK) {
    case wxICON_ERROR:
        return Icon::Critical;
    case wxICON_QUESTION:
        return Icon::Question;
    case wxICON_EXCLAMATION:
        return Icon::Exclamation;
    case wxICON_INFORMATION:
        return Icon::Information;
    default:
        return Icon::None;
    }
}

int IdOf(Answer answer) {
    switch (answer) {
    case Answer::Yes:
        return wxID_YES;
    case Answer::No:
        return wxID_NO;
    case Answer::Cancel:
        return wxID_CANCEL;
    case Answer::Ok:
        break;
    }
    return wxID_OK;
}

// What closes an unwelcome dialog without agreeing to anything.
int Refusal(wxDialog& dialog) {
    const auto* const box = dynamic_cast<wxMessageDialog*>(&dialog);
    if (box == nullptr || (box->GetMessageDialogStyle() & wxCANCEL) != 0) {
        return wxID_CANCEL;
    }
    return (box->GetMessageDialogStyle() & wxYES_NO) != 0 ? wxID_NO : wxID_OK;
}

std::string Describe(wxDialog& dialog) {
    if (const auto* const box = dynamic_cast<wxMessageDialog*>(&dialog)) {
        return "message box \"" + box->GetCaption().utf8_string() + "\": \"" +
               box->GetMessage().utf8_string() + "\"";
    }
    if (const auto* const file = dynamic_cast<wxFileDialog*>(&dialog)) {
        return "file dialog \"" + file->GetMessage().utf8_string() + "\"";
    }
    return std::string(typeid(dialog).name()) + " \"" + dialog.GetTitle().utf8_string() + "\"";
}

void Compare(const wxMessageDialog& box, const platform::Message& expected) {
    EXPECT_EQ(WithPlainLineEnds(box.GetMessage().utf8_string()), WithPlainLineEnds(expected.text));
    EXPECT_EQ(box.GetCaption().utf8_string(), expected.caption);
    EXPECT_EQ(ButtonsOf(box.GetMessageDialogStyle()), expected.buttons) << expected.text;
    EXPECT_EQ(IconOf(box.GetMessageDialogStyle()), expected.icon) << expected.text;
}

void Compare(const wxFileDialog& shown, const FileDialog& expected) {
    EXPECT_EQ((shown.GetWindowStyle() & wxFD_SAVE) != 0, expected.saves);
    EXPECT_EQ(shown.GetMessage().utf8_string(), expected.title);
    EXPECT_EQ(shown.GetFilename().utf8_string(), expected.initialName);
    EXPECT_EQ(shown.GetWildcard().utf8_string(), expected.filter);
}

// Closes a dialog whose test has lost its way, so that the next test can run.
void Abandon(wxDialog& dialog) {
    if (dialog.IsModal()) {
        dialog.EndModal(wxID_CANCEL);
    }
}

void ActOn(wxDialog& dialog, const std::function<void()>& act) {
    try {
        WaitFor([&] { return dialog.IsShownOnScreen(); }, Describe(dialog) + " to be shown");
        act();
        // Where the modal loop lies below us, the dialog stays modal until we return.
        const auto hasEnded = [&] { return !dialog.IsModal() || !dialog.IsShown(); };
        if (!WaitFor(hasEnded, Describe(dialog) + " to end")) {
            Abandon(dialog);
        }
    } catch (const std::exception& error) {
        ADD_FAILURE() << error.what();
        Abandon(dialog);
    }
}

} // namespace

class ModalGuard : public wxModalDialogHook {
protected:
    int Enter(wxDialog* dialog) override {
        // Some dialogs of the toolkit announce themselves once more on their way to the screen.
        if (shown_.contains(dialog)) {
            return wxID_NONE;
        }
        const int answer = Answered(*dialog);
        if (answer == wxID_NONE) {
            shown_.insert(dialog);
        }
        return answer;
    }

    void Exit(wxDialog* dialog) override { shown_.erase(dialog); }

private:
    static int Answered(wxDialog& dialog) {
        if (g_script != nullptr) {
            return g_script->Meet(dialog);
        }
        ADD_FAILURE() << "unexpected " << Describe(dialog);
        return Refusal(dialog);
    }

    std::set<const wxDialog*> shown_;
};

void GuardModalDialogs() {
    static ModalGuard guard;
    guard.Register();
}

ModalScript::ModalScript() : outer_(std::exchange(g_script, this)) {}

ModalScript::~ModalScript() {
    g_script = outer_;
    for (const Expectation& missing : expected_) {
        ADD_FAILURE() << "never came: " << missing.description;
    }
}

void ModalScript::Expect(std::string description, Meeting meet) {
    expected_.push_back({std::move(description), std::move(meet)});
}

int ModalScript::Meet(wxDialog& dialog) {
    if (expected_.empty()) {
        ADD_FAILURE() << "unexpected " << Describe(dialog);
        return Refusal(dialog);
    }
    const Expectation next = std::move(expected_.front());
    expected_.pop_front();
    const int answer = next.meet(dialog);
    if (answer == kOtherDialog) {
        ADD_FAILURE() << "expected " << next.description << ", but there came " << Describe(dialog);
        return Refusal(dialog);
    }
    return answer;
}

void ModalScript::ExpectMessage(const platform::Message& message, Answer answer) {
    Expect("message box \"" + message.caption + "\": \"" + message.text + "\"",
           [message, answer](wxDialog& dialog) {
               const auto* const box = dynamic_cast<wxMessageDialog*>(&dialog);
               if (box == nullptr) {
                   return kOtherDialog;
               }
               Compare(*box, message);
               return IdOf(answer);
           });
}

void ModalScript::ExpectFileDialog(const FileDialog& expected, const std::string& path) {
    Expect("file dialog \"" + expected.title + "\"", [expected, path](wxDialog& dialog) {
        auto* const shown = dynamic_cast<wxFileDialog*>(&dialog);
        if (shown == nullptr) {
            return kOtherDialog;
        }
        Compare(*shown, expected);
        if (path.empty()) {
            return static_cast<int>(wxID_CANCEL);
        }
        shown->SetPath(wxString::FromUTF8(path));
        return static_cast<int>(wxID_OK);
    });
}

void ModalScript::ExpectFolderDialog(const std::string& title, const std::string& path) {
    Expect("folder dialog \"" + title + "\"", [title, path](wxDialog& dialog) {
        auto* const shown = dynamic_cast<wxDirDialog*>(&dialog);
        if (shown == nullptr) {
            return kOtherDialog;
        }
        EXPECT_EQ(shown->GetMessage().utf8_string(), title);
        if (path.empty()) {
            return static_cast<int>(wxID_CANCEL);
        }
        shown->SetPath(wxString::FromUTF8(path));
        return static_cast<int>(wxID_OK);
    });
}

// The dialog's own event loop runs the call once the dialog is up.
void ModalScript::RunWhileShown(wxDialog& dialog, const std::function<void()>& act) {
    wxTheApp->CallAfter([weak = wxWeakRef<wxDialog>(&dialog), act] {
        if (weak) {
            ActOn(*weak, act);
        }
    });
}

} // namespace window_test
