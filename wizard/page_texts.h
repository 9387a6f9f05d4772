// What the pages say that only explain.
#pragma once

namespace modWizard {

inline constexpr const char* kManualConfigurationText =
    "Rather than using a network's Active Directory, the Queueshift application offers a variety "
    "of manual configuration options. To move all printers on one print server to a different "
    "print server use the Server option. To move a specific printer to another specific printer "
    "while leaving the printer server the same, use the Printer Option. To move a specific printer "
    "from a specific print server to another specific printer and print server, use the Mixed "
    "option.";

inline constexpr const char* kNotificationText =
    "Queueshift offers several methods for notification. To receive email notifications, use the "
    "SMTP Mail screen; to save the outcome in a text file, use the File Output screen. The outcome "
    "of the migration can also be stored in the Application Log on the client's PC using the "
    "Application Event Log screen. None of these methods will tell the user of the machine of the "
    "changes made; to inform the user, use the Client User Pop-Up screen.";

inline constexpr const char* kDeploymentText =
    "The Deployment options allow you to deploy your Queueshift INI file and any other necessary "
    "files to a specified location, optionally also creating a batch file or web page.";

inline constexpr const char* kMaintenanceText =
    "Queueshift offers several maintenance activities that can be used independent of the printer "
    "migration methods. To add a networked printer without having to delete a printer first, use "
    "the Printer Populate screen. To delete a networked or non-networked printer, to delete all "
    "printers for a specific server or to delete a server and printer pair without having a new "
    "printer to add, use the Printer Pruning screen.";

} // namespace modWizard
