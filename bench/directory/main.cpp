// One refresh of a picker, from the bind to the texts of its items, against the field's own search
// tool on the same server; the filling of its drop-down against a bare one; both together, as the
// button does it. Started by script/bench inside the lab.
//
//   queueshift-directory-bench ROUNDS
#include "bench/rounds.h"
#include "directory/ad_printers.h"
#include "directory/queue_item.h"
#include "document/item_text.h"
#include "platform/directory_service.h"
#include "platform/message.h"
#include "platform/ui/pump.h"
#include "platform/ui/text.h"

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/frame.h>
#include <wx/gauge.h>
#include <wx/odcombo.h>

#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

constexpr char kDomain[] = "corp.example";

/// What a refresh does up to the drop-down, and the search tool up to its output.
std::vector<std::string> ItemTexts() {
    auto service = platform::MakeDirectoryService([] {
        platform::ui::PumpWhenDue();
        return true;
    });
    service->Bind(kDomain);
    service->Connect();
    service->Prepare();
    service->Execute();
    if (service->Error()) {
        throw std::runtime_error(service->Error().description);
    }
    modADPrinters::QueueItem item;
    std::vector<std::string> items;
    for (; !service->AtEnd(); service->MoveNext()) {
        platform::ui::PumpWhenDue();
        items.push_back(item.Next(service->Value("name")));
        service->Value("printShareName");
    }
    return items;
}

void RunSearchTool(const std::string& options) {
    const std::string command =
        "LDAPSASL_NOCANON=on ldapsearch -LLL -Q -N -Y GSSAPI -H ldap://dc1.corp.example "
        "-b DC=corp,DC=example " +
        options + " '(objectCategory=printQueue)' name printShareName >/dev/null";
    if (std::system(command.c_str()) != 0) {
        throw std::runtime_error("the search tool failed");
    }
}

/// Plays records that are there already, so that a fill is measured alone.
class Records : public platform::DirectoryService {
public:
    explicit Records(const std::vector<std::string>& names) : names_(names) {}
    void Bind(const std::string& /*domain*/) override {}
    void Connect() override {}
    void Prepare() override {}
    void Execute() override {}
    long RecordCount() override { return static_cast<long>(names_.size()); }
    bool AtEnd() override { return current_ >= names_.size(); }
    std::optional<std::string> Value(const std::string& /*attribute*/) override {
        return names_[current_];
    }
    void MoveNext() override { ++current_; }

private:
    const std::vector<std::string>& names_;
    std::size_t current_ = 0;
};

void MeasureFill(wxFrame& frame, wxOwnerDrawnComboBox& list, wxGauge& bar, int rounds) {
    std::vector<std::string> names;
    for (const wxString& item : list.GetStrings()) {
        const modINIDocument::ServerPrinterName name =
            modINIDocument::ServerPrinterNameFromItem(platform::ui::FromWx(item));
        names.push_back(name.ServerName + '-' + name.PrinterName);
    }
    modADPrinters::SetServiceMaker(
        [&names](const platform::KeepWaiting&) { return std::make_unique<Records>(names); });
    auto* const bare = new wxOwnerDrawnComboBox(&frame, wxID_ANY);
    std::vector<bench::Side> sides = {{"picker filled step by step, events pumped",
                                       [&] { modADPrinters::FillADPrinterList(list, bar); }},
                                      {"bare drop-down, same texts, in one call", [&] {
                                           modADPrinters::QueueItem item;
                                           wxArrayString texts;
                                           for (const std::string& name : names) {
                                               texts.Add(platform::ui::ToWx(item.Next(name)));
                                           }
                                           bare->Clear();
                                           bare->Append(texts);
                                       }}};
    bench::Run(sides, rounds);
    bench::Print("filling the drop-down", sides, 1.5);
}

void Measure(int rounds) {
    wxFrame* const frame = new wxFrame(nullptr, wxID_ANY, "bench");
    auto* const list = new wxOwnerDrawnComboBox(frame, wxID_ANY);
    auto* const bar = new wxGauge(frame, wxID_ANY, 50);
    frame->Show();
    std::string failure;
    platform::SetMessageHandler([&failure](const platform::Message& message) {
        if (message.icon != platform::Icon::None) {
            failure = message.text;
        }
        return platform::Answer::Ok;
    });
    modADPrinters::SetDomainSource([] { return std::string(kDomain); });
    std::vector<bench::Side> sides = {
        {"this program, from the bind to the item texts", [] { ItemTexts(); }},
        {"search tool, unpaged", [] { RunSearchTool(""); }},
        {"search tool, pages of 1,000", [] { RunSearchTool("-E pr=1000/noprompt"); }},
        {"(the program's button: into the drop-down too)",
         [&] { modADPrinters::FillADPrinterList(*list, *bar); }}};
    bench::Run(sides, rounds);
    if (!failure.empty()) {
        throw std::runtime_error(failure);
    }
    std::printf("%u queues, medians of %d rounds\n", list->GetCount(), rounds);
    bench::Print("refresh", sides, 1.15);
    MeasureFill(*frame, *list, *bar, rounds);
    frame->Destroy();
}

class BenchApp : public wxApp {
public:
    bool OnInit() override { return true; }
    int OnRun() override {
        wxGUIEventLoop loop;
        const wxEventLoopActivator activate(&loop);
        try {
            Measure(argc > 1 ? std::atoi(argv[1].utf8_str()) : 7);
        } catch (const std::exception& error) {
            std::fprintf(stderr, "%s\n", error.what());
            return 1;
        }
        return 0;
    }
    void OnInitCmdLine(wxCmdLineParser& /*parser*/) override {}
    bool OnCmdLineParsed(wxCmdLineParser& /*parser*/) override { return true; }
};

} // namespace

wxIMPLEMENT_APP(BenchApp);
