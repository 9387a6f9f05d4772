// The steps of Deploy Now, one after the other, as its progress window shows them.
#include "tests/wizard/wizard_test.h"

#include "deployment/progress.h"
#include "platform/program.h"

#include <wx/gauge.h>
#include <wx/msgdlg.h>
#include <wx/radiobut.h>
#include <wx/stattext.h>

#include <filesystem>
#include <utility>

namespace window_test {
namespace {

using Step = std::pair<int, std::string>;
using Steps = std::vector<Step>;

frmProgress* ProgressWindow() {
    for (wxWindow* top : wxTopLevelWindows) {
        auto* const progress = dynamic_cast<frmProgress*>(top);
        if (progress != nullptr && !wxPendingDelete.Member(progress)) {
            return progress;
        }
    }
    return nullptr;
}

/// Stands between the deployment and the window: notes what the progress window shows before and
/// after each step, and how the main window is.
class StepWatch : public modDeployment::Host {
public:
    explicit StepWatch(frmWizard& window) : window_(window) { modDeployment::SetHost(this); }
    ~StepWatch() override { modDeployment::SetHost(&window_); }
    StepWatch(const StepWatch&) = delete;
    StepWatch& operator=(const StepWatch&) = delete;

    std::string DeploymentFolder() const override { return Asked().DeploymentFolder(); }
    bool IncludesMDAC() const override { return Asked().IncludesMDAC(); }
    bool IsMDACVersionSelected(int index) const override {
        return Asked().IsMDACVersionSelected(index);
    }
    void Advance(std::string_view label) override {
        Note();
        static_cast<modDeployment::Host&>(window_).Advance(label);
        Note();
    }

    Steps steps;
    bool alwaysBusy = true;

private:
    [[nodiscard]] const modDeployment::Host& Asked() const { return window_; }

    void Note() {
        const frmProgress* const progress = ProgressWindow();
        ASSERT_NE(progress, nullptr);
        const Step step{progress->prbProgress->GetValue(),
                        progress->lblProgress->GetLabel().utf8_string()};
        if (steps.empty() || steps.back() != step) {
            steps.push_back(step);
        }
        alwaysBusy = alwaysBusy && progress->IsShown() && !window_.IsThisEnabled() &&
                     window_.GetCursor().IsOk();
    }

    frmWizard& window_;
};

class DeploySteps : public WizardTest {
protected:
    DeploySteps() {
        Start(kManual);
        test::WriteBytes(saved_.File("Sites.ini"), "[GENERAL]\r\n");
        modINIDocument::g_strINIFilePath = saved_.File("Sites.ini");
        modINIDocument::g_strINIFileTitle = "Sites.ini";
        PutText(window, "txtNetworkSharePath", target.Path());
        Find<wxCheckBox>(window, "chkCreateHTML")->SetValue(true);
        Find<wxCheckBox>(window, "chkBatchFile")->SetValue(true);
        for (const char* name :
             {"QueueshiftEngine.exe", "MSCOMCTL.OCX", "MSWINSCK.OCX", "MDAC_TYP2.8.EXE"}) {
            test::WriteBytes(platform::JoinPath(platform::ProgramFolder(), name), name);
        }
        Show();
    }
    ~DeploySteps() override {
        for (const char* name :
             {"QueueshiftEngine.exe", "MSCOMCTL.OCX", "MSWINSCK.OCX", "MDAC_TYP2.8.EXE"}) {
            Lose(name);
        }
    }

    void IncludeMDAC() {
        Find<wxCheckBox>(window, "chkIncludeMDAC")->SetValue(true);
        Find<wxRadioButton>(window, "optMDACVersion(2)")->SetValue(true);
    }
    static void Lose(const std::string& name) {
        std::error_code ignored; // a test may have taken it away already
        std::filesystem::remove(platform::JoinPath(platform::ProgramFolder(), name), ignored);
    }

    test::TemporaryFolder target;

private:
    test::TemporaryFolder saved_;
};

const platform::Message kSuccess{"Deployment successfull.", "Sucess", platform::Buttons::Ok,
                                 platform::Icon::Information};

TEST_F(DeploySteps, AreSixWithAnInstaller) {
    IncludeMDAC();
    ModalScript dialogs;
    dialogs.ExpectMessage(kSuccess);
    const StepWatch watch(*window);
    Push(window, "cmdDeployNow(0)");
    EXPECT_THAT(watch.steps, testing::ElementsAre(Step{1, "Initializing deployment process ..."},
                                                  Step{2, "Copying MDAC file ..."},
                                                  Step{3, "Copying Queueshift Engine ..."},
                                                  Step{4, "Copying INI file ..."},
                                                  Step{5, "Creating HTML file ..."},
                                                  Step{6, "Creating batch file ..."}));
    EXPECT_TRUE(watch.alwaysBusy);
}

TEST_F(DeploySteps, WithoutAnInstallerThePagesLabelIsAnother) {
    ModalScript dialogs;
    dialogs.ExpectMessage(kSuccess);
    const StepWatch watch(*window);
    Push(window, "cmdDeployNow(1)");
    EXPECT_THAT(watch.steps, testing::ElementsAre(Step{1, "Initializing deployment process ..."},
                                                  Step{2, "Copying Queueshift Engine ..."},
                                                  Step{3, "Copying INI file ..."},
                                                  Step{4, "Create HTML file ..."},
                                                  Step{5, "Creating batch file ..."}));
    EXPECT_TRUE(watch.alwaysBusy);
}

TEST_F(DeploySteps, AfterAFailureTheWindowStaysDeafUntilTheEnd) {
    IncludeMDAC();
    Lose("MDAC_TYP2.8.EXE");
    ModalScript dialogs;
    dialogs.ExpectDialog<wxMessageDialog>([&](wxMessageDialog& box) {
        EXPECT_EQ(box.GetCaption(), "Error");
        EXPECT_FALSE(window->IsThisEnabled());
        return static_cast<int>(wxID_OK);
    });
    const StepWatch watch(*window);
    Push(window, "cmdDeployNow(0)");
    EXPECT_THAT(watch.steps, testing::ElementsAre(Step{1, "Initializing deployment process ..."},
                                                  Step{2, "Copying MDAC file ..."},
                                                  Step{3, "Creating HTML file ..."},
                                                  Step{4, "Creating batch file ..."}));
    EXPECT_TRUE(watch.alwaysBusy);
    EXPECT_TRUE(window->IsThisEnabled());
    EXPECT_FALSE(modDeployment::g_bolDeploymentSucceeded);
}

TEST_F(DeploySteps, FailedGeneratorsAreToldOneByOneAndSuccessFollows) {
    std::filesystem::create_directory(target.File("Sites.ini.bat"));
    std::filesystem::create_directory(target.File("Sites.ini.html"));
    ModalScript dialogs;
    dialogs.ExpectMessage({"Error: Queueshift was unable to deploy your HTML file to the folder "
                           "specified.\r\n\r\nPlease check your file and folder permissions.",
                           "Error Deploying HTML File", platform::Buttons::Ok,
                           platform::Icon::Critical});
    dialogs.ExpectMessage({"Error: Queueshift was unable to deploy your batch file to the folder "
                           "specified.\r\n\r\nPlease check your file and folder permissions.",
                           "Error Deploying Batch File", platform::Buttons::Ok,
                           platform::Icon::Critical});
    dialogs.ExpectMessage(kSuccess);
    Push(window, "cmdDeployNow(0)");
    EXPECT_TRUE(dialogs.Done());
    EXPECT_TRUE(window->IsThisEnabled());
}

} // namespace
} // namespace window_test
