"""The display goes in the middle of an edit: the program ends, and what was not saved lies in the recovery folder."""

import os
import signal

from rig import flow, screen, songs
from rig.stage import Stage
from rig.waiting import wait_for

SONGS = ("One.wav", "Two.wav")


class Evening:
    def __init__(self, rig):
        self.rig = rig
        self.document = rig.scratch / "Show.brv"
        for place, name in enumerate(SONGS):
            songs.write_wave(rig.scratch / name, 440 + 110 * place, 5)
        songs.write_document(self.document, [("Band", "Set", rig.scratch / name, "00:05") for name in SONGS])
        self.program = rig.start(self.document)
        Stage(self.program, rig.listener).dismiss_the_about_box()
        self.wait_for_title("Show.brv - Brevant")

    def wait_for_title(self, title):
        wait_for(f"the title {title!r}", lambda: screen.active_window_title() == title, 15)

    def moves_a_song(self):
        screen.press("m", "ctrl+m")
        self.wait_for_title("Show.brv* - Brevant")

    def loses_the_display(self):
        os.kill(int(os.environ["BREVANT_STAGE_SERVER"]), signal.SIGKILL)
        status = self.program.exit_status()
        assert status == 1, f"the program ended with {status}"

    def has_lost_nothing(self):
        assert songs.names_in(self.document) == ["One.wav", "Two.wav"]
        recovered = sorted(self.rig.home.glob("state/**/*.brv"))
        assert [copy.name for copy in recovered] == ["Show.brv"], recovered
        assert songs.names_in(recovered[0]) == ["Two.wav", "One.wav"]


def perform(rig):
    evening = Evening(rig)
    rig.take((
        (evening.moves_a_song, "moves a song"),
        (evening.loses_the_display, "loses the display"),
        (evening.has_lost_nothing, "has lost nothing"),
    ))


if __name__ == "__main__":
    flow.run(perform)
