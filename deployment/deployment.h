// What Deploy Now puts into the deployment folder: copied files, the batch file, the web launch
// page.
#pragma once

#include <ctime>
#include <string>
#include <string_view>

// Headers of a system may have made this name a macro; here it is a function of ours.
#undef GetComputerName

namespace modDeployment {

/// True from the start of Deploy Now until a precondition or a copy fails; decides whether the
/// success message follows. A generator's failure does not clear it.
inline bool g_bolDeploymentSucceeded = false;

/// What deployment asks of the window that started it. The answers are taken from the controls at
/// the moment of asking, not from the saved document.
class Host {
public:
    virtual ~Host() = default;
    virtual std::string DeploymentFolder() const = 0; ///< as typed
    /// Where installer, engine and control files lie: the program's own folder.
    virtual std::string SourceFolder() const;
    virtual bool IncludesMDAC() const = 0;
    virtual bool IsMDACVersionSelected(int index) const = 0; ///< 0 to 2
    /// Adds 1 to the progress bar, shows the label and lets pending window events run.
    virtual void Advance(std::string_view label) = 0;
    /// Called again and again while a share is slow; lets the windows be drawn.
    virtual void Wait() {}
};

/// The window that deployment works for; null for none. Not owned; the host outlives the
/// deployment.
void SetHost(Host* host);

/// The MDAC installer of the first selected version, or "" when none is selected.
std::string MDACFileName();

/// Copies installer, engine, control files and the saved INI file. Each failure is reported at its
/// check point by one message box and clears g_bolDeploymentSucceeded.
void DeployFiles();

/// Writes `title`.bat into the deployment folder; one message box reports a failure.
void CreateBatchFile();

/// Writes `title`.html into the deployment folder; one message box reports a failure.
void CreateHTMLFile();

/// The user's name with the NUL character that has always followed it.
std::string GetCurrentUserName();

/// The computer's name, or "Computer UNKNOWN".
std::string GetComputerName();

/// What the generated files say of their making; UTF-8.
struct Banner {
    std::string generatedOn;
    std::string userName;
    std::string computerName;
};

/// The moment as "November 16, 2026 01:52:07 AM", month and designator in the user's language.
std::string FormatGeneratedOn(const std::tm& moment);

/// The banner of now.
Banner CurrentBanner();

/// The whole texts, UTF-8 with CR LF line ends. `installer` is used only when MDAC is included.
std::string BatchFileText(const Banner& banner, std::string_view folder, std::string_view iniTitle,
                          bool includesMDAC, std::string_view installer);
std::string HTMLFileText(const Banner& banner, bool includesMDAC, std::string_view installer);

} // namespace modDeployment
