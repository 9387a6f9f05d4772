// What the real automation objects report where there is no directory, and the boxes that tell it.
#include "directory/ad_printers.h"
#include "platform/directory_service.h"
#include "tests/wizard/wizard_test.h"

#include <wx/gauge.h>
#include <wx/odcombo.h>

#include <functional>

namespace window_test {
namespace {

using platform::Buttons;
using platform::DirectoryService;
using platform::Icon;
using platform::SystemError;

constexpr char kNoDomain[] = "no-such-domain.invalid";

/// The system's own service but for the binding, which nothing here could answer.
class Unbound : public DirectoryService {
public:
    void Bind(const std::string& /*domain*/) override {}
    void Connect() override { Take(&DirectoryService::Connect); }
    void Prepare() override { Take(&DirectoryService::Prepare); }
    void Execute() override { Take(&DirectoryService::Execute); }
    long RecordCount() override { return real_->RecordCount(); }
    bool AtEnd() override { return real_->AtEnd(); }
    std::optional<std::string> Value(const std::string& attribute) override {
        return real_->Value(attribute);
    }
    void MoveNext() override { real_->MoveNext(); }

private:
    void Take(void (DirectoryService::*step)()) {
        std::invoke(step, *real_);
        Fail(real_->Error());
    }

    std::unique_ptr<DirectoryService> real_ = platform::MakeDirectoryService([] { return true; });
};

class DirectoryErrors : public WizardTest {
protected:
    DirectoryErrors() {
        Start(kActiveDirectory);
        PutText(window, "cboDomainName", kNoDomain);
        PutItems(window, "cboAdPopulate", {"old >> item"});
    }
    ~DirectoryErrors() override { modADPrinters::SetServiceMaker(nullptr); }

    void ExpectErrorBox(ModalScript& dialogs, const std::string& doing, const SystemError& error) {
        ASSERT_NE(error.number, 0);
        ASSERT_NE(error.description, "");
        dialogs.ExpectMessage(
            {"Error " + doing +
                 " Active Directory. Please check your domain name and network connection."
                 "\r\n\r\nError Number: " +
                 std::to_string(error.number) + "\r\nError Descritpion: " + error.description,
             "Active Directory Error", Buttons::Ok, Icon::Critical});
    }

    void Fill() {
        modADPrinters::FillADPrinterList(*window->populate->cboAdPopulate,
                                         *window->populate->prbAdPopulateProgress);
        EXPECT_EQ(ItemsIn(window, "cboAdPopulate"), Texts{});
        EXPECT_FALSE(window->populate->prbAdPopulateProgress->IsShown());
    }
};

TEST_F(DirectoryErrors, ADomainThatCannotBeBoundIsTheAccessError) {
    const auto service = platform::MakeDirectoryService([] { return true; });
    service->Bind(kNoDomain);
    ModalScript dialogs;
    ExpectErrorBox(dialogs, "accessing", service->Error());
    Fill();
}

TEST_F(DirectoryErrors, AQueryThatFailsIsTheQueryErrorAfterItsCount) {
    Unbound service;
    service.Connect();
    service.Prepare();
    service.Execute();
    modADPrinters::SetServiceMaker(
        [](const platform::KeepWaiting&) { return std::make_unique<Unbound>(); });
    ModalScript dialogs;
    dialogs.ExpectMessage({"0", "Queueshift Deployment Toolkit", Buttons::Ok, Icon::None});
    ExpectErrorBox(dialogs, "querying", service.Error());
    Fill();
}

} // namespace
} // namespace window_test
