#include "directory/ad_printers.h"

#include "directory/queue_item.h"
#include "document/product.h"
#include "platform/message.h"
#include "platform/ui/pump.h"
#include "platform/ui/text.h"

#include <algorithm>
#include <type_traits> // the toolkit's weak reference uses it unasked
#include <utility>

#include <wx/gauge.h>
#include <wx/odcombo.h>
#include <wx/weakref.h>

namespace modADPrinters {

namespace {

constexpr int kSteps = 50;

std::function<std::string()> g_domainSource;
ServiceMaker g_serviceMaker;
DomainLister g_domainLister;
std::function<void()> g_whenNoQueryRuns;

std::unique_ptr<platform::DirectoryService> MakeService(platform::KeepWaiting keepWaiting) {
    return g_serviceMaker ? g_serviceMaker(std::move(keepWaiting))
                          : platform::MakeDirectoryService(std::move(keepWaiting));
}

// From 1 to 50 and from there back to 1.
void Advance(wxGauge& progress, int steps) {
    progress.SetValue((progress.GetValue() + steps - 1) % kSteps + 1);
}

/// One call of FillADPrinterList, for as long as it lasts.
class Query {
public:
    Query(wxOwnerDrawnComboBox& list, wxGauge& progress);
    ~Query();
    Query(const Query&) = delete;
    Query& operator=(const Query&) = delete;

    void Run();
    void Abandon() { wanted_ = false; }

private:
    bool FetchRecords();
    void AddItems();
    void Finish();
    void Report(const std::string& what);
    bool Step();
    void ShowItems(wxArrayString& items, int& steps);

    [[nodiscard]] bool Wanted() const {
        return wanted_ && list_.get() != nullptr && progress_.get() != nullptr;
    }

    wxWeakRef<wxOwnerDrawnComboBox> list_;
    wxWeakRef<wxGauge> progress_;
    bool wanted_ = true;
    bool superseded_ = false;
    std::unique_ptr<platform::DirectoryService> service_;
};

/// Those under way, the innermost last.
std::vector<Query*> g_queries;

Query::Query(wxOwnerDrawnComboBox& list, wxGauge& progress)
    : list_(&list), progress_(&progress), service_(MakeService([this] {
          platform::ui::PumpWhenDue();
          return Wanted();
      })) {
    for (Query* earlier : g_queries) {
        if (earlier->list_.get() == &list) {
            earlier->wanted_ = false;
            earlier->superseded_ = true;
        }
    }
    g_queries.push_back(this);
}

Query::~Query() {
    std::erase(g_queries, this);
    if (g_queries.empty() && g_whenNoQueryRuns) {
        std::exchange(g_whenNoQueryRuns, nullptr)();
    }
}

bool Query::Step() {
    if (Wanted()) {
        StepADProgress(*progress_);
    }
    return Wanted();
}

void Query::Run() {
    progress_->SetRange(kSteps);
    progress_->SetValue(1);
    progress_->Show();
    list_->Clear();
    if (Step() && FetchRecords()) {
        AddItems();
    }
    Finish();
}

// Every step runs, whatever the ones before it did; the error is looked at in two places only.
bool Query::FetchRecords() {
    service_->Bind(g_domainSource ? g_domainSource() : std::string());
    if (!Step()) {
        return false;
    }
    if (service_->Error()) {
        Report("Error accessing Active Directory. Please check your domain name and network "
               "connection.");
        return false;
    }
    service_->Connect();
    if (!Step()) {
        return false;
    }
    service_->Prepare();
    if (!Step()) {
        return false;
    }
    service_->Execute();
    if (!Wanted()) {
        return false;
    }
    platform::ShowMessage({std::to_string(service_->RecordCount()),
                           std::string(product::kApplicationTitle), platform::Buttons::Ok,
                           platform::Icon::None});
    if (!Step()) {
        return false;
    }
    if (service_->Error()) {
        Report("Error querying Active Directory. Please check your domain name and network "
               "connection.");
        return false;
    }
    return true;
}

// A record takes a fraction of a microsecond; bar and list follow when somebody is to see them.
void Query::AddItems() {
    QueueItem item;
    wxArrayString items;
    int steps = 0;
    while (!service_->AtEnd()) {
        ++steps;
        if (platform::ui::PumpIsDue()) {
            ShowItems(items, steps);
            platform::ui::PumpEvents();
        }
        if (!Wanted()) {
            return;
        }
        items.Add(platform::ui::ToWx(item.Next(service_->Value("name"))));
        // Read as every record's other attribute, though no item shows it.
        service_->Value("printShareName");
        service_->MoveNext();
    }
    ShowItems(items, steps);
}

void Query::ShowItems(wxArrayString& items, int& steps) {
    if (Wanted()) {
        list_->Append(items);
        Advance(*progress_, steps);
    }
    items.Clear();
    steps = 0;
}

void Query::Report(const std::string& what) {
    const platform::SystemError& error = service_->Error();
    platform::ShowMessage({what + "\r\n\r\nError Number: " + std::to_string(error.number) +
                               "\r\nError Descritpion: " + error.description,
                           "Active Directory Error", platform::Buttons::Ok,
                           platform::Icon::Critical});
    Step();
}

void Query::Finish() {
    if (Wanted()) {
        progress_->SetValue(kSteps);
        platform::ui::PumpEvents();
        if (Wanted()) {
            progress_->Hide();
            platform::ui::PumpEvents();
        }
        return;
    }
    // List and bar belong to the later query, or else nobody is to see half a list.
    if (!superseded_ && list_.get() != nullptr && progress_.get() != nullptr) {
        list_->Clear();
        progress_->Hide();
    }
}

} // namespace

void StepADProgress(wxGauge& progress) {
    Advance(progress, 1);
    platform::ui::PumpWhenDue();
}

void FillADPrinterList(wxOwnerDrawnComboBox& list, wxGauge& progress) {
    Query(list, progress).Run();
}

void AbandonQueries() {
    std::ranges::for_each(g_queries, &Query::Abandon);
}

void WhenNoQueryRuns(std::function<void()> action) {
    if (g_queries.empty()) {
        action();
    } else {
        g_whenNoQueryRuns = std::move(action);
    }
}

void SetDomainSource(std::function<std::string()> source) {
    g_domainSource = std::move(source);
}

void SetServiceMaker(ServiceMaker maker) {
    g_serviceMaker = std::move(maker);
}

void SetDomainLister(DomainLister lister) {
    g_domainLister = std::move(lister);
}

std::vector<std::string> DomainNames() {
    return g_domainLister ? g_domainLister() : platform::DomainNames();
}

} // namespace modADPrinters
