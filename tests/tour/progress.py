"""Catches the progress window, which is there only as long as the copying takes."""

import os
import select
import signal
import subprocess
import time

import hand

LIMIT = 20.0


class _Windows:
    """The windows of the display, told as they come and go."""

    def __enter__(self):
        self.spy = subprocess.Popen(
            ["xprop", "-spy", "-root", "_NET_CLIENT_LIST"], stdout=subprocess.PIPE, text=True
        )
        self.before = self._next()
        return self

    def __exit__(self, *_):
        self.spy.kill()
        self.spy.wait()
        self.spy.stdout.close()

    def _next(self):
        return {word.strip(",") for word in self.spy.stdout.readline().split("#")[-1].split()}

    def newcomer(self):
        """The window that comes up next, or None when none does."""
        end = time.monotonic() + LIMIT
        while select.select([self.spy.stdout], [], [], max(end - time.monotonic(), 0))[0]:
            new = self._next() - self.before
            if new:
                return new.pop()
        return None


def _title(window):
    found = subprocess.run(["xprop", "-id", window, "WM_NAME"], capture_output=True, text=True)
    return found.stdout.partition('"')[2].rpartition('"')[0] if found.returncode == 0 else None


def catch(process, camera, act, name):
    """Does `act`, holds the program as soon as a window comes up, and takes its picture once it is
    painted. Returns the window's title, or None when it was gone too soon."""
    with _Windows() as windows:
        act()
        window = windows.newcomer()
        if window is None:
            return None
        end = time.monotonic() + LIMIT
        while time.monotonic() < end:
            os.kill(process, signal.SIGSTOP)
            try:
                title, place = _title(window), hand.place(window)
                if title is None or place is None:
                    return None
                if camera.painted(place):
                    camera.take(name, [hand.framed(window)], None)
                    return title
            finally:
                os.kill(process, signal.SIGCONT)
            # Long enough for the program to paint a little more, and no more than that.
            time.sleep(0.002)
    return None
