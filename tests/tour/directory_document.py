"""A document of the Active Directory type: every page is visited by the option tree."""

import pages

REFRESH = (
    "Your domain name has changed, do you want to refresh your list of Active Directory printers?"
)
DOMAIN = "corp.example"


class DirectoryDocument:
    def __init__(self, w, folder):
        self.w = w
        self.folder = folder
        self.fill = {
            1: self.domain,
            14: self.deployment,
            15: self.installer,
            17: lambda: self.decline("populate"),
            12: lambda: self.decline("prune"),
        }

    def walk(self):
        seen = set()
        for position, title, node in pages.ACTIVE_DIRECTORY:
            self.w.tree(node, 1 if node in seen else 0)
            seen.add(node)
            if position in (12, 17):
                self.fill[position]()
            self.w.at(position, title, node)
            if position in self.fill and position not in (12, 17):
                self.fill[position]()
            self.w.picture("directory-" + pages.slug(title))
        self.w.say("visited all pages of the Active Directory type with the option tree")

    def walk_back(self):
        for before, page in zip(reversed(pages.ACTIVE_DIRECTORY[:-1]), pages.ACTIVE_DIRECTORY[:0:-1]):
            self.w.back(page[0])
            self.w.at(*before)
        self.w.back(pages.ACTIVE_DIRECTORY[0][0])
        self.w.at(*pages.ACTIVE_DIRECTORY[0])
        self.w.say("walked the way back with Back, to the first page")

    def domain(self):
        self.w.enter("cboDomainName", DOMAIN)

    def deployment(self):
        w = self.w
        w.enter("txtNetworkSharePath", str(self.folder / "deployed-directory"))
        w.tick("chkBatchFile")
        w.tick("chkCreateHTML")

    def installer(self):
        w = self.w
        w.picture("directory-deployment-mdac-off")
        w.tick("chkIncludeMDAC")
        w.tick("optMDACVersion(0)")

    def decline(self, page):
        self.w.answer("Question", "Refresh Printers", REFRESH, "No", f"refresh-question-{page}")
