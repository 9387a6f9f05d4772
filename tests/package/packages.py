"""The packages, and what every test of them does."""

import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.append(str(ROOT / "tests" / "tour"))

import hand  # noqa: E402
from waiting import holds_soon, until  # noqa: E402

FOLDER = ROOT / "build" / "packages"
VERSION = re.search(
    r"^ *VERSION ([0-9.]+)$", (ROOT / "CMakeLists.txt").read_text(), re.MULTILINE
).group(1)
NEW_DOCUMENT = "New INI"
HELP = "Queueshift Help"
# Both the help viewer and the box that says there is no help book have this title; no box is as
# large as the smallest viewer.
SMALLEST_VIEWER = (480, 320)


def package(pattern):
    """The one package of this name; `pattern` has a star where the version stands."""
    found = sorted(FOLDER.glob(pattern))
    if len(found) != 1 or VERSION not in found[0].name:
        raise AssertionError(
            f"{FOLDER}/{pattern} should be one package of version {VERSION}, not {found}:"
            " script/package makes it"
        )
    return found[0]


def output(*words, **options):
    """What a command prints; a failure tells all of it."""
    done = subprocess.run(
        [str(word) for word in words],
        stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        text=True,
        errors="replace",
        check=False,
        **options,
    )
    if done.returncode != 0:
        raise AssertionError(f"{words} ended with {done.returncode}:\n{done.stdout}")
    return done.stdout


def tree(folder):
    """Every path below a folder."""
    return {str(path.relative_to(folder)) for path in pathlib.Path(folder).rglob("*")}


def active(title, process=None):
    """Waits for a window of this title to take the keys, and returns its size."""

    def shows():
        if process is not None and process.poll() is not None:
            raise AssertionError(f"the program has ended with {process.returncode}")
        return hand.window_title() == title

    until(f"the window '{title}' comes up", shows, limit=60, seen=hand.window_title)
    return hand.place(hand.active_window())[2:]


def press(key, before):
    """Presses a key until the window called `before` no longer takes the keys. A window that has
    just come up may miss the first."""

    def pressed():
        hand.key(key)
        return holds_soon(lambda: hand.window_title() != before, limit=2)

    until(f"{key} has an effect in '{before}'", pressed)


def help_is_found(process=None):
    """Asks the first dialog for help: True when the book opens, False when there is none."""
    active(NEW_DOCUMENT, process)
    press("F1", NEW_DOCUMENT)
    size = active(HELP, process)
    press("Escape", HELP)
    active(NEW_DOCUMENT, process)
    return all(have >= least for have, least in zip(size, SMALLEST_VIEWER))


def leave():
    """Cancels the first dialog, which ends the program."""
    active(NEW_DOCUMENT)
    press("Escape", NEW_DOCUMENT)
