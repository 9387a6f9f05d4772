"""Files and questions for the profile operations; the same for the same seed, on every machine."""

import dataclasses
import random

# The code page that both builds run with. Its five bytes without a character stand for the control
# character of the same number.
PAGE = {byte: bytes([byte]).decode("cp1252", "replace") for byte in range(256)}
PAGE = {byte: chr(byte) if char == "\ufffd" else char for byte, char in PAGE.items()}
PAGE_BYTE = {char: byte for byte, char in PAGE.items()}


def to_page(text):
    """What the code page keeps of a text: "?" for each UTF-16 unit that it has not."""
    out = bytearray()
    for char in text:
        out += bytes([PAGE_BYTE[char]]) if char in PAGE_BYTE else b"?" * (1 + (char > "\uffff"))
    return bytes(out)


def from_page(data):
    return "".join(PAGE[byte] for byte in data)


@dataclasses.dataclass
class Read:
    section: str
    key: str
    sizes: list


@dataclasses.dataclass
class Write:
    section: str
    key: str
    value: str


@dataclasses.dataclass
class Commit:
    pass


@dataclasses.dataclass
class Case:
    kind: str
    file: bytes  # None: there is none
    questions: list


TIDY_SECTIONS = ["GENERAL", "ACTIVE DIRECTORY", "PRINTER_DRIVER", "a", "b"]
TIDY_KEYS = ["UseSMTP", "FromServers", "Key", "k", "j"]
ODD_SECTIONS = ["a", "A", "b c", "", "a[b]", "a]", "[a", "a;b", "x=y", "'a'", '"a"', ";a", "Ä"]
ODD_KEYS = ["k", "K", "k k", "", '"k"', "'k'", ";k", "[k", "k]", "[k]", "\\", "k;", "1", "/", "ä"]
BLANKS = ["", "", "", " ", "  ", "\t", " \t ", "\v", "\f", "\x1a"]
LINE_ENDS = ["\r\n", "\r\n", "\r\n", "\n", "\r", "\r\r\n", "\n\r", "\n\n", "\r\n\r\n", "\r\r"]
ODD_UNITS = "ab =;[]\"',\t\\/.-%\x01\x08\x0b\x0c\x1a\x1b\x7f"
HIGH_UNITS = "".join(PAGE[byte] for byte in range(0x80, 0x100))
NOISE = "aAkK==[[]];\"' \t\r\n\r\n\n\x00\x1a"
OUTSIDE = "жΩ漢ℵ\U0001f5a8"
SIZES = [0, 1, 2, 3, 8, 100, 1000, 10000, 70000]


