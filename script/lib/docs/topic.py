"""A topic of the help book as a page of Markdown.

The topics use few elements (h2, h3, p, ul, ol, dl, table, pre; b, i, tt, a); another one is an
error, so that nothing is left out unseen.
"""

import html.parser
import re
import textwrap
from typing import List, Optional, Tuple

WIDTH = 100
# Keeps the words of a link or of a code span on one line while a paragraph is filled.
GLUE = "\x01"
NAMES_OF_FORMS = {"b": "**", "i": "*"}
IGNORED = {"html", "head", "meta", "body"}
# Ends what came before it in the same block.
BLOCKS = {"h2", "h3", "p", "ul", "ol", "dl", "dt", "dd", "li", "table", "tr", "td", "pre", "title"}


def escaped(text: str) -> str:
    return re.sub(r"([\\`*_\[\]<>|])", r"\\\1", text)


def code_span(text: str) -> str:
    # A blank on both sides is taken off by the reader of the page, once.
    if text.startswith(" ") and text.endswith(" "):
        text = f" {text} "
    return f"`{text}`".replace(" ", GLUE)


def filled(text: str, first: str = "", rest: str = "") -> str:
    lines = textwrap.wrap(
        " ".join(text.split(" ")).strip(), WIDTH, initial_indent=first, subsequent_indent=rest,
        break_long_words=False, break_on_hyphens=False)

    def unmistakable(line: str) -> str:
        """A line in a paragraph that begins like a list or a heading."""
        return re.sub(r"^(\s*\d*)([-+#]|(?<=\d)[.)])(?=\s|$)", r"\1\\\2", line)

    shown = lines[:1] + [unmistakable(line) for line in lines[1:]]
    return "\n".join(shown).replace(GLUE, " ")


class Topic(html.parser.HTMLParser):
    """Feed it a topic; `title` and `blocks` are what it found. A block is a text of whole lines."""

    def __init__(self, link_to) -> None:
        super().__init__(convert_charrefs=True)
        self.link_to = link_to
        self.title = ""
        self.blocks: List[str] = []
        self.text = ""
        self.marks: List[Tuple[str, str, int]] = []  # bullet of each list, what it is, its number
        self.open: List[str] = []
        self.code: Optional[str] = None
        self.target = ""
        self.link_from = 0
        self.row: Optional[List[str]] = None
        self.rows: List[List[str]] = []

    def handle_starttag(self, tag: str, attrs) -> None:
        if tag in IGNORED:
            return
        if tag in BLOCKS:
            self.end_block()
        self.open.append(tag)
        if tag in ("ul", "ol", "dl"):
            self.marks.append(("", tag, 0))
        elif tag in ("li", "dt"):
            _, kind, number = self.marks[-1]
            bullet = f"{number + 1}. " if kind == "ol" else "- "
            self.marks[-1] = (bullet, kind, number + 1)
        elif tag == "table":
            self.rows = []
        elif tag == "tr":
            self.row = []
        elif tag in ("tt", "pre"):
            self.code = ""
        elif tag == "a":
            self.target, self.link_from = dict(attrs)["href"], len(self.text)
        elif tag in NAMES_OF_FORMS:
            self.text += NAMES_OF_FORMS[tag]
        elif tag not in BLOCKS:
            raise ValueError(f"no rule for <{tag}>")

    def handle_endtag(self, tag: str) -> None:
        if tag in IGNORED:
            return
        if not self.open or self.open[-1] != tag:
            raise ValueError(f"</{tag}> ends nothing")
        if tag in ("tt", "pre"):
            self.end_code(tag)
        elif tag == "a":
            words = self.text[self.link_from:]
            link = f"[{words}]({self.link_to(self.target)})".replace(" ", GLUE)
            self.text = self.text[:self.link_from] + link
        elif tag in NAMES_OF_FORMS:
            self.text += NAMES_OF_FORMS[tag]
        elif tag == "td":
            assert self.row is not None
            self.row.append(self.taken().replace(GLUE, " "))
        elif tag == "tr":
            assert self.row is not None
            self.rows.append(self.row)
        elif tag == "table":
            self.blocks.append(self.table())
        else:
            self.end_block()
            if tag in ("ul", "ol", "dl"):
                self.marks.pop()
        self.open.pop()

    def handle_data(self, data: str) -> None:
        if self.code is not None:
            self.code += data
        else:
            # Blanks at the ends of a piece may be those between two words.
            self.text += escaped(re.sub(r"\s+", " ", data))

    def end_code(self, tag: str) -> None:
        assert self.code is not None
        if tag == "pre":
            self.blocks.append("```\n" + self.code.strip("\n") + "\n```\n")
        else:
            self.text += code_span(re.sub(r"\s+", " ", self.code))
        self.code = None

    def taken(self) -> str:
        text, self.text = re.sub(" +", " ", self.text).strip(), ""
        return text

    def end_block(self) -> None:
        """Stores the text so far as what the innermost element makes of it."""
        text = self.taken()
        if not text:
            return
        inner = self.open[-1]
        if inner == "title":
            self.title = text
            return
        if inner in ("h2", "h3"):
            self.blocks.append(f"{'#' * (int(inner[1]) - 1)} {text}\n")
            return
        if not self.marks:
            self.blocks.append(filled(text) + "\n")
            return
        bullet, kind, number = self.marks[-1]
        outer = "  " * (len(self.marks) - 1)
        inside = outer + " " * (len(bullet) or 2)
        if inner == "dt":
            self.blocks.append(filled(text, outer + bullet, inside) + "\\\n")
        elif inner == "dd" or not bullet:
            self.blocks.append(filled(text, inside, inside) + "\n")
        else:
            self.blocks.append(filled(text, outer + bullet, inside) + "\n")
            self.marks[-1] = ("", kind, number)

    def table(self) -> str:
        head, *rows = self.rows
        lines = [head, ["---"] * len(head), *rows]
        return "".join(f"| {' | '.join(line)} |\n" for line in lines)


def is_part_of_list(block: str) -> bool:
    return re.match(r" *(- |\d+\. )|  ", block) is not None


def markdown(source: str, link_to) -> Tuple[str, List[str]]:
    """Title and blocks, the heading first. `link_to` gives a link's target another form."""
    topic = Topic(link_to)
    topic.feed(source)
    topic.close()
    if topic.open:
        raise ValueError(f"<{topic.open[-1]}> does not end")
    return topic.title, topic.blocks


def joined(blocks: List[str]) -> str:
    """An empty line between any two blocks, but for the lines of a list."""
    text = ""
    for before, block in zip([""] + blocks, blocks):
        close = not before or is_part_of_list(before) and is_part_of_list(block)
        text += block if close else "\n" + block
    return text
