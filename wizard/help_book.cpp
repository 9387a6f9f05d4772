#include "wizard/help_book.h"

#include "platform/ui/text.h"

#include <wx/file.h>
#include <wx/filesys.h>
#include <wx/fs_arc.h>
#include <wx/fs_mem.h>
#include <wx/log.h>

#include <vector>

namespace modWizard {

namespace {

const wxString kMemoryName = "Queueshift.hlp";

bool ReadWhole(const std::string& path, std::vector<char>& bytes) {
    const wxString name = platform::ui::ToWx(path);
    wxFile file;
    if (!wxFile::Exists(name) || !file.Open(name)) {
        return false;
    }
    const wxFileOffset length = file.Length();
    if (length <= 0) {
        return false;
    }
    bytes.resize(static_cast<std::size_t>(length));
    return file.Read(bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
}

// The toolkit remembers the table of contents of every archive it has opened by its address, so a
// new book needs a new reader of archives.
void ForgetOldBook() {
    static wxFileSystemHandler* archives = nullptr;
    if (archives == nullptr) {
        wxFileSystem::AddHandler(new wxMemoryFSHandler);
    } else {
        delete wxFileSystem::RemoveHandler(archives);
        wxMemoryFSHandler::RemoveFile(kMemoryName);
    }
    archives = new wxArchiveFSHandler;
    wxFileSystem::AddHandler(archives);
}

} // namespace

wxString OpenHelpBook(const std::string& path) {
    const wxLogNull quiet; // the caller tells the user
    std::vector<char> bytes;
    if (!ReadWhole(path, bytes)) {
        return {};
    }
    ForgetOldBook();
    wxMemoryFSHandler::AddFile(kMemoryName, bytes.data(), bytes.size());
    return "memory:" + kMemoryName + "#zip:queueshift.hhp";
}

} // namespace modWizard
