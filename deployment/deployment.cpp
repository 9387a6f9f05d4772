#include "deployment/deployment.h"

#include "deployment/deployment_host.h"

#include "document/document.h"
#include "document/product.h"

#include "platform/message.h"
#include "platform/program.h"
#include "platform/typed_folder.h"

#include <array>
#include <string>
#include <utility>

namespace modDeployment {

namespace {

using modINIDocument::g_strINIFilePath;
using modINIDocument::g_strINIFileTitle;
using platform::Icon;
using platform::SystemError;
using platform::TypedFolder;

constexpr std::array<std::string_view, 3> kInstallers = {"MDAC_TYP2.5SP3.EXE", "MDAC_TYP2.7SP1.EXE",
                                                         "MDAC_TYP2.8.EXE"};
constexpr std::array<std::string_view, 3> kEngineFiles = {"QueueshiftEngine.exe", "MSCOMCTL.OCX",
                                                          "MSWINSCK.OCX"};

void Report(std::string text, std::string caption, Icon icon) {
    platform::ShowMessage({std::move(text), std::move(caption), platform::Buttons::Ok, icon});
}

/// Copies into the deployment folder and keeps the last failure until it is taken: the steps go on,
/// and a later check point tells of it.
class DeferredCopies {
public:
    void Copy(const std::string& sourcePath, std::string_view name) {
        if (SystemError error = folder_.CopyInto(sourcePath, std::string(name))) {
            pending_ = std::move(error);
        }
    }
    void CopyFromProgram(std::string_view name) {
        Copy(platform::JoinPath(SourceFolder(), name), name);
    }
    [[nodiscard]] SystemError TakeError() { return std::exchange(pending_, {}); }
    [[nodiscard]] bool FolderHolds(const std::string& name) const { return folder_.Holds(name); }

private:
    TypedFolder folder_ = OpenDeploymentFolder();
    SystemError pending_;
};

std::string ErrorLines(const SystemError& error) {
    return "\r\n\r\nError:" + std::to_string(error.number) +
           "\r\nError Description:" + error.description;
}

std::string InstallerFailure(const SystemError& error) {
    return "Error copying MDAC file to deployment folder. \r\n"
           "Please verify your deployment folder path, ensure that you have downloaded the\r\n"
           "additional MDAC files from the Queueshift website\r\n"
           "(" +
           std::string(product::kDownloadPage) +
           ")\r\n"
           "or you have configured your MDAC files as described in the User's Guide." +
           ErrorLines(error);
}

std::string EngineFailure(const SystemError& error) {
    return "Error copying Queueshift Engine file to deployment folder. \r\n"
           "Please verify that you have permissions to your deployment folder." +
           ErrorLines(error);
}

/// A settings file saved in the deployment folder cannot be copied onto itself, which is no harm.
void ReportSettingsFailure(bool alreadyThere) {
    const std::string start = "Queueshift was unable to deploy your INI file to the folder "
                              "specified.\r\n\r\n";
    if (alreadyThere) {
        Report("Warning: " + start +
                   "The file already exists and is currently write protected.\r\n"
                   "If you saved your INI file to the same folder as your deployment folder,\r\n"
                   "then you can ignore this warning, becuase your INI file is already "
                   "deployed.\r\n"
                   "If not, then please check your file and folder permissions.",
               "INI File Write Warning", Icon::Exclamation);
    } else {
        Report("Error: " + start + "Please check your file and folder permissions.",
               "Error Deploying INI File", Icon::Critical);
    }
}

bool DeployInstaller(DeferredCopies& copies) {
    Advance("Copying MDAC file ...");
    copies.CopyFromProgram(MDACFileName());
    const SystemError error = copies.TakeError();
    if (error) {
        Report(InstallerFailure(error), "Error", Icon::Critical);
    }
    return !error;
}

void CopyEngine(DeferredCopies& copies) {
    Advance("Copying Queueshift Engine ...");
    for (const auto name : kEngineFiles) {
        copies.CopyFromProgram(name);
    }
}

bool EngineArrived(DeferredCopies& copies) {
    const SystemError error = copies.TakeError();
    if (error) {
        Report(EngineFailure(error), "Error", Icon::Critical);
    }
    return !error;
}

bool DeploySettings(DeferredCopies& copies) {
    Advance("Copying INI file ...");
    copies.Copy(g_strINIFilePath, g_strINIFileTitle);
    const SystemError error = copies.TakeError();
    if (error) {
        ReportSettingsFailure(copies.FolderHolds(g_strINIFileTitle));
    }
    return !error;
}

bool DeployWithInstaller(DeferredCopies& copies) {
    if (!DeployInstaller(copies)) {
        return false;
    }
    CopyEngine(copies);
    return EngineArrived(copies) && DeploySettings(copies);
}

/// Without an installer nobody asks after the engine: its failure is told with the settings file.
bool DeployWithoutInstaller(DeferredCopies& copies) {
    CopyEngine(copies);
    return DeploySettings(copies);
}

} // namespace

std::string MDACFileName() {
    for (std::size_t i = 0; i < kInstallers.size(); ++i) {
        if (IsMDACVersionSelected(static_cast<int>(i))) {
            return std::string(kInstallers[i]);
        }
    }
    return {};
}

void DeployFiles() {
    DeferredCopies copies;
    const bool deployed =
        IncludesMDAC() ? DeployWithInstaller(copies) : DeployWithoutInstaller(copies);
    if (!deployed) {
        g_bolDeploymentSucceeded = false;
    }
}

} // namespace modDeployment
