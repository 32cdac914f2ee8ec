"""Takes the pictures of pictures.py from the running client. Started by tools/make_pictures.sh:

    make.py BUILD WORK FOLDER

BUILD holds the client and the practice node, WORK is a folder for their files, FOLDER gets the PNGs.
It drives the client by the names that a screen reader says. The wall clock stands still for both
programs, so that a picture differs from its last one where the program does, and in the seconds of
the link.
"""

import os
import subprocess
import sys
import time
from pathlib import Path

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

from pictures import EVENINGS  # noqa: E402

NOW = "2026-11-21 21:50:00"
PATIENCE = 20  # seconds that anything may take to show
LINES_A_SECOND = 25
REST = 0.3  # seconds
CARET_AND_SECONDS = 4000  # bytes that change with them, three a pixel
RAW_VIEW = "Raw view: all text from and to the node"
FAKE_TIME = "/usr/lib/{}/faketime/libfaketime.so.1"
HERE = Path(__file__).parent


def wait_for(what, attempt):
    """What the attempt gives, as soon as it gives something."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            found = attempt()
            if found:
                return found
        except GLib.Error:  # what was looked at has just gone
            pass
        time.sleep(0.05)
    sys.exit(f"Gave up waiting for {what}.")


def output_of(*command, **more):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, **more).stdout


def clock_that_stands():
    machine = output_of("dpkg-architecture", "-qDEB_HOST_MULTIARCH", text=True).strip()
    return {"LD_PRELOAD": FAKE_TIME.format(machine), "FAKETIME": NOW,
            "FAKETIME_DONT_FAKE_MONOTONIC": "1"}


def start(build, program, arguments=(), **environment):
    return subprocess.Popen([build / program, *arguments], stdout=subprocess.PIPE, text=True,
                            env=os.environ | clock_that_stands() | environment)


def start_node(build, evening):
    """The node that serves an evening, and its port."""
    node = start(build, "tools/practice_node/molva-practice-node",
                 ("--port", "0", "--dialect", evening.dialect, "--rate", str(LINES_A_SECOND),
                  "--play", HERE / evening.spots))
    return node, node.stdout.readline().split()[2].rpartition(":")[2]


def write_folder(folder, evening, port):
    folder.mkdir()
    settings = evening.settings + (("SelectedNode", "N0DE-1"),
                                   ("SelectedNodesAddress", "127.0.0.1"), ("PrimaryPort", port))
    files = evening.files | {"molva.cfg": [f'"{key}","{value}"' for key, value in settings]}
    for name, lines in files.items():
        (folder / name).write_text("".join(line + "\r\n" for line in lines), newline="")


def is_usable(control):
    """An entry of a closed menu is, though it is not on show."""
    states = control.get_state_set()
    entry = control.get_role() in (Atspi.Role.MENU_ITEM, Atspi.Role.CHECK_MENU_ITEM)
    return states.contains(Atspi.StateType.ENABLED) and (
        entry or states.contains(Atspi.StateType.SHOWING))


class Client:
    """The running client, by its spoken names."""

    def __init__(self, process):
        self.process = process
        self.root = wait_for("the client", self._application)

    def _application(self):
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            each = desktop.get_child_at_index(i)
            if each and each.get_name() == "molva-desk" and each.get_child_count() > 0:
                return each
        return None

    def find(self, name):
        """The control on show, or the menu entry, of that name; nothing if there is none."""
        return self._below(self.root, name)

    def _below(self, parent, name):
        for i in range(parent.get_child_count()):
            child = parent.get_child_at_index(i)
            if child is None:
                continue
            if child.get_name() == name and is_usable(child):
                return child
            found = self._below(child, name)
            if found:
                return found
        return None

    def do(self, step):
        kind, _, key = step.partition(":")
        if kind == "key":
            subprocess.run(["xdotool", "windowfocus", windows()[-1], "key", key], check=True)
        else:
            Atspi.Action.do_action(wait_for(step, lambda: self.find(step)), 0)

    def raw_text(self):
        view = self.find(RAW_VIEW)
        return Atspi.Text.get_text(view, 0, Atspi.Text.get_character_count(view))

    def wait_for_spots(self, lines):
        """Until the last of these has come: the login is through by then."""
        last = lines[-1]
        call = last.split("^")[3] if "^" in last else last.split()[4]
        wait_for("the last spot", lambda: call in self.raw_text())


def windows(title=""):
    """The visible windows of the client, or those of that title; the topmost is the last."""
    which = ("--name", f"^{title}$") if title else ("--class", "molva-desk")
    found = subprocess.run(["xdotool", "search", "--onlyvisible", *which],
                           stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False)
    return found.stdout.split()


def pixels_of(window):
    """Of a window that has come to rest: all that changes in it is a caret and the seconds."""
    def at_rest():
        before = output_of("import", "-window", window, "ppm:-")
        time.sleep(REST)
        after = output_of("import", "-window", window, "ppm:-")
        changed = sum(a != b for a, b in zip(before, after))
        return after if len(after) == len(before) and changed <= CARET_AND_SECONDS else None
    return wait_for("a window at rest", at_rest)


def save(pixels, file):
    """With 256 colours, which is what a window has, and nothing that differs from time to time."""
    png = output_of("convert", "ppm:-", "-define", "png:exclude-chunks=all", "png:-", input=pixels)
    file.write_bytes(output_of("pngquant", "--nofs", "--strip", "--speed", "1", "-", input=png))


def opened(picture, before):
    """The window that the steps of the picture have opened."""
    if picture.dialog:
        return wait_for(picture.dialog, lambda: windows(picture.dialog))[-1]
    return wait_for(picture.name, lambda: [each for each in windows() if each not in before])[-1]


def take(client, picture, folder):
    before = windows()
    for step in picture.steps:
        client.do(step)
    own = opened(picture, before) if picture.dialog or picture.panel else None
    save(pixels_of(own if picture.dialog else "root"), folder / f"{picture.name}.png")
    print(picture.name, flush=True)
    if own:
        client.do("key:Escape")
        wait_for("its end", lambda: own not in windows())


def end(process):
    process.terminate()
    process.wait(PATIENCE)


def spend(evening, build, home, folder):
    node, port = start_node(build, evening) if evening.dialect else (None, "")
    if node:
        write_folder(home, evening, port)
    process = start(build, "src/molva-desk", MOLVA_HOME=str(home))
    try:
        client = Client(process)
        if node:
            client.wait_for_spots((HERE / evening.spots).read_text().splitlines())
        for picture in evening.pictures:
            take(client, picture, folder)
    finally:
        end(process)
        if node:
            end(node)


def main():
    build, work, folder = (Path(each).resolve() for each in sys.argv[1:])
    for number, evening in enumerate(EVENINGS):
        spend(evening, build, work / f"folder-{number}", folder)


main()
