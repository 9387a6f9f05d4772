// The program against the same controls with nothing behind them, both seen from outside.
//
//   queueshift-window-bench PROGRAM BARE CENSUS ROUNDS
//
// Start-up: from the start of the process until the new-document dialog has been drawn.
// Memory: the peak of the process once a full document is open and the main window drawn. The
// document is opened as a user does it, with keys, from the dialog's list of files.
#include "bench/full_document.h"
#include "bench/rounds.h"
#include "bench/window/screen.h"

#include <spawn.h>
#include <sys/wait.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <stdexcept>

namespace {

using Command = std::vector<std::string>;

/// A process of ours; ends with this object.
class Process {
public:
    Process(Command command, const std::filesystem::path& folder) {
        std::vector<char*> words;
        for (std::string& word : command) {
            words.push_back(word.data());
        }
        words.push_back(nullptr);
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addchdir_np(&actions, folder.c_str());
        const int error = posix_spawn(&id_, words[0], &actions, nullptr, words.data(), environ);
        posix_spawn_file_actions_destroy(&actions);
        if (error != 0) {
            throw std::runtime_error("cannot start " + command[0]);
        }
    }
    ~Process() {
        kill(id_, SIGKILL);
        waitpid(id_, nullptr, 0);
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    [[nodiscard]] pid_t Id() const { return id_; }

    /// The most memory that it has ever held, in MiB.
    [[nodiscard]] double Peak() const {
        std::ifstream status("/proc/" + std::to_string(id_) + "/status");
        for (std::string word; status >> word;) {
            if (word == "VmHWM:") {
                double kibibytes = 0;
                status >> kibibytes;
                return kibibytes / 1024;
            }
        }
        throw std::runtime_error("no peak to read");
    }

private:
    pid_t id_ = 0;
};

struct Peer {
    Command command;
    const char* dialog; ///< part of its title
    const char* window;
    bool opens; ///< a document is to be opened in the dialog
};

void MeasureStart(bench::Screen& screen, const std::vector<Peer>& peers,
                  const std::filesystem::path& folder, int rounds) {
    std::optional<Process> process;
    const auto start = [&](const Peer& peer) {
        process.emplace(peer.command, folder);
        screen.WaitForDrawn(process->Id(), peer.dialog);
    };
    std::vector<bench::Side> sides = {{"this program", [&] { start(peers[0]); }},
                                      {"bare window", [&] { start(peers[1]); }}};
    bench::Run(sides, rounds, [&] {
        process.reset();
        screen.Forget();
    });
    bench::Print("start-up", sides, 1.3);
}

double PeakOf(bench::Screen& screen, const Peer& peer, const std::filesystem::path& folder) {
    screen.Forget();
    const Process process(peer.command, folder);
    screen.WaitForDrawn(process.Id(), peer.dialog);
    screen.WaitForKeys(process.Id());
    if (peer.opens) {
        // To the list of files, and its only row.
        screen.PressAndSee(process.Id(), "Next", true);
        screen.PressAndSee(process.Id(), "Tab");
        screen.PressAndSee(process.Id(), "Tab");
        screen.PressAndSee(process.Id(), "space", true);
    }
    screen.Press("Return");
    screen.WaitForDrawn(process.Id(), peer.window);
    return process.Peak();
}

void MeasureMemory(bench::Screen& screen, const std::vector<Peer>& peers,
                   const std::filesystem::path& folder, int rounds) {
    std::vector<bench::Side> sides = {{"this program, a full document open", {}},
                                      {"bare window", {}}};
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < sides.size(); ++i) {
            sides[i].times.push_back(PeakOf(screen, peers[i], folder));
        }
    }
    bench::Print("peak memory", sides, 1.5, bench::kMebibytes);
}

void Measure(const std::filesystem::path& folder, const Command& words) {
    modINIDocument::g_strINIFilePath = folder / "full.ini";
    bench::FillDocument();
    modINIDocument::WriteDocument();
    if (modINIDocument::g_Document.WriteFailed) {
        throw std::runtime_error("no full document to open");
    }
    const std::vector<Peer> peers = {{{words[1]}, "New INI", "full.ini", true},
                                     {{words[2], words[3]}, "bare dialog", "bare window", false}};
    const int rounds = std::atoi(words[4].c_str());
    bench::Screen screen;
    MeasureStart(screen, peers, folder, rounds);
    MeasureMemory(screen, peers, folder, std::min(rounds, 5));
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 5) {
        std::fprintf(stderr, "use: %s PROGRAM BARE CENSUS ROUNDS\n", argv[0]);
        return 2;
    }
    std::string pattern = std::filesystem::temp_directory_path() / "queueshift-bench.XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr) {
        return 1;
    }
    int status = 0;
    try {
        Measure(pattern, Command(argv, argv + argc));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        status = 1;
    }
    std::filesystem::remove_all(pattern);
    return status;
}
