#!/usr/bin/python3
"""The Debian package, by itself and in a clean root with nothing but what it depends on.

  deb_test.py WORK-FOLDER     run by run-package-test
"""

import pathlib
import re
import subprocess
import sys
import unittest

from packages import ROOT, help_is_found, leave, output, package, tree
from waiting import until

WORK = pathlib.Path(sys.argv[1])
PROGRAM_FOLDER = "usr/lib/queueshift"
LINK = "usr/bin/queueshift-toolkit"
ICON_SIZES = (16, 22, 24, 32, 48, 64, 128, 256)
EXPECTED = {
    f"{PROGRAM_FOLDER}/queueshift-toolkit",
    f"{PROGRAM_FOLDER}/Queueshift.hlp",
    LINK,
    "usr/share/applications/queueshift-toolkit.desktop",
    "usr/share/metainfo/example.queueshift.toolkit.metainfo.xml",
    "usr/share/man/man1/queueshift-toolkit.1.gz",
    "usr/share/doc/queueshift-toolkit/copyright",
    "usr/share/doc/queueshift-toolkit/changelog.gz",
    "usr/share/icons/hicolor/scalable/apps/queueshift-toolkit.svg",
    *(
        f"usr/share/icons/hicolor/{size}x{size}/apps/queueshift-toolkit.png"
        for size in ICON_SIZES
    ),
}
SHARE_LIBRARY = re.compile(rb"libsmbclient\.so\.\d+(?=\0)")
SHARE_FUNCTION = re.compile(rb"smbc_[A-Za-z]\w+(?=\0)")
# The one language that every Debian has.
FIND_FUNCTIONS = """
    my $library = DynaLoader::dl_load_file(shift) or die DynaLoader::dl_error();
    DynaLoader::dl_find_symbol($library, $_) or die "no $_ in the library" for @ARGV;
"""
# What the distribution's own tools write down about any package.
RECORDS = ("var/log/", "var/lib/dpkg/", "var/cache/", "etc/ld.so.cache")


