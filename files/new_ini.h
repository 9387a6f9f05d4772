// The new-document dialog: the type of a new document, or an existing INI file.
#pragma once

#include <wx/dialog.h>

#include <array>
#include <string>
#include <vector>

class wxBookCtrlEvent;
class wxButton;
class wxChoice;
class wxListBox;
class wxNotebook;
class wxRadioButton;
class wxSizer;

class frmNewINI : public wxDialog {
public:
    explicit frmNewINI(wxWindow* owner);

    /// The result: true after Cancel, the close box and Esc, false after Select.
    static inline bool g_bolCancelPressed = false;

    static constexpr int kNewTab = 0;
    static constexpr int kExistingTab = 1;
    static constexpr int kRecentTab = 2;

    /// A tab that is not available refuses to be chosen; showing one by program is the caller's
    /// affair.
    void SetTabAvailable(int tab, bool available);
    int CurrentTab() const;
    void ShowTab(int tab);

    /// The chosen existing file: its folder and its name, "" when none is selected.
    std::string ExistingFolder() const;
    std::string ExistingFileName() const;

    /// Opens a folder of the Existing tab, as a double click on it does.
    void OpenFolder(const std::string& path);

    wxNotebook* sstNewINI = nullptr;
    wxRadioButton* optUseActiveDirectory = nullptr;
    wxRadioButton* optUseManualConfiguration = nullptr;
    wxChoice* drvExistingINI = nullptr;
    wxListBox* dirExistingINI = nullptr;
    wxListBox* filExistingINI = nullptr;
    wxButton* cmdSelect = nullptr;
    wxButton* cmdCancel = nullptr;
    wxButton* cmdHelp = nullptr;

    void cmdSelect_Click();
    void cmdCancel_Click();
    void cmdHelp_Click();
    void filExistingINI_DblClick();
    void drvExistingINI_Change();
    void dirExistingINI_Change();
    void Form_Load();

private:
    wxWindow* CreateNewPage();
    wxWindow* CreateExistingPage();
    wxSizer* CreateButtons();
    void BindEvents();
    void FillVolumes();
    void OpenSelectedFolder();
    void OnTabChanging(wxBookCtrlEvent& event);
    void OnTabChanged(wxBookCtrlEvent& event);
    int ComingTab(const wxBookCtrlEvent& event) const;
    bool IsTabAvailable(int tab) const;
    void OnKey(wxKeyEvent& event);
    bool HandleEnter(const wxObject* focus);
    bool HandleAccessKey(int key);
    void End(int id);

    std::array<bool, 3> available_{true, true, true};
    std::vector<std::string> volumePaths_; ///< of the rows of drvExistingINI
    std::vector<std::string> folderPaths_; ///< of the rows of dirExistingINI
    std::string folderListPath_;           ///< the folder that dirExistingINI has open
    std::string fileListPath_;             ///< the folder whose files filExistingINI shows
    std::vector<std::string> fileNames_;   ///< of the rows of filExistingINI
};
