"""What a screen reader must learn of each control: a fitting role, a name and a stable id."""

import re

from bus import ROLE

# By the beginning of a control's id.
ROLES = {
    "chk": {ROLE.CHECK_BOX},
    "cbo": {ROLE.COMBO_BOX},
    "cmd": {ROLE.PUSH_BUTTON},
    "dir": {ROLE.TABLE},
    "dlg": {ROLE.DIALOG},
    "drv": {ROLE.COMBO_BOX},
    "fil": {ROLE.TABLE},
    "fra": {ROLE.SEPARATOR},
    "frmHelp": {ROLE.FRAME},
    "frmWizard": {ROLE.FRAME},
    "frm": {ROLE.DIALOG},
    "htm": {ROLE.DOCUMENT_TEXT},
    "img": {ROLE.ICON},
    "lbl": {ROLE.LABEL, ROLE.LINK},
    "lst": {ROLE.TABLE},
    "msg": {ROLE.ALERT},
    "opt": {ROLE.RADIO_BUTTON},
    "prb": {ROLE.PROGRESS_BAR},
    "sst": {ROLE.PAGE_TAB_LIST, ROLE.PANEL},
    "tlb": {ROLE.TOOL_BAR},
    "tvw": {ROLE.TREE_TABLE, ROLE.TREE},
    "txt": {ROLE.TEXT, ROLE.ENTRY},
    "ID_": {ROLE.PUSH_BUTTON, ROLE.MENU_ITEM},
    "Queueshift INI Editor": {ROLE.MENU_BAR, ROLE.TOOL_BAR},
}
KINDS = {
    "button": ROLE.PUSH_BUTTON,
    "check box": ROLE.CHECK_BOX,
    "combo box": ROLE.COMBO_BOX,
    "drop-down list": ROLE.COMBO_BOX,
    "label": ROLE.LABEL,
    "link": ROLE.LINK,
    "list": ROLE.TABLE,
    "option": ROLE.RADIO_BUTTON,
    "progress bar": ROLE.PROGRESS_BAR,
    "text box": ROLE.TEXT,
}
# What only holds others, or draws a line, says nothing.
SILENT = {ROLE.FILLER, ROLE.PANEL, ROLE.SCROLL_PANE, ROLE.SCROLL_BAR, ROLE.SEPARATOR, ROLE.SPLIT_PANE}
# Parts of another control, which answers for them: they have a text and nothing else.
ENTRIES = {ROLE.MENU, ROLE.PAGE_TAB, ROLE.TABLE_CELL, ROLE.TABLE_COLUMN_HEADER}
HOLD_ENTRIES = {ROLE.MENU, ROLE.MENU_BAR}


def walk(control, parent=None):
    """The control and everything below it that can be seen, and the entries of closed menus, each
    with what it is a part of. The items of a drop-down list are not looked at."""
    yield control, parent
    if control.role == ROLE.COMBO_BOX:
        return
    for child in control.children():
        if child.showing or control.role in HOLD_ENTRIES:
            yield from walk(child, control)


def row_name(cell):
    """A row of the tree is made of a picture and a text, of which the text speaks for both."""
    return cell.name or next((child.name for child in cell.descendants() if child.name), "")


def lacks(control, parent):
    """What is missing of one control, in words."""
    role, identity = control.role, control.id
    fitting = next((ROLES[start] for start in ROLES if identity.startswith(start)), None)
    if role in SILENT and (fitting is None or role in fitting):
        return []
    if role in ENTRIES:
        part_of_row = parent is not None and parent.role == ROLE.TABLE_CELL
        return [] if part_of_row or row_name(control).strip() else ["a name"]
    found = [] if fitting and role in fitting else ["a role that fits"]
    if not control.name.strip():
        found.append("a name")
    if not identity:
        found.append("an id")
    return found


def kinds(source):
    """The controls of all pages with their roles, from the list that the window's tests go by."""
    rows = re.findall(r'\{"([A-Za-z]+(?:\(\d+\))?)",\s*"([a-z -]+)",', source.read_text())
    return {name: KINDS[kind] for name, kind in rows}
