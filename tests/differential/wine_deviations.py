"""Where Wine's profile functions are known to differ from Windows', and ours with Windows'.

One by one, each with what Windows does. A deviation excuses an answer only when that is exactly
what it would turn ours into, or, where that cannot be told, only in the case that it names; and
none may excuse more than its share of the answers.
"""

import re

from profile_cases import Write, from_page, to_page

BLANKS = " \t\v\f\x1a"
MARKS = [(b"\xff\xfe", "utf-16-le"), (b"\xfe\xff", "utf-16-be"), (b"\xef\xbb\xbf", "utf-8")]


def decoded(data):
    """Mark, encoding and text of a file."""
    for mark, encoding in MARKS:
        if data.startswith(mark):
            lenient = "surrogateescape" if encoding == "utf-8" else "surrogatepass"
            # Half a unit at the end counts as a whole one.
            odd = b"\0" if encoding != "utf-8" and len(data) % 2 else b""
            return mark, encoding, (data[len(mark) :] + odd).decode(encoding, lenient)
    return b"", None, from_page(data)


def encoded(mark, encoding, text):
    if encoding is None:
        return to_page(text)
    lenient = "surrogateescape" if encoding == "utf-8" else "surrogatepass"
    return mark + text.encode(encoding, lenient)


def up_to_nul(text):
    return text.partition("\0")[0]


def header(line):
    """The name between brackets, or None."""
    line = line.strip(BLANKS)
    if line.startswith("[") and "]" in line:
        return line[1 : line.rindex("]")].strip(BLANKS)
    return None


# What Wine does to a whole file at every write. Windows changes the one line.
REWRITING = {
    "blanks around names and values go": 0.80,
    "lines that hold nothing go": 0.60,
    "every line ends with CR LF": 0.60,
    "a header loses what follows its bracket": 0.40,
    "the header without a name goes": 0.10,
    "names and values end at a NUL": 0.15,
    "of lines without a name the first in a row stays": 0.06,
}


def rewritten(data, without=None):
    """The file as Wine stores it, one of the steps left out."""
    blanks, nothing, ends, rest, nameless, nul, row = [step != without for step in REWRITING]
    mark, encoding, text = decoded(data)
    out = ""
    last_was_nameless = False
    for line, end in re.findall("([^\r\n]*)(\r\n|\r|\n|$)", text):
        strip = (lambda part: part.strip(BLANKS)) if blanks else (lambda part: part)
        cut = up_to_nul if nul else (lambda part: part)
        end = "\r\n" if ends and (end or line) else end
        name = header(line)
        if not line.strip(BLANKS):
            out += "" if nothing else end
        elif name is not None:
            if name or not nameless:
                behind = "" if rest else line[line.rindex("]") + 1 :]
                out += "[" + (cut(name) if blanks else line[line.index("[") + 1 : line.rindex("]")])
                out += "]" + behind + end
                last_was_nameless = False
        else:
            key, equals, value = line.partition("=")
            key, value = cut(strip(key)), cut(strip(value))
            if key.strip(BLANKS) or not (last_was_nameless and row):
                out += key + equals + value + end
            last_was_nameless = not key.strip(BLANKS)
    return encoded(mark, encoding, out)


def settled(data):
    """What is left when a file was rewritten often enough."""
    while True:
        once = rewritten(data)
        if once == data:
            return once
        data = once


# Cases in which what was written decides how Wine stores the file.


def written(case):
    return [question for question in case.questions if isinstance(question, Write)]


def breaks_a_line(case):
    """Wine drops a line end that leads a written text, and keeps the others only until the file is
    loaded again. Windows writes the text as it stands."""
    return any(set("\r\n") & set(one.section + one.key + one.value) for one in written(case))


def key_looks_like_a_header(case):
    """Until the file is loaded again Wine takes such a line for a key; Windows never does."""
    return any(header(f"{one.key}={one.value}") is not None for one in written(case))


def last_text_ends_in_a_blank(case):
    """Wine trims the end of the text that changes the file last only when it is loaded again;
    Windows never."""
    texts = [up_to_nul(text) for one in written(case) for text in (one.key, one.value)]
    return any(text != text.rstrip(BLANKS) for text in texts)


def holds_a_nul(case):
    """What Wine cuts at a NUL it trims only when the file is loaded again; Windows changes the one
    line."""
    return case.file is not None and "\0" in decoded(case.file)[2]


def has_a_nameless_header(case):
    """Once the header is gone its keys belong to the lines before any section."""
    return case.file is not None and any(
        header(line) is not None and not up_to_nul(header(line))
        for line in re.split("[\r\n]", decoded(case.file)[2])
    )


