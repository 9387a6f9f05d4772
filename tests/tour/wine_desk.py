"""The running Windows program under Wine, driven by keys.

Wine shows no controls to an accessibility bus; what is looked at here is that each key changes the
window's title or what it shows.
"""

import subprocess

import hand
from waiting import require, until

# Seconds without a change after which a window counts as painted; Wine paints in pieces.
REST = 0.4
QUESTION = "Refresh Printers"
CAPTION = "Queueshift - Deployment Toolkit [{}]"


class WineDesk:
    """One start of the program `program`, a path as Windows writes it, in `folder`."""

    def __init__(self, run_wine, program, folder, camera):
        self.camera = camera
        self.title = CAPTION.format("UNTITLED")
        self.process = subprocess.Popen([run_wine, program], cwd=folder)

    def _running(self):
        require(self.process.poll() is None, "the program has ended unexpectedly")

    def window(self, title):
        """Waits for the window of this title to take the keys."""

        def active():
            self._running()
            return hand.window_title() == title

        until(f"the window '{title}' comes up", active, limit=60, seen=hand.window_title)

    def other_window(self):
        """Waits for a window of whatever other title; Windows itself names its pickers."""

        def active():
            self._running()
            return hand.window_title() not in ("", self.title)

        until("another window comes up", active, limit=60, seen=hand.window_title)

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

    def picture(self, name):
        self.box()
        self.camera.take(name, [hand.framed(hand.active_window())], REST)

    def answer(self, title, picture, *keys):
        """Looks at the message box of this title, and closes it with these keys."""
        self.window(title)
        self.picture(picture)
        hand.key(*keys)
        self.window(self.title)

    def decline(self, picture):
        """Answers No to the question that some pages ask when they come up."""
        if hand.window_title() == QUESTION:
            self.answer(QUESTION, picture, "Tab", "space")

    def open(self, path, picture):
        """Opens a document through the open dialog; `path` as Windows writes it."""
        hand.key("ctrl+o")
        self.window("Open INI File ...")
        hand.key("Home", "shift+End")
        hand.write(path)
        self.picture(picture)
        hand.key("Return")
        self.title = CAPTION.format(path.rpartition("\\")[2])
        self.window(self.title)

    def close_picker(self, picture):
        """Looks at a picker of Windows' own and cancels it."""
        self.other_window()
        self.picture(picture)
        hand.key("Escape")
        self.window(self.title)

    def stop(self):
        if self.process.poll() is None:
            self.process.terminate()
            self.process.wait()
