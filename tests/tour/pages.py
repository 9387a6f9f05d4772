"""The pages in the order of Next: position, heading and the tree's node."""

NOTIFICATION = [
    (3, "Notification", "Notification"),
    (4, "Notification - SMTP Mail", "SMTP Mail"),
    (5, "Notification - File Output", "File Output"),
    (6, "Notification - Client Pop-Up", "Client User Pop-Up"),
    (7, "Notification - Application Event Log", "Application Event Log"),
]

LAST = [
    (8, "Maintenance", "Maintenance"),
    (17, "Maintenance - Populate", "Populate"),
    (12, "Maintenance - Prune", "Prune"),
    (18, "Set Default", "Set Default"),
    (19, "Drivers", "Drivers"),
    (13, "Support", "Support"),
]

MANUAL = [
    (0, "General", "General"),
    (9, "Manual Configuration", "Manual Configuration"),
    (2, "Manual Configuration - Servers", "Servers"),
    (10, "Manual Configuration - Printers", "Printers"),
    (11, "Manual Configuration - Mixed", "Mixed"),
    *NOTIFICATION,
    (14, "Deployment", "Deployment"),
    *LAST,
]

ACTIVE_DIRECTORY = [
    (0, "General", "General"),
    (1, "Active Directory", "Active Directory"),
    *NOTIFICATION,
    (16, "Deployment", "Deployment"),
    (14, "Deployment - General", "General"),
    (15, "Deployment - MDAC", "MDAC"),
    *LAST,
]

# The page that each entry of the View menu shows, by heading.
MANUAL_MENU = {
    "General": "General",
    "Server To Server": "Manual Configuration - Servers",
    "Printer To Printer": "Manual Configuration - Printers",
    "Mixed Server And Printer": "Manual Configuration - Mixed",
    "Email Output": "Notification - SMTP Mail",
    "File Output": "Notification - File Output",
    "Client Pop-up": "Notification - Client Pop-Up",
    "Application Event Log": "Notification - Application Event Log",
    "Deployment": "Deployment",
    "Prune": "Maintenance - Prune",
    "Populate": "Maintenance - Populate",
    "Set Default": "Set Default",
    "Drivers": "Drivers",
    "Support": "Support",
}


def slug(title):
    """A page's title as a part of a file name."""
    words = "".join(c if c.isalnum() else " " for c in title.lower()).split()
    return "-".join(words)


def of_heading(pages, heading):
    return next(page for page in pages if page[1] == heading)
