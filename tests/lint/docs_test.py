#!/usr/bin/python3
"""Holds script/docs to its word, and the documents of the project to their sources."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from typing import List

ROOT = os.path.realpath(os.path.join(os.path.dirname(os.path.realpath(__file__)), "..", ".."))
SCRIPT = os.path.join(ROOT, "script", "docs")
sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(ROOT, "script", "lib", "docs"))
sys.path.insert(0, os.path.join(ROOT, "tests", "tour"))

import includes  # noqa: E402
import pages  # noqa: E402
import topic  # noqa: E402


def page(body: str) -> str:
    source = f"<html><head><title>T</title></head><body><h2>T</h2>{body}</body></html>"
    title, blocks = topic.markdown(source, lambda target: target.replace(".html", ".md"))
    assert title == "T" and blocks[0] == "# T\n", blocks
    return topic.joined(blocks[1:])


def offences(root: str) -> List[str]:
    done = subprocess.run([SCRIPT, "--check", "--root", root], capture_output=True, text=True,
                          check=False)
    if done.stderr or done.returncode != (1 if done.stdout else 0):
        raise AssertionError(f"status {done.returncode}: {done.stderr}")
    return done.stdout.splitlines()


class TopicsBecomePages(unittest.TestCase):
    def test_paragraphs_are_filled(self) -> None:
        self.assertEqual(page("<p>one\ntwo  three</p><p>four</p>"), "one two three\n\nfour\n")

    def test_a_definition_is_an_entry_with_its_text_below(self) -> None:
        self.assertEqual(page("<dl><dt><b>New</b></dt><dd>Empties.</dd></dl>"),
                         "- **New**\\\n  Empties.\n")

    def test_a_list_in_a_definition_is_indented(self) -> None:
        self.assertEqual(
            page("<dl><dt>A</dt><dd>B\n<ul><li>C</li><li>D</li></ul></dd><dt>E</dt></dl>"),
            "- A\\\n  B\n  - C\n  - D\n- E\\\n")

    def test_steps_are_numbered(self) -> None:
        self.assertEqual(page("<ol><li>A</li><li>B</li></ol>"), "1. A\n2. B\n")

    def test_links_lead_to_pages(self) -> None:
        self.assertEqual(page('<p>See <a href="x.html">the x</a>.</p>'), "See [the x](x.md).\n")

    def test_signs_of_markdown_are_only_signs(self) -> None:
        self.assertEqual(page("<p>\\\\S\\*a* _b_ &lt;c&gt; [d] `e`</p>"),
                         "\\\\\\\\S\\\\\\*a\\* \\_b\\_ \\<c\\> \\[d\\] \\`e\\`\n")

    def test_code_is_literal_and_keeps_its_blanks(self) -> None:
        self.assertEqual(page("<p>a <tt>* &gt;&gt; x</tt> and <tt> &gt;&gt; </tt>.</p>"),
                         "a `* >> x` and `  >>  `.\n")

    def test_a_long_paragraph_breaks_outside_of_code_and_links(self) -> None:
        text = page("<p>" + "word " * 18 + "<tt>one two three four five</tt> end</p>")
        self.assertIn("\n`one two three four five` end\n", text)
        self.assertTrue(all(len(line) <= topic.WIDTH for line in text.splitlines()))

    def test_no_line_of_a_paragraph_turns_into_a_list(self) -> None:
        text = page("<p>" + "word " * 20 + "- dash " + "word " * 18 + "xx 1. one</p>")
        self.assertIn("\n\\- dash", text)
        self.assertIn("\n1\\. one", text)

    def test_tables_and_listings(self) -> None:
        self.assertEqual(page("<table><tr><td>A</td><td>B</td></tr><tr><td>a|b</td><td>c</td></tr>"
                              "</table>"), "| A | B |\n| --- | --- |\n| a\\|b | c |\n")
        self.assertEqual(page("<pre>\n[A]\nB=*\n</pre>"), "```\n[A]\nB=*\n```\n")

    def test_what_has_no_rule_is_refused(self) -> None:
        for body in ("<video>x</video>", "<p><b>x</p></b>", "<p>x"):
            with self.subTest(body=body), self.assertRaises(ValueError):
                page(body)


class IncludesAreCounted(unittest.TestCase):
    def test_lines_from_room_to_room(self) -> None:
        with tempfile.TemporaryDirectory() as root:
            os.mkdir(os.path.join(root, "script"))
            shutil.copy(os.path.join(ROOT, "script", "check-layering"),
                        os.path.join(root, "script"))
            for path, text in (("platform/a.h", ""), ("platform/ui/b.h", '#include "platform/a.h"\n'),
                               ("editors/c.h", '#include "platform/a.h"\n#include <platform/ui/b.h>\n'),
                               ("editors/d.cpp", '#include "editors/c.h"\n#include "platform/a.h"\n'),
                               ("tests/e.cpp", '#include "editors/c.h"\n')):
                os.makedirs(os.path.join(root, os.path.dirname(path)), exist_ok=True)
                with open(os.path.join(root, path), "w", encoding="utf-8") as file:
                    file.write(text)
            counts = includes.counted(root)
        self.assertEqual(counts, {("platform/ui", "platform"): 1, ("editors", "platform"): 2,
                                  ("editors", "platform/ui"): 1})
        self.assertIn("| `editors/` | 1 | 2 |", includes.table(counts))
        self.assertIn(">2</text>", includes.svg(counts))


class TheProjectsDocuments(unittest.TestCase):
    def test_hold(self) -> None:
        self.assertEqual(offences(ROOT), [])

    def test_show_every_page_of_the_wizard(self) -> None:
        with open(os.path.join(ROOT, "docs/pictures/pictures.txt"), encoding="utf-8") as file:
            shots = {line.split()[1] for line in file if not line.startswith("#")}
        # Shown under one of the two types at least, and what differs between them under both.
        for place, title, _ in pages.MANUAL + pages.ACTIVE_DIRECTORY:
            names = {f"{label}-{pages.slug(title)}" for label in ("manual", "directory")}
            with self.subTest(title=title):
                self.assertTrue(names & shots)
                if place in (12, 14, 17):
                    self.assertTrue(names <= shots or place == 14, names - shots)
        self.assertLessEqual({"manual-deployment", "directory-deployment",
                              "directory-deployment-general"}, shots)

    def test_show_the_page_that_a_topic_explains(self) -> None:
        with open(os.path.join(ROOT, "help/topics.txt"), encoding="utf-8") as file:
            rows = [line.split() for line in file if not line.startswith("#")]
        for _, number, source in rows:
            path = os.path.join(ROOT, "docs/guide", source.replace(".html", ".md"))
            with self.subTest(source=source), open(path, encoding="utf-8") as file:
                self.assertEqual("](../pictures/windows/" in file.read(), number != "-")


class Offences(unittest.TestCase):
    """A copy of the project in which something is changed."""

    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = folder.name
        rooms = {room.split("/")[0] for room in includes.ROOMS}
        for name in rooms | {"docs", "help", "script"}:
            shutil.copytree(os.path.join(ROOT, name), os.path.join(self.root, name))
        for name in ("README.md", "CHANGELOG.md"):
            shutil.copy(os.path.join(ROOT, name), self.root)
        subprocess.run([SCRIPT, "--root", self.root], check=True)
        self.assertEqual(offences(self.root), [])

    def add(self, path: str, text: str) -> None:
        with open(os.path.join(self.root, path), "a", encoding="utf-8") as file:
            file.write(text)

    def test_a_changed_topic_makes_its_page_stale(self) -> None:
        self.add("help/servers.html", "<p>More.</p>")
        self.assertEqual(offences(self.root),
                         ["docs/guide/servers.md: stale; script/docs makes it anew"])

    def test_a_new_include_makes_the_picture_stale(self) -> None:
        self.add("files/about.h", '#include "platform/identity.h"\n')
        self.assertEqual([line.split(":")[0] for line in offences(self.root)],
                         ["docs/ARCHITECTURE.md", "docs/includes.svg"])

    def test_a_link_that_leads_nowhere(self) -> None:
        self.add("README.md", "[x](docs/nowhere.md) [y](docs/HACKING.md#nothing)\n")
        self.assertEqual(offences(self.root), ["README.md: docs/nowhere.md leads nowhere",
                                               "README.md: there is no heading "
                                               "docs/HACKING.md#nothing"])

    def test_pictures_that_are_missing_left_over_or_large(self) -> None:
        pictures = os.path.join(self.root, "docs/pictures")
        os.rename(f"{pictures}/linux/open.png", f"{pictures}/linux/shut.png")
        self.add("docs/pictures/windows/open.png", "x" * 40_000)
        found = offences(self.root)
        self.assertIn("docs/pictures/linux/open.png: missing", found)
        self.assertIn("docs/pictures/linux/shut.png: left over", found)
        self.assertTrue(any(line.startswith("docs/pictures/windows/open.png: ") for line in found))

    def test_the_page_of_a_topic_that_is_gone(self) -> None:
        self.add("docs/guide/old.md", "<!-- Made from help/old.html by script/docs: there. -->\n")
        self.assertEqual(offences(self.root),
                         ["docs/guide/old.md: left over; nothing makes it any more"])


if __name__ == "__main__":
    unittest.main()
