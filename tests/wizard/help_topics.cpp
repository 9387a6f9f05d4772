#include "tests/wizard/help_topics.h"

namespace window_test {

namespace {

const std::vector<std::string> kDeploymentLabels{"Network Share Path:", "Browse ...",
                                                 "Create batch file", "Create web launch page",
                                                 "Deploy Now"};

std::vector<HelpTopic> BeginningTopics() {
    return {
        {1036,
         "New Document",
         {"Please select the type of Queueshift INI file:", "Active Directory",
          "Manual Configuration", "Select", "Cancel", "Help"}},
        {1081,
         "New or Existing Document",
         {"Please select the type of Queueshift INI file:", "Active Directory",
          "Manual Configuration", "Please navigate to and select an existing INI file:", "Select",
          "Cancel", "Help"}},
        {1013,
         "General",
         {"Configuration File Type: (Read Only)", "Show progress window for Queueshift Engine",
          "Always Run"}},
        {1004, "Active Directory", {"Please select or enter your Active Directory domain name:"}},
        {1027, "Manual Configuration", {"Servers", "Printers", "Mixed"}},
        {1042,
         "Manual Configuration - Servers",
         {"From Print Server:", "To Print Server:", "New", "Save", "Delete", "Recent"}},
        {1039,
         "Manual Configuration - Printers",
         {"From Printer:", "To Printer:", "New", "Save", "Delete"}},
        {1035,
         "Manual Configuration - Mixed",
         {"From Print Server:", "From Printer:", "To Print Server:", "To Printer:", "New", "Save",
          "Delete"}},
    };
}

std::vector<HelpTopic> NotificationTopics() {
    return {
        {1038,
         "Notification",
         {"SMTP Mail", "File Output", "Client User Pop-Up", "Application Event Log"}},
        {1008,
         "Notification - SMTP Mail",
         {"Notify via email", "SMTP Server Name or IP:", "SMTP Server Port:", "From Email Address:",
          "Email Subject:", "Send Email To:", "Add", "Remove"}},
        {1012,
         "Notification - File Output",
         {"Notify via file output", "File Output Path:", "Browse ...", "File Output Name:",
          "Include client computer and user name in filename", "Include final status in filename"}},
        {1040,
         "Notification - Client Pop-Up",
         {"Notify user on success with message:", "Notify user on failure with message:"}},
        {1010,
         "Notification - Application Event Log",
         {"Write sucess and failure messages to the Windows application event log"}},
    };
}

std::vector<HelpTopic> DeploymentTopics() {
    return {
        {1006, "Deployment", {"General", "MDAC"}},
        {1019, "Deployment - General", kDeploymentLabels},
        {1080, "Deployment - Manual Document", kDeploymentLabels},
        {1028,
         "Deployment - MDAC",
         {"Include MDAC in batch file and/or web page",
          "MDAC vr 2.5 SP3 - default version when using Windows 2000",
          "MDAC vr 2.7 SP1- default version when using Windows XP",
          "MDAC vr 2.8 - default version when using Windows 2003/Windows XP SP2", "Deploy Now",
          "For further information, go to"}},
    };
}

std::vector<HelpTopic> RemainingTopics() {
    return {
        {2090, "Maintenance", {"Populate", "Prune"}},
        {2100,
         "Maintenance - Populate",
         {"Printer Type:", "Local", "Networked", "Server Name:", "Printer Name:", "New", "Save",
          "Delete", "Active Directory Printers:", "Select", "Refresh"}},
        {2010,
         "Maintenance - Prune",
         {"Prune Type:", "Local Printer Only", "Networked Printer Only",
          "Local and Networked Printer Only", "Server Only", "Printer and Server",
          "Server Name:", "Printer Name:", "New", "Save", "Delete",
          "Delete all local (non-networked) printers", "Active Directory Printers:", "Select",
          "Refresh", "Delete all orphaned Active Directory printers."}},
        {2020,
         "Set Default",
         {"Please selet the method for setting a new default printer:",
          "Do Nothing: if the default printer is deleted, do not set a new default printer.",
          "Migration: when migrating printers, if the current defualt printer is migrated to a new "
          "printer, the newly created migration printer is set as the default.",
          "Force: force the following printer to be the default after all migrations and "
          "maintenance has been performed."}},
        {2030,
         "Drivers",
         {"Printer Name:", "Driver Name:", "Driver File Name (optional):",
          "Port Name (local printers only) :", "Save", "Driver Share Path:", "Browse ..."}},
        {1045, "Support", {"Turn on debugging", "To submit a support requests please visit"}},
    };
}

} // namespace

const std::vector<HelpTopic>& HelpTopics() {
    static const std::vector<HelpTopic> topics = [] {
        std::vector<HelpTopic> all = BeginningTopics();
        for (const auto& more : {NotificationTopics(), DeploymentTopics(), RemainingTopics()}) {
            all.insert(all.end(), more.begin(), more.end());
        }
        return all;
    }();
    return topics;
}

const std::vector<PageTopics>& TopicsOfPages() {
    static const std::vector<PageTopics> topics{
        {0, "General", "General"},
        {1, "Active Directory", nullptr},
        {2, nullptr, "Manual Configuration - Servers"},
        {3, "Notification", "Notification"},
        {4, "Notification - SMTP Mail", "Notification - SMTP Mail"},
        {5, "Notification - File Output", "Notification - File Output"},
        {6, "Notification - Client Pop-Up", "Notification - Client Pop-Up"},
        {7, "Notification - Application Event Log", "Notification - Application Event Log"},
        {8, "Maintenance", "Maintenance"},
        {9, nullptr, "Manual Configuration"},
        {10, nullptr, "Manual Configuration - Printers"},
        {11, nullptr, "Manual Configuration - Mixed"},
        {12, "Maintenance - Prune", "Maintenance - Prune"},
        {13, "Support", "Support"},
        {14, "Deployment - General", "Deployment - Manual Document"},
        {15, "Deployment - MDAC", nullptr},
        {16, "Deployment", nullptr},
        {17, "Maintenance - Populate", "Maintenance - Populate"},
        {18, "Set Default", "Set Default"},
        {19, "Drivers", "Drivers"},
    };
    return topics;
}

} // namespace window_test
