"""The program's controls, as the accessibility bus shows them."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

ROLE = Atspi.Role
STATE = Atspi.StateType
WINDOWS = {ROLE.FRAME, ROLE.DIALOG, ROLE.ALERT, ROLE.FILE_CHOOSER, ROLE.WINDOW}
# What holds rows or entries, none of which has an id of its own.
FULL_OF_ENTRIES = {ROLE.MENU_BAR, ROLE.MENU, ROLE.TABLE, ROLE.TREE, ROLE.TREE_TABLE}
FIELDS = {ROLE.TEXT, ROLE.ENTRY, ROLE.PASSWORD_TEXT}


class Control:
    """One accessible object. Everything is asked anew each time; what has gone answers as empty."""

    def __init__(self, node):
        self.node = node

    def _ask(self, question, otherwise):
        try:
            return question(self.node)
        except GLib.Error:
            return otherwise

    @property
    def id(self):
        return self._ask(lambda node: node.get_accessible_id(), "") or ""

    @property
    def name(self):
        return self._ask(lambda node: node.get_name(), "") or ""

    @property
    def role(self):
        return self._ask(lambda node: node.get_role(), ROLE.INVALID)

    @property
    def process(self):
        return self._ask(lambda node: node.get_process_id(), 0)

    def has(self, *states):
        found = self._ask(lambda node: node.get_state_set(), None)
        return found is not None and all(found.contains(state) for state in states)

    @property
    def showing(self):
        return self.has(STATE.SHOWING, STATE.VISIBLE)

    @property
    def enabled(self):
        return self.has(STATE.SENSITIVE)

    @property
    def checked(self):
        return self.has(STATE.CHECKED)

    def children(self):
        def collect(node):
            found = (node.get_child_at_index(i) for i in range(node.get_child_count()))
            return [Control(child) for child in found if child is not None]

        return self._ask(collect, [])

    def descendants(self):
        """What can be seen below this control."""
        for child in self.children():
            if child.showing:
                yield child
                yield from child.descendants()

    def find(self, identity):
        """The visible control of this id below this one."""
        for child in self.children():
            if not child.showing:
                continue
            if child.id == identity:
                return child
            found = None if child.role in FULL_OF_ENTRIES else child.find(identity)
            if found:
                return found
        return None

    def named(self, name, *roles):
        return [
            child
            for child in self.descendants()
            if child.name == name and (not roles or child.role in roles)
        ]

    def act(self, action):
        """Does what the control itself offers under this name; false where it offers no such."""

        def do(node):
            count = node.get_n_actions()
            names = [Atspi.Action.get_action_name(node, i) for i in range(count)]
            return action in names and node.do_action(names.index(action))

        return self._ask(do, False)

    def focus(self):
        return self._ask(lambda node: node.grab_focus(), False)

    def select(self):
        """Chooses this tab or entry where it is one of several."""

        def choose(node):
            return Atspi.Selection.select_child(node.get_parent(), node.get_index_in_parent())

        return self._ask(choose, False)

    @property
    def box(self):
        """Left, top, width and height on the screen."""
        found = self._ask(lambda node: node.get_extents(Atspi.CoordType.SCREEN), None)
        return (found.x, found.y, found.width, found.height) if found else (0, 0, 0, 0)

    @property
    def text(self):
        return self._ask(lambda node: Atspi.Text.get_text(node, 0, -1), "")

    def field(self):
        """The text field itself, which in a combo box is a part of it."""
        if self.role in FIELDS:
            return self
        return next((child for child in self.descendants() if child.role in FIELDS), None)

    @property
    def chosen(self):
        """The item that a drop-down list shows."""
        child = self._ask(lambda node: Atspi.Selection.get_selected_child(node, 0), None)
        return Control(child).name if child else ""

    def rows(self):
        """The texts of a list, from top to bottom."""
        return [child.name for child in self.descendants() if child.role == ROLE.TABLE_CELL]


def program(process):
    """The program of this process id, once it is on the bus."""
    desktop = Control(Atspi.get_desktop(0))
    return next((child for child in desktop.children() if child.process == process), None)


def prepare():
    Atspi.init()
    Atspi.set_timeout(5000, 15000)
