"""The main window: ways to a page, the menu, the file dialogs."""

import bus
import hand
from desk import Desk
from waiting import Failure, holds_soon, require, until

RETURNS = 3
CAPTION = "Queueshift - Deployment Toolkit [{}]"


class Wizard(Desk):
    title = CAPTION.format("UNTITLED")

    def main(self):
        return self.window(self.title)

    def called(self, file):
        """The main window now bears this file's name."""
        self.title = CAPTION.format(file)
        self.main()

    def new_dialog(self, option):
        """Answers the new-document dialog with one of its two types."""
        self.window("New INI")
        self.tick(option)
        self.click("cmdSelect")
        self.gone("New INI")

    def choose_existing(self, path):
        """Chooses a file in the new-document dialog, which starts in the file's own folder."""
        dialog = self.window("New INI")
        self.click_named(dialog, "Existing", bus.ROLE.PAGE_TAB)
        files = self.control("filExistingINI")
        row = until(f"{path.name} is listed", lambda: files.named(path.name), seen=files.rows)
        hand.click(row[0].box)
        until(f"{path.name} is selected", lambda: row[0].has(bus.STATE.SELECTED))
        self.picture("new-document-existing-" + path.stem.lower())
        self.click("cmdSelect")
        self.gone("New INI")

    def menu(self, menu, entry):
        main = self.main()
        self.click_named(main, menu, bus.ROLE.MENU)
        self.click_named(main, entry, bus.ROLE.MENU_ITEM)

    def tool(self, label):
        """A button of the toolbar."""
        bar = self.control("Queueshift INI EditorToolbar")
        self.click_named(bar, label, bus.ROLE.PUSH_BUTTON)

    def heading(self, position, title):
        """The page at this position shows, under this title, and the tree marks a node for it."""
        label = self.control(f"lblGeneral({position})")
        until(f"the page's heading is '{title}'", lambda: label.name == title)

    def node(self, text):
        """The node that the tree marks, which must be this one."""
        until(f"the tree marks '{text}'", lambda: self.marked() == [text], seen=self.marked)

    def marked(self):
        tree = self.control("tvwWizardOptions")
        cells = [child for child in tree.descendants() if child.role == bus.ROLE.TABLE_CELL]
        return [cell.name for cell in cells if cell.name and cell.has(bus.STATE.SELECTED)]

    def tree(self, text, place=0):
        """Clicks a node of the option tree; `place` counts nodes of the same text."""
        tree = self.control("tvwWizardOptions")
        cells = until(f"the tree has '{text}'", lambda: tree.named(text, bus.ROLE.TABLE_CELL)[place:])
        hand.click(cells[0].box)
        self.node(text)

    def at(self, position, title, node):
        self.heading(position, title)
        self.node(node)

    def next(self, position):
        """Presses Next on the page at this position."""
        self.click(f"cmdNext({position})")

    def back(self, position):
        self.click(f"cmdBack({position})")

    def save_as(self, path, picture):
        """Answers the save dialog, which must be showing, with a typed path."""
        dialog = self.window("Save INI file As ...")
        field = self._name_field(dialog)
        require(field.text.upper().startswith("UNTITLED"), "the save dialog offers UNTITLED.INI")
        self.picture(picture)
        self._type_path(field, path)
        self._confirm(dialog)

    def open(self, path, picture):
        """Answers the open dialog, which must be showing, with a typed path."""
        dialog = self.window("Open INI File ...")
        hand.key("ctrl+l")
        self._type_path(self._name_field(dialog), path)
        self.picture(picture)
        self._confirm(dialog)

    def _confirm(self, dialog):
        """Return, and once more when the chooser was still busy completing the name."""
        for _ in range(RETURNS):
            self.camera.still([dialog.box])
            hand.key("Return")
            if holds_soon(lambda: not dialog.showing):
                return
        raise Failure(f"the dialog '{dialog.name}' does not take the name")

    def _name_field(self, dialog):
        def focused():
            fields = (child for child in dialog.descendants() if child.role in bus.FIELDS)
            return next((field for field in fields if field.has(bus.STATE.FOCUSED)), None)

        return until("the file dialog takes a name", focused)

    def _type_path(self, field, path):
        hand.key("ctrl+a")
        hand.write(str(path))
        until("the name is typed", lambda: field.text == str(path), seen=lambda: field.text)

    def close_picker(self, title, picture):
        """Looks at a folder picker and cancels it."""
        self.window(title)
        self.picture(picture)
        hand.key("Escape")
        self.gone(title)
