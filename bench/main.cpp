// Runs the measurements inside the toolkit, so that those of windows find one.
#include <benchmark/benchmark.h>
#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/init.h>

namespace {

class BenchApp : public wxApp {
public:
    bool OnInit() override { return true; }
    int OnRun() override {
        wxGUIEventLoop loop;
        const wxEventLoopActivator activate(&loop);
        benchmark::RunSpecifiedBenchmarks();
        return 0;
    }
};

} // namespace

wxIMPLEMENT_APP_NO_MAIN(BenchApp);

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    return wxEntry(argc, argv);
}
