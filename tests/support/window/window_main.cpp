// Runs the window tests inside the toolkit.

#include "tests/support/window/modal_script.h"
#include "tests/support/window/wait.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/image.h>
#include <wx/init.h>
#include <wx/log.h>
#include <wx/toplevel.h>

#include <exception>
#include <iostream>

namespace {

void FailTheTest(const wxString& file, int line, const wxString& function,
                 const wxString& condition, const wxString& message) {
    ADD_FAILURE_AT(file.utf8_str().data(), line)
        << "assertion of the toolkit in " << function.utf8_string() << ": "
        << condition.utf8_string() << ' ' << message.utf8_string();
}

// A window that a failed test left behind would take the focus from the tests that follow.
class Housekeeper : public testing::EmptyTestEventListener {
    void OnTestEnd(const testing::TestInfo&) override {
        for (wxWindow* window : wxTopLevelWindows) {
            window->Destroy();
        }
        window_test::Pump();
    }
};

class WindowTestApp : public wxApp {
public:
    // The command line is the test framework's.
    bool OnInit() override { return true; }

    int OnRun() override {
        SetExitOnFrameDelete(false);
        wxSetAssertHandler(FailTheTest);
        delete wxLog::SetActiveTarget(new wxLogStderr);
        wxImage::AddHandler(new wxPNGHandler);
        window_test::GuardModalDialogs();
        testing::UnitTest::GetInstance()->listeners().Append(new Housekeeper);

        wxGUIEventLoop loop;
        const wxEventLoopActivator activate(&loop);
        const int result = RUN_ALL_TESTS();
        const bool lists = GTEST_FLAG_GET(list_tests);
        if (!lists && testing::UnitTest::GetInstance()->test_to_run_count() == 0) {
            std::cerr << "no test was selected\n";
            return 1;
        }
        return result;
    }

    bool OnExceptionInMainLoop() override {
        try {
            throw;
        } catch (const std::exception& error) {
            ADD_FAILURE() << "an exception reached the event loop: " << error.what();
        } catch (...) {
            ADD_FAILURE() << "an exception reached the event loop";
        }
        return true;
    }
};

} // namespace

wxIMPLEMENT_APP_NO_MAIN(WindowTestApp);

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    return wxEntry(argc, argv);
}
