// The About box.
#pragma once

#include <wx/dialog.h>

#include <string>

class wxButton;
class wxStaticText;

/// The program's version, three numbers.
struct ProductVersion {
    int Major = 0;
    int Minor = 0;
    int Revision = 0;
};

/// The version that this program was built as.
ProductVersion CurrentVersion();

class frmAbout : public wxDialog {
public:
    explicit frmAbout(wxWindow* owner, const ProductVersion& version = CurrentVersion());

    wxStaticText* lblTitle = nullptr;
    wxStaticText* lblVersion = nullptr;
    wxStaticText* lblDisclaimer = nullptr;
    wxButton* cmdOK = nullptr;

    void Form_Load();
    void cmdOK_Click();

private:
    ProductVersion version_;
};
