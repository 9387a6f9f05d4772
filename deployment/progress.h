// The small window that shows how far a deployment is.
#pragma once

#include <wx/dialog.h>

#include <string_view>

class wxGauge;
class wxStaticText;

/// Not modal and without a close box: it comes and goes with the deployment.
class frmProgress : public wxDialog {
public:
    /// More than any deployment's steps; the bar is set to it at the end.
    static constexpr int kMaximum = 11;

    explicit frmProgress(wxWindow* owner);

    /// Adds 1 to the bar, shows the label and lets pending window events run.
    void Advance(std::string_view label);

    /// Fills the bar and shows the label.
    void SetToMaximum(std::string_view label);

    wxGauge* prbProgress = nullptr;
    wxStaticText* lblProgress = nullptr;

private:
    void ShowStep(int value, std::string_view label);
};
