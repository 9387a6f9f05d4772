#include "directory/ad_printers.h"

#include "platform/message.h"
#include "platform/system_error.h"
#include "platform/ui/pump.h"

#include <wx/gauge.h>
#include <wx/odcombo.h>

#include <cerrno>

namespace modADPrinters {

namespace {

constexpr int kSteps = 50;

void ShowDirectoryError(const std::string& what, const platform::SystemError& error) {
    platform::ShowMessage({what + "\r\n\r\nError Number: " + std::to_string(error.number) +
                               "\r\nError Descritpion: " + error.description,
                           "Active Directory Error", platform::Buttons::Ok,
                           platform::Icon::Critical});
}

} // namespace

void StepADProgress(wxGauge& progress) {
    progress.SetValue(progress.GetValue() == kSteps ? 1 : progress.GetValue() + 1);
    platform::ui::PumpEvents();
}

// There is no directory service yet that could be bound, which is what the user is told.
void FillADPrinterList(const std::string& /*domain*/, wxOwnerDrawnComboBox& list,
                       wxGauge& progress) {
    progress.SetRange(kSteps);
    progress.SetValue(1);
    progress.Show();
    list.Clear();
    StepADProgress(progress);
    ShowDirectoryError("Error accessing Active Directory. Please check your domain name and "
                       "network connection.",
                       platform::SystemErrorFromNumber(ENOSYS));
    StepADProgress(progress);
    progress.SetValue(kSteps);
    platform::ui::PumpEvents();
    progress.Hide();
    platform::ui::PumpEvents();
}

std::vector<std::string> DomainNames() {
    return {};
}

} // namespace modADPrinters
