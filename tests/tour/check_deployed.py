"""What Deploy Now must have left in the deployment folder."""

from html.parser import HTMLParser

from waiting import require

ENGINE = ["QueueshiftEngine.exe", "MSCOMCTL.OCX", "MSWINSCK.OCX"]
INSTALLER = "MDAC_TYP2.8.EXE"


class Links(HTMLParser):
    def __init__(self, text):
        super().__init__()
        self.targets = []
        self.feed(text)

    def handle_starttag(self, tag, attrs):
        self.targets += [value for name, value in attrs if tag == "a" and name == "href"]


def _same(source, target):
    require(target.is_file(), f"{target.name} was not deployed")
    require(source.read_bytes() == target.read_bytes(), f"{target.name} was not copied truly")


def _batch(folder, title, installer):
    lines = (folder / f"{title}.bat").read_bytes().decode("cp1252").split("\r\n")
    start = f'"{folder}\\QueueshiftEngine.exe" "{folder}\\{title}"'
    require(lines[-2:] == [start, ""], f"the batch file starts {lines[-2:]}, not {start}")
    first = f'"{folder}\\{installer}"'
    require((first in lines) == bool(installer), "the batch file deals wrongly with the installer")


def _page(folder, title, installer):
    text = (folder / f"{title}.html").read_bytes().decode("cp1252")
    links = [link for link in Links(text).targets if "://" not in link]
    wanted = ([installer] if installer else []) + ENGINE[:1]
    require(links == wanted, f"the web page links to {links}, not to {wanted}")
    for link in links:
        require((folder / link).is_file(), f"the web page's link {link} leads nowhere")


def check(program, settings, folder, installer=""):
    """Compares the folder with the program's own folder and the saved settings file."""
    names = ENGINE + ([installer] if installer else [])
    for name in names:
        _same(program / name, folder / name)
    _same(settings, folder / settings.name)
    _batch(folder, settings.name, installer)
    _page(folder, settings.name, installer)
    found = sorted(path.name for path in folder.iterdir())
    title = settings.name
    wanted = sorted([*names, title, f"{title}.bat", f"{title}.html"])
    require(found == wanted, f"the deployment folder holds {found}, and should hold {wanted}")
    return wanted
