// Answers to modal dialogs, in the order in which they must come.
#pragma once

#include "platform/message.h"

#include <wx/dialog.h>

#include <deque>
#include <functional>
#include <string>
#include <typeinfo>

namespace window_test {

struct FileDialog {
    bool saves = false; ///< a save dialog, else an open dialog
    std::string title;
    std::string initialName;
    std::string filter;
};

/// Stands in for the user while it lives. The dialogs that come must be those expected, in that
/// order; those that did not come by the end fail the test. Scripts nest: the newest answers.
class ModalScript {
public:
    ModalScript();
    ~ModalScript();
    ModalScript(const ModalScript&) = delete;
    ModalScript& operator=(const ModalScript&) = delete;

    /// A message box of exactly these words (CR LF and LF are alike), buttons and icon.
    void ExpectMessage(const platform::Message& message,
                       platform::Answer answer = platform::Answer::Ok);

    /// The system's file dialog; answered with this path, or cancelled with "".
    void ExpectFileDialog(const FileDialog& dialog, const std::string& path);

    /// The toolkit's folder dialog of this title; answered with this path, or cancelled with "".
    void ExpectFolderDialog(const std::string& title, const std::string& path);

    /// A dialog of class D that is not shown: `act` sees it as it would be shown, changes what it
    /// likes and returns the answer, or wxID_NONE to have it shown after all (the callable must
    /// then have arranged for its end).
    template <class D> void ExpectDialog(std::function<int(D&)> act) {
        Expect(typeid(D).name(), [act = std::move(act)](wxDialog& dialog) {
            auto* const wanted = dynamic_cast<D*>(&dialog);
            return wanted == nullptr ? kOtherDialog : act(*wanted);
        });
    }

    /// A dialog of class D that is shown: `act` runs while it is on the screen and must bring it to
    /// its end, as a user would.
    template <class D> void ExpectLive(std::function<void(D&)> act) {
        Expect(typeid(D).name(), [act = std::move(act)](wxDialog& dialog) {
            auto* const wanted = dynamic_cast<D*>(&dialog);
            if (wanted == nullptr) {
                return kOtherDialog;
            }
            RunWhileShown(dialog, [act, wanted] { act(*wanted); });
            return static_cast<int>(wxID_NONE);
        });
    }

    /// True when every expected dialog has come.
    [[nodiscard]] bool Done() const { return expected_.empty(); }

private:
    friend class ModalGuard;

    /// Returns the dialog's answer, wxID_NONE to show it, or kOtherDialog.
    using Meeting = std::function<int(wxDialog&)>;
    static constexpr int kOtherDialog = -4711;

    struct Expectation {
        std::string description;
        Meeting meet;
    };

    void Expect(std::string description, Meeting meet);
    int Meet(wxDialog& dialog);
    static void RunWhileShown(wxDialog& dialog, const std::function<void()>& act);

    std::deque<Expectation> expected_;
    ModalScript* outer_;
};

/// Watches for modal dialogs from now on, also those that no script expects. Called once, by main.
void GuardModalDialogs();

} // namespace window_test
