// The texts of the lblWizard array: two of them open web pages, and the pointer tells them apart.
#include "document/product.h"
#include "platform/message.h"
#include "platform/ui/open_document.h"
#include "wizard/wizard.h"

#include <array>
#include <utility>

namespace {

/// The address behind an element of the array, or "" where it is a mere text.
std::string_view AddressOf(int index) {
    switch (index) {
    case 3:
        return product::kMDACPage;
    case 5:
        return product::kWebUrl;
    default:
        return {};
    }
}

} // namespace

void frmWizard::BindLinks() {
    const std::array<std::pair<int, wxWindow*>, 6> labels{{{0, mdac->lblWizard0},
                                                           {1, deployment->lblWizard1},
                                                           {2, mdac->lblWizard2},
                                                           {3, mdac->lblWizard3},
                                                           {4, support->lblWizard4},
                                                           {5, support->lblWizard5}}};
    for (const auto& [index, label] : labels) {
        label->Bind(editors::EVT_LINK_OPENED,
                    [this, index](wxCommandEvent&) { lblWizard_Click(index); });
        label->Bind(wxEVT_MOTION, [this, index](wxMouseEvent& event) {
            lblWizard_MouseMove(index);
            event.Skip();
        });
        // A quick hand leaves a link without touching the page around it.
        label->Bind(wxEVT_LEAVE_WINDOW, [this](wxMouseEvent& event) {
            sstWizard_MouseMove();
            event.Skip();
        });
    }
    for (editors::Page* page : pages) {
        page->Bind(wxEVT_MOTION, [this](wxMouseEvent& event) {
            sstWizard_MouseMove();
            event.Skip();
        });
    }
}

void frmWizard::lblWizard_Click(int index) {
    const std::string address(AddressOf(index));
    if (address.empty()) {
        return;
    }
    const platform::ui::OpenFailure failure = platform::ui::OpenDocument(this, address);
    if (failure) {
        platform::ShowMessage({"The address " + address + " could not be opened." +
                                   (failure->empty() ? "" : "\r\n\r\n" + *failure),
                               "Queueshift", platform::Buttons::Ok, platform::Icon::Exclamation});
    }
}

void frmWizard::lblWizard_MouseMove(int index) {
    if (AddressOf(index).empty()) {
        sstWizard_MouseMove();
    } else if (!GetCursor().IsOk()) {
        SetCursor(wxCursor(wxCURSOR_QUESTION_ARROW));
    }
}

void frmWizard::sstWizard_MouseMove() {
    if (GetCursor().IsOk()) {
        SetCursor(wxNullCursor);
    }
}
