"""Documents for looking at pages that are filled in."""

import datetime
import os

import check_settings

RESULTS = "\\\\NEWSRV\\Results"
DEPLOYMENT = "\\\\NEWSRV\\Deploy"
# Pictures of one program are alike whenever they are taken.
MADE = datetime.datetime(2026, 1, 5, 9, 30).timestamp()

DIRECTORY = {
    "UseActiveDirectory": "True",
    "UseManualDefinitions": "False",
    "DomainName": "corp.example",
    "IncludeMDAC": "True",
    "MDACOption": "2",
    "DeleteADOrphans": "True",
    "DefaultType": "1",
    "DefaultPrinterName": " ",
}


def manual(deployment=DEPLOYMENT):
    return check_settings.manual(RESULTS, deployment)


def directory():
    """The manual document turned into one of the Active Directory type."""

    def line(text):
        key = text.partition("=")[0]
        return f"{key}={DIRECTORY[key]}" if key in DIRECTORY else text

    return [line(text) for text in manual()]


def write(path, lines):
    path.write_bytes("".join(f"{line}\r\n" for line in lines).encode("cp1252"))


def write_all(folder, deployment):
    """Sites.ini and Directory.ini, and Pilot.ini, which is deployed into a folder that exists."""
    write(folder / "Sites.ini", manual())
    write(folder / "Directory.ini", directory())
    write(folder / "Pilot.ini", manual(deployment))
    for path in folder.glob("*.ini"):
        os.utime(path, (MADE, MADE))


def write_program_files(folder):
    """What the program deploys. The engine is a large file, so that the progress window stands long
    enough to be seen."""
    for name in ("MSCOMCTL.OCX", "MSWINSCK.OCX"):
        (folder / name).write_text(f"stands in for {name}\r\n", encoding="ascii")
    with open(folder / "QueueshiftEngine.exe", "wb") as engine:
        engine.write(b"\1" * 1000000)
        engine.truncate(150 << 20)
