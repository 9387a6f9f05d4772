// One file put into a deployment folder against the system's own copying program, on the disk and
// on a share; started by script/bench inside the lab.
//
//   queueshift-deploy-bench FOLDER MEGABYTES ROUNDS
//
// Every round runs each side once, so that whatever else the machine does falls on all of them.
#include "platform/typed_folder.h"

#include <algorithm>
#include <chrono>
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

double Seconds(const std::function<void()>& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

double Median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

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

/// A new file each time, and the old one's pages given back, on either side alike.
void Compare(const char* title, int rounds, const std::function<void()>& clear,
             const std::function<void()>& ours, const std::function<void()>& theirs) {
    std::vector<double> times;
    std::vector<double> other;
    std::vector<double> ratios;
    for (int round = 0; round <= rounds; ++round) {
        clear();
        const double mine = Seconds(ours);
        clear();
        const double peer = Seconds(theirs);
        if (round > 0) {
            times.push_back(mine);
            other.push_back(peer);
            ratios.push_back(mine / peer);
        }
    }
    std::printf("%-34s %7.0f ms  peer %7.0f ms  ratio of each round, median %.2f\n", title,
                Median(times) * 1e3, Median(other) * 1e3, Median(ratios));
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
    Compare(
        "into a folder, peer cp", rounds,
        [&local] {
            fs::remove(local / "engine");
            Run("sync");
        },
        [&] { put(local.string()); },
        [&] { Run("cp " + from + " " + (local / "engine").string()); });
    const fs::path share = fs::path(std::getenv("LAB_SHARES")) / "deploy";
    Compare(
        "to a share, peer smbclient", rounds,
        [&share] {
            fs::remove(share / "engine");
            Run("sync");
        },
        [&] { put("\\\\dc1.corp.example\\deploy"); },
        [&] {
            Run("smbclient --use-kerberos=required -N //dc1.corp.example/deploy -c 'put " + from +
                " engine' >/dev/null 2>&1");
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
