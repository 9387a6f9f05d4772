// The main window with the real help book beside the test program.
#pragma once

#include "tests/wizard/wizard_test.h"

#include "platform/message.h"
#include "platform/program.h"
#include "wizard/help.h"
#include "wizard/help_viewer.h"

#include <filesystem>
#include <string>

namespace window_test {

/// The book is there for the length of the test only.
class HelpTest : public WizardTest {
protected:
    HelpTest() : book_(platform::JoinPath(platform::ProgramFolder(), "Queueshift.hlp")) {
        test::WriteBytes(book_, test::ReadBytes(QUEUESHIFT_HELP_BOOK));
    }

    ~HelpTest() override { RemoveBook(); }

    [[nodiscard]] const std::string& BookPath() const { return book_; }
    void RemoveBook() const { std::filesystem::remove(book_); }

    static modWizard::HelpFrame* Viewer() {
        return dynamic_cast<modWizard::HelpFrame*>(wxWindow::FindWindowByName("frmHelp"));
    }

    static std::string ShownTitle() {
        return Viewer() == nullptr ? "(no viewer)" : Viewer()->pane->TopicTitle().utf8_string();
    }

    static void ExpectComplaint(ModalScript& dialogs, const std::string& text) {
        dialogs.ExpectMessage({.text = text,
                               .caption = "Queueshift Help",
                               .buttons = platform::Buttons::Ok,
                               .icon = platform::Icon::Exclamation});
    }

private:
    std::string book_;
};

} // namespace window_test
