// One refresh of a picker against the field's own search tool on the same server, and the filling
// of its drop-down against a bare one; started by script/bench inside the lab.
//
//   queueshift-directory-bench ROUNDS
//
// Every round runs each side once, so that whatever else the machine does falls on all of them.
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

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

constexpr char kDomain[] = "corp.example";

double Seconds(const std::function<void()>& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

double Median(std::vector<double> times) {
    std::ranges::sort(times);
    return times[times.size() / 2];
}

std::vector<std::string> Refresh() {
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

struct Times {
    std::vector<double> refresh, paged, unpaged, fill, bare;
};

void Row(const char* name, const std::vector<double>& times, double base) {
    std::printf("%-44s %9.1f ms   %5.2f\n", name, Median(times) * 1e3, Median(times) / base);
}

void Print(const Times& times, std::size_t count) {
    std::printf("%zu queues, medians of %zu rounds\n", count, times.refresh.size());
    const double faster = std::min(Median(times.paged), Median(times.unpaged));
    Row("refresh, bind to item texts", times.refresh, faster);
    Row("search tool, unpaged", times.unpaged, faster);
    Row("search tool, pages of 1,000", times.paged, faster);
    Row("picker filled step by step, events pumped", times.fill, Median(times.bare));
    Row("bare drop-down, same texts, in one call", times.bare, Median(times.bare));
}

void Measure(int rounds) {
    wxFrame* const frame = new wxFrame(nullptr, wxID_ANY, "bench");
    auto* const list = new wxOwnerDrawnComboBox(frame, wxID_ANY);
    auto* const bare = new wxOwnerDrawnComboBox(frame, wxID_ANY);
    auto* const bar = new wxGauge(frame, wxID_ANY, 50);
    frame->Show();
    platform::SetMessageHandler([](const platform::Message&) { return platform::Answer::Ok; });
    const std::vector<std::string> items = Refresh();
    std::vector<std::string> names;
    for (const std::string& item : items) {
        const modINIDocument::ServerPrinterName name =
            modINIDocument::ServerPrinterNameFromItem(item);
        names.push_back(name.ServerName + '-' + name.PrinterName);
    }
    modADPrinters::SetServiceMaker(
        [&names](const platform::KeepWaiting&) { return std::make_unique<Records>(names); });
    Times times;
    for (int round = 0; round < rounds; ++round) {
        times.refresh.push_back(Seconds([] { Refresh(); }));
        times.unpaged.push_back(Seconds([] { RunSearchTool(""); }));
        times.paged.push_back(Seconds([] { RunSearchTool("-E pr=1000/noprompt"); }));
        times.fill.push_back(Seconds([&] { modADPrinters::FillADPrinterList(*list, *bar); }));
        times.bare.push_back(Seconds([&] {
            modADPrinters::QueueItem item;
            wxArrayString texts;
            for (const std::string& name : names) {
                texts.Add(platform::ui::ToWx(item.Next(name)));
            }
            bare->Clear();
            bare->Append(texts);
        }));
    }
    Print(times, items.size());
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