class Cases:
    def __init__(self, seed):
        self.random = random.Random(seed)
        self.values = {}  # of an odd file, by section and key

    def one_of(self, values):
        return values[self.random.randrange(len(values))]

    def chance(self, share):
        return self.random.random() < share

    def text(self, units, most):
        return "".join(self.one_of(units) for _ in range(self.random.randrange(most + 1)))

    def next(self):
        share = self.random.random()
        for kind, upto in (
            ("tidy", 0.30),
            ("odd", 0.70),
            ("noise", 0.90),
            ("marked", 0.985),
            ("missing", 0.9985),
            ("large", 1.0),
        ):
            if share < upto:
                return self.finished(kind, *getattr(self, kind)())
        raise AssertionError(share)

    # The kinds of file: each gives the bytes, and names to ask for.

    def tidy(self):
        names = []
        lines = []
        for section in self.random.sample(TIDY_SECTIONS, self.random.randrange(4)):
            lines.append(f"[{section}]")
            for key in self.random.sample(TIDY_KEYS, self.random.randrange(5)):
                names.append((section, key))
                lines.append(f"{key}={self.tidy_value()}")
        return to_page("".join(line + "\r\n" for line in lines)), names

    def tidy_value(self):
        kinds = [
            lambda: self.one_of(["True", "False", "25", "-1", "S1,S2,S3", "\\\\srv\\share"]),
            lambda: self.text("abcdefgh0123456789.-_\\,@", 30),
            lambda: "x" + self.text("ab cd; =[]\"'\t", 20) + "x",
            lambda: "x" + self.text(HIGH_UNITS, 12) + "x",
            lambda: "y" * self.one_of([98, 99, 100, 101, 998, 999, 1000, 1001]),
        ]
        return self.one_of(kinds)()

    def odd(self):
        text, names = self.odd_text(ODD_UNITS + HIGH_UNITS[:40])
        data = to_page(text)
        if self.chance(0.1):
            at = self.random.randrange(len(data) + 1)
            data = data[:at] + b"\0" + data[at:]
        return data, names

    def odd_text(self, units):
        names = []
        self.values = {}
        text = ""
        section = ""
        for _ in range(self.random.randrange(9)):
            line, section = self.odd_line(section, names, units)
            text += self.one_of(BLANKS) + line + self.one_of(BLANKS) + self.one_of(LINE_ENDS)
        if self.chance(0.3):
            text = text.rstrip("\r\n")
        return text, names

    def odd_line(self, section, names, units):
        share = self.random.random()
        if share < 0.30:
            section = self.one_of(ODD_SECTIONS) if self.chance(0.5) else self.one_of("ab")
            padded = self.one_of(BLANKS) + section + self.one_of(BLANKS)
            behind = self.text(units, 4) if self.chance(0.15) else ""
            return "[" + padded + ("" if self.chance(0.05) else "]") + behind, section
        if share < 0.40:
            return self.one_of(["", ";", "; c", ";k=c", "[", "]", "=", "=v", "[]", "\x1a"]), section
        key = self.one_of(ODD_KEYS) if self.chance(0.5) else self.one_of("kj")
        names.append((section, key))
        if share < 0.45:
            return key, section
        value = self.odd_value(units)
        self.values.setdefault((section, key), value)
        return key + self.one_of(BLANKS) + "=" + self.one_of(BLANKS) + value, section

    def odd_value(self, units):
        value = self.text(units, 14)
        if self.chance(0.3):
            quote = self.one_of("\"'")
            value = quote + value + (quote if self.chance(0.8) else self.one_of("\"'"))
        return value

    def noise(self):
        return to_page(self.text(NOISE, 40)), [("", "a"), ("a", "k"), ("k", "a")]

    def marked(self):
        text, names = self.odd_text(ODD_UNITS + HIGH_UNITS + (OUTSIDE if self.chance(0.3) else ""))
        encoding, mark = self.one_of(
            [("utf-8", b"\xef\xbb\xbf"), ("utf-16-le", b"\xff\xfe"), ("utf-16-be", b"\xfe\xff")]
        )
        data = bytearray(mark + text.encode(encoding))
        if self.chance(0.3):  # no text in that encoding any more
            at = self.random.randrange(len(mark), len(data) + 1)
            data[at:at] = self.one_of([b"\xd8", b"\x00\xd8", b"\xd8\x00", b"\xff", b"\0", b"\xc3"])
        if self.chance(0.3):
            data = data[:-1]
        return bytes(data), names

    def missing(self):
        return None, []

    def large(self):
        names = [("first", "k"), ("last", "k"), ("a7", "j"), ("a7", "long")]
        text = "[first]\r\nk=1\r\n"
        for number in range(40):
            text += f"[a{number}]\r\n"
            for _ in range(self.random.randrange(80)):
                text += self.one_of(["k", "j", "i", ";c"]) + "=" + self.tidy_value() + "\r\n"
            if number == 7:
                text += "long=" + "z" * self.one_of([32766, 32767, 32768, 65535, 65536]) + "\r\n"
        return to_page(text + "[last]\r\nk=2"), names

    # What is asked of a file.

    def finished(self, kind, data, names):
        questions = [self.read(kind, names) for _ in range(1 + self.random.randrange(4))]
        # What is rewritten of half a UTF-16 unit is anything that lay in the memory.
        whole = kind != "marked" or data.startswith(b"\xef") or len(data) % 2 == 0
        if whole and self.chance(0.10):  # each costs the system's functions several milliseconds
            for _ in range(1 + self.random.randrange(3)):
                section, key = self.name(kind, names)
                questions.append(Write(section, key, self.written(kind, section, key)))
            questions.append(Commit())
            written = [question for question in questions if isinstance(question, Write)]
            questions += [Read(one.section, one.key, self.sizes()) for one in written]
            questions.append(self.read(kind, names))
        return Case(kind, data, questions)

    def read(self, kind, names):
        return Read(*self.name(kind, names), self.sizes())

    def sizes(self):
        return sorted({self.one_of(SIZES), self.random.randrange(20), 1000})

    def name(self, kind, names):
        if names and self.chance(0.7):
            section, key = self.one_of(names)
        elif kind == "tidy":
            section, key = self.one_of(TIDY_SECTIONS), self.one_of(TIDY_KEYS)
        else:
            section, key = self.one_of(ODD_SECTIONS), self.one_of(ODD_KEYS)
        share = self.random.random()
        if share < 0.15:
            return section.swapcase(), key.swapcase()
        if share < 0.20 and kind != "tidy":
            return self.one_of(BLANKS) + section, key + self.one_of(BLANKS)
        if share < 0.22 and kind != "tidy":
            return section + self.one_of("äÄжß"), key + self.one_of("äÄжß")
        return section, key

    def written(self, kind, section, key):
        if kind == "tidy":
            return self.tidy_value() if self.chance(0.9) else " "
        if kind == "large":
            return "w" * self.one_of([0, 9999, 32765, 32766, 32767, 40000, 70000])
        share = self.random.random()
        if share < 0.1 and kind == "odd" and (section, key) in self.values:
            return self.values[section, key]
        if share < 0.2:
            return self.one_of(BLANKS)
        if share < 0.24:
            return self.text(NOISE, 12)
        return self.one_of(BLANKS) + self.odd_value(ODD_UNITS + HIGH_UNITS + OUTSIDE)
