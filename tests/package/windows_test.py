#!/usr/bin/python3
"""The Windows program as a file, and its packages under Wine.

  windows_test.py WORK-FOLDER     run by run-package-test, which gives a Wine folder of its own
"""

import os
import pathlib
import re
import subprocess
import sys
import unittest
import zipfile

from packages import ROOT, VERSION, help_is_found, leave, output, package, tree

WORK = pathlib.Path(sys.argv[1])
WINE = ROOT / "script/lib/run-wine"
DRIVE = pathlib.Path(os.environ["WINEPREFIX"]) / "drive_c"
INSTALLED = "Program Files/Queueshift"
SHORTCUT = "Start Menu/Programs/Queueshift Deployment Toolkit.lnk"
FILES = ("QueueshiftToolkit.exe", "Queueshift.hlp", "Notices.txt")
OLDER = "0.0.1"
UNINSTALL = r"HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall"

LARGEST_PROGRAM = 12_000_000
# What every Windows has had since its version 7.
SYSTEM_LIBRARIES = {
    "advapi32.dll", "comctl32.dll", "comdlg32.dll", "gdi32.dll", "kernel32.dll", "msvcrt.dll",
    "ole32.dll", "oleacc.dll", "oleaut32.dll", "shell32.dll", "shlwapi.dll", "user32.dll",
    "uxtheme.dll", "version.dll", "winspool.drv",
}  # fmt: skip
# A sentence of each licence of what is inside the program.
NOTICES = {
    "wxWidgets": "wxWindows Library Licence",
    "NanoSVG": "Mikko Mononen",
    "PCRE2": "University of Cambridge",
    "libpng": "Glenn Randers-Pehrson",
    "zlib": "Jean-loup Gailly",
    "MinGW-w64": "mingw-w64 project",
    "winpthreads": "Lockless Inc",
    "libstdc++": "GCC RUNTIME LIBRARY EXCEPTION",
    "the library licence": "GNU LIBRARY GENERAL PUBLIC LICENSE",
}


def as_windows(path):
    return "Z:" + str(path).replace("/", "\\")


def wine(*words):
    return output(WINE, *words)


def start(*words):
    """Starts a program and leaves it running: it would keep a pipe open to its end."""
    with open(WORK / "program.log", "ab") as log:
        subprocess.run([WINE, "start", *words], stdin=subprocess.DEVNULL, stdout=log, stderr=log,
                       check=True)


def notices(folder):
    return (folder / "Notices.txt").read_text(encoding="utf-8")


class TheProgram(unittest.TestCase):
    """What stands in the zip stands in the installer as well; see below."""

    @classmethod
    def setUpClass(cls):
        cls.folder = WORK / "zip"
        with zipfile.ZipFile(package("QueueshiftToolkit-*-win64.zip")) as archive:
            cls.names = archive.namelist()
            archive.extractall(cls.folder)
        cls.folder = cls.folder / f"QueueshiftToolkit-{VERSION}-win64"
        cls.program = cls.folder / "QueueshiftToolkit.exe"

    def test_is_one_file_with_its_help_book_and_notices(self):
        expected = {f"{self.folder.name}/{name}" for name in FILES}
        self.assertEqual({name for name in self.names if not name.endswith("/")}, expected)

    def test_is_small_and_stripped(self):
        size = self.program.stat().st_size
        print(f"{size / 1e6:.1f} MB")
        self.assertLessEqual(size, LARGEST_PROGRAM)
        self.assertIn("no symbols", output("x86_64-w64-mingw32-nm", self.program))

    def test_needs_no_library_beyond_the_systems(self):
        headers = output("x86_64-w64-mingw32-objdump", "-p", self.program)
        needed = {name.lower() for name in re.findall(r"DLL Name: (\S+)", headers)}
        self.assertIn("kernel32.dll", needed)
        self.assertEqual(needed - SYSTEM_LIBRARIES, set())

    def test_carries_the_notices_of_the_libraries_inside(self):
        text = notices(self.folder)
        for library, words in NOTICES.items():
            self.assertIn(words, text, library)

    def test_starts_from_the_unpacked_zip(self):
        start("/unix", self.program)
        self.assertTrue(help_is_found(), "the program does not find its help book")
        leave()


