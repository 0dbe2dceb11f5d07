"""A second start hands its document to the program that runs, is refused while a dialog is open there, and only brings
the window forward without a document. The guide, opened beside the window, keeps the program from nothing.
"""

import os
import subprocess

from rig import flow, screen, songs
from rig.stage import Stage
from rig.waiting import wait_for

GUIDE = "Performing - Help"


def make_the_document(folder, name, song):
    tone = folder / song
    songs.write_wave(tone, 440, 5)
    songs.write_document(folder / name, [("Band", "Set", tone, "00:05")])


def start_again(rig, folder, *arguments):
    """(exit status, what it said on stderr) of a second start with the first one's home, in `folder`."""
    environment = dict(os.environ, HOME=str(rig.home), XDG_CONFIG_HOME=str(rig.home / "config"), LC_ALL="C.UTF-8")
    ended = subprocess.run([str(rig.binary), *arguments], env=environment, cwd=folder, stdin=subprocess.DEVNULL,
                           stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True, timeout=20, check=False)
    return ended.returncode, ended.stderr


def titles():
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "Brevant", "getwindowname", "%@"],
                           check=False, capture_output=True, text=True)
    return found.stdout.splitlines()


def wait_for_title(title):
    wait_for(f"the window {title!r}", lambda: title in titles(), 10)


def perform(rig):
    folder = rig.scratch / "set lists"
    folder.mkdir()
    make_the_document(folder, "First.brv", "One.wav")
    make_the_document(folder, "Second #2 100%.brv", "Two.wav")
    program = rig.start(folder / "First.brv")
    stage = Stage(program, rig.listener)
    stage.dismiss_the_about_box()
    wait_for_title("First.brv - Brevant")

    rig.step("a second start, with a name seen from its own folder, opens the document in the first and ends")
    assert start_again(rig, folder, "Second #2 100%.brv") == (0, "")
    wait_for_title("Second #2 100%.brv - Brevant")
    assert len(titles()) == 1, titles()
    rig.picture("second-document")

    rig.step("while a dialog is open it is refused, and says so")
    screen.press("v")
    stage.wait_for_dialog("Enter property")
    status, said = start_again(rig, folder, "First.brv")
    assert status == 1 and "has a dialog open" in said, (status, said)
    wait_for("the status bar to say so",
             lambda: stage.status() == "Not opened while a dialog is open: First.brv", 5)
    rig.picture("refused")
    screen.press("Escape")
    stage.wait_for_the_keys()
    wait_for_title("Second #2 100%.brv - Brevant")

    rig.step("without a document it only comes forward, from behind the guide too")
    screen.press("F1")
    wait_for("the guide to have the keys", lambda: screen.active_window_title() == GUIDE)
    rig.picture("guide")
    assert start_again(rig, folder) == (0, "")
    stage.wait_for_the_keys()

    rig.step("the guide is open, and the program ends with its window")
    screen.press("alt+F4")
    assert program.exit_status() == 0


if __name__ == "__main__":
    flow.run(perform)
