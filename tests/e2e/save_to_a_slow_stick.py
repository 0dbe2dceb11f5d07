"""Saves to a stick that takes seconds: the window goes on meanwhile, the star in the title says when it is done, and the
end of the program waits for it, with the window gone. A start meanwhile waits for that end and finds what was saved.
"""

import sys
import time

from rig import flow, screen, songs
from rig.stage import Stage
from rig.waiting import wait_for

SLOW = 2  # seconds for the document, and as many for its folder
SONGS = ("One.wav", "Two.wav", "Three.wav")


class Stick:
    def __init__(self, rig):
        self.rig = rig
        self.folder = rig.scratch / "stick"
        self.folder.mkdir()
        self.document = self.folder / "Show.brv"
        for place, name in enumerate(SONGS):
            songs.write_wave(rig.scratch / name, 440 + 110 * place, 5)
        songs.write_document(self.document, [("Band", "Set", rig.scratch / name, "00:05") for name in SONGS])
        self.start()

    def start(self):
        self.program = self.rig.start(self.document, LD_PRELOAD=sys.argv[3], BREVANT_SLOW_FOLDER=str(self.folder),
                                      BREVANT_SLOW_SECONDS=str(SLOW))
        self.stage = Stage(self.program, self.rig.listener)
        self.stage.dismiss_the_about_box()
        self.wait_for_title("Show.brv - Brevant")

    def wait_for_title(self, title):
        wait_for(f"the title {title!r}", lambda: screen.active_window_title() == title, 15)

    def order(self):
        return songs.names_in(self.document)

    def recovered(self):
        return sorted(self.rig.home.glob("state/**/*.brv"))

    def moves_the_first_song_down(self):
        screen.press("m", "ctrl+m")
        self.wait_for_title("Show.brv* - Brevant")

    def saves_and_goes_on(self):
        self.moves_the_first_song_down()
        before = self.order()
        colours = self.stage.colours()
        begun = time.time()
        screen.press("ctrl+s", "Down")
        wait_for("the next song to be green", lambda: self.stage.colours() != colours, 5)
        assert self.order() == before and time.time() - begun < SLOW, "the stick was not slow, or the window waited"
        assert screen.active_window_title() == "Show.brv* - Brevant", screen.active_window_title()
        self.wait_for_title("Show.brv - Brevant")
        assert self.order() == ["Two.wav", "One.wav", "Three.wav"], self.order()

    def leaves_while_it_saves(self):
        screen.press("Up", "Up")
        self.moves_the_first_song_down()
        screen.press("ctrl+s", "alt+F4")
        wait_for("the window to go", lambda: not screen.active_window_title().endswith("Brevant"), 3)
        assert self.program.running(), "the program did not wait for the stick"
        first = self.program
        self.start()
        names = [row[-1] for row in self.stage.rows()]
        assert names == ["One.wav", "Two.wav", "Three.wav"], f"the next start shows {names}"
        assert first.exit_status() == 0
        assert self.order() == ["One.wav", "Two.wav", "Three.wav"], self.order()
        assert self.recovered() == [], self.recovered()

    def leaves(self):
        screen.press("alt+F4")
        assert self.program.exit_status() == 0


def perform(rig):
    stick = Stick(rig)
    rig.take((
        (stick.saves_and_goes_on, "saves, and goes on meanwhile"),
        (stick.leaves_while_it_saves, "leaves while it saves, and starts again"),
        (stick.leaves, "leaves"),
    ))


if __name__ == "__main__":
    flow.run(perform)
