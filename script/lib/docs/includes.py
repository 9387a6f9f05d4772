"""The rooms of the house and how often each includes the others, as a picture and as a table."""

import collections
import importlib.machinery
import importlib.util
import os
from typing import Dict, List, Tuple
from xml.sax.saxutils import escape

# From the roof down. resources/ and help/ hold no source of ours that is included.
ROOMS = ["app", "wizard", "files", "editors", "directory", "deployment", "document",
         "platform/ui", "platform"]
Counts = Dict[Tuple[str, str], int]

LEFT, BOX_WIDTH, BOX_HEIGHT, STEP, TOP = 60, 130, 40, 70, 50
WIDTH = 560


def layering(root: str):
    """script/check-layering as a module: it knows how includes are read."""
    path = os.path.join(root, "script", "check-layering")
    loader = importlib.machinery.SourceFileLoader("check_layering", path)
    spec = importlib.util.spec_from_loader("check_layering", loader)
    module = importlib.util.module_from_spec(spec)
    loader.exec_module(module)
    return module


def counted(root: str) -> Counts:
    """How many include lines lead from one room to another."""
    rules = layering(root)
    paths = rules.project_paths(root)
    known = set(paths)
    includes: Counts = collections.Counter()
    for path in paths:
        source = rules.read_source(root, path)
        if source.room not in ROOMS:
            continue
        for include in source.includes:
            target = rules.resolve(source, include, known)
            room = rules.room_of(target) if target else None
            if room in ROOMS and room != source.room:
                includes[source.room, room] += 1
    return includes


def middle(index: int) -> int:
    return TOP + index * STEP + BOX_HEIGHT // 2


def arc(start: int, end: int, count: int) -> List[str]:
    """From box to box: downwards at the right; upwards, which must not be, at the left and red."""
    down = end > start
    edge, side = (LEFT + BOX_WIDTH, 1) if down else (LEFT, -1)
    colour = "#2b5f8f" if down else "#c00000"
    # Leaves a little below the middle and arrives a little above: the arrows do not meet.
    y1, y2 = middle(start) + 7 * side, middle(end) - 7 * side
    reach = 30 + 48 * abs(end - start)
    far = edge + side * reach
    width = min(1 + count / 16, 5)
    # The point of a cubic curve at its half lies at three quarters of the way to its handles.
    apex = edge + side * reach * 3 // 4
    y = (y1 + y2) // 2
    return [
        f'<path d="M{edge} {y1} C{far} {y1} {far} {y2} {edge + side * 6} {y2}" fill="none" '
        f'stroke="{colour}" stroke-opacity="0.55" stroke-width="{width:.1f}" '
        'marker-end="url(#tip)"/>',
        f'<rect x="{apex - 11}" y="{y - 8}" width="22" height="16" fill="#ffffff"/>',
        f'<text x="{apex}" y="{y + 4}" text-anchor="middle" font-size="12" fill="{colour}">'
        f"{count}</text>",
    ]


def box(index: int, room: str) -> List[str]:
    y = TOP + index * STEP
    return [
        f'<rect x="{LEFT}" y="{y}" width="{BOX_WIDTH}" height="{BOX_HEIGHT}" rx="5" '
        'fill="#eef3f8" stroke="#2b5f8f"/>',
        f'<text x="{LEFT + 14}" y="{y + 25}" font-size="15" fill="#1c2b39">{escape(room)}/</text>',
    ]


def svg(includes: Counts) -> str:
    height = TOP + len(ROOMS) * STEP
    lines = [
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{height}" '
        f'viewBox="0 0 {WIDTH} {height}" font-family="sans-serif">',
        "<title>Includes between the rooms</title>",
        '<defs><marker id="tip" viewBox="0 0 6 6" refX="0" refY="3" markerWidth="7" '
        'markerHeight="7" markerUnits="userSpaceOnUse" orient="auto">'
        '<path d="M0 0 L6 3 L0 6 z" fill="#2b5f8f"/></marker></defs>',
        f'<rect width="{WIDTH}" height="{height}" fill="#ffffff"/>',
        f'<text x="{LEFT}" y="30" font-size="14" fill="#5b6b7a">Include lines from room to room'
        "</text>",
    ]
    for (start, end), count in sorted(includes.items(), key=lambda item: item[0]):
        lines += arc(ROOMS.index(start), ROOMS.index(end), count)
    for index, room in enumerate(ROOMS):
        lines += box(index, room)
    return "\n".join(lines + ["</svg>"]) + "\n"


def table(includes: Counts) -> str:
    """Rows include columns."""
    targets = [room for room in ROOMS if any(end == room for _, end in includes)]
    lines = ["| includes of | " + " | ".join(targets) + " |",
             "|---|" + "--:|" * len(targets)]
    for room in ROOMS:
        cells = [str(includes.get((room, target), "")) for target in targets]
        lines.append(f"| `{room}/` | " + " | ".join(cells) + " |")
    return "\n".join(lines) + "\n"
