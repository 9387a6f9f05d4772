"""Looks whether the reopened manual document shows what was entered."""

import manual_document as entered
import pages


class Reopened:
    def __init__(self, w, folder, deployment):
        self.w = w
        self.folder = folder
        self.deployment = deployment
        self.look = {
            "General": self.general,
            "Manual Configuration - Servers": self.servers,
            "Manual Configuration - Printers": self.printers,
            "Manual Configuration - Mixed": self.mixed,
            "Notification - SMTP Mail": self.mail,
            "Notification - File Output": self.file_output,
            "Notification - Client Pop-Up": self.popup,
            "Notification - Application Event Log": self.event_log,
            "Deployment": self.deploy,
            "Maintenance - Prune": self.prune,
            "Maintenance - Populate": self.populate,
            "Set Default": self.default_printer,
            "Drivers": self.drivers,
            "Support": self.support,
        }

    def walk(self):
        """Goes to every page that has an entry in the View menu."""
        for entry, heading in pages.MANUAL_MENU.items():
            self.w.menu("View", entry)
            self.w.at(*pages.of_heading(pages.MANUAL, heading))
            self.look[heading]()
        self.w.say("the View menu leads to every page, and each shows what was entered")

    def texts(self, **wanted):
        for identity, text in wanted.items():
            self.w.expect_text(identity, text)

    def checks(self, *identities):
        for identity in identities:
            self.w.expect_checked(identity)

    def general(self):
        self.checks("chkAlwaysRun", "chkShowProgress")

    def servers(self):
        self.w.expect_rows("lstServerPairs", entered.SERVERS)

    def printers(self):
        self.w.expect_rows("lstPrinterPairs", entered.PRINTERS)

    def mixed(self):
        self.w.expect_rows("lstMixedPrintersAndServers", entered.MIXED)

    def mail(self):
        self.checks("chkUseSMTP")
        self.w.expect_rows("lstToEmailAddresses", entered.RECIPIENTS)
        self.texts(
            txtSMTPServerName="mail.example.com",
            txtSMTPServerPort="2525",
            txtSMTPEmailAddress="queueshift@example.com",
            txtEmailSubject="Printers have moved",
        )

    def file_output(self):
        self.checks("chkUseFileOutput", "chkIncludeComputerName", "chkIncludeFinalStatus")
        self.texts(txtFileOutputPath=str(self.folder), txtFileOutputName="result")

    def popup(self):
        self.checks("chkUseNotifyUser", "chkNotifyMessageOnFailure")
        self.texts(
            txtSucessMessage="Your printers have moved.",
            txtFailureMessage="Your printers could not be moved.",
        )

    def event_log(self):
        self.checks("chkWriteToEventLog")

    def deploy(self):
        self.texts(txtNetworkSharePath=str(self.deployment))
        self.checks("chkBatchFile", "chkCreateHTML")

    def prune(self):
        self.w.expect_rows("lstManualPrune", entered.PRUNE)

    def populate(self):
        self.w.expect_rows("lstPopulate", entered.POPULATE)

    def default_printer(self):
        self.checks("optDefault(2)")
        self.w.picture("reopened-set-default")

    def drivers(self):
        self.w.expect_rows("lstPrinterDrivers", entered.DRIVERS)
        self.texts(txtDriverSharePath="\\\\NEWSRV1\\drivers")

    def support(self):
        self.checks("chkDebugOn")
