// The window filled from a record of very many entries, and the refreshes of the two lists that
// follow from others.
//
//   queueshift-lists-bench ROUNDS
#include "bench/full_document.h"
#include "bench/rounds.h"
#include "files/ini_file.h"
#include "platform/ui/text.h"
#include "wizard/derived_lists.h"
#include "wizard/wizard.h"

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/listbox.h>

#include <cstdlib>
#include <stdexcept>

namespace {

using modWizard::Items;
using modWizard::MigrationLists;

constexpr int kEntries = 10000;

std::vector<wxListBox*> ListBoxes(const frmWizard& window) {
    return {window.servers->lstServerPairs,
            window.printers->lstPrinterPairs,
            window.mixed->lstMixedPrintersAndServers,
            window.smtp->lstToEmailAddresses,
            window.populate->lstPopulate,
            window.prune->lstManualPrune,
            window.drivers->lstPrinterDrivers};
}

// Both sides begin with the lists as full as they leave them.
void MeasureFilling(int rounds) {
    auto* const window = new frmWizard;
    modINIFile::StartUntitledDocument();
    bench::FillDocument(kEntries);
    window->LoadDocumentToForm();

    auto* const bare = new wxFrame(nullptr, wxID_ANY, "bare");
    std::vector<wxListBox*> boxes;
    std::vector<wxArrayString> texts;
    for (const wxListBox* list : ListBoxes(*window)) {
        if (list->GetCount() != kEntries) {
            throw std::runtime_error("a list is not full");
        }
        boxes.push_back(new wxListBox(bare, wxID_ANY));
        texts.push_back(list->GetStrings());
    }
    std::vector<bench::Side> sides = {{"this program", [&] { window->LoadDocumentToForm(); }},
                                      {"bare list boxes", [&] {
                                           for (std::size_t i = 0; i < boxes.size(); ++i) {
                                               boxes[i]->Clear();
                                               boxes[i]->Append(texts[i]);
                                           }
                                       }}};
    bench::Run(sides, rounds);
    bench::Print("filling from 10,000 entries a list", sides, 1.5);
    window->Destroy();
    bare->Destroy();
}

// Names as long as real ones and alike but for their last characters.
std::string Name(const char* kind, long index) {
    return std::string("headquarters-print-server-") + kind + "-floor-" + std::to_string(index);
}

MigrationLists Lists(long length) {
    MigrationLists lists;
    for (long index = 0; index < length; ++index) {
        const std::string server = Name("srv", index % 50) + " >> ";
        lists.mixedPairs.push_back(server + Name("old", index) + " -> " + server +
                                   Name("new", index));
        lists.printerPairs.push_back(Name("old", index) + " -> " + Name("pair", index));
        lists.populate.push_back(server + Name("add", index));
    }
    return lists;
}

void MeasureRefreshes(int rounds) {
    const MigrationLists many = Lists(kEntries);
    const MigrationLists few = Lists(kEntries / 10);
    const Items savedMany = modWizard::DriverItems(many, {});
    const Items savedFew = modWizard::DriverItems(few, {});
    std::vector<bench::Side> drivers = {
        {"10,000 entries", [&] { modWizard::DriverItems(many, savedMany); }},
        {"1,000 entries", [&] { modWizard::DriverItems(few, savedFew); }}};
    bench::Run(drivers, rounds);
    bench::Print("driver list for 10 times the entries", drivers, 12);
    std::vector<bench::Side> printers = {
        {"10,000 entries", [&] { modWizard::DefaultPrinterItems(many); }},
        {"1,000 entries", [&] { modWizard::DefaultPrinterItems(few); }}};
    bench::Run(printers, rounds);
    bench::Print("default-printer list for 10 times the entries", printers, 12);
}

class ListsBench : public wxApp {
public:
    bool OnInit() override { return true; }
    int OnRun() override {
        wxGUIEventLoop loop;
        const wxEventLoopActivator activate(&loop);
        const int rounds = argc > 1 ? std::atoi(argv[1].utf8_str()) : 31;
        try {
            MeasureFilling(rounds);
            MeasureRefreshes(rounds);
            return 0;
        } catch (const std::exception& error) {
            std::fprintf(stderr, "%s\n", error.what());
            return 1;
        }
    }
    void OnInitCmdLine(wxCmdLineParser& /*parser*/) override {}
    bool OnCmdLineParsed(wxCmdLineParser& /*parser*/) override { return true; }
};

} // namespace

wxIMPLEMENT_APP(ListsBench);
