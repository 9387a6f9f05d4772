#include "platform/ui/native_file_dialog.h"

#include "platform/message.h"
#include "platform/program.h"
#include "platform/ui/text.h"
#include "platform/volumes.h"

#include <gtk/gtk.h>
#include <wx/filedlg.h>
#include <wx/filename.h>

namespace platform::ui {

namespace {

// The system's dialog has no memory of its own: the next one opens where the last one ended.
wxString& LastFolder() {
    static wxString folder;
    return folder;
}

// A chooser that was answered before it was shown knows no path but the one it was given.
class Chooser : public wxFileDialog {
public:
    using wxFileDialog::wxFileDialog;

    void SetPath(const wxString& path) override {
        given_ = path;
        wxFileDialog::SetPath(path);
    }

    wxString GetPath() const override {
        const wxString path = wxFileDialog::GetPath();
        return path.empty() ? given_ : path;
    }

private:
    wxString given_;
};

// "*.[iI][nN][iI]"
std::string PatternInAnyCase(const std::string& extension) {
    std::string pattern = "*.";
    for (const char letter : extension) {
        pattern += '[';
        pattern += g_ascii_tolower(letter);
        pattern += g_ascii_toupper(letter);
        pattern += ']';
    }
    return pattern;
}

// The offered name ends in capitals; a filter that tells them apart would never show it again.
void FilterInAnyCase(wxFileDialog& dialog, const std::string& extension) {
    GSList* const filters = gtk_file_chooser_list_filters(GTK_FILE_CHOOSER(dialog.GetHandle()));
    for (const GSList* at = filters; at != nullptr; at = at->next) {
        gtk_file_filter_add_pattern(GTK_FILE_FILTER(at->data), PatternInAnyCase(extension).c_str());
    }
    g_slist_free(filters);
}

std::string Show(wxWindow* owner, const FileDialogRequest& request, long style) {
    const wxFileName initial(ToWx(request.initialName));
    const wxString folder = initial.GetPath().empty() ? LastFolder() : initial.GetPath();
    Chooser chooser(owner, ToWx(request.title), folder, initial.GetFullName(), ToWx(request.filter),
                    style);
    FilterInAnyCase(chooser, request.defaultExtension);
    if (chooser.ShowModal() != wxID_OK) {
        return {};
    }
    const wxString path = chooser.GetPath();
    LastFolder() = wxFileName(path).GetPath();
    return FromWx(path);
}

// "Sites" and "Sites." become "Sites.ini"; "Sites.INI" stays.
std::string WithExtension(const std::string& path, const std::string& extension) {
    const wxFileName name(ToWx(path));
    if (name.GetExt().IsSameAs(ToWx(extension), false)) {
        return path;
    }
    return path.back() == '.' ? path + extension : path + "." + extension;
}

bool MayReplace(const std::string& path, const std::string& caption) {
    return ShowMessage({"A file named \"" + LastName(path) +
                            "\" already exists.\r\nDo you want to replace it?",
                        caption, Buttons::YesNo, Icon::Exclamation}) == Answer::Yes;
}

} // namespace

std::string ShowOpenDialog(wxWindow* owner, const FileDialogRequest& request) {
    return Show(owner, request, wxFD_OPEN | wxFD_FILE_MUST_EXIST);
}

// The chooser's own question about replacing would come before the extension is there.
std::string AskSaveFile(wxWindow* owner, const FileDialogRequest& request) {
    FileDialogRequest next = request;
    for (;;) {
        const std::string chosen = Show(owner, next, wxFD_SAVE);
        if (chosen.empty()) {
            return {};
        }
        std::string path = WithExtension(chosen, request.defaultExtension);
        if (!PathExists(path) || MayReplace(path, request.title)) {
            return path;
        }
        next.initialName = path;
    }
}

} // namespace platform::ui
