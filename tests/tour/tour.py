#!/usr/bin/python3
"""The tour: uses the program as an administrator would, and looks at what comes of it.

  tour.py PROGRAM-FOLDER RESULT-FOLDER

Run by run-tour, which provides the display and the buses.
"""

import pathlib
import sys
import time
import traceback

import bus
import check_deployed
import check_settings
import hand
import progress
from camera import Camera
from directory_document import DOMAIN, DirectoryDocument
from manual_document import NO_FOLDER, ManualDocument
from reopening import Reopened
from waiting import Failure, until
from wizard import Wizard

NOT_SAVED = "This INI file needs to be saved. Please save your INI file before trying to deploy."
FOLDER_MISSING = (
    "The deployment folder does not exist. Please check your deployment folder and try again."
)
PROTECTED = "The file already exists and is currently write protected."
NO_INSTALLER = "Error copying MDAC file to deployment folder."
SAVE_BEFORE_NEW = "Do you want to save your changes before creating a new INI file?"
SAVE_BEFORE_OPEN = "Do you want to save your changes before opening a new INI file?"
SAVE_BEFORE_EXIT = "You have unsaved work, do you want to save before exiting?"


def say(text):
    print(f"   {text}", flush=True)


def chapter(text):
    print(f"\n** {text}", flush=True)


