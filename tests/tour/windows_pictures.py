#!/usr/bin/python3
"""Goes through the Windows program's pages by keyboard and takes a picture of each.

  windows_pictures.py RUN-WINE PROGRAM-FOLDER RESULT-FOLDER

Run by windows-pictures. Wine shows no controls to an accessibility bus; what is looked at here is
that each key changes the window's title or what it shows.
"""

import pathlib
import subprocess
import sys
import time

import hand
import pages
import samples
from camera import Camera
from waiting import Failure, require, until

# Seconds without a change after which a window counts as painted; Wine paints in pieces.
REST = 0.4
QUESTION = "Refresh Printers"
CAPTION = "Queueshift - Deployment Toolkit [{}]"


class Wine:
    """One start of the program."""

    def __init__(self, run_wine, program, camera):
        self.camera = camera
        self.title = CAPTION.format("UNTITLED")
        self.process = subprocess.Popen([run_wine, str(program)], cwd=str(program.parent))

    def window(self, title):
        """Waits for the window of this title to take the keys."""

        def active():
            require(self.process.poll() is None, "the program has ended unexpectedly")
            return hand.window_title() == title

        until(f"the window '{title}' comes up", active, limit=60)

    def box(self):
        found = hand.place(hand.active_window())
        require(found is not None, "no window takes the keys")
        return found

    def changed_by(self, *keys):
        """Presses keys and waits until the active window shows something else."""
        box = self.box()
        before = self.camera.still([box], REST)
        hand.key(*keys)
        until(
            f"{' '.join(keys)} changes what the window shows",
            lambda: self.camera.still([box], REST).get_pixels() != before.get_pixels(),
        )

    def decline(self, picture):
        """Answers No to the question that some pages ask when they come up."""
        if hand.window_title() == QUESTION:
            self.picture(picture)
            hand.key("Tab", "space")
            self.window(self.title)

    def picture(self, name):
        self.camera.take(name, [self.box()], REST)

    def open(self, path):
        """Opens a document through the open dialog."""
        hand.key("ctrl+o")
        self.window("Open INI File ...")
        hand.key("Home", "shift+End")
        hand.write("Z:" + str(path).replace("/", "\\"))
        hand.key("Return")
        self.title = CAPTION.format(path.name)
        self.window(self.title)

    def stop(self):
        if self.process.poll() is None:
            self.process.terminate()
            self.process.wait()


def walk(wine, order, label):
    """All pages of the open document, by Next."""
    for number, (_, title, _) in enumerate(order):
        if number:
            wine.changed_by("alt+n")
            wine.decline(f"refresh-question-{pages.slug(title)}")
        wine.picture(f"{label}-{pages.slug(title)}")


def dialogs(wine):
    wine.window("New INI")
    wine.picture("new-document")
    wine.changed_by("ctrl+Tab")
    wine.picture("new-document-existing")
    wine.changed_by("ctrl+shift+Tab")
    hand.key("alt+m")
    hand.key("alt+s")
    wine.window(wine.title)


def last_dialogs(wine):
    hand.key("ctrl+n")
    wine.window("New INI")
    hand.key("Escape")
    wine.window(wine.title)
    hand.key("alt+h")
    hand.key("a")
    wine.window("About Queueshift Deployment Toolkit")
    wine.picture("about")
    hand.key("Escape")
    wine.window(wine.title)


def tour(wine, results):
    dialogs(wine)
    walk(wine, pages.MANUAL, "new-manual")
    sites = results / "Sites.ini"
    samples.write(sites, samples.manual())
    wine.open(sites)
    walk(wine, pages.MANUAL, "manual")
    directory = results / "Directory.ini"
    samples.write(directory, samples.directory())
    wine.open(directory)
    walk(wine, pages.ACTIVE_DIRECTORY, "directory")
    last_dialogs(wine)


def main(arguments):
    run_wine, program, results = arguments
    results = pathlib.Path(results)
    began = time.monotonic()
    camera = Camera(results)
    wine = Wine(run_wine, pathlib.Path(program) / "QueueshiftToolkit.exe", camera)
    try:
        tour(wine, results)
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