def is_no_utf8(case):
    """Wine puts U+FFFD in the place of such bytes in the whole file; what no write touches stays as
    it was elsewhere."""
    text = decoded(case.file or b"")
    return text[1] == "utf-8" and any("\udc80" <= char <= "\udcff" for char in text[2])


def ends_in_half_a_unit(case):
    """Wine takes the other half of the last UTF-16 unit from the memory behind the file."""
    data = case.file or b""
    return data[:2] in (b"\xff\xfe", b"\xfe\xff") and len(data) % 2 != 0


# Name: the case, whether the files must still settle to the same, and the share of all commits.
WRITING = {
    "a line break in a written text": (breaks_a_line, False, 0.10),
    "a written key that looks like a header": (key_looks_like_a_header, False, 0.10),
    "a blank that ends the text written last": (last_text_ends_in_a_blank, True, 0.10),
    "a NUL in a rewritten file": (holds_a_nul, False, 0.08),
    "keys below a header without a name": (has_a_nameless_header, False, 0.05),
    "bytes that are no UTF-8": (is_no_utf8, False, 0.01),
}


def commit_excuses(case, ours, wine):
    """The deviations that account for all that differs; none when something is left."""
    if wine == case.file and settled(ours) == settled(wine):
        return [UNCHANGED]
    for name, (applies, must_settle, _) in WRITING.items():
        if applies(case) and rewritten(ours) != wine:
            if not must_settle or settled(ours) == settled(wine):
                return [name]
    if rewritten(ours) != wine:
        return []
    return [step for step in REWRITING if rewritten(ours, without=step) != wine]


# Wine writes no file whose values stay what they are. Windows writes the line as it was given.
UNCHANGED = "a file that has every value already"
UNCHANGED_SHARE = 0.02


# Reading. Each takes the case, the question, the size, whether it is read after a commit, the whole
# value as ours gives it, and both answers as (error, value).


def size_zero(case, question, size, after, whole, ours, wine):
    """Wine answers before it looks for the file, and refuses an empty name. Windows is never asked
    for no room at all by the program."""
    nameless = not question.section.strip(BLANKS) or not question.key.strip(BLANKS)
    return size == 0 and ours[1] == wine[1] == "" and (wine[0] == 0 or nameless and wine[0] == 87)


def quoted_exact(case, question, size, after, whole, ours, wine):
    """Wine counts the quotes when it cuts: a quoted value whose size fits exactly loses its last
    byte, and with one byte of room fails. Windows takes the quotes off first."""
    data = to_page(whole)
    if size != len(data) + 1 or ours != (0, whole):
        return False
    return wine == ((87, "") if size == 1 else (0, from_page(data[:-1])))


def mark_alone(case, question, size, after, whole, ours, wine):
    """Wine refuses a file that is a UTF-8 mark and nothing else. For Windows it is empty."""
    return case.file == b"\xef\xbb\xbf" and not after and (ours, wine) == ((0, ""), (87, ""))


def best_fit(case, question, size, after, whole, ours, wine):
    """Wine, and Windows as well, read a character that the code page has not as the one that looks
    most like it; ours say "?". Only a marked file can hold one, and nothing of ours writes it."""
    if decoded(case.file or b"")[1] is None or len(ours[1]) != len(wine[1]) or ours[0] != wine[0]:
        return False
    return ours != wine and all(
        left == right or left == "?" for left, right in zip(ours[1], wine[1], strict=True)
    )


def half_a_unit(case, question, size, after, whole, ours, wine):
    return ends_in_half_a_unit(case)


def after_a_kept_text(case, question, size, after, whole, ours, wine):
    """What a written text with a line break, or a key like a header, means to Wine hangs on when it
    loads the file again, which hangs on the time. To Windows it means what the file says."""
    return after and (breaks_a_line(case) or key_looks_like_a_header(case))


def after_a_nul(case, question, size, after, whole, ours, wine):
    return after and holds_a_nul(case)


def after_a_nameless_header(case, question, size, after, whole, ours, wine):
    return after and has_a_nameless_header(case)


# Name: the predicate, and its share of all that was read.
READING = {
    "no room for any value": (size_zero, 0.03),
    "a quoted value that fits exactly": (quoted_exact, 0.01),
    "a UTF-8 mark and nothing else": (mark_alone, 0.006),
    "a character outside the code page": (best_fit, 0.003),
    "half a unit at the end": (half_a_unit, 0.001),
    "read behind a text that is kept whole": (after_a_kept_text, 0.005),
    "read behind a rewritten NUL": (after_a_nul, 0.001),
    "read below a header without a name": (after_a_nameless_header, 0.002),
}


def read_excuse(*answer):
    """The name of the deviation that accounts for the difference, or None."""
    for name, (predicate, _) in READING.items():
        if predicate(*answer):
            return name
    return None
