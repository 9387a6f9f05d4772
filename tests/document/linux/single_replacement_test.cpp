#include "tests/document/document_fixture.h"

#include <sys/inotify.h>
#include <unistd.h>

#include <array>

namespace {

using namespace modINIDocument;

/// Counts the files that are put in place of others in a folder.
class ReplacementCounter {
public:
    explicit ReplacementCounter(const std::string& folder)
        : descriptor_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
        EXPECT_GE(inotify_add_watch(descriptor_, folder.c_str(), IN_MOVED_TO | IN_MODIFY), 0);
    }
    ~ReplacementCounter() { close(descriptor_); }
    ReplacementCounter(const ReplacementCounter&) = delete;
    ReplacementCounter& operator=(const ReplacementCounter&) = delete;

    int Count() const {
        int count = 0;
        alignas(inotify_event) std::array<char, 64 * 1024> buffer{};
        ssize_t length = 0;
        while ((length = read(descriptor_, buffer.data(), buffer.size())) > 0) {
            for (char* at = buffer.data(); at < buffer.data() + length;) {
                const auto* event = reinterpret_cast<const inotify_event*>(at);
                count += (event->mask & IN_MOVED_TO) != 0 ? 1 : 0;
                at += sizeof(inotify_event) + event->len;
            }
        }
        return count;
    }

private:
    int descriptor_;
};

class SavesOnce : public test::DocumentTest {};

TEST_F(SavesOnce, ARecordOfTenThousandElementsIsOneReplacement) {
    ResetDocument();
    g_Document.ServerPairs.assign(10000, {"from", "to"});
    g_Document.PrinterDrivers.assign(10000, {"printer", "driver", "file", "port"});
    const ReplacementCounter counter(folder_.Path());
    WriteDocument();
    EXPECT_FALSE(g_Document.WriteFailed);
    EXPECT_EQ(counter.Count(), 1);
}

} // namespace
