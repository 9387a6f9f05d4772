#include "tests/wizard/control_list.h"

#include <map>

namespace window_test {

namespace {

using Rows = std::vector<ControlRow>;

Rows General() {
    return {
        {"lblGeneral(21)", "label", "Configuration File Type: (Read Only)"},
        {"cboConfigurationFileType", "drop-down list", "Active Directory\nManual Configuration"},
        {"chkShowProgress", "check box", "Show progress window for Queueshift Engine"},
        {"chkAlwaysRun", "check box", "Always Run"},
        {"lblGeneral(20)", "label",
         "Once Queueshift has executed sucessfully for a specific INI file on a client machine it "
         "will not run again. By setting this option Queueshift will always run even if a success "
         "on a previous execution was acheived."},
    };
}

Rows ActiveDirectory() {
    return {
        {"lblActiveDirectory", "label",
         "Please select or enter your Active Directory domain name:"},
        {"cboDomainName", "combo box", ""},
    };
}

Rows Servers() {
    return {
        {"lstServerPairs", "list", ""},           {"lblGeneral(22)", "label", "From Print Server:"},
        {"txtFromServer", "text box", ""},        {"lblGeneral(23)", "label", "To Print Server:"},
        {"txtToServer", "text box", ""},          {"cmdNewServerPair", "button", "N&ew"},
        {"cmdSaveServerPair", "button", "&Save"}, {"cmdDeleteServer", "button", "&Delete"},
    };
}

Rows Printers() {
    return {
        {"lstPrinterPairs", "list", ""},       {"lblGeneral(24)", "label", "From Printer:"},
        {"txtFromPrinter", "text box", ""},    {"lblGeneral(25)", "label", "To Printer:"},
        {"txtToPrinter", "text box", ""},      {"cmdNewPrinter", "button", "N&ew"},
        {"cmdPrinterSave", "button", "&Save"}, {"cmdDeletePrinter", "button", "&Delete"},
    };
}

Rows Mixed() {
    return {
        {"lstMixedPrintersAndServers", "list", ""},
        {"lblGeneral(26)", "label", "From Print Server:"},
        {"txtMixedFromServer", "text box", ""},
        {"lblGeneral(27)", "label", "From Printer:"},
        {"txtMixedFromPrinter", "text box", ""},
        {"lblGeneral(28)", "label", "To Print Server:"},
        {"txtMixedToServer", "text box", ""},
        {"lblGeneral(29)", "label", "To Printer:"},
        {"txtMixedToPrinter", "text box", ""},
        {"cmdMixedNew", "button", "N&ew"},
        {"cmdMixedSave", "button", "&Save"},
        {"cmdMixedDelete", "button", "&Delete"},
    };
}

Rows SMTPMail() {
    return {
        {"chkUseSMTP", "check box", "Notify via email"},
        {"lblGeneral(30)", "label", "SMTP Server Name or IP:"},
        {"txtSMTPServerName", "text box", ""},
        {"lblGeneral(31)", "label", "SMTP Server Port:"},
        {"txtSMTPServerPort", "text box", ""},
        {"lblGeneral(32)", "label", "From Email Address:"},
        {"txtSMTPEmailAddress", "text box", ""},
        {"lblGeneral(33)", "label", "Email Subject:"},
        {"txtEmailSubject", "text box", ""},
        {"lblGeneral(34)", "label", "Send Email To:"},
        {"txtSendEmailTo", "text box", ""},
        {"cmdAddSendEmail", "button", "&Add"},
        {"lstToEmailAddresses", "list", ""},
        {"cmdRemoveSendEmail", "button", "&Remove"},
    };
}

Rows FileOutput() {
    return {
        {"chkUseFileOutput", "check box", "Notify via file output"},
        {"lblGeneral(35)", "label", "File Output Path:"},
        {"txtFileOutputPath", "text box", ""},
        {"cmdBrowseFileOutput", "button", "Browse ..."},
        {"lblGeneral(36)", "label", "File Output Name:"},
        {"txtFileOutputName", "text box", ""},
        {"chkIncludeComputerName", "check box",
         "Include client computer and user name in filename"},
        {"chkIncludeFinalStatus", "check box", "Include final status in filename"},
    };
}

Rows ClientPopup() {
    return {
        {"chkUseNotifyUser", "check box", "Notify user on success with message:"},
        {"txtSucessMessage", "text box", ""},
        {"chkNotifyMessageOnFailure", "check box", "Notify user on failure with message:"},
        {"txtFailureMessage", "text box", ""},
    };
}

Rows EventLog() {
    return {{"chkWriteToEventLog", "check box",
             "Write sucess and failure messages to the Windows application event log"}};
}

Rows Support() {
    return {
        {"lblWizard(4)", "label",
         "In the event that your deployment of Queueshift does not work, Queueshift offers the "
         "option turn on debugging for the Queueshift Engine. The debug log will be written to the "
         "deployment folder with a default extention of \".debug\"."},
        {"chkDebugOn", "check box", "Turn on debugging"},
        {"lblWizard(5)", "link",
         "To submit a support requests please visit www.queueshift.example. Please provide a "
         "description of the issue you are having and if you can provide us with the debug file we "
         "will be able to resolve the issue faster."},
    };
}

Rows DeploymentGeneral() {
    return {
        {"lblGeneral(37)", "label", "Network Share Path:"},
        {"txtNetworkSharePath", "text box", ""},
        {"cmdBrowseDeployment", "button", "Browse ..."},
        {"chkBatchFile", "check box", "Create batch file"},
        {"chkCreateHTML", "check box", "Create web launch page"},
        {"cmdDeployNow(0)", "button", "&Deploy Now"},
        {"lblWizard(1)", "label",
         "** NOTE ** This INI file deployment is currently using an Active Directory "
         "configuration. Please review the information on the Deployment - MDAC step before "
         "deploying your solution."},
    };
}

Rows MDAC() {
    return {
        {"lblWizard(2)", "label",
         "Microsoft Data Access Components (MDAC) is used by Queueshift when migrating using the "
         "Active Directory method.  The client computer requires MDAC version 2.5 or newer to "
         "query Active Directory.  Please select the version you would like Queueshift to "
         "distribute prior to Migrating printers on the client computer. "},
        {"chkIncludeMDAC", "check box", "Include MDAC in batch file and/or web page"},
        {"optMDACVersion(0)", "option",
         "MDAC vr 2.5 SP3 - default version when using Windows 2000 "},
        {"optMDACVersion(1)", "option", "MDAC vr 2.7 SP1- default version when using Windows XP "},
        {"optMDACVersion(2)", "option",
         "MDAC vr 2.8 - default version when using Windows 2003/Windows XP SP2 "},
        {"cmdDeployNow(1)", "button", "&Deploy Now"},
        {"lblWizard(0)", "label",
         "You do not need this option if all of the client computers are running Windows 2000 or "
         "later. If in doubt, do not deploy MDAC; if errors are returned, try the latest version "
         "of MDAC (2.8)."},
        {"lblWizard(3)", "link",
         "For further information, go to http://msdn.microsoft.com/data/mdac"},
    };
}

Rows Populate() {
    return {
        {"lstPopulate", "list", ""},
        {"lblGeneral(40)", "label", "Printer Type:"},
        {"cboPopulateType", "drop-down list", "Local\nNetworked"},
        {"lblGeneral(41)", "label", "Server Name:"},
        {"txtPopulateServerName", "text box", ""},
        {"lblGeneral(42)", "label", "Printer Name:"},
        {"txtPopulatePrinterName", "text box", ""},
        {"cmdPopulateNew", "button", "N&ew"},
        {"cmdPopulateSave", "button", "&Save"},
        {"cmdPopulateDelete", "button", "&Delete"},
        {"lblGeneral(43)", "label", "Active Directory Printers:"},
        {"cboAdPopulate", "combo box", ""},
        {"cmdAdPopulateSelect", "button", "Se&lect"},
        {"cmdAdPopulateRefresh", "button", "Re&fresh"},
        {"prbAdPopulateProgress", "progress bar", ""},
    };
}

Rows Prune() {
    return {
        {"lstManualPrune", "list", ""},
        {"lblGeneral(44)", "label", "Prune Type:"},
        {"cboPruneType", "drop-down list",
         "Local Printer Only\nNetworked Printer Only\nLocal and Networked Printer Only\nServer "
         "Only\nPrinter and Server"},
        {"lblGeneral(45)", "label", "Server Name:"},
        {"txtPruneServerName", "text box", ""},
        {"lblGeneral(46)", "label", "Printer Name:"},
        {"txtPrunePrinterName", "text box", ""},
        {"cmdPruneNew", "button", "N&ew"},
        {"cmdPruneSave", "button", "&Save"},
        {"cmdPruneDelete", "button", "&Delete"},
        {"chkDeleteNonNetworked", "check box", "Delete all local (non-networked) printers"},
        {"lblGeneral(47)", "label", "Active Directory Printers:"},
        {"cboADPrune", "combo box", ""},
        {"cmdPruneADSelect", "button", "Se&lect"},
        {"cmdAdPruneRefresh", "button", "Re&fresh"},
        {"prbADPrune", "progress bar", ""},
        {"chkADPruneAll", "check box", "&Delete all orphaned Active Directory printers."},
    };
}

Rows SetDefault() {
    return {
        {"lblGeneral(55)", "label", "Please selet the method for setting a new default printer:"},
        {"optDefault(0)", "option",
         "Do Nothing: if the default printer is deleted, do not set a new default printer."},
        {"optDefault(1)", "option",
         "Migration: when migrating printers, if the current defualt printer is migrated to a new "
         "printer, the newly created migration printer is set as the default."},
        {"optDefault(2)", "option",
         "Force: force the following printer to be the default after all migrations and "
         "maintenance has been performed."},
        {"cboForceDefault", "drop-down list", ""},
    };
}

Rows Drivers() {
    return {
        {"lblNotification(19)", "label",
         "To use the Populate feature to add a local printer or to add any printer to a Windows "
         "95/98/ME client machine,  the Queueshift Engine must know the name of the printer driver "
         "and a network share path to the printer driver in case the driver needs to be "
         "installed:"},
        {"lstPrinterDrivers", "list", ""},
        {"lblGeneral(50)", "label", "Printer Name:"},
        {"txtPrinterNameViewOnly", "text box", ""},
        {"lblGeneral(51)", "label", "Driver Name:"},
        {"txtDriverName", "text box", ""},
        {"lblGeneral(52)", "label", "Driver File Name (optional):"},
        {"txtDriverFileName", "text box", ""},
        {"lblGeneral(53)", "label", "Port Name (local printers only) :"},
        {"txtPortName", "text box", ""},
        {"cmdSavePrinterDriver", "button", "&Save"},
        {"lblGeneral(54)", "label", "Driver Share Path:"},
        {"txtDriverSharePath", "text box", ""},
        {"cmdBrowseDriverSharePath", "button", "Browse ..."},
    };
}

Rows Description(int position, const char* text) {
    return {{"lblNotification(" + std::to_string(position) + ")", "label", text}};
}

const char* const kNotification =
    "Queueshift offers several methods for notification. To receive email notifications, use the "
    "SMTP Mail screen; to save the outcome in a text file, use the File Output screen. The outcome "
    "of the migration can also be stored in the Application Log on the client's PC using the "
    "Application Event Log screen. None of these methods will tell the user of the machine of the "
    "changes made; to inform the user, use the Client User Pop-Up screen.";
const char* const kMaintenance =
    "Queueshift offers several maintenance activities that can be used independent of the printer "
    "migration methods. To add a networked printer without having to delete a printer first, use "
    "the Printer Populate screen. To delete a networked or non-networked printer, to delete all "
    "printers for a specific server or to delete a server and printer pair without having a new "
    "printer to add, use the Printer Pruning screen.";
const char* const kManual =
    "Rather than using a network's Active Directory, the Queueshift application offers a variety "
    "of manual configuration options. To move all printers on one print server to a different "
    "print server use the Server option. To move a specific printer to another specific printer "
    "while leaving the printer server the same, use the Printer Option. To move a specific printer "
    "from a specific print server to another specific printer and print server, use the Mixed "
    "option.";
const char* const kDeployment =
    "The Deployment options allow you to deploy your Queueshift INI file and any other necessary "
    "files to a specified location, optionally also creating a batch file or web page.";

struct PageList {
    const char* title;
    Rows rows;
};

std::map<int, PageList> Lists() {
    return {
        {0, {"General", General()}},
        {1, {"Active Directory", ActiveDirectory()}},
        {2, {"Manual Configuration - Servers", Servers()}},
        {3, {"Notification", Description(3, kNotification)}},
        {4, {"Notification - SMTP Mail", SMTPMail()}},
        {5, {"Notification - File Output", FileOutput()}},
        {6, {"Notification - Client Pop-Up", ClientPopup()}},
        {7, {"Notification - Application Event Log", EventLog()}},
        {8, {"Maintenance", Description(8, kMaintenance)}},
        {9, {"Manual Configuration", Description(9, kManual)}},
        {10, {"Manual Configuration - Printers", Printers()}},
        {11, {"Manual Configuration - Mixed", Mixed()}},
        {12, {"Maintenance - Prune", Prune()}},
        {13, {"Support", Support()}},
        {14, {"Deployment - General", DeploymentGeneral()}},
        {15, {"Deployment - MDAC", MDAC()}},
        {16, {"Deployment", Description(16, kDeployment)}},
        {17, {"Maintenance - Populate", Populate()}},
        {18, {"Set Default", SetDefault()}},
        {19, {"Drivers", Drivers()}},
    };
}

} // namespace

std::vector<ControlRow> ControlsOfPage(int position) {
    PageList list = Lists().at(position);
    const std::string index = "(" + std::to_string(position) + ")";
    list.rows.push_back({"lblGeneral" + index, "label", list.title});
    list.rows.push_back({"fraSeperator" + index, "line", ""});
    list.rows.push_back({"cmdHelp" + index, "button", "Help"});
    list.rows.push_back({"cmdBack" + index, "button", "&Back"});
    list.rows.push_back({"cmdNext" + index, "button", "&Next"});
    return list.rows;
}

} // namespace window_test
