"""Pictures of the screen, numbered in the order in which they are taken."""

import time

import gi

gi.require_version("Gdk", "3.0")
from gi.repository import Gdk  # noqa: E402

import hand
import waiting

EDGE = 6
TITLE_BAR = 30


class Camera:
    """`around` is what a picture shows beyond its boxes: left, top, right, bottom."""

    def __init__(self, folder, around=(EDGE, TITLE_BAR, EDGE, EDGE)):
        self.folder = folder
        self.around = around
        self.taken = []
        self.root = Gdk.get_default_root_window()

    def take(self, name, boxes, rest=0.05):
        """Stores what the screen shows of `boxes` (left, top, width, height), together with the
        windows' frames, once it has been still for `rest` seconds; None takes it as it is."""
        hand.rest()
        picture = self._look(boxes) if rest is None else self.still(boxes, rest)
        path = self.folder / f"{len(self.taken) + 1:02d}-{name}.png"
        picture.savev(str(path), "png", [], [])
        self.taken.append(path)
        return path

    def still(self, boxes, rest=0.05):
        """What the screen shows once two looks in a row are the same, and all within `rest`."""
        last, since = self._look(boxes), time.monotonic()

        def resting():
            nonlocal last, since
            before, last = last, self._look(boxes)
            if before.get_pixels() != last.get_pixels():
                since = time.monotonic()
                return False
            return time.monotonic() - since >= rest

        waiting.until("the screen comes to rest", resting)
        return last

    def _look(self, boxes):
        before, above, behind, below = self.around
        left = max(min(box[0] for box in boxes) - before, 0)
        top = max(min(box[1] for box in boxes) - above, 0)
        right = min(max(box[0] + box[2] for box in boxes) + behind, self.root.get_width())
        bottom = min(max(box[1] + box[3] for box in boxes) + below, self.root.get_height())
        waiting.require(right > left and bottom > top, "there is nothing to take a picture of")
        return Gdk.pixbuf_get_from_window(self.root, left, top, right - left, bottom - top)

    def painted(self, box):
        """True when the inside of the place shows more than one colour."""
        left, top, width, height = (
            box[0] + EDGE,
            box[1] + EDGE,
            box[2] - 2 * EDGE,
            box[3] - 2 * EDGE,
        )
        if width < 1 or height < 1:
            return False
        picture = Gdk.pixbuf_get_from_window(self.root, left, top, width, height)
        if picture is None:
            return False
        pixels, stride, depth = picture.get_pixels(), picture.get_rowstride(), picture.get_n_channels()
        plain = pixels[:depth] * width
        return any(
            pixels[y * stride : y * stride + len(plain)] != plain for y in range(height)
        )

    def screen(self, name):
        """The whole screen, as it is."""
        whole = (0, 0, self.root.get_width(), self.root.get_height())
        return self.take(name, [whole], None)
