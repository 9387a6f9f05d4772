// The Populate and Prune pages: printers that the engine adds, and printers that it removes.
#pragma once

#include "editors/list_editor.h"
#include "editors/page.h"

#include <wx/gauge.h>
#include <wx/odcombo.h>

#include <memory>

namespace editors {

class PopulatePage : public Page {
public:
    PopulatePage(wxWindow* parent, int position);

    wxChoice* cboPopulateType;
    wxTextCtrl* txtPopulateServerName;
    wxTextCtrl* txtPopulatePrinterName;
    wxListBox* lstPopulate;
    wxButton* cmdPopulateNew;
    wxButton* cmdPopulateSave;
    wxButton* cmdPopulateDelete;
    wxOwnerDrawnComboBox* cboAdPopulate; ///< virtual: a directory holds thousands of queues
    wxButton* cmdAdPopulateSelect;
    wxButton* cmdAdPopulateRefresh;
    wxGauge* prbAdPopulateProgress;
    bool m_bolNewPopulate = false;

    void cboPopulateType_Click();
    void cmdPopulateNew_Click();
    void cmdPopulateSave_Click();
    void cmdPopulateDelete_Click();
    void lstPopulate_Click();
    void txtPopulateServerName_Change();
    void txtPopulatePrinterName_Change();

private:
    std::unique_ptr<ListEditor> editor_;
};

class PrunePage : public Page {
public:
    PrunePage(wxWindow* parent, int position);

    wxChoice* cboPruneType;
    wxTextCtrl* txtPruneServerName; ///< typing in these two does not mark the document changed
    wxTextCtrl* txtPrunePrinterName;
    wxListBox* lstManualPrune;
    wxButton* cmdPruneNew;
    wxButton* cmdPruneSave;
    wxButton* cmdPruneDelete;
    wxCheckBox* chkDeleteNonNetworked;
    wxOwnerDrawnComboBox* cboADPrune;
    wxButton* cmdPruneADSelect;
    wxButton* cmdAdPruneRefresh;
    wxCheckBox* chkADPruneAll;
    wxGauge* prbADPrune;
    bool m_bolNewPrune = false;

    void cboPruneType_Click();
    void cmdPruneNew_Click();
    void cmdPruneSave_Click();
    void cmdPruneDelete_Click();
    void lstManualPrune_Click();
    void chkDeleteNonNetworked_Click();
    void chkADPruneAll_Click();

private:
    std::unique_ptr<ListEditor> editor_;
};

} // namespace editors
