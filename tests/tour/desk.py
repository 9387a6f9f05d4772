"""The running program, and what a user does with any window of it."""

import subprocess

import bus
import hand
from waiting import require, until


class Desk:
    """One start of the program, in `folder`. `say` tells the reader what happens, `camera` takes
    the pictures."""

    def __init__(self, program, folder, camera, say):
        self.camera = camera
        self.say = say
        with open(camera.folder / "program.log", "ab") as log:
            self.process = subprocess.Popen([program], cwd=folder, stderr=log)
        try:
            self.application = until("the program is on the accessibility bus", self._connected)
        except BaseException:
            self.stop()
            raise

    def _connected(self):
        self._still_running()
        return bus.program(self.process.pid)

    def _still_running(self):
        code = self.process.poll()
        require(code is None, f"the program has ended unexpectedly, with code {code}")

    def windows(self):
        self._still_running()
        return [
            child
            for child in self.application.children()
            if child.role in bus.WINDOWS and child.showing
        ]

    def window(self, title):
        """The window of this title, once it takes the keys."""

        def active():
            found = [window for window in self.windows() if window.name == title]
            return next((window for window in found if window.has(bus.STATE.ACTIVE)), None)

        return until(
            f"the window '{title}' comes up", active, seen=lambda: [w.name for w in self.windows()]
        )

    def gone(self, title):
        until(
            f"the window '{title}' goes away",
            lambda: all(window.name != title for window in self.windows()),
        )

    def control(self, identity):
        """The visible control of this name, in whatever window."""

        def look():
            found = (window.find(identity) for window in self.windows())
            return next((control for control in found if control), None)

        return until(f"the control {identity} shows", look)

    def picture(self, name):
        self.camera.take(name, [window.box for window in self.windows()])

    def click(self, identity):
        control = self.control(identity)
        until(f"{identity} can be used", lambda: control.enabled)
        hand.click(control.box)
        return control

    def click_named(self, window, name, *roles):
        found = until(f"'{name}' shows", lambda: window.named(name, *roles))
        hand.click(found[0].box)

    def focused(self, identity):
        """Waits until a field takes the keys."""
        field = until(f"{identity} has a field", lambda: self.control(identity).field())
        until(f"{identity} gets the focus", lambda: field.has(bus.STATE.FOCUSED))

    def enter(self, identity, text):
        """Puts `text` into a field, as a user who replaces what stands there."""
        field = until(f"{identity} has a field", lambda: self.control(identity).field())
        until(f"{identity} can be used", lambda: field.enabled)
        hand.click(field.box)
        self.focused(identity)
        hand.key("ctrl+a")
        hand.key("BackSpace")
        hand.write(text)
        until(f"{identity} shows '{text}'", lambda: field.text == text, seen=lambda: field.text)

    def tick(self, identity, on=True):
        """Clicks a check box or option button and waits for its mark."""
        box = self.control(identity)
        if box.checked != on:
            self.click(identity)
        until(f"{identity} is {'on' if on else 'off'}", lambda: box.checked == on)

    def choose(self, identity, item):
        """Chooses an item of a drop-down list."""
        box = self.click(identity)
        roles = (bus.ROLE.MENU_ITEM, bus.ROLE.TABLE_CELL, bus.ROLE.LIST_ITEM)

        def entries():
            places = [box, *self.windows()]
            return [entry for place in places for entry in place.named(item, *roles)]

        hand.click(until(f"{identity} offers '{item}'", entries)[0].box)
        until(f"{identity} shows '{item}'", lambda: box.chosen == item, seen=lambda: box.chosen)

    def expect_text(self, identity, text):
        field = until(f"{identity} has a field", lambda: self.control(identity).field())
        until(f"{identity} shows '{text}'", lambda: field.text == text, seen=lambda: field.text)

    def expect_rows(self, identity, rows):
        box = self.control(identity)
        until(f"{identity} lists {rows}", lambda: box.rows() == rows, seen=box.rows)

    def expect_checked(self, identity, on=True):
        box = self.control(identity)
        until(f"{identity} is {'on' if on else 'off'}", lambda: box.checked == on)

    def answer(self, kind, title, text, button, picture):
        """A message box of this kind (its icon, as a screen reader tells it), title and text;
        answers it with a click on `button`. The program may end with the answer."""
        box = self.window(kind)
        until(f"the box is called '{title}'", lambda: hand.window_title() == title)
        labels = [child.name for child in box.descendants() if child.role == bus.ROLE.LABEL]
        words = " ".join(" ".join(labels).split())
        require(
            " ".join(text.split()) in words, f"the box '{title}' should say '{text}', not '{words}'"
        )
        if picture:
            self.picture(picture)
        self.click_named(box, button, bus.ROLE.PUSH_BUTTON)
        until(f"the box '{title}' goes away", lambda: self.ended() or not box.showing)
        self.say(f"the program said '{title}', and was answered {button}")

    def ended(self):
        return self.process.poll() is not None

    def has_ended(self):
        """Waits for the end of the program, which must be a good one."""
        until("the program ends", self.ended)
        require(self.process.returncode == 0, f"the program ended with {self.process.returncode}")

    def stop(self):
        """Ends the program whatever it is doing."""
        if not self.ended():
            self.process.kill()
            self.process.wait()
