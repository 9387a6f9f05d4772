// A disk of half a megabyte in the place of a folder.
#pragma once

#include <sched.h>
#include <sys/mount.h>

#include <fstream>
#include <string>

namespace test {

class SmallDisk {
public:
    explicit SmallDisk(std::string folder)
        : folder_(std::move(folder)),
          mounted_(HasOwnMounts() &&
                   mount("tmpfs", folder_.c_str(), "tmpfs", 0, "size=512k,mode=0777") == 0) {}
    ~SmallDisk() {
        if (mounted_) {
            umount2(folder_.c_str(), MNT_DETACH);
        }
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    /// False without the right to mount.
    [[nodiscard]] bool Mounted() const { return mounted_; }

    /// Leaves no byte free, in a file of its own.
    void Fill() const {
        std::ofstream file(folder_ + "/fills the disk", std::ios::binary);
        const std::string page(4096, 'x');
        while (file.write(page.data(), static_cast<std::streamsize>(page.size())).flush()) {
        }
    }

private:
    /// A mount that the process does not live to undo must not stay behind.
    static bool HasOwnMounts() {
        static const bool own = unshare(CLONE_NEWNS) == 0 &&
                                mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
        return own;
    }

    std::string folder_;
    bool mounted_;
};

} // namespace test
