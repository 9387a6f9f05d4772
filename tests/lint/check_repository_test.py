#!/usr/bin/python3
"""Holds script/check-repository to its word."""

import os
import subprocess
import tempfile
import unittest
from typing import List, Tuple

SCRIPT = os.path.join(os.path.dirname(os.path.realpath(__file__)), "..", "..", "script",
                      "check-repository")


def run_on(text: str, name: str = "notes.txt") -> Tuple[int, List[str]]:
    with tempfile.TemporaryDirectory() as root:
        subprocess.run(["git", "init", "-q", root], check=True)
        with open(os.path.join(root, name), "w", encoding="utf-8") as file:
            file.write(text)
        done = subprocess.run([SCRIPT, root], capture_output=True, text=True, check=False)
    return done.returncode, done.stdout.splitlines()


class CheckRepository(unittest.TestCase):
    def test_what_must_not_stand_there(self) -> None:
        # Each in two pieces: this file is looked at as well.
        for line in ["cp /wo" "rk/x y", 'open("/ro' 'ot/x")', "log in /tmp/bash" "_jobs.0/1",
                     "see Pa" "rt 1.3", "sorted as spec" "ified", "The sp" "ecification says",
                     "read spec" ".md", "written in another ses" "sion", "the ag" "ent's tool",
                     "Cla" "ude", "http://deb.deb" "ian.org/debian", "https://py" "pi.org/simple"]:
            with self.subTest(line=line):
                status, found = run_on("fine\n" + line + "\n")
                self.assertEqual(status, 1)
                self.assertTrue(found and all(f.startswith("notes.txt:2: ") for f in found), found)

    def test_what_may(self) -> None:
        for line in ["dbus-run-session -- x", "run-wine --session", "$HOME/work/x", "share/root/x",
                     "the Windows registry", "a user's session", "parts of 1.3 mm", "//server/root/x",
                     "workers", "the root of the tree", "specify a folder", "framework/root"]:
            with self.subTest(line=line):
                self.assertEqual(run_on(line + "\n"), (0, []))

    def test_names_count_too(self) -> None:
        self.assertEqual(run_on("fine\n", "spec" ".md")[0], 1)

    def test_nothing_to_check_is_no_success(self) -> None:
        with tempfile.TemporaryDirectory() as root:
            subprocess.run(["git", "init", "-q", root], check=True)
            done = subprocess.run([SCRIPT, root], capture_output=True, check=False)
        self.assertEqual(done.returncode, 2)


if __name__ == "__main__":
    unittest.main()
