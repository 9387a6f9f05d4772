"""A document of manual configuration: every page is visited by Next and filled in by typing."""

import hand
import pages

SERVERS = ["OLDSRV1 -> NEWSRV1", "OLDSRV2 -> NEWSRV2"]
PRINTERS = ["Laser 4 -> Laser 5"]
MIXED = ["OLDSRV3 >> Plotter -> NEWSRV3 >> Plotter A0"]
RECIPIENTS = ["first@example.com", "second@example.com"]
POPULATE = ["NEWSRV1 >> Color 1", ". >> Label Printer"]
PRUNE = ["OLDSRV1 >> Fax", "OLDSRV9 >> *"]
TARGETS = ["Plotter A0", "Laser 5", "Color 1", "Label Printer"]
DRIVERS = [f"{name} >> {name} driver >> drv{i}.inf >> LPT{i}:" for i, name in enumerate(TARGETS, 1)]
NO_NAMES = (
    "Both a From and To Print Server name is required. Please enter both print server names."
)
DELETE_PAIR = "Are you sure that you want to delete the selected Print Server pair?"
NO_FOLDER = (
    "The output file folder could not be found. This may cause Queueshift to work irregularly."
)
NO_DRIVER = (
    "When populating a local printer you must provide a driver name "
    "and port name on the drivers step. Please provide the required information."
)


