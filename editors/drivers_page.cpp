#include "editors/drivers_page.h"

#include "document/item_text.h"
#include "platform/message.h"
#include "platform/ui/text.h"

#include <utility>

namespace editors {

DriversPage::DriversPage(wxWindow* parent, int position, FolderServices folders)
    : Page(parent, position, "Drivers"), folders_(std::move(folders)) {
    lblNotification = AddParagraph(
        wxString::Format("lblNotification(%d)", position),
        "To use the Populate feature to add a local printer or to add any printer to a Windows "
        "95/98/ME client machine,  the Queueshift Engine must know the name of the printer driver "
        "and a network share path to the printer driver in case the driver needs to be installed:");
    lstPrinterDrivers = AddListBox("lstPrinterDrivers", "Printer drivers");
    wxFlexGridSizer* const rows = AddFields();
    txtPrinterNameViewOnly = AddTextRow(*rows, 50, "Printer Name:", "txtPrinterNameViewOnly");
    txtPrinterNameViewOnly->SetEditable(false);
    txtPrinterNameViewOnly->SetBackgroundColour(FaceColour());
    txtDriverName = AddTextRow(*rows, 51, "Driver Name:", "txtDriverName");
    txtDriverFileName = AddTextRow(*rows, 52, "Driver File Name (optional):", "txtDriverFileName");
    txtPortName = AddTextRow(*rows, 53, "Port Name (local printers only) :", "txtPortName");
    cmdSavePrinterDriver = AddButton(*AddButtonRow(), "cmdSavePrinterDriver", "&Save");
    wxFlexGridSizer* const shareRow = AddFields();
    const TextAndButton share =
        AddTextRowWithButton(*shareRow, 54, "Driver Share Path:", "txtDriverSharePath",
                             "cmdBrowseDriverSharePath", "Browse ...");
    txtDriverSharePath = share.text;
    cmdBrowseDriverSharePath = share.button;
    AlignLabels({rows, shareRow});

    BindListClick(*lstPrinterDrivers, [this] { lstPrinterDrivers_Click(); });
    OnClick(cmdSavePrinterDriver, [this] { cmdSavePrinterDriver_Click(); });
    OnClick(cmdBrowseDriverSharePath, [this] { cmdBrowseDriverSharePath_Click(); });
    Completed();
}

void DriversPage::lstPrinterDrivers_Click() {
    if (lstPrinterDrivers->GetSelection() == wxNOT_FOUND) {
        return;
    }
    const modINIDocument::PrinterDriver driver =
        modINIDocument::PrinterDriverFromItem(SelectedText(*lstPrinterDrivers));
    PutText(*txtPrinterNameViewOnly, driver.PrinterName);
    PutText(*txtDriverName, driver.DriverName);
    PutText(*txtDriverFileName, driver.DriverFileName);
    PutText(*txtPortName, driver.PortName);
}

void DriversPage::cmdSavePrinterDriver_Click() {
    const int selected = lstPrinterDrivers->GetSelection();
    if (selected == wxNOT_FOUND) {
        platform::ShowMessage({"Please select a printer before saving.", "Error, Queueshift",
                               platform::Buttons::Ok, platform::Icon::Exclamation});
        return;
    }
    // One of the two is enough, whatever the words say.
    if (txtDriverName->IsEmpty() && txtDriverFileName->IsEmpty()) {
        platform::ShowMessage(
            {"Please enter a driver name and a driver file name. Both are required.",
             "Error, Input Required", platform::Buttons::Ok, platform::Icon::Exclamation});
        return;
    }
    const modINIDocument::PrinterDriver driver{TextOf(*txtPrinterNameViewOnly),
                                               TextOf(*txtDriverName), TextOf(*txtDriverFileName),
                                               TextOf(*txtPortName)};
    lstPrinterDrivers->SetString(static_cast<unsigned>(selected),
                                 platform::ui::ToWx(modINIDocument::ItemText(driver)));
    lstPrinterDrivers->SetSelection(selected);
    MarkChanged();
}

void DriversPage::cmdBrowseDriverSharePath_Click() {
    BrowseInto(*txtDriverSharePath, folders_);
}

} // namespace editors
