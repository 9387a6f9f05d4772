#include "deployment/deployment.h"

#include "deployment/deployment_host.h"

#include "document/document.h"

#include "platform/ansi.h"
#include "platform/identity.h"
#include "platform/message.h"

#include <string>

namespace modDeployment {

namespace {

using modINIDocument::g_strINIFileTitle;

/// How a generated file is spoken of in the box that tells of its failure.
struct FileKind {
    std::string extension;
    std::string inCaption;
    std::string inText;
};

/// Writes one generated file into the deployment folder. A failure does not undo the copies, so
/// the deployment still counts as done.
void WriteGenerated(const FileKind& kind, std::string_view text) {
    if (OpenDeploymentFolder().WriteInto(g_strINIFileTitle + kind.extension,
                                         platform::AnsiFromUtf8(text))) {
        platform::ShowMessage({"Error: Queueshift was unable to deploy your " + kind.inText +
                                   " file to the folder specified.\r\n\r\n"
                                   "Please check your file and folder permissions.",
                               "Error Deploying " + kind.inCaption + " File", platform::Buttons::Ok,
                               platform::Icon::Critical});
    }
}

std::string InstallerIfIncluded(bool includesMDAC) {
    return includesMDAC ? MDACFileName() : std::string();
}

std::tm LocalTime() {
    const std::time_t now = std::time(nullptr);
    // One thread runs this program; the shared result is read at once.
    const std::tm* local = std::localtime(&now);
    return local == nullptr ? std::tm{} : *local;
}

} // namespace

std::string GetCurrentUserName() {
    return platform::CurrentUserName();
}

std::string GetComputerName() {
    return platform::ComputerName().value_or("Computer UNKNOWN");
}

Banner CurrentBanner() {
    return {FormatGeneratedOn(LocalTime()), GetCurrentUserName(), GetComputerName()};
}

void CreateBatchFile() {
    const bool includesMDAC = IncludesMDAC();
    const std::string installer = InstallerIfIncluded(includesMDAC);
    Advance("Creating batch file ...");
    WriteGenerated({".bat", "Batch", "batch"},
                   BatchFileText(CurrentBanner(), DeploymentFolder(), g_strINIFileTitle,
                                 includesMDAC, installer));
}

void CreateHTMLFile() {
    const bool includesMDAC = IncludesMDAC();
    const std::string installer = InstallerIfIncluded(includesMDAC);
    // The two labels have always differed.
    Advance(includesMDAC ? "Creating HTML file ..." : "Create HTML file ...");
    WriteGenerated({".html", "HTML", "HTML"},
                   HTMLFileText(CurrentBanner(), includesMDAC, installer));
}

} // namespace modDeployment
