// Both derived lists at growing lengths, and the controls that show them, each against itself: the
// last rows give the order of growth.
#include "editors/controls.h"
#include "wizard/derived_lists.h"

#include <wx/frame.h>
#include <wx/listbox.h>
#include <wx/odcombo.h>

#include <benchmark/benchmark.h>

#include <string>

namespace {

using modWizard::Items;
using modWizard::MigrationLists;

// Names as long as real ones and alike but for their last characters.
std::string Name(const char* kind, long index) {
    return std::string("headquarters-print-server-") + kind + "-floor-" + std::to_string(index);
}

MigrationLists Lists(long length) {
    MigrationLists lists;
    for (long index = 0; index < length; ++index) {
        const std::string target = Name("srv", index % 50) + " >> " + Name("new", index);
        lists.mixedPairs.push_back(Name("srv", index % 50) + " >> " + Name("old", index) + " -> " +
                                   target);
        lists.printerPairs.push_back(Name("old", index) + " -> " + Name("pair", index));
        lists.populate.push_back(Name("srv", index % 50) + " >> " + Name("add", index));
    }
    return lists;
}

void RefreshDriverList(benchmark::State& state) {
    const MigrationLists lists = Lists(state.range(0));
    const Items saved = modWizard::DriverItems(lists, {});
    for (auto pass : state) {
        benchmark::DoNotOptimize(modWizard::DriverItems(lists, saved));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(RefreshDriverList)->Arg(100)->Arg(1000)->Arg(10000)->Complexity(benchmark::oNLogN);

void RefreshDefaultPrinterList(benchmark::State& state) {
    const MigrationLists lists = Lists(state.range(0));
    for (auto pass : state) {
        benchmark::DoNotOptimize(modWizard::DefaultPrinterItems(lists));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(RefreshDefaultPrinterList)
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Complexity(benchmark::oNLogN);

template <class Control> Control* MakeControl(wxFrame& frame) {
    return new Control(&frame, wxID_ANY);
}

template <class Control> void Fill(benchmark::State& state) {
    auto* const frame = new wxFrame(nullptr, wxID_ANY, "bench");
    auto* const control = MakeControl<Control>(*frame);
    const Items items = modWizard::DriverItems(Lists(state.range(0)), {});
    for (auto pass : state) {
        editors::PutItems(*control, items);
    }
    state.SetComplexityN(state.range(0));
    frame->Destroy();
}
BENCHMARK(Fill<wxListBox>)
    ->Name("FillDriverListBox")
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(Fill<wxOwnerDrawnComboBox>)
    ->Name("FillDefaultPrinterDropDown")
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMicrosecond);

} // namespace