class TheInstaller(unittest.TestCase):
    """One story: installed over an older version, used, removed."""

    def setUp(self):
        self.msi = package("QueueshiftToolkit-*-win64.msi")
        with zipfile.ZipFile(package("QueueshiftToolkit-*-win64.zip")) as archive:
            self.contents = {
                name: archive.read(f"QueueshiftToolkit-{VERSION}-win64/{name}") for name in FILES
            }

    def test_all_of_it_is_for_64_bits(self):
        """A part that is not marked so belongs, for Windows, into the folders of 32-bit programs."""
        only_64_bits = 256
        rows = output("msiinfo", "export", self.msi, "Component").splitlines()[3:]
        self.assertGreater(len(rows), 3)
        for component, _, _, attributes, *_ in (row.split("\t") for row in rows):
            self.assertTrue(int(attributes) & only_64_bits, component)

    def older(self):
        """An installer of an older version, whose notices can be told from today's."""
        self.assertLess([int(n) for n in OLDER.split(".")], [int(n) for n in VERSION.split(".")])
        folder = WORK / "older"
        folder.mkdir()
        for name, content in self.contents.items():
            (folder / name).write_bytes(content)
        (folder / "Notices.txt").write_text("older")
        msi = WORK / "older.msi"
        output(ROOT / "packaging/windows/make-msi", folder, OLDER, msi)
        return msi

    def entries(self):
        """The versions of the program in the system's list of what is installed."""
        said = wine("reg", "query", UNINSTALL, "/s")
        entries = re.split(r"^HKEY_", said, flags=re.MULTILINE)
        return [
            re.search(r"DisplayVersion\s+REG_SZ\s+(\S+)", entry).group(1)
            for entry in entries
            if "Queueshift" in entry
        ]

    def shortcut(self):
        """The one in the Start menu: for an installation for all users, Windows takes their common
        menu, Wine that of the one user."""
        found = [name for name in tree(DRIVE) if name.endswith(SHORTCUT)]
        self.assertEqual(len(found), 1, found)
        return found[0]

    def check_installed(self, contents):
        folder = DRIVE / INSTALLED
        found = {path.name: path.read_bytes() for path in folder.iterdir()}
        self.assertEqual(set(found), set(contents))
        for name, content in contents.items():
            self.assertEqual(found[name], content, name)
        self.shortcut()

    def test_is_installed_over_an_older_version_started_and_removed_with_nothing_left(self):
        before = tree(DRIVE)
        older = self.older()
        wine("msiexec", "/i", as_windows(older), "/qn")
        self.check_installed({**self.contents, "Notices.txt": b"older"})
        self.assertEqual(self.entries(), [OLDER])

        wine("msiexec", "/i", as_windows(self.msi), "/qn")
        self.check_installed(self.contents)
        self.assertEqual(self.entries(), [VERSION])

        with self.assertRaises(AssertionError, msg="an older version replaced a newer one"):
            wine("msiexec", "/i", as_windows(older), "/qn")
        self.check_installed(self.contents)
        self.assertEqual(self.entries(), [VERSION])

        start("C:\\" + self.shortcut().replace("/", "\\"))
        self.assertTrue(help_is_found(), "the program does not find its help book")
        leave()

        wine("msiexec", "/x", as_windows(self.msi), "/qn")
        self.assertEqual(self.entries(), [])
        # The system's own folder for the installers it knows; empty again.
        self.assertEqual(tree(DRIVE) - before - {"windows/Installer"}, set())
        said = wine("reg", "query", r"HKLM\Software", "/s")
        self.assertNotIn("Queueshift", said)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
