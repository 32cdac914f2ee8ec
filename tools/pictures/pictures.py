"""The pictures of the manual: how the client is started for them, and what is pressed for each."""

from dataclasses import dataclass, field


@dataclass(frozen=True)
class Picture:
    """What is done, in order, and then taken: the whole window, or the dialog of that title.

    A step "key:..." is a key of the window; any other is the spoken name of a control or the text of
    a menu entry, which is pressed. A dialog or a panel is left with Escape.
    """

    name: str
    steps: tuple = ()
    dialog: str = ""
    panel: bool = False


@dataclass(frozen=True)
class Evening:
    """One run of the client, logged in to a practice node that has sent the lines of a file.

    Without a dialect it is the first start: there is no folder yet, and no link.
    """

    pictures: tuple
    dialect: str = ""
    spots: str = ""
    settings: tuple = ()  # pairs
    files: dict = field(default_factory=dict)


OPERATOR = (
    ("My Call", "K1TST-2"), ("My Name", "ANNA"), ("My QTH", "Ann Arbor, MI"), ("My Grid", "EN82DG"),
    ("My Location", "42 17 N 83 44 W"), ("Home Cluster", "N0DE-1"), ("Gmt Offset", "Ok"),
    ("AutoStart", "-1"), ("AutoReconnect", "-1"), ("Get Missed", "0"), ("RejSpots", "-1"),
    ("ShLoTW", "-1"), ("SheQSL", "-1"), ("TncPort", "17"), ("Tnc Cluster", "N0DE-1"),
    ("Tnc Command", "mycall k1tst"), ("Tnc Reply", "cmd:"), ("Tnc TimeOut", "5"),
    ("Tnc Command", "c n0de-1"), ("Tnc Reply", "*** connected to n0de-1"), ("Tnc TimeOut", "30"),
)

LIGHT_AND_CLASSIC = (("Theme", "Light"), ("ClassicDisplay", "-1"))

DARK_AND_EXPANDED = (("Theme", "Dark"), ("ClassicDisplay", "0"), ("Spot Width", "79")) + tuple(
    (column, "-1") for column in (
        "ArOrigCty", "ArOrigState", "ArCty", "dxsState", "ArWAZ", "ArITU", "ArBearing",
        "ArDistance", "ArKm", "ArComments"))

FILES = {
    "reject.dat": ['"Dx","*/MM"', '"Dx","K1*"', '"Call","W1ABC"', '"Comment","pirate"'],
    "fixspots.dat": ["FO5*,FO,,32,63,BH52,00", "KL7LB,KL,AK,1,1,BP51,00", "VP8*,VP8,,13,16,,00"],
    "ports.cfg": ['"17","/dev/ttyUSB0"'],
    "lotw.txt": ["LOTW"] + ["VE8LB         HS0HF", "OX3QDU        W1JVO"] + ["&"] * 1000,
    "eqsl.txt": ["eQSL list of AG members as of 20-Nov-2026", "VE8LB", "W1JVO", "TF3PI"],
}

EVENINGS = (
    Evening(
        settings=OPERATOR + LIGHT_AND_CLASSIC,
        dialect="spider", spots="spider.txt", files=FILES,
        pictures=(
            Picture("window"),
            Picture("get-spots", ("Get spots…",), panel=True),
            Picture("members", ("LoTW and eQSL users…",), panel=True),
            Picture("dx-classic", ("key:ctrl+6",)),
            Picture("dx-last-hour", ("key:ctrl+0", "Last hour")),
            Picture("dx-sorted", ("Sort by DX call",)),
            Picture("login-message", ("key:alt+8",)),
            Picture("settings", ("key:alt+1",)),
            Picture("nodes", ("Nodes…",), dialog="Nodes"),
            Picture("connection", ("Telnet or TNC, and ports…",), dialog="Connection"),
            Picture("tnc", ("Script for the TNC…",), dialog="TNC"),
            Picture("columns", ("Columns…",), dialog="DX Spots"),
            Picture("spot-log", ("Spot log…",), dialog="Dx Spot Log File "),
            Picture("rejects", ("Rejects…",), dialog="Reject spots"),
            Picture("corrections", ("Corrections…",), dialog="Fix Spots"),
            Picture("colours", ("Colours and fonts…",), dialog="Color and Font Selection"),
            Picture("keys", ("key:ctrl+question",), dialog="Keys"),
            Picture("manual", ("key:alt+1", "key:F1"), dialog="Manual"),
            Picture("raw-view", ("key:F9",)),
        ),
    ),
    Evening(
        settings=OPERATOR + DARK_AND_EXPANDED,
        dialect="ar", spots="ar.txt", files=FILES,
        pictures=(
            Picture("window-dark", ("key:ctrl+6",)),
            Picture("dx-expanded-dark", ("key:ctrl+0",)),
        ),
    ),
    Evening(
        pictures=(Picture("first-start", dialog="User information"),),
    ),
)
