"""Documents for looking at pages that are filled in."""

import check_settings

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


def manual():
    return check_settings.manual("C:\\Results", "C:\\Deployed")


def directory():
    """The manual document turned into one of the Active Directory type."""

    def line(text):
        key = text.partition("=")[0]
        return f"{key}={DIRECTORY[key]}" if key in DIRECTORY else text

    return [line(text) for text in manual()]


def write(path, lines):
    path.write_bytes("".join(f"{line}\r\n" for line in lines).encode("cp1252"))