class ManualDocument:
    """Fills the wizard `w`. `folder` is where the tour keeps its files."""

    def __init__(self, w, folder):
        self.w = w
        self.folder = folder
        self.fill = {
            0: self.general,
            2: self.servers,
            10: self.printers,
            11: self.mixed,
            4: self.mail,
            5: self.file_output,
            6: self.popup,
            7: self.event_log,
            14: self.deployment,
            17: self.populate,
            12: self.prune,
            18: self.default_printer,
            13: self.support,
        }

    def walk(self):
        for page in pages.MANUAL:
            position, title, _ = page
            self.w.at(*page)
            if position in self.fill:
                self.fill[position]()
            self.w.picture("manual-" + pages.slug(title))
            self.w.next(position)
        self.w.at(*pages.MANUAL[-1])
        self.w.say("walked all pages with Next, filling them in; Next on the last page stays there")

    def general(self):
        self.w.tick("chkAlwaysRun")

    def pair(self, fields, save, list_box, rows):
        for identity, text in fields.items():
            self.w.enter(identity, text)
        self.w.click(save)
        self.w.expect_rows(list_box, rows)

    def server(self, pair, rows):
        source, target = pair.split(" -> ")
        fields = {"txtFromServer": source, "txtToServer": target}
        self.pair(fields, "cmdSaveServerPair", "lstServerPairs", rows)

    def servers(self):
        w = self.w
        w.click("cmdSaveServerPair")
        w.answer("Error", "Save Error", NO_NAMES, "OK", "save-error")
        wrong = "WRONG1 -> WRONG2"
        self.server(wrong, [wrong])
        w.click("cmdDeleteServer")
        w.answer("Question", "Delete?", DELETE_PAIR, "No", "delete-question")
        w.expect_rows("lstServerPairs", [wrong])
        w.click("cmdDeleteServer")
        w.answer("Question", "Delete?", DELETE_PAIR, "Yes", None)
        w.expect_rows("lstServerPairs", [])
        self.server(SERVERS[0], SERVERS[:1])
        w.click("cmdNewServerPair")
        w.expect_text("txtFromServer", "")
        self.server(SERVERS[1], SERVERS)
        w.say("entered two server pairs, after a wrong one that was deleted")

    def printers(self):
        source, target = PRINTERS[0].split(" -> ")
        fields = {"txtFromPrinter": source, "txtToPrinter": target}
        self.pair(fields, "cmdPrinterSave", "lstPrinterPairs", PRINTERS)
        self.w.say("entered a printer pair")

    def mixed(self):
        fields = {
            "txtMixedFromServer": "OLDSRV3",
            "txtMixedFromPrinter": "Plotter",
            "txtMixedToServer": "NEWSRV3",
            "txtMixedToPrinter": "Plotter A0",
        }
        self.pair(fields, "cmdMixedSave", "lstMixedPrintersAndServers", MIXED)
        self.w.say("entered a pair of server and printer to server and printer")

    def mail(self):
        w = self.w
        w.picture("manual-smtp-mail-off")
        w.tick("chkUseSMTP")
        w.enter("txtSMTPServerName", "mail.example.com")
        w.enter("txtSMTPServerPort", "2525")
        w.enter("txtSMTPEmailAddress", "queueshift@example.com")
        w.enter("txtEmailSubject", "Printers have moved")
        for place, address in enumerate(RECIPIENTS, 1):
            w.enter("txtSendEmailTo", address)
            w.click("cmdAddSendEmail")
            w.expect_rows("lstToEmailAddresses", RECIPIENTS[:place])

    def file_output(self):
        w = self.w
        w.picture("manual-file-output-off")
        w.tick("chkUseFileOutput")
        w.enter("txtFileOutputPath", str(self.folder))
        w.enter("txtFileOutputName", "result")
        w.tick("chkIncludeComputerName")
        w.tick("chkIncludeFinalStatus")
        w.click("cmdBrowseFileOutput")
        w.close_picker("Please select a folder.", "folder-picker")
        w.expect_text("txtFileOutputPath", str(self.folder))

    def popup(self):
        w = self.w
        w.tick("chkUseNotifyUser")
        w.enter("txtSucessMessage", "Your printers have moved.")
        w.picture("manual-client-pop-up-failure-off")
        w.tick("chkNotifyMessageOnFailure")
        w.enter("txtFailureMessage", "Your printers could not be moved.")

    def event_log(self):
        self.w.tick("chkWriteToEventLog")

    def deployment(self):
        w = self.w
        w.tick("chkBatchFile")
        w.tick("chkCreateHTML")
        w.enter("txtNetworkSharePath", str(self.folder / "nowhere"))
        hand.key("Tab")
        w.answer("Warning", "Folder not found.", NO_FOLDER, "OK", "folder-not-found")
        w.click("cmdBrowseDeployment")
        w.close_picker("Select a network computer or share.", "network-folder-picker")
        w.expect_text("txtNetworkSharePath", str(self.folder / "nowhere"))

    def populate(self):
        w = self.w
        w.enter("txtPopulateServerName", "NEWSRV1")
        w.enter("txtPopulatePrinterName", "Color 1")
        w.click("cmdPopulateSave")
        w.expect_rows("lstPopulate", POPULATE[:1])
        w.click("cmdPopulateNew")
        w.choose("cboPopulateType", "Local")
        w.expect_text("txtPopulateServerName", ".")
        w.enter("txtPopulatePrinterName", "Label Printer")
        w.click("cmdPopulateSave")
        w.expect_rows("lstPopulate", POPULATE)

    def prune(self):
        w = self.w
        w.enter("txtPruneServerName", "OLDSRV1")
        w.enter("txtPrunePrinterName", "Fax")
        w.click("cmdPruneSave")
        w.expect_rows("lstManualPrune", PRUNE[:1])
        w.click("cmdPruneNew")
        w.choose("cboPruneType", "Server Only")
        w.expect_text("txtPrunePrinterName", "*")
        w.enter("txtPruneServerName", "OLDSRV9")
        w.click("cmdPruneSave")
        w.expect_rows("lstManualPrune", PRUNE)

    def default_printer(self):
        self.w.picture("manual-set-default-none")
        self.w.tick("optDefault(2)")
        self.w.click("cboForceDefault")
        self.w.picture("manual-set-default-offers")
        hand.key("Down", "Return")

    def support(self):
        self.w.tick("chkDebugOn")

    def drivers(self):
        """Fills in the drivers, as the program itself asks for when the document is saved."""
        w = self.w
        w.menu("File", "Save")
        w.answer("Error", "Queueshift", NO_DRIVER, "OK", "save-refused")
        w.at(19, "Drivers", "Drivers")
        for place, item in enumerate(DRIVERS):
            name, driver, file, port = item.split(" >> ")
            row = w.control("lstPrinterDrivers").named(name)[0]
            hand.click(row.box)
            w.expect_text("txtPrinterNameViewOnly", name)
            w.enter("txtDriverName", driver)
            w.enter("txtDriverFileName", file)
            w.enter("txtPortName", port)
            w.click("cmdSavePrinterDriver")
            w.expect_rows("lstPrinterDrivers", DRIVERS[: place + 1] + TARGETS[place + 1 :])
        w.enter("txtDriverSharePath", "\\\\NEWSRV1\\drivers")
        w.picture("manual-drivers-filled")
        w.say("saving was refused for want of a driver; entered the drivers")
