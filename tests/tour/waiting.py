"""Waiting for conditions, and the one way in which the tour fails."""

import time

LIMIT = 30.0
PAUSE = 0.02


class Failure(Exception):
    """A step that did not have its effect; the text says which and what was seen instead."""


def until(what, condition, limit=LIMIT, seen=None):
    """Waits until `condition()` is true-like and returns its value.

    `what` completes "waited in vain: ..."; `seen`, called at the end, tells what was there instead.
    """
    end = time.monotonic() + limit
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            found = f"; seen: {seen()!r}" if seen else ""
            raise Failure(f"waited {limit:.0f} s in vain: {what}{found}")
        time.sleep(PAUSE)


def holds_soon(condition, limit=5.0):
    """True when `condition()` becomes true-like within the limit."""
    end = time.monotonic() + limit
    while not condition():
        if time.monotonic() > end:
            return False
        time.sleep(PAUSE)
    return True


def require(holds, text):
    if not holds:
        raise Failure(text)
