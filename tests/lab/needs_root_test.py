#!/usr/bin/python3
"""Holds the lab to what it says where the user is not root.

  needs_root_test.py CTEST FOLDER     the ctest program, and the build's folder of the lab's entries
"""

import json
import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SKIPPED = 77
NOBODY = 65534
HERE = Path(__file__).resolve().parent
CTEST, FOLDER = sys.argv[1:3] if len(sys.argv) > 2 else sys.exit(__doc__)


class NeedsRoot(unittest.TestCase):
    def test_without_it_one_line_says_so_and_nothing_runs(self) -> None:
        rights = {}
        if os.geteuid() == 0:
            rights = {"user": NOBODY, "group": NOBODY, "extra_groups": []}
        # The project may lie where nobody else may look.
        with tempfile.TemporaryDirectory() as folder:
            os.chmod(folder, 0o755)
            script = shutil.copy(HERE / "run-lab", folder)
            done = subprocess.run([script, "echo", "the command ran"], cwd="/", text=True,
                                  capture_output=True, check=False, **rights)
        self.assertEqual(done.stdout, "skipped: the lab's servers need root\n")
        self.assertEqual(done.stderr, "")
        self.assertEqual(done.returncode, SKIPPED)

    def test_the_suite_counts_that_as_skipped(self) -> None:
        listed = subprocess.run([CTEST, "--test-dir", FOLDER, "--show-only=json-v1"], text=True,
                                capture_output=True, check=True).stdout
        servers = [test for test in json.loads(listed[listed.index("{"):])["tests"]
                   if any(part.endswith("/run-lab") for part in test["command"])]
        self.assertTrue(servers)
        for test in servers:
            properties = {entry["name"]: entry["value"] for entry in test["properties"]}
            self.assertEqual(properties.get("SKIP_RETURN_CODE"), SKIPPED, test["name"])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
