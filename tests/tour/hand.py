"""The user's hand: real mouse and key events."""

import subprocess


def _run(*words):
    subprocess.run(["xdotool", *words], check=True, stdout=subprocess.DEVNULL)


# How long a button stays down. A click of no length would hide what happens meanwhile.
PRESS = "0.05"


def click(box):
    """Clicks the middle of a place of the screen: left, top, width, height."""
    left, top, width, height = box
    middle = (str(left + width // 2), str(top + height // 2))
    _run("mousemove", *middle, "mousedown", "1", "sleep", PRESS, "mouseup", "1")


def key(*keys):
    _run("key", "--clearmodifiers", *keys)


def write(text):
    _run("type", "--clearmodifiers", "--delay", "2", text)


def rest():
    """Moves the pointer out of the way, so that nothing is highlighted under it."""
    _run("mousemove", "1279", "1023")


def active_window():
    """The number of the window that takes the keys, as text."""
    found = subprocess.run(["xdotool", "getactivewindow"], capture_output=True, text=True)
    return found.stdout.strip()


def window_title():
    """The title of the window that takes the keys."""
    found = subprocess.run(
        ["xdotool", "getactivewindow", "getwindowname"], capture_output=True, text=True
    )
    return found.stdout.strip()


def place(window):
    """Left, top, width and height of a window on the screen; None when there is none."""
    found = subprocess.run(["xwininfo", "-id", window], capture_output=True, text=True)
    if found.returncode != 0:
        return None
    pairs = (line.split(":") for line in found.stdout.splitlines() if line.count(":") == 1)
    values = {name.strip(): value.strip() for name, value in pairs}
    names = ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
    return tuple(int(values[name]) for name in names)


def framed(window):
    """The place of a window with what the window manager has drawn around it."""
    left, top, width, height = place(window)
    found = subprocess.run(
        ["xprop", "-id", window, "_NET_FRAME_EXTENTS"], capture_output=True, text=True, check=True
    )
    before, behind, above, below = (
        int(number) for number in found.stdout.rpartition("=")[2].split(",")
    )
    return (left - before, top - above, width + before + behind, height + above + below)


def process_of(window):
    """The number of the process that a window belongs to."""
    found = subprocess.run(
        ["xprop", "-id", window, "_NET_WM_PID"], capture_output=True, text=True, check=True
    )
    return int(found.stdout.rpartition("=")[2])
