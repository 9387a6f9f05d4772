"""What the saved settings file must hold, line by line."""

from waiting import require


def manual(folder, deployment):
    """The whole of the manual document that the tour enters."""
    return f"""[GENERAL]
UseActiveDirectory=False
UseManualDefinitions=True
AlwaysRun=True
ShowProgress=True
[ACTIVE DIRECTORY]
DomainName={' '}
[MANUAL DEFINITIONS SERVERS]
FromServers=OLDSRV1,OLDSRV2
ToServers=NEWSRV1,NEWSRV2
[MANUAL DEFINITIONS PRINTERS]
FromPrinters=Laser 4
ToPrinters=Laser 5
[MANUAL DEFINITIONS MIXED]
FromServers=OLDSRV3
FromPrinters=Plotter
ToServers=NEWSRV3
ToPrinters=Plotter A0
[NOTIFICATION SMTP]
UseSMTP=True
SMTPServerNameOrIP=mail.example.com
ServerPort=2525
EmailSubject=Printers have moved
EmailTo=first@example.com,second@example.com
EmailFrom=queueshift@example.com
[NOTIFICATION FILE OUTPUT]
UseFileOutput=True
FileOutputPath={folder}
FileOutputName=result
IncludeComputerName=True
IncludeOutcome=True
WriteToEventLog=True
[NOTIFICATION CLIENT POP-UP]
UseClientPopup=True
UseSuccessClientPopup=True
SuccessMessage=Your printers have moved.
UseFailureClientPopup=True
FailureMessage=Your printers could not be moved.
[DEPLOYMENT]
DeploymentPath={deployment}
CreateWebLaunchPage=True
CreateBatchFile=True
IncludeMDAC=False
MDACOption=0
[POPULATE]
ServerNames=NEWSRV1,.
PrinterNames=Color 1,Label Printer
[PRUNE]
ServerNames=OLDSRV1,OLDSRV9
PrinterNames=Fax,*
DeleteADOrphans=False
DeleteAllNonNetworked=False
[PRINTER_DRIVER]
PrinterName=Plotter A0,Laser 5,Color 1,Label Printer
DriverName=Plotter A0 driver,Laser 5 driver,Color 1 driver,Label Printer driver
DriverFileName=drv1.inf,drv2.inf,drv3.inf,drv4.inf
PortName=LPT1:,LPT2:,LPT3:,LPT4:
DriverSharePath=\\\\NEWSRV1\\drivers
[SET_DEFAULT]
DefaultType=2
DefaultPrinterName=\\\\NEWSRV3\\Plotter A0
[SUPPORT]
DebugOn=True
""".splitlines()


def lines_of(path):
    data = path.read_bytes()
    require(data.endswith(b"\r\n"), f"{path.name} does not end with a line end")
    require(data.count(b"\n") == data.count(b"\r\n"), f"{path.name} has a bare line end")
    return data.decode("cp1252").split("\r\n")[:-1]


def same_lines(path, expected):
    found = lines_of(path)
    for number, (is_there, should_be) in enumerate(zip(found, expected), 1):
        require(
            is_there == should_be,
            f"line {number} of {path.name} is '{is_there}' and should be '{should_be}'",
        )
    require(
        len(found) == len(expected),
        f"{path.name} has {len(found)} lines and should have {len(expected)}",
    )
    return len(found)


def holds(path, section, key, value):
    """The file has this key with this value in this section."""
    lines = lines_of(path)
    require(f"[{section}]" in lines, f"{path.name} has no section {section}")
    rest = lines[lines.index(f"[{section}]") + 1 :]
    end = next((i for i, line in enumerate(rest) if line.startswith("[")), len(rest))
    require(f"{key}={value}" in rest[:end], f"{path.name} lacks {key}={value} in {section}")
