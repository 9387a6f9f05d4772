// Both names of each call are wanted here, with either size of an offset.
#undef _FILE_OFFSET_BITS

#include "tests/platform/linux/faults.h"

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

struct Plan {
    test::Fault fault = test::Fault::Fails;
    int step = 0; // 0: none
    int error = 0;
    int taken = 0;
    bool deletes = false;
};

Plan g_plan;

enum class Sort { Other, Moves, Deletes };

template <class Function> Function* Next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

bool IsTheStep(Sort sort) {
    if (g_plan.step == 0 || ++g_plan.taken != g_plan.step) {
        return false;
    }
    g_plan.deletes = sort == Sort::Deletes;
    return true;
}

/// Makes the call, or what is planned in its place. `half` is the call with half of its bytes.
template <class Call, class Half>
auto Take(Sort sort, const Call& call, const Half& half) -> decltype(call()) {
    if (!IsTheStep(sort)) {
        return call();
    }
    switch (g_plan.fault) {
    case test::Fault::Fails:
        errno = g_plan.error;
        return -1;
    case test::Fault::KillsBefore:
        raise(SIGKILL);
        break;
    case test::Fault::Halves:
        return half();
    case test::Fault::KillsAfter:
        call();
        raise(SIGKILL);
        break;
    }
    return call();
}

template <class Call> auto Take(Sort sort, const Call& call) -> decltype(call()) {
    return Take(sort, call, call);
}

size_t Half(size_t size) {
    return size > 1 ? size / 2 : size;
}

int OpenAs(const char* name, const char* path, int flags, mode_t mode) {
    static auto* const next = Next<int(const char*, int, ...)>(name);
    const auto call = [&] { return next(path, flags, mode); };
    return (flags & O_CREAT) != 0 ? Take(Sort::Other, call) : call();
}

} // namespace

// The C library's headers promise their own attributes for these; ours need none of them.
#pragma GCC diagnostic ignored "-Wmissing-attributes"

extern "C" {

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return OpenAs("open", path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return OpenAs("open64", path, flags, mode);
}

ssize_t write(int file, const void* bytes, size_t size) {
    static auto* const next = Next<ssize_t(int, const void*, size_t)>("write");
    return Take(
        Sort::Moves, [&] { return next(file, bytes, size); },
        [&] { return next(file, bytes, Half(size)); });
}

ssize_t copy_file_range(int in, off64_t* inAt, int out, off64_t* outAt, size_t size,
                        unsigned flags) {
    static auto* const next =
        Next<ssize_t(int, off64_t*, int, off64_t*, size_t, unsigned)>("copy_file_range");
    return Take(
        Sort::Moves, [&] { return next(in, inAt, out, outAt, size, flags); },
        [&] { return next(in, inAt, out, outAt, 7, flags); });
}

ssize_t sendfile(int out, int in, off_t* at, size_t size) noexcept {
    static auto* const next = Next<ssize_t(int, int, off_t*, size_t)>("sendfile");
    return Take(
        Sort::Moves, [&] { return next(out, in, at, size); }, [&] { return next(out, in, at, 7); });
}

int fsync(int file) {
    static auto* const next = Next<int(int)>("fsync");
    return Take(Sort::Other, [&] { return next(file); });
}

int fchmod(int file, mode_t mode) noexcept {
    static auto* const next = Next<int(int, mode_t)>("fchmod");
    return Take(Sort::Other, [&] { return next(file, mode); });
}

int fchown(int file, uid_t owner, gid_t group) noexcept {
    static auto* const next = Next<int(int, uid_t, gid_t)>("fchown");
    return Take(Sort::Other, [&] { return next(file, owner, group); });
}

int futimens(int file, const timespec* times) noexcept {
    static auto* const next = Next<int(int, const timespec*)>("futimens");
    return Take(Sort::Other, [&] { return next(file, times); });
}

int rename(const char* from, const char* to) noexcept {
    static auto* const next = Next<int(const char*, const char*)>("rename");
    return Take(Sort::Other, [&] { return next(from, to); });
}

int unlink(const char* path) noexcept {
    static auto* const next = Next<int(const char*)>("unlink");
    return Take(Sort::Deletes, [&] { return next(path); });
}

int close(int file) {
    static auto* const next = Next<int(int)>("close");
    const int taken = g_plan.taken;
    const int result = Take(Sort::Other, [&] { return next(file); });
    // A close that reports an error has closed the file all the same.
    if (result != 0 && g_plan.taken == g_plan.step && taken != g_plan.taken) {
        const int error = errno;
        next(file);
        errno = error;
    }
    return result;
}

} // extern "C"

namespace test {

PlannedFault::PlannedFault(Fault fault, int step, int error) {
    g_plan = {fault, step, error, 0, false};
}

PlannedFault::~PlannedFault() {
    g_plan = {};
}

bool PlannedFault::Happened() const {
    return g_plan.taken >= g_plan.step;
}

bool PlannedFault::HitADeletion() const {
    return g_plan.deletes;
}

int KillAtEveryStep(const std::function<void()>& act, const std::function<void()>& look) {
    int deaths = 0;
    for (const Fault fault : {Fault::KillsBefore, Fault::KillsAfter}) {
        for (int step = 1;; ++step) {
            const pid_t child = fork();
            if (child == 0) {
                const PlannedFault planned(fault, step);
                act();
                _exit(0);
            }
            int status = 0;
            if (child < 0 || waitpid(child, &status, 0) != child || WIFEXITED(status)) {
                break;
            }
            ++deaths;
            look();
        }
    }
    return deaths;
}

} // namespace test
