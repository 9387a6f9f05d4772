#!/usr/bin/python3
"""Shows every page and dialog of the Windows program and takes a picture of each.

  windows_pictures.py RUN-WINE BUILD-FOLDER DRIVE RESULT-FOLDER

Run by windows-pictures. BUILD-FOLDER holds the program and its help book, DRIVE is what Wine calls
C:. The pictures bear the names that linux_pictures.py gives them, too.
"""

import pathlib
import shutil
import sys
import time

import hand
import pages
import progress
import samples
from camera import Camera
from waiting import Failure, require
from wine_desk import WineDesk

PROGRAM = "C:\\Program Files\\Queueshift"
DOCUMENTS = "C:\\Documents"
DEPLOYMENT = "C:\\Deploy"
NOTHING_AROUND = (0, 0, 0, 0)


def prepare(build, drive):
    """The program where it is installed, documents, and a folder to deploy into."""
    program, documents = drive / "Program Files/Queueshift", drive / "Documents"
    for folder in (program, documents, drive / "Deploy"):
        folder.mkdir(parents=True)
    for name in ("QueueshiftToolkit.exe", "Queueshift.hlp"):
        shutil.copy(build / name, program)
    samples.write_all(documents, DEPLOYMENT)
    samples.write_program_files(program)
    return documents


def walk(wine, order, label, on_page=None):
    """All pages of the open document, by Next; `on_page` has more to do on some of them."""
    for number, (_, title, _) in enumerate(order):
        slug = pages.slug(title)
        if number:
            wine.changed_by("alt+n")
            wine.decline(f"refresh-question-{slug}")
        wine.picture(f"{label}-{slug}")
        if on_page and slug in on_page:
            on_page[slug]()


def new_document(wine):
    wine.window("New INI")
    wine.picture("new-document")
    wine.changed_by("ctrl+Tab")
    wine.picture("new-document-existing")
    wine.changed_by("ctrl+shift+Tab")
    hand.key("alt+m")
    hand.key("alt+s")
    wine.window(wine.title)


def dialogs_of_pages(wine):
    """What comes up on a page, by its title; the focus is on its first control, or on Next."""

    def save_error():
        hand.key("alt+s")
        wine.answer("Save Error", "save-error", "Return")

    def browse(box):
        """With the focus in a folder's field: its folder is missed, then Browse is pressed."""
        hand.key("Tab")
        wine.answer("Folder not found.", box, "Return")
        hand.key("space")

    def folder_picker():
        wine.changed_by("alt+v", "e")
        wine.changed_by("alt+v", "f")
        wine.changed_by("Tab")
        browse("output-folder-not-found")
        wine.close_picker("folder-picker")

    def network_folder_picker():
        wine.changed_by("alt+v", "f")
        wine.changed_by("alt+v", "d")
        browse("folder-not-found")
        wine.close_picker("network-folder-picker")

    def help_book():
        hand.key("F1")
        wine.window("Queueshift Help")
        wine.picture("help")
        hand.key("Escape")
        wine.window(wine.title)

    return {
        "manual-configuration-servers": save_error,
        "notification-file-output": folder_picker,
        "deployment": network_folder_picker,
        "maintenance-prune": help_book,
    }


def deploy(wine):
    """Pilot.ini is open. The progress window stands in its own process's way until it was seen."""
    wine.changed_by("alt+v", "d")
    process = hand.process_of(hand.active_window())
    title = progress.catch(process, wine.camera, lambda: hand.key("alt+d"), "progress")
    require(title, "the progress window was too quick for a picture")
    wine.answer("Sucess", "deploy-success", "Return")


def leave(wine):
    hand.key("alt+f", "a")
    wine.window("Save INI file As ...")
    wine.picture("save-dialog")
    hand.key("Escape")
    wine.window(wine.title)
    hand.key("alt+h", "a")
    wine.window("About Queueshift Deployment Toolkit")
    wine.picture("about")
    hand.key("Escape")
    wine.window(wine.title)
    wine.changed_by("alt+v", "g")
    wine.changed_by("space")
    hand.key("alt+f", "x")
    wine.answer("Save?", "save-question-exit", "Escape")


def take(wine):
    new_document(wine)
    wine.open(f"{DOCUMENTS}\\Sites.ini", "open-sites")
    walk(wine, pages.MANUAL, "manual", dialogs_of_pages(wine))
    wine.open(f"{DOCUMENTS}\\Directory.ini", "open-directory")
    walk(wine, pages.ACTIVE_DIRECTORY, "directory")
    wine.open(f"{DOCUMENTS}\\Pilot.ini", "open-pilot")
    deploy(wine)
    leave(wine)


def main(arguments):
    run_wine = arguments[0]
    build, drive, results = (pathlib.Path(argument) for argument in arguments[1:])
    began = time.monotonic()
    documents = prepare(build, drive)
    camera = Camera(results, NOTHING_AROUND)
    wine = WineDesk(run_wine, f"{PROGRAM}\\QueueshiftToolkit.exe", documents, camera)
    try:
        take(wine)
    except Failure as problem:
        print(f"windows-pictures: {problem}; see {camera.screen('failed')}", file=sys.stderr)
        return 1
    finally:
        wine.stop()
    seconds = time.monotonic() - began
    print(f"{len(camera.taken)} pictures of the Windows program in {results}, in {seconds:.0f} s")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
