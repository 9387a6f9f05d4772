// One file put into a deployment folder against the system's own copying program, on the disk and
// on a share; started by script/bench inside the lab.
//
//   queueshift-deploy-bench FOLDER MEGABYTES ROUNDS
#include "bench/rounds.h"
#include "platform/typed_folder.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr double kMark = 1.1;

void Run(const std::string& command) {
    if (std::system(command.c_str()) != 0) {
        throw std::runtime_error(command + " failed");
    }
}

void WriteSource(const fs::path& path, int megabytes) {
    std::mt19937_64 random(1);
    std::vector<std::uint64_t> block(131072);
    std::ofstream file(path, std::ios::binary);
    for (int i = 0; i < megabytes; ++i) {
        std::ranges::generate(block, std::ref(random));
        file.write(reinterpret_cast<const char*>(block.data()), 1 << 20);
    }
}

/// A new file each time, and the old one's pages given back, on either side alike. The ratio is
/// that of each round: a disk is not as fast in one round as in the next.
void Compare(const char* title, int rounds, std::vector<bench::Side> sides,
             const std::function<void()>& clear) {
    bench::Run(sides, rounds, clear);
    std::vector<double> ratios;
    for (std::size_t round = 0; round < sides[0].times.size(); ++round) {
        ratios.push_back(sides[0].times[round] / sides[1].times[round]);
    }
    std::printf("%s: %.2f of the peer, mark %.2f\n", title, bench::Median(ratios), kMark);
    for (const bench::Side& side : sides) {
        bench::PrintTime(side);
    }
}

void Measure(const fs::path& folder, int megabytes, int rounds) {
    const fs::path source = folder / "QueueshiftEngine.exe";
    WriteSource(source, megabytes);
    const std::string from = source.string();
    const auto put = [&from](const std::string& where) {
        if (const auto error = platform::TypedFolder(where).CopyInto(from, "engine")) {
            throw std::runtime_error(error.description);
        }
    };
    const fs::path local = folder / "local";
    fs::create_directory(local);
    Compare("deploying into a folder", rounds,
            {{"this program", [&] { put(local.string()); }},
             {"cp", [&] { Run("cp " + from + " " + (local / "engine").string()); }}},
            [&local] {
                fs::remove(local / "engine");
                Run("sync");
            });
    const fs::path share = fs::path(std::getenv("LAB_SHARES")) / "deploy";
    const auto byTool = [&from] {
        Run("smbclient --use-kerberos=required -N //dc1.corp.example/deploy -c 'put " + from +
            " engine' >/dev/null 2>&1");
    };
    Compare("deploying to a share", rounds,
            {{"this program", [&] { put("\\\\dc1.corp.example\\deploy"); }}, {"smbclient", byTool}},
            [&share] {
                fs::remove(share / "engine");
                Run("sync");
            });
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fprintf(stderr, "usage: queueshift-deploy-bench FOLDER MEGABYTES ROUNDS\n");
        return 2;
    }
    try {
        Measure(argv[1], std::atoi(argv[2]), std::atoi(argv[3]));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