class Tour:
    def __init__(self, program, results):
        self.program = program
        self.results = results
        self.camera = Camera(results)
        self.sites = results / "Sites.ini"
        self.directory = results / "Directory.ini"
        self.deployed = results / "deployed"
        self.deployed_directory = results / "deployed-directory"
        self.deployed.mkdir()
        self.deployed_directory.mkdir()
        self.w = None

    def start(self):
        self.w = Wizard(self.program / "queueshift-toolkit", self.results, self.camera, say)
        self.w.window("New INI")

    def run(self):
        self.new_manual_document()
        self.deploy_manual_document()
        self.new_directory_document()
        self.deploy_directory_document()
        self.reopen()
        self.leave()
        self.second_start()

    def new_manual_document(self):
        chapter("A new document: Manual Configuration")
        self.start()
        self.look_at_tabs()
        self.w.new_dialog("optUseManualConfiguration")
        document = ManualDocument(self.w, self.results)
        document.walk()
        self.w.menu("View", "Deployment")
        self.leave_missing_folder()
        self.w.click("cmdDeployNow(0)")
        self.w.answer("Error", "Error", NOT_SAVED, "OK", "deploy-refused-never-saved")
        self.w.tree("Drivers")
        document.drivers()
        self.w.menu("File", "Save")
        self.w.save_as(self.sites, "save-dialog")
        self.w.called("Sites.ini")
        expected = check_settings.manual(self.results, self.results / "nowhere")
        lines = check_settings.same_lines(self.sites, expected)
        say(f"saved it as {self.sites}: all {lines} lines are as they should be")

    def leave_missing_folder(self):
        """The page opens in the field of the folder, and whoever leaves it is warned."""
        self.w.focused("txtNetworkSharePath")
        hand.key("Tab")
        self.w.answer("Warning", "Folder not found.", NO_FOLDER, "OK", None)

    def look_at_tabs(self):
        w = self.w
        w.picture("new-document")
        dialog = w.window("New INI")
        tab = bus.ROLE.PAGE_TAB
        w.click_named(dialog, "Existing", tab)
        w.control("filExistingINI")
        w.picture("new-document-existing")
        w.click_named(dialog, "Recent", tab)
        w.picture("new-document-recent-refused")
        w.control("filExistingINI")
        w.click_named(dialog, "New", tab)
        w.control("optUseManualConfiguration")

    def deploy_manual_document(self):
        chapter("Deploying it")
        w = self.w
        w.menu("View", "Deployment")
        self.leave_missing_folder()
        w.click("cmdDeployNow(0)")
        w.answer("Error", "Error", FOLDER_MISSING, "OK", "deploy-refused-no-folder")
        w.enter("txtNetworkSharePath", str(self.deployed))
        w.click("cmdDeployNow(0)")
        w.answer("Error", "Error", NOT_SAVED, "OK", "deploy-refused-changed")
        w.main()
        hand.key("ctrl+s")
        expected = check_settings.manual(self.results, self.deployed)
        until("the file is saved again", lambda: check_settings.lines_of(self.sites) == expected)
        title = progress.catch(
            w.process.pid, self.camera, lambda: w.click("cmdDeployNow(0)"), "progress"
        )
        say(f"caught the progress window: {title}" if title else "the progress window was too quick")
        w.answer("Information", "Sucess", "Deployment successfull.", "OK", "deploy-success")
        names = check_deployed.check(self.program, self.sites, self.deployed)
        say(f"deployed into {self.deployed}: {', '.join(names)}")
        self.protected()

    def protected(self):
        target = self.deployed / self.sites.name
        target.chmod(0o444)
        self.w.click("cmdDeployNow(0)")
        self.w.answer("Warning", "INI File Write Warning", PROTECTED, "OK", "deploy-warning-protected")
        target.chmod(0o644)

    def new_directory_document(self):
        chapter("A new document: Active Directory")
        w = self.w
        w.menu("View", "General")
        w.tick("chkAlwaysRun", False)
        w.menu("File", "New")
        w.answer("Question", "Save?", SAVE_BEFORE_NEW, "No", "save-question-new")
        w.new_dialog("optUseActiveDirectory")
        w.called("UNTITLED")
        document = DirectoryDocument(w, self.results)
        document.walk()
        document.walk_back()
        w.tool("Save")
        w.save_as(self.directory, "save-dialog-directory")
        w.called("Directory.ini")
        check_settings.holds(self.directory, "GENERAL", "UseActiveDirectory", "True")
        check_settings.holds(self.directory, "ACTIVE DIRECTORY", "DomainName", DOMAIN)
        check_settings.holds(self.directory, "DEPLOYMENT", "IncludeMDAC", "True")
        say(f"saved it as {self.directory}")

    def deploy_directory_document(self):
        chapter("Deploying it, with the MDAC installer")
        w = self.w
        w.tree("MDAC")
        w.click("cmdDeployNow(1)")
        w.answer("Error", "Error", NO_INSTALLER, "OK", "deploy-error-installer")
        w.tick("optMDACVersion(2)")
        w.tool("Save")
        until(
            "the file is saved again",
            lambda: "MDACOption=2" in check_settings.lines_of(self.directory),
        )
        w.click("cmdDeployNow(1)")
        w.answer("Information", "Sucess", "Deployment successfull.", "OK", "deploy-success-directory")
        names = check_deployed.check(
            self.program, self.directory, self.deployed_directory, check_deployed.INSTALLER
        )
        say(f"deployed into {self.deployed_directory}: {', '.join(names)}")

    def reopen(self):
        chapter("Opening the first document again")
        w = self.w
        w.menu("View", "Support")
        w.tick("chkDebugOn", False)
        w.menu("File", "Open ...")
        w.answer("Question", "Save?", SAVE_BEFORE_OPEN, "No", "save-question-open")
        w.open(self.sites, "open-dialog")
        w.called("Sites.ini")
        w.at(0, "General", "General")
        Reopened(w, self.results, self.deployed).walk()
        w.menu("File", "Save As ...")
        w.save_as(self.directory, "save-as-dialog")
        question = 'A file named "Directory.ini" already exists. Do you want to replace it?'
        w.answer("Warning", "Save INI file As ...", question, "No", "replace-question")
        w.close_picker("Save INI file As ...", "save-as-dialog-again")
        w.called("Sites.ini")
        check_settings.holds(self.directory, "GENERAL", "UseActiveDirectory", "True")

    def leave(self):
        chapter("About box and Exit")
        w = self.w
        w.menu("Help", "About Queueshift Deployment Toolkit ...")
        w.window("About Queueshift Deployment Toolkit")
        w.picture("about")
        w.click("cmdOK")
        w.gone("About Queueshift Deployment Toolkit")
        w.menu("View", "Support")
        w.tick("chkDebugOn", False)
        w.menu("File", "Exit")
        w.answer("Question", "Save?", SAVE_BEFORE_EXIT, "Cancel", "save-question-exit")
        w.main()
        w.menu("File", "Exit")
        w.answer("Question", "Save?", SAVE_BEFORE_EXIT, "No", None)
        w.has_ended()
        expected = check_settings.manual(self.results, self.deployed)
        check_settings.same_lines(self.sites, expected)
        say("left without saving; the file is as it was")

    def second_start(self):
        chapter("A second start, with the existing documents")
        for file in (self.directory, self.sites):
            self.start()
            w = self.w
            w.choose_existing(file)
            w.called(file.name)
            if file == self.sites:
                Reopened(w, self.results, self.deployed).walk()
            else:
                w.tree("Active Directory")
                w.expect_text("cboDomainName", DOMAIN)
                w.tree("MDAC")
                w.expect_checked("optMDACVersion(2)")
            w.menu("File", "Exit")
            w.has_ended()
            say(f"{file.name} came up through the Existing tab; nothing was changed, so Exit asks nothing")


def main(arguments):
    program, results = (pathlib.Path(argument) for argument in arguments)
    began = time.monotonic()
    bus.prepare()
    tour = Tour(program, results)
    try:
        tour.run()
    except Exception as problem:
        if not isinstance(problem, Failure):
            traceback.print_exc()
        print(f"\nTHE TOUR FAILED: {problem}", file=sys.stderr)
        failed = tour.camera.screen("failed")
        print(f"The screen at that moment: {failed}", file=sys.stderr)
        return 1
    finally:
        if tour.w:
            tour.w.stop()
    seconds = time.monotonic() - began
    print(f"\nThe tour went well, in {seconds:.0f} seconds. In {results} there are now:")
    print(f"   {len(tour.camera.taken)} pictures, 01-... to {tour.camera.taken[-1].name}")
    print("   Sites.ini and Directory.ini, the two documents")
    print("   deployed and deployed-directory, what Deploy Now made of them")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
