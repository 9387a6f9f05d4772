#!/usr/bin/python3
"""Walks every page and dialog through the accessibility bus, by names alone: no mouse, no places
of the screen. Fails with the controls that lack a fitting role, a name or an id.

  accessibility.py PROGRAM-FOLDER RESULT-FOLDER CONTROL-LIST

Run by run-accessibility. CONTROL-LIST is the source that lists the controls of all pages.
"""

import pathlib
import sys
import time

import bus
import hand
import pages
import spoken
from bus import ROLE
from camera import Camera
from waiting import Failure, require, until
from wizard import Wizard

ABOUT = "About Queueshift Deployment Toolkit"
HELP = "Queueshift Help"
NETWORK = "Select a network computer or share."
# They show while the directory is asked, and nobody asks it here.
WHILE_BUSY = {"prbAdPopulateProgress", "prbADPrune"}


def say(text):
    print(f"   {text}", flush=True)


class Walk:
    def __init__(self, program, results, listed):
        self.w = Wizard(program / "queueshift-toolkit", results, Camera(results), say)
        self.listed = listed
        self.seen = {}
        self.faults = []

    def all(self):
        self.new_document("optUseManualConfiguration", tabs=True)
        self.entries()
        self.pages(pages.MANUAL, "manual")
        self.about()
        self.help()
        self.network()
        self.w.main()
        hand.key("ctrl+n")
        self.new_document("optUseActiveDirectory")
        self.pages(pages.ACTIVE_DIRECTORY, "directory")
        self.message("Error", "cmdOK")
        self.compare()
        hand.key("alt+f")
        self.entry("Exit")
        self.w.has_ended()

    def look(self, window, where):
        """Notes what is missing in a window, and which of its ids stand for two controls of a role: a
        tool is in a menu and on the toolbar."""
        ids = {}
        for control, parent in spoken.walk(window):
            for missing in spoken.lacks(control, parent):
                self.fault(where, control, f"lacks {missing}")
            if control.id:
                self.seen[control.id] = control.role
                ids.setdefault((control.id, control.role), []).append(control)
        for twice in (found for found in ids.values() if len(found) > 1):
            self.fault(where, twice[0], f"shares its id with {len(twice) - 1} more")
        require(len(ids) > 2, f"{where}: there are hardly any controls: {list(ids)}")
        say(f"{where}: {len(ids)} controls")

    def fault(self, where, control, text):
        self.faults.append(
            f"{where}: {control.role.value_nick} '{control.name[:50]}' ({control.id}) {text}"
        )

    def press(self, identity):
        """Works a control that opens or closes a dialog. By key: until a control's own action comes
        back the program hears nothing more on the bus, and it comes back with the dialog's end."""
        control = self.w.control(identity)
        until(f"{identity} can be used", lambda: control.enabled)
        until(f"{identity} takes the focus", lambda: self.focus(control))
        hand.key("space")

    @staticmethod
    def focus(control):
        return control.focus() and control.has(bus.STATE.FOCUSED)

    def entry(self, name):
        """Chooses an entry of the menu that is open."""
        found = until(f"the menu offers '{name}'", lambda: self.w.main().named(name, ROLE.MENU_ITEM))
        until(f"'{name}' can be chosen", found[0].select)
        hand.key("Return")

    def new_document(self, option, tabs=False):
        w = self.w
        dialog = w.window("New INI")
        self.look(dialog, "new document")
        if tabs:
            self.tab(dialog, "sstNewINI", "Existing", "filExistingINI")
            self.look(dialog, "new document, existing")
            self.tab(dialog, "sstNewINI", "New", option)
        box = w.control(option)
        box.act("click")
        until(f"{option} is on", lambda: box.checked)
        self.press("cmdSelect")
        w.gone("New INI")
        w.main()

    def tab(self, window, book, name, shown):
        found = until(f"there is a tab '{name}'", lambda: window.named(name, ROLE.PAGE_TAB))
        require(found[0].select(), f"the tab '{name}' of {book} can be chosen")
        self.w.control(shown)

    def entries(self):
        """What the menus and the toolbar offer is in reach without opening them."""
        offered = {c.id for c, _ in spoken.walk(self.w.main()) if c.role == ROLE.MENU_ITEM}
        for tool in ("ID_BTN_SAVE_AS", "ID_BTN_SUPPORT", "ID_BTN_ABOUT"):
            require(tool in offered, f"the menus offer {tool}: {sorted(offered)}")

    def rows(self):
        tree = self.w.control("tvwWizardOptions")
        return [
            cell for cell in tree.descendants() if cell.role == ROLE.TABLE_CELL and cell.name
        ]

    def pages(self, order, label):
        nodes = sorted(node for _, _, node in order)
        until(
            f"the tree's rows are those of a {label} document",
            lambda: sorted(cell.name for cell in self.rows()) == nodes,
            seen=lambda: [cell.name for cell in self.rows()],
        )
        self.row_ids(label)
        self.fold("Notification", len(nodes))
        self.row_ids(label)
        before = {}
        for position, title, node in order:
            cell = [row for row in self.rows() if row.name == node][before.get(node, 0)]
            before[node] = before.get(node, 0) + 1
            self.activate(cell, position)
            self.w.at(position, title, node)
            self.look(self.w.main(), f"{label}, {title}")

    def fold(self, node, count):
        """Closes a branch and opens it again: its rows are new ones then."""
        for rows_follow in (lambda: len(self.rows()) < count, lambda: len(self.rows()) == count):
            branch = next(row for row in self.rows() if row.name == node)
            require(branch.act("expand or contract"), f"the branch '{node}' can be folded")
            until(f"the branch '{node}' folds", rows_follow)

    def row_ids(self, label):
        """Two rows may have one name, and no two one id."""
        rows = self.rows()
        for row in rows:
            if not row.id:
                self.fault(f"{label}, tree", row, "lacks an id")
        if len({row.id for row in rows}) != len(rows):
            self.faults.append(f"{label}, tree: two rows share an id")

    def activate(self, cell, position):
        """The first page is there from the start: its row is the marked one and does nothing."""
        if not cell.has(bus.STATE.SELECTED):
            require(cell.act("activate"), f"the row '{cell.name}' can be activated")

    def message(self, caption, answer):
        """A box, put up by saving what is not complete."""
        self.w.main()
        hand.key("ctrl+s")
        self.look(self.w.window(caption), "message box")
        self.press(answer)
        self.w.gone(caption)

    def about(self):
        self.w.main()
        hand.key("alt+h")
        self.entry(ABOUT + " ...")
        self.look(self.w.window(ABOUT), "about")
        self.press("cmdOK")
        self.w.gone(ABOUT)

    def help(self):
        self.w.main()
        hand.key("alt+h")
        self.entry("Contents ...")
        viewer = self.w.window(HELP)
        self.look(viewer, "help, contents")
        for tab, shown in (("Index", "lstHelpIndex"), ("Search", "cmdHelpSearch")):
            self.tab(viewer, "sstHelp", tab, shown)
            self.look(viewer, f"help, {tab.lower()}")
        hand.key("Escape")
        self.w.gone(HELP)

    def network(self):
        """From the tree, which keeps the focus until then: no field complains that it is left."""
        cell = next(row for row in self.rows() if row.name == "Deployment")
        self.activate(cell, 14)
        self.w.at(14, "Deployment", "Deployment")
        self.press("cmdBrowseDeployment")
        self.look(self.w.window(NETWORK), "network folders")
        self.press("cmdCancel")
        self.w.gone(NETWORK)

    def compare(self):
        """Every control of the pages has been met, as the kind of control that it is."""
        require(len(self.listed) > 100, f"only {len(self.listed)} controls are listed")
        for name, role in self.listed.items():
            found = self.seen.get(name)
            if found is None and name not in WHILE_BUSY:
                self.faults.append(f"{name} is on no page of the bus")
            elif found is not None and found != role:
                self.faults.append(f"{name} is a {found.value_nick}, not a {role.value_nick}")


def main(arguments):
    program, results, source = (pathlib.Path(argument) for argument in arguments)
    began = time.monotonic()
    bus.prepare()
    walk = Walk(program, results, spoken.kinds(source))
    try:
        walk.all()
    except Failure as problem:
        walk.faults.append(f"the walk ended early: {problem}")
        walk.w.camera.screen("failed")
    finally:
        walk.w.stop()
    for fault in walk.faults:
        print(f"accessibility: {fault}", file=sys.stderr)
    if walk.faults:
        return 1
    seconds = time.monotonic() - began
    print(f"{len(walk.seen)} controls have a role, a name and an id; {seconds:.0f} seconds")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
