#!/usr/bin/python3
"""Holds script/check-layering to its word: a small house with known offences, and a clean one."""

import os
import subprocess
import tempfile
import unittest
from typing import Dict, List, Tuple

SCRIPT = os.path.join(os.path.dirname(os.path.realpath(__file__)), "..", "..", "script",
                      "check-layering")

CLEAN = {
    "platform/profile.h": "#pragma once\n#include <string>\n",
    "platform/linux/profile.cpp": '#include "platform/profile.h"\n#ifdef __linux__\n#endif\n',
    "platform/ui/text.h": "#include <wx/string.h>\n#include \"platform/profile.h\"\n",
    "document/record.h": '#include "platform/profile.h"\n#include "version.h"\n',
    "document/keys.h": '#include "record.h"\n',
    "deployment/copy.cpp": '#include "document/record.h"\n#include <wx/wx.h>\n',
    "files/open.cpp": '#include "deployment/../document/record.h"\n',
    "wizard/frame.cpp": '#include "files/open.h"\n// #include "app/main.h"\n'
                        '/* #ifdef _WIN32 */\n#if wxUSE_HELP\n#endif\n',
    "files/open.h": "#pragma once\n",
    "app/main.cpp": '#include "wizard/frame.h"\n',
    "wizard/frame.h": 'const char* s = "//"; const char* t = R"(\n#ifdef _WIN32\n)";\n',
    "tests/document/record_test.cpp": '#include "document/record.h"\n#ifdef _WIN32\n#endif\n',
}


def run_on(files: Dict[str, str]) -> Tuple[int, List[str]]:
    with tempfile.TemporaryDirectory() as root:
        for path, text in files.items():
            target = os.path.join(root, path)
            os.makedirs(os.path.dirname(target), exist_ok=True)
            with open(target, "w", encoding="utf-8") as file:
                file.write(text)
        done = subprocess.run([SCRIPT, root], capture_output=True, text=True, check=False)
    return done.returncode, done.stdout.splitlines()


class CheckLayering(unittest.TestCase):
    def expect(self, files: Dict[str, str], places: List[str], words: str) -> None:
        status, lines = run_on({**CLEAN, **files})
        self.assertEqual([line.split(": ", 1)[0] for line in lines], places, "\n".join(lines))
        self.assertEqual(status, 1)
        for line in lines:
            self.assertIn(words, line)

    def test_a_clean_house_passes(self) -> None:
        self.assertEqual(run_on(CLEAN), (0, []))

    def test_nothing_to_check_is_no_success(self) -> None:
        self.assertEqual(run_on({}), (2, []))

    def test_includes_upwards(self) -> None:
        cases = [("platform/profile.cpp", "document/record.h"),
                 ("platform/profile.cpp", "platform/ui/text.h"),
                 ("document/record.cpp", "platform/ui/text.h"),
                 ("document/record.cpp", "deployment/copy.h"),
                 ("deployment/copy.cpp", "files/open.h"),
                 ("editors/list.cpp", "wizard/frame.h"),
                 ("files/open.cpp", "wizard/frame.h"),
                 ("wizard/frame.cpp", "app/main.h"),
                 ("wizard/frame.cpp", "tests/support/wait.h")]
        for path, target in cases:
            with self.subTest(path=path, target=target):
                files = {path: f'\n#include "{target}"\n'}
                if target not in CLEAN:
                    files[target] = "#pragma once\n"
                self.expect(files, [f"{path}:2"], "must not know")

    def test_includes_among_neighbours(self) -> None:
        rooms = ["deployment", "directory", "editors"]
        for room in rooms:
            for other in rooms:
                if room != other:
                    with self.subTest(room=room, other=other):
                        self.expect({f"{room}/a.cpp": f'#include "{other}/b.h"\n',
                                     f"{other}/b.h": "\n"}, [f"{room}/a.cpp:1"], "must not know")

    def test_angle_brackets_hide_nothing(self) -> None:
        self.expect({"document/a.cpp": "#include <wizard/frame.h>\n"}, ["document/a.cpp:1"],
                    "must not know")

    def test_a_relative_path_hides_nothing(self) -> None:
        self.expect({"document/a.cpp": '#include "../wizard/frame.h"\n'}, ["document/a.cpp:1"],
                    "must not know")

    def test_windows_below_the_windows(self) -> None:
        self.expect({"document/a.cpp": "#include <wx/string.h>\n"}, ["document/a.cpp:1"],
                    "has no windows")
        self.expect({"platform/a.cpp": '#include "wx/string.h"\n'}, ["platform/a.cpp:1"],
                    "has no windows")
        self.expect({"platform/linux/a.cpp": "#  include <gtk/gtk.h>\n"},
                    ["platform/linux/a.cpp:1"], "has no windows")

    def test_cycles(self) -> None:
        self.expect({"wizard/a.h": '#include "wizard/b.h"\n', "wizard/b.h": '#include "c.h"\n',
                     "wizard/c.h": '\n#include "wizard/a.h"\n'}, ["wizard/c.h:2"],
                    "wizard/a.h -> wizard/b.h -> wizard/c.h -> wizard/a.h")
        self.expect({"wizard/a.h": '#include "wizard/a.h"\n'}, ["wizard/a.h:1"], "go round")

    def test_the_system_outside_platform(self) -> None:
        for line in ["#ifdef _WIN32", "#if defined(__linux__)", "#ifndef __WXMSW__",
                     "#if 0\n#elif defined(__WXGTK3__)", "#  if !defined __MINGW32__",
                     "#if 1 && \\\n  defined(_WIN32)", "#if /* on */ _WIN32"]:
            number = 2 if "elif" in line else 1
            with self.subTest(line=line):
                self.expect({"wizard/a.cpp": line + "\n#endif\n"}, [f"wizard/a.cpp:{number}"],
                            "operating system")

    def test_what_cannot_be_found_or_followed(self) -> None:
        self.expect({"wizard/a.cpp": '#include "wizard/gone.h"\n'}, ["wizard/a.cpp:1"],
                    "there is no")
        self.expect({"wizard/a.cpp": "#include HEADER\n"}, ["wizard/a.cpp:1"],
                    "cannot be followed")

    def test_a_source_in_no_room(self) -> None:
        self.expect({"attic/a.cpp": "\n"}, ["attic/a.cpp:1"], "in no room")


if __name__ == "__main__":
    unittest.main()
