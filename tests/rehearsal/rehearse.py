"""A random user at the built program for an hour, with accidents: rehearse.py BINARY WATCHDOG DRAG_SOURCE FOLDER MINUTES
SEED. Run by scripts/rehearse, which says what it is for; FOLDER/disk is a small disk that can be filled.
"""

import contextlib
import os
import pathlib
import random
import shutil
import signal
import subprocess
import sys
import time
import traceback

from rig import accessibility as tree
from rig import screen
from rig.manager import Manager
from rig.program import Program
from rig.stage import Stage
from rig.waiting import wait_for

import accidents
import acts
import editing
from hearing import SoundSystem
from journal import Journal
from judge import Judge
from material import Material
from pixels import Pixels
from summary import summarise
from watching import DiskWatch, LoopWatch, Memory
from window import Window

OPTIONS_THAT_MATTER = ("ctrl+k", "ctrl+e", "c")  # advance, immediate play, colours
HINDRANCES = (AssertionError, OSError, ValueError, subprocess.SubprocessError, *tree.VANISHED)


class Gone(Exception):
    """The program has ended, and nobody told it to."""


class Run:
    def __init__(self, binary, watchdog, drag_source, folder, minutes, seed):
        self.binary, self.drag_source, self.folder = binary, drag_source, folder
        self.minutes, self.seed, self.chance = minutes, seed, random.Random(seed)
        self.pixels = Pixels()
        self.journal = Journal(folder, self.pixels)
        self.disk, self.documents, home = folder / "disk", folder / "disk" / "documents", folder / "home"
        shutil.rmtree(home, ignore_errors=True)
        home.mkdir()
        self.documents.mkdir()
        (self.disk / "config").mkdir()
        (home / "config").symlink_to(self.disk / "config")
        self.recovery = home / "state" / "Korvel" / "Brevant" / "recovery"
        self.material = Material(folder / "material")
        self.material.put_back()
        print("making the songs ...", flush=True)
        self.material.make()
        self.document = self.documents / "Show.brv"
        self.material.write_document(self.document)
        self.journal.begun = time.time()
        screen.offer_letters("us")
        self.sound = SoundSystem(folder / "sound")
        log = folder / "watchdog.log"
        self.program = Program(binary, home, folder / "program.log", [self.document], LD_PRELOAD=str(watchdog),
                               BREVANT_WATCHDOG_LOG=str(log))
        self.environment = dict(os.environ, HOME=str(home), XDG_CONFIG_HOME=str(home / "config"),
                                XDG_STATE_HOME=str(home / "state"), LC_ALL="C.UTF-8")
        self.window = Window(self.program, self.pixels)
        self.stage = Stage(self.program, self.sound.ears)
        self.manager = Manager(self.stage)
        self.loop = LoopWatch(log, binary)
        self.memory = Memory(self.program.process.pid)
        self.disk_watch = DiskWatch((self.disk,))
        self.judge = Judge(self)
        self.act, self.document_in_danger, self.repeats = "the start", False, False
        self.stepped_from = None  # the header when a key for another playlist was pressed last
        self.turned, self.broken_until, self.sought_at, self.made, self.heard_right = set(), {}, 0.0, 0, 0

    # What acts ask of the run.

    @property
    def immediate_play(self):
        return "ctrl+e" not in self.turned

    @property
    def may_save_fail(self):
        return self.document_in_danger

    @contextlib.contextmanager
    def document_unsure(self):
        self.document_in_danger = True
        try:
            yield
        finally:
            self.document_in_danger = False

    def toggle(self, key):
        self.journal.press(key)
        if key in OPTIONS_THAT_MATTER:
            self.turned ^= {key}

    def sought(self):
        self.sought_at = time.time()

    def seeks_lately(self):
        return time.time() - self.sought_at < 15

    def breaks(self, song):
        """What is shown of the song is no failure until a while after it was put back."""
        self.broken_until[song.name] = time.time() + 20

    def broken_lately(self, song):
        return time.time() < self.broken_until.get(song.name, 0)

    def recovered(self):
        return sorted(self.recovery.glob("*.brv")) if self.recovery.is_dir() else []

    def empty_recovery(self):
        for copy in self.recovered():
            copy.unlink()

    def click(self, what, x, y, times=1):
        self.journal.line("mouse", f"clicks {what}")
        screen.click(x, y, times)

    def place_of_row(self, row):
        """Where to click a row; None when it is out of sight."""
        table = self.window.element("table", "Playlist")
        if table is None or row >= table.queryTable().nRows:
            return None
        left, top, width, height = tree.cell_area(table, row, 4)
        seen = screen.common_area((left, top, min(width, 80), height), tree.area(table))
        return (seen[0] + seen[2] // 2, seen[1] + seen[3] // 2) if seen[3] >= height // 2 > 0 else None

    def names_in_the_tree(self, songs):
        """Names of songs, or of groups and playlists, that are in sight in the tree and stand there once."""
        pane = self.window.element("tree", "Play List Manager")
        if pane is None:
            return []
        seen, names = tree.area(pane), []
        for element, _, name in self.manager.entries():
            _, top, _, height = tree.area(element)
            if name.strip() and (self.material.song(name) is not None) == songs and seen[1] < top < seen[1] + seen[3] - 2 * height:
                names.append(name)
        return sorted(name for name in set(names) if names.count(name) == 1)

    def select_in_tree(self, name):
        """False when the tree is just being scrolled, to a song that starts for one."""
        place = self.manager.label(name)
        time.sleep(0.3)
        if self.manager.label(name) != place:
            return False
        self.click(f"{name!r} in the tree", *place)
        self.manager.wait_for_selected(name)
        return True

    def rows_are_one_playlist(self, look):
        """No other playlist bears its name, as far as the document tells."""
        return look.playlist().startswith("Set ")

    def notes_the_playlist_it_leaves(self):
        """Another one becomes current next, maybe one without songs."""
        self.stepped_from = self.window.look().header

    def may_be_in_an_empty_playlist(self, look):
        """The rows of the last one stay on the screen there, and nothing can be started by Enter."""
        return self.made > 0 and look.header == self.stepped_from

    def title_of_a_prompt(self):
        title = wait_for("a prompt", lambda: next(iter(self.window.look().asking), None))
        wait_for("the prompt to have the keys", lambda: screen.active_window_title() == title.strip())
        return title

    def back_to_the_window(self):
        """Whatever is open is closed, without a change, until the main window has the keys."""
        for _ in range(8):
            asking = self.window.look().asking
            title = screen.active_window_title()
            if not asking and (title.endswith(" - Brevant") or title.rstrip("*") == "Brevant"):
                return
            if title.endswith("Help") and not asking:
                screen.press("alt+F4")
            elif asking or title:
                screen.press("Escape")
            time.sleep(0.3)
            if not self.window.look().asking:
                subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "Brevant$", "windowactivate"], check=False,
                               capture_output=True)
        self.journal.fail("no way back", f"{self.window.look()}")

    # The rehearsal itself.

    def do(self, act):
        self.act = act.__name__.replace("_", " ")
        self.journal.acts[self.act] += 1
        self.journal.line("act", self.act)
        try:
            act(self)
        except HINDRANCES as hindrance:
            self.check_it_runs()
            place = traceback.extract_tb(hindrance.__traceback__)[-1]
            self.journal.fail("did not come through", f"{self.act}: {hindrance!r} "
                              f"({os.path.basename(place.filename)}:{place.lineno})")
            self.back_to_the_window()
        self.check_it_runs()

    def check_it_runs(self):
        if not self.program.running():
            raise Gone(f"the program ended with status {self.program.process.returncode} during {self.act!r}")

    def perform(self):
        self.stage.dismiss_the_about_box()
        wait_for("the document", lambda: self.window.look().title == "Show.brv - Brevant")
        self.journal.press("ctrl+u")
        end, accident = time.time() + self.minutes * 60, time.time() + 20
        stage_acts, stage_weights = zip(*acts.STAGE)
        edits, edit_weights = zip(*editing.EDITS)
        mishaps, mishap_weights = zip(*accidents.ACCIDENTS)
        while time.time() < end:
            look = self.judge.look()
            self.journal.line("shows", str(look))
            if look.asking:
                continue
            if time.time() > accident:
                self.do(self.chance.choices(mishaps, mishap_weights)[0])
                accident = time.time() + self.chance.uniform(25, 75)
            elif self.chance.random() < 0.22:
                self.do(self.chance.choices(edits, edit_weights)[0])
            else:
                self.do(self.chance.choices(stage_acts, stage_weights)[0])
            time.sleep(min(4.0, self.chance.expovariate(1.6)))

    def leave(self):
        """The program is closed as a user would, and ends by itself."""
        self.back_to_the_window()
        self.journal.press("alt+F4")
        deadline = time.time() + 15
        while self.program.running() and time.time() < deadline:
            box = self.program.find("alert", "Brevant")
            discard = tree.find(box, "push button", "Discard") if box else None
            if discard:
                self.click("Discard", *tree.middle(discard))
            time.sleep(0.3)
        if self.program.running():
            self.journal.fail("does not end", "alt+F4 was pressed 15 s ago")
        elif self.program.process.returncode != 0:
            self.journal.fail("does not end", f"it ended with status {self.program.process.returncode}")

    def close(self):
        self.program.kill()
        self.disk_watch.close()
        self.sound.close()
        self.material.put_back()


def main():
    # Whoever ends it early gets its figures all the same; in the background a shell would have it ignore this.
    for early in (signal.SIGINT, signal.SIGTERM):
        signal.signal(early, signal.default_int_handler)
    binary, watchdog, drag_source, folder = (pathlib.Path(argument).resolve() for argument in sys.argv[1:5])
    run = Run(binary, watchdog, drag_source, folder, float(sys.argv[5]), int(sys.argv[6]))
    try:
        run.perform()
        run.leave()
        run.judge.news_of_the_watches()
    except Gone as gone:
        run.journal.fail("the program ended", str(gone))
    except (KeyboardInterrupt, Exception) as failure:
        traceback.print_exc()
        run.journal.fail("the rehearsal broke off", repr(failure))
    finally:
        run.close()
    sys.exit(summarise(run))


if __name__ == "__main__":
    main()
