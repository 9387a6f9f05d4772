#include "platform/profile.h"

#include "platform/ansi.h"
#include "platform/windows/file_replacement.h"
#include "platform/windows/wide.h"

namespace platform::profile {

namespace {

/// `path` in the ANSI code page, as the profile functions need it: by its short name where it
/// holds characters outside the page. "" when it has no such form.
std::string AnsiPath(const std::wstring& path) {
    const auto exact = [](const std::wstring& wide) {
        std::string ansi = AnsiFromUtf8(Utf8FromWide(wide));
        return WideFromUtf8(Utf8FromAnsi(ansi)) == wide ? ansi : std::string();
    };
    std::string ansi = exact(path);
    if (ansi.empty()) {
        std::wstring shortPath(GetShortPathNameW(path.c_str(), nullptr, 0), L'\0');
        shortPath.resize(GetShortPathNameW(path.c_str(), shortPath.data(),
                                           static_cast<DWORD>(shortPath.size())));
        ansi = exact(shortPath);
    }
    return ansi;
}

/// A fresh empty file in the user's folder for temporary files.
std::wstring CreateInTemporaryFolder() {
    std::wstring folder(MAX_PATH + 1, L'\0');
    folder.resize(GetTempPathW(static_cast<DWORD>(folder.size()), folder.data()));
    return CreateBeside(folder);
}

void Forget(const std::wstring& path) {
    if (!path.empty()) {
        SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        DeleteFileW(path.c_str());
    }
}

int LastError() {
    return static_cast<int>(GetLastError());
}

} // namespace

struct Reader::State {
    std::string ansiPath; ///< what the profile functions read
    std::wstring copy;    ///< a copy of ours that they read, or ""
    int error = 0;        ///< why nothing can be read

    explicit State(const std::wstring& path) : ansiPath(AnsiPath(path)) {
        if (!ansiPath.empty()) {
            return;
        }
        copy = CreateInTemporaryFolder();
        if (copy.empty() || !CopyFileW(path.c_str(), copy.c_str(), FALSE)) {
            error = LastError();
        }
        ansiPath = AnsiPath(copy);
    }
    ~State() { Forget(copy); }
    State(const State&) = delete;
    State& operator=(const State&) = delete;
};

Reader::Reader(const std::string& path) : state_(std::make_unique<State>(WideFromUtf8(path))) {}

Reader::~Reader() = default;

ReadResult Reader::Read(std::string_view section, std::string_view key, std::size_t size) const {
    if (state_->error != 0) {
        return {{}, state_->error};
    }
    std::string buffer(size + 1, '\0');
    SetLastError(0);
    const DWORD length =
        GetPrivateProfileStringA(AnsiFromUtf8(section).c_str(), AnsiFromUtf8(key).c_str(), nullptr,
                                 buffer.data(), static_cast<DWORD>(size), state_->ansiPath.c_str());
    const int error = LastError();
    return {Utf8FromAnsi({buffer.data(), length}), error};
}

struct Update::State {
    std::wstring path;
    std::wstring copy;    ///< what is written until the commit; "" when it is the file itself
    bool beside = false;  ///< the copy lies beside the file
    std::string ansiPath; ///< of the copy, or of the file itself
    int error = 0;        ///< why nothing can be written
    bool written = false;

    explicit State(std::wstring target) : path(std::move(target)) {
        error = static_cast<int>(WriteObstacle(path));
        if (error == 0) {
            MakeCopy();
        }
    }
    ~State() { Forget(copy); }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    void MakeCopy();
    [[nodiscard]] bool Set(const std::string& section, const std::string& key,
                           const std::string& value) const;
    [[nodiscard]] int Put();
};

void Update::State::MakeCopy() {
    copy = CreateBeside(path);
    beside = !copy.empty();
    ansiPath = beside ? AnsiPath(copy) : AnsiPath(path);
    if (ansiPath.empty()) {
        Forget(copy);
        copy = CreateInTemporaryFolder();
        beside = false;
        ansiPath = AnsiPath(copy);
    }
    if (copy.empty()) {
        return;
    }
    if (!CopyFileW(path.c_str(), copy.c_str(), FALSE) && GetLastError() != ERROR_FILE_NOT_FOUND) {
        error = LastError();
    }
}

bool Update::State::Set(const std::string& section, const std::string& key,
                        const std::string& value) const {
    // The 8-bit function counts the bytes of its wide copy in 16 bits and fails beyond, or worse.
    constexpr std::size_t kMostForAnsi = 0x7FFE;
    if (value.size() <= kMostForAnsi) {
        return WritePrivateProfileStringA(section.c_str(), key.c_str(), value.c_str(),
                                          ansiPath.c_str()) != FALSE;
    }
    const auto wide = [](const std::string& ansi) { return WideFromUtf8(Utf8FromAnsi(ansi)); };
    return WritePrivateProfileStringW(wide(section).c_str(), wide(key).c_str(), wide(value).c_str(),
                                      wide(ansiPath).c_str()) != FALSE;
}

int Update::State::Put() {
    // Tells the functions to write what they still hold in memory.
    WritePrivateProfileStringA(nullptr, nullptr, nullptr, ansiPath.c_str());
    // The file may have been protected since the first write.
    if (const DWORD obstacle = WriteObstacle(path); obstacle != 0) {
        return static_cast<int>(obstacle);
    }
    if (copy.empty()) {
        return static_cast<int>(FlushFile(path));
    }
    if (!beside) {
        const std::wstring here = CreateBeside(path);
        if (here.empty()) {
            return CopyFileW(copy.c_str(), path.c_str(), FALSE) ? 0 : LastError();
        }
        if (!CopyFileW(copy.c_str(), here.c_str(), FALSE)) {
            const int failure = LastError();
            Forget(here);
            return failure;
        }
        Forget(copy);
        copy = here;
        beside = true;
    }
    if (const DWORD failure = FlushFile(copy); failure != 0) {
        return static_cast<int>(failure);
    }
    const DWORD failure = ReplaceTarget(copy, path);
    if (failure == 0) {
        copy.clear();
    }
    return static_cast<int>(failure);
}

Update::Update(const std::string& path) : state_(std::make_unique<State>(WideFromUtf8(path))) {}

Update::~Update() = default;

int Update::Write(std::string_view section, std::string_view key, std::string_view value) {
    if (state_->error != 0) {
        return state_->error;
    }
    SetLastError(0);
    if (!state_->Set(AnsiFromUtf8(section), AnsiFromUtf8(key), AnsiFromUtf8(value))) {
        const int error = LastError();
        return error == 0 ? ERROR_WRITE_FAULT : error;
    }
    state_->written = true;
    return 0;
}

int Update::Commit() {
    if (!state_->written) {
        return 0;
    }
    const int error = state_->Put();
    if (error == 0) {
        // The copy has become the file: later writes work on a new one.
        state_ = std::make_unique<State>(std::wstring(state_->path));
    }
    return error;
}

} // namespace platform::profile
