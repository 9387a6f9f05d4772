// The three pages of migration pairs: servers, printers, and printers on servers.
#pragma once

#include "editors/list_editor.h"
#include "editors/page.h"

#include <memory>

namespace editors {

class ServersPage : public Page {
public:
    ServersPage(wxWindow* parent, int position);

    wxListBox* lstServerPairs;
    wxTextCtrl* txtFromServer; ///< typing in these two does not mark the document changed
    wxTextCtrl* txtToServer;
    wxButton* cmdNewServerPair;
    wxButton* cmdSaveServerPair;
    wxButton* cmdDeleteServer;
    bool m_bolNewServerPair = false;

    void cmdNewServerPair_Click();
    void cmdSaveServerPair_Click();
    void cmdDeleteServer_Click();
    void lstServerPairs_Click();

private:
    std::unique_ptr<ListEditor> editor_;
};

class PrintersPage : public Page {
public:
    PrintersPage(wxWindow* parent, int position);

    wxListBox* lstPrinterPairs;
    wxTextCtrl* txtFromPrinter;
    wxTextCtrl* txtToPrinter;
    wxButton* cmdNewPrinter;
    wxButton* cmdPrinterSave;
    wxButton* cmdDeletePrinter;
    bool m_bolNewPrinterPair = false;

    void cmdNewPrinter_Click();
    void cmdPrinterSave_Click();
    void cmdDeletePrinter_Click();
    void lstPrinterPairs_Click();
    void txtFromPrinter_Change();
    void txtToPrinter_Change();

private:
    std::unique_ptr<ListEditor> editor_;
};

class MixedPage : public Page {
public:
    MixedPage(wxWindow* parent, int position);

    wxListBox* lstMixedPrintersAndServers;
    wxTextCtrl* txtMixedFromServer;
    wxTextCtrl* txtMixedFromPrinter;
    wxTextCtrl* txtMixedToServer;
    wxTextCtrl* txtMixedToPrinter;
    wxButton* cmdMixedNew;
    wxButton* cmdMixedSave;
    wxButton* cmdMixedDelete;
    bool m_bolNewMixedPair = false;

    void cmdMixedNew_Click();
    void cmdMixedSave_Click();
    void cmdMixedDelete_Click();
    void lstMixedPrintersAndServers_Click();
    void txtMixedFromServer_Change();
    void txtMixedFromPrinter_Change();
    void txtMixedToServer_Change();
    void txtMixedToPrinter_Change();

private:
    std::unique_ptr<ListEditor> editor_;
};

} // namespace editors
