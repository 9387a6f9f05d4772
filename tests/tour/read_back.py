#!/usr/bin/python3
"""Has the tour's manual document read by the profile function of Windows, key by key.

  read_back.py RUN-WINE PROFILE-VALUES.exe RESULT-FOLDER

Who reads the document later, on every client, reads it that way.
"""

import pathlib
import subprocess
import sys

import check_settings
from waiting import Failure, require

KEYS = 49


def entered(results):
    """Section, key and value of all that the tour typed or left alone. A blank is no value."""
    section = None
    for line in check_settings.manual(results, results / "deployed"):
        if line.startswith("["):
            section = line.strip("[]")
        else:
            key, _, value = line.partition("=")
            yield section, key, value.strip()


def answers(run_wine, reader, file, keys):
    questions = "".join(f"{section}\t{key}\n" for section, key in keys)
    path = "Z:" + str(file).replace("/", "\\")
    ran = subprocess.run(
        [run_wine, reader, path], input=questions.encode(), stdout=subprocess.PIPE, check=True
    )
    return ran.stdout.decode().splitlines()


def main(arguments):
    run_wine, reader, results = arguments
    results = pathlib.Path(results)
    expected = list(entered(results))
    require(len(expected) == KEYS, f"there are {KEYS} keys, and not {len(expected)}")
    found = answers(run_wine, reader, results / "Sites.ini", [row[:2] for row in expected])
    require(len(found) == KEYS, f"{KEYS} keys were asked for and {len(found)} answered")
    for (section, key, value), answer in zip(expected, found):
        error, _, read = answer.partition("\t")
        require(error == "0", f"reading {key} in {section} fails with {error}")
        require(read == value, f"{key} in {section} reads '{read}' and should be '{value}'")
    print(f"Windows' own profile function reads all {KEYS} values of Sites.ini as entered.")


if __name__ == "__main__":
    try:
        main(sys.argv[1:])
    except (Failure, subprocess.CalledProcessError) as problem:
        sys.exit(f"READING THE DOCUMENT BACK FAILED: {problem}")