class TheDebPackage(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.deb = package("queueshift-toolkit_*.deb")
        cls.unpacked = WORK / "unpacked"
        output("dpkg-deb", "--extract", cls.deb, cls.unpacked)

    def test_holds_what_it_should_and_no_more(self):
        files = {
            name
            for name in tree(self.unpacked)
            if (self.unpacked / name).is_symlink() or (self.unpacked / name).is_file()
        }
        self.assertEqual(files, EXPECTED)

    def test_the_link_on_the_path_leads_to_the_program(self):
        link = self.unpacked / LINK
        self.assertTrue(link.is_symlink())
        self.assertEqual(
            link.resolve(), (self.unpacked / PROGRAM_FOLDER / "queueshift-toolkit").resolve()
        )

    def test_lintian_finds_no_error(self):
        said = output(
            "lintian", "--allow-root", "--fail-on", "error", "--tag-display-limit", "0", self.deb
        )
        print(f"lintian: {said.strip() or 'nothing'}")

    def test_its_desktop_files_are_valid(self):
        share = self.unpacked / "usr/share"
        output("desktop-file-validate", share / "applications/queueshift-toolkit.desktop")
        metadata = share / "metainfo/example.queueshift.toolkit.metainfo.xml"
        output("appstreamcli", "validate", "--no-net", metadata)

    def test_its_icons_have_the_size_of_their_folder(self):
        for size in ICON_SIZES:
            icon = f"usr/share/icons/hicolor/{size}x{size}/apps/queueshift-toolkit.png"
            header = (self.unpacked / icon).read_bytes()[16:24]
            shape = (int.from_bytes(header[:4], "big"), int.from_bytes(header[4:], "big"))
            self.assertEqual(shape, (size, size), icon)

    def test_its_man_page_reads_without_a_warning(self):
        page = self.unpacked / "usr/share/man/man1/queueshift-toolkit.1.gz"
        said = output("man", "--warnings", "--local-file", page)
        self.assertIn("queueshift-toolkit - edit and deploy", said)
        self.assertNotIn("warning", said)


class InACleanRoot(unittest.TestCase):
    def setUp(self):
        self.deb = package("queueshift-toolkit_*.deb")
        self.depends = output("dpkg-deb", "--field", self.deb, "Depends").strip()
        made = output(ROOT / "script/lib/clean-root", self.depends)
        self.root = WORK / "root"
        self.root.mkdir()
        output("tar", "-C", self.root, "--zstd", "-xf", made.strip().splitlines()[-1])

    def in_root(self, *words):
        return output("chroot", self.root, *words, env={"PATH": "/usr/sbin:/usr/bin:/sbin:/bin"})

    def start(self):
        """The program in the root, as a user without rights; its display is ours."""
        script = """
            root=$1
            mount -t proc proc "$root/proc" && mount --bind /dev "$root/dev" &&
                mount -t tmpfs -o mode=1777 none "$root/tmp" || exit
            mkdir -p "$root/tmp/.X11-unix" &&
                mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix" || exit
            exec env -i DISPLAY="$DISPLAY" PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/tmp LC_ALL=C.UTF-8 \\
                NO_AT_BRIDGE=1 chroot --userspec=nobody:nogroup "$root" queueshift-toolkit
        """
        namespace = ["unshare", "--mount", "--pid", "--fork", "--kill-child"]
        with open(WORK / "program.log", "wb") as log:
            return subprocess.Popen(
                namespace + ["bash", "-c", script, "start", str(self.root)], stderr=log
            )

    def stop(self, process):
        if process.poll() is None:
            process.terminate()
        process.wait()

    def test_is_installed_started_and_removed_with_nothing_left(self):
        before = tree(self.root)
        (self.root / "package.deb").write_bytes(self.deb.read_bytes())
        self.in_root("dpkg", "--install", "/package.deb")
        (self.root / "package.deb").unlink()
        self.assertEqual(EXPECTED - tree(self.root), set())
        self.assertEqual(self.in_root("dpkg", "--verify", "queueshift-toolkit"), "")
        self.assertTrue(self.found_help(), "the program does not find its help book")
        self.check_without_help_book()
        self.check_shares()
        self.in_root("dpkg", "--purge", "queueshift-toolkit")
        left = {name for name in tree(self.root) - before if not name.startswith(RECORDS)}
        self.assertEqual(left, set())
        self.assertEqual(before - tree(self.root), set())

    def check_shares(self):
        """What the program loads, and starts, when it first meets a share is there. The linker knows
        nothing of it, and a program that is merely started does not miss it."""
        program = (self.root / PROGRAM_FOLDER / "queueshift-toolkit").read_bytes()
        libraries, functions = (
            sorted({word.decode() for word in words.findall(program)})
            for words in (SHARE_LIBRARY, SHARE_FUNCTION)
        )
        self.assertEqual(len(libraries), 1, libraries)
        self.assertGreater(len(functions), 10, functions)
        self.in_root("perl", "-MDynaLoader", "-e", FIND_FUNCTIONS, libraries[0], *functions)
        self.in_root("smbclient", "--version")

    def found_help(self):
        """Starts the program through its link, asks for help, and leaves by the first dialog."""
        process = self.start()
        try:
            found = help_is_found(process)
            leave()
            until("the program ends", lambda: process.poll() is not None)
            said = (WORK / "program.log").read_text(errors="replace")
            self.assertEqual(process.returncode, 0, said)
            self.assertNotIn("Could not load a pixbuf", said)
            return found
        finally:
            self.stop(process)

    def check_without_help_book(self):
        """That the book was found says something only if one that is away is missed."""
        book = self.root / PROGRAM_FOLDER / "Queueshift.hlp"
        away = book.with_name("away")
        book.rename(away)
        self.assertFalse(self.found_help(), "a help book from somewhere else was shown")
        away.rename(book)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
