"""A whole evening on the built program: the document is opened and the window arranged, the sets play by themselves with
their words, the stage sees the live view; and at the next start everything stands as it was left.
"""

import pyatspi

from rig import accessibility as tree
from rig import flow, screen, songs
from rig.stage import Stage
from rig.waiting import holds_for, wait_for

WHITE = (255, 255, 255)
RED, GREEN, AMBER = (255, 0, 0), (0, 255, 0), (255, 191, 0)  # played, playing, next

WORDS = ["M: The tide comes in,", "F: the boats begin."]
PANES = ["Play List Manager", "Properties", "Windows Media Player", "Brevant Information & Lyrics"]

WARM_UP = "Warm Up - Total Playlist Time: 00:08"
EVENING = "Evening Set - Total Playlist Time: 00:26"  # 3 + 8 seconds and a gap of 15


class Music:
    def __init__(self, folder):
        folder.mkdir()
        self.document = folder / "Evening.brv"
        scales, tide, boats = folder / "Scales.mid", folder / "Tide.wav", folder / "Boats.mp3"
        songs.write_midi(scales, 57, 8.2)
        songs.write_wave(tide, 440, 3.4)
        songs.write_lyrics(tide, [(0, WORDS[0]), (2000, WORDS[1])])
        songs.write_mp3(boats, 660, 8.2)
        songs.write_document(self.document, [
            ("Band", "Warm Up", scales, "00:08"),
            ("Band", "Evening Set", tide, "00:03"),
            ("Band", "Evening Set", boats, "00:08"),
        ])


class Evening:
    def __init__(self, rig):
        self.rig = rig
        self.music = Music(rig.scratch / "set lists")
        self.stage = None
        self.left = {}  # what the window showed when the evening ended

    def begin(self):
        self.stage = Stage(self.rig.start(), self.rig.listener)
        self.stage.dismiss_the_about_box()

    def wait_for_the_document(self):
        wait_for("the title", lambda: screen.active_window_title() == "Evening.brv - Brevant")

    def opens_the_document(self):
        self.begin()
        screen.press("ctrl+o")
        self.stage.wait_for_dialog("Open")
        screen.type_text(str(self.music.document))
        screen.press("Return")
        self.wait_for_the_document()
        wait_for("the first set", lambda: self.stage.header() == WARM_UP)

    def pane_areas(self):
        """Where each pane that is shown lies, by its title."""
        found = {title: self.stage.program.find("frame", title) for title in PANES}
        return {title: tree.area(pane) for title, pane in found.items() if pane is not None}

    def is_on(self, option):
        """The option's button looks pressed."""
        return self.stage.program.wait_for("check box", option).getState().contains(pyatspi.STATE_CHECKED)

    def wait_for_panes(self, *titles):
        wait_for(f"the panes {titles} and no others", lambda: set(self.pane_areas()) == set(titles), 5)

    def arranges_the_window(self):
        window = screen.active_window()
        screen.place_window(window, 40, 50, 1200, 760)
        wait_for("the window's size", lambda: screen.window_area(window)[2:] == (1200, 760), 5)
        # The playlist gets some of what the panes below it have.
        normal = self.pane_areas()
        x, y, width, _ = normal["Windows Media Player"]
        with screen.drag((x + width // 2, y - 3), (x + width // 2, y + 17)):
            pass
        wait_for("lower panes", lambda: self.pane_areas() != normal, 5)

    def turns_on_what_plays_by_itself(self):
        assert not self.is_on("Auto Play")
        screen.press("ctrl+u")
        wait_for("Auto Play to be on", lambda: self.is_on("Auto Play"))

    def plays_a_set_with_words(self):
        screen.press("Right")
        wait_for("the second set", lambda: self.stage.header() == EVENING)
        screen.press("p")
        self.stage.wait_to_hear(440)
        self.stage.wait_for_colours(GREEN, AMBER)
        wait_for("the song's words", lambda: self.stage.message_lines() == WORDS, 5)

    def hears_the_next_song_by_itself(self):
        self.stage.wait_to_hear(660, seconds=8)
        self.stage.wait_for_colours(RED, GREEN)

    def goes_to_live_view_and_back(self):
        normal = self.pane_areas()
        screen.press("Home")
        self.wait_for_panes()
        self.stage.wait_for_colours(RED, GREEN)
        assert self.rig.listener.sounds(660), "the song does not go on in live view"
        screen.press("Home")
        self.wait_for_panes(*normal)
        assert self.pane_areas() == normal, (self.pane_areas(), normal)

    def leaves_in_live_view(self):
        screen.press("s")
        self.stage.wait_for_silence()
        self.left["panes"] = self.pane_areas()
        screen.press("Home")
        self.wait_for_panes()
        self.left["window"] = screen.window_area(screen.active_window())
        self.rig.picture("the-live-view")
        screen.press("alt+F4")
        status = self.stage.program.exit_status()
        assert status == 0, f"the program ended with status {status}"

    def finds_everything_again(self):
        self.begin()
        self.wait_for_the_document()
        self.stage.wait_for_colours(GREEN)
        self.wait_for_panes()
        assert screen.window_area(screen.active_window()) == self.left["window"], self.left
        assert self.is_on("Auto Play")
        self.rig.picture("the-next-start")
        screen.press("Home")
        self.wait_for_panes(*self.left["panes"])
        assert self.pane_areas() == self.left["panes"], (self.pane_areas(), self.left)
        screen.press("Home")
        screen.press("alt+f", "x")
        status = self.stage.program.exit_status()
        assert status == 0, f"the second run ended with status {status}"


def perform(rig):
    evening = Evening(rig)
    steps = (
        (evening.opens_the_document, "opens the document from an empty window"),
        (evening.arranges_the_window, "arranges the window"),
        (evening.turns_on_what_plays_by_itself, "turns on what plays by itself"),
        (evening.plays_a_set_with_words, "plays a set, with words"),
        (evening.hears_the_next_song_by_itself, "hears the next song by itself"),
        (evening.goes_to_live_view_and_back, "goes to live view and back"),
        (evening.leaves_in_live_view, "leaves in live view"),
        (evening.finds_everything_again, "finds everything again at the next start"),
    )
    rig.take(steps)


if __name__ == "__main__":
    flow.run(perform)
