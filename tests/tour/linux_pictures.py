#!/usr/bin/python3
"""Shows every page and dialog of the Linux program and takes a picture of each.

  linux_pictures.py PROGRAM-FOLDER RESULT-FOLDER

Run by linux-pictures. The pictures bear the names that windows_pictures.py gives them, too.
"""

import pathlib
import sys
import time

import bus
import hand
import manual_document
import pages
import progress
import samples
from camera import Camera
from directory_document import REFRESH
from waiting import Failure, require, until
from wizard import Wizard

DOCUMENTS = pathlib.Path("/srv/admin/Documents")
DEPLOYMENT = pathlib.Path("/srv/deploy")
HELP = "Queueshift Help"
NOTHING_AROUND = (0, 0, 0, 0)


def say(text):
    print(f"   {text}", flush=True)


class Pictures:
    def __init__(self, program, camera):
        self.w = Wizard(program / "queueshift-toolkit", DOCUMENTS, camera, say)
        self.camera = camera

    def take(self):
        self.new_document()
        self.open("Sites.ini")
        self.walk(pages.MANUAL, "manual")
        self.refusal()
        self.pickers()
        self.open("Directory.ini")
        self.walk(pages.ACTIVE_DIRECTORY, "directory")
        self.help()
        self.open("Pilot.ini")
        self.deploy()
        self.leave()

    def new_document(self):
        w = self.w
        dialog = w.window("New INI")
        w.picture("new-document")
        w.click_named(dialog, "Existing", bus.ROLE.PAGE_TAB)
        files = w.control("filExistingINI")
        row = until("Sites.ini is listed", lambda: files.named("Sites.ini"))
        hand.click(row[0].box)
        until("Sites.ini is selected", lambda: row[0].has(bus.STATE.SELECTED))
        w.picture("new-document-existing")
        w.click_named(dialog, "New", bus.ROLE.PAGE_TAB)
        w.new_dialog("optUseManualConfiguration")

    def open(self, name):
        w = self.w
        w.menu("File", "Open ...")
        w.open(DOCUMENTS / name, "open-" + name.partition(".")[0].lower())
        w.called(name)

    def walk(self, order, label):
        """By the option tree, which keeps the focus: no field complains that it is left."""
        w = self.w
        seen = set()
        for position, title, node in order:
            w.tree(node, 1 if node in seen else 0)
            seen.add(node)
            slug = pages.slug(title)
            if label == "directory" and slug in ("maintenance-populate", "maintenance-prune"):
                w.answer("Question", "Refresh Printers", REFRESH, "No", f"refresh-question-{slug}")
            w.at(position, title, node)
            w.picture(f"{label}-{slug}")

    def refusal(self):
        w = self.w
        w.tree("Servers")
        w.click("cmdNewServerPair")
        w.click("cmdSaveServerPair")
        w.answer("Error", "Save Error", manual_document.NO_NAMES, "OK", "save-error")

    def pickers(self):
        w = self.w
        w.tree("File Output")
        w.click("cmdBrowseFileOutput")
        w.close_picker("Please select a folder.", "folder-picker")
        w.menu("View", "Deployment")
        w.focused("txtNetworkSharePath")
        hand.key("Tab")
        w.answer("Warning", "Folder not found.", manual_document.NO_FOLDER, "OK", "folder-not-found")
        w.click("cmdBrowseDeployment")
        w.close_picker("Select a network computer or share.", "network-folder-picker")

    def help(self):
        w = self.w
        w.tree("Prune")
        w.main()
        hand.key("F1")
        w.window(HELP)
        w.picture("help")
        hand.key("Escape")
        w.gone(HELP)

    def deploy(self):
        w = self.w
        w.menu("View", "Deployment")
        title = progress.catch(
            w.process.pid, self.camera, lambda: w.click("cmdDeployNow(0)"), "progress"
        )
        require(title, "the progress window was too quick for a picture")
        w.answer("Information", "Sucess", "Deployment successfull.", "OK", "deploy-success")

    def leave(self):
        w = self.w
        w.menu("File", "Save As ...")
        w.close_picker("Save INI file As ...", "save-dialog")
        w.menu("Help", "About Queueshift Deployment Toolkit ...")
        w.window("About Queueshift Deployment Toolkit")
        w.picture("about")
        w.click("cmdOK")
        w.gone("About Queueshift Deployment Toolkit")
        w.menu("View", "Support")
        w.tick("chkDebugOn", False)
        w.menu("File", "Exit")
        question = "You have unsaved work, do you want to save before exiting?"
        w.answer("Question", "Save?", question, "No", "save-question-exit")
        w.has_ended()


def main(arguments):
    program, results = (pathlib.Path(argument) for argument in arguments)
    began = time.monotonic()
    bus.prepare()
    samples.write_all(DOCUMENTS, DEPLOYMENT)
    samples.write_program_files(program)
    camera = Camera(results, NOTHING_AROUND)
    pictures = Pictures(program, camera)
    try:
        pictures.take()
    except Failure as problem:
        print(f"linux-pictures: {problem}; see {camera.screen('failed')}", file=sys.stderr)
        return 1
    finally:
        pictures.w.stop()
    seconds = time.monotonic() - began
    print(f"{len(camera.taken)} pictures of the Linux program in {results}, in {seconds:.0f} s")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
