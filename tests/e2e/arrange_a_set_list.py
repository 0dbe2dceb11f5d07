"""Arranges a set list on the built program from nothing and with the keyboard alone: a group, two playlists and ten
songs, named anew, moved, duplicated and removed; saves it, is asked about a change, and finds all of it at the next start.
"""

from rig import flow, screen
from rig.manager import Manager
from rig.set_lists import GROUP_PROMPT, NIGHT, RENAME_PROMPT, SET_PROMPT, Music, entries, listed, shown
from rig.stage import Stage
from rig.waiting import wait_for

GROUP = "Abend > Гости"
FIRST, SECOND = "First Set", "Второй"

LOST = "Gone.wav"  # typed although there is no such file
TYPED = ["Harbour Tone.wav", "Low > High.wav", "Two  Blanks.wav", "Zwölf Räder.wav", LOST]
TYPED_SHOWN = shown(TYPED)


class Keyboard:
    """What the operator does without the mouse."""

    def __init__(self, rig, music):
        self.rig, self.music = rig, music
        self.begin()

    def begin(self):
        self.stage = Stage(self.rig.start(), self.rig.listener)
        self.manager = Manager(self.stage)

    def rows_of(self, names):
        return listed(names, lost=[LOST])

    def starts_from_nothing(self):
        self.stage.dismiss_the_about_box()
        assert screen.active_window_title() == "Brevant", screen.active_window_title()
        assert self.manager.outline() == [], self.manager.outline()

    def makes_a_group_and_two_playlists(self):
        screen.press("g")
        self.stage.enter_text(*GROUP_PROMPT, GROUP)
        self.manager.wait_for_outline(GROUP)
        for name in (FIRST, SECOND):
            screen.press("ctrl+l")
            self.stage.enter_text(*SET_PROMPT, name)
            self.manager.wait_for_selected(name)
        self.manager.wait_for_outline(GROUP, "  " + FIRST, "  " + SECOND)

    def types_five_songs(self):
        screen.press("a")
        self.stage.wait_for_dialog("Create Set Lists")
        text = " ".join(f'"{self.music.evening / name}"' for name in TYPED)
        screen.type_text(text)
        self.stage.wait_for_text("Song File Names:", text)
        self.rig.picture("Create-Set-Lists-filled-in")
        screen.press("Tab", "space")
        self.manager.wait_for_outline(GROUP, *entries(FIRST, TYPED_SHOWN), "  " + SECOND)

    def finds_five_more(self):
        # From "Create" back to the list of playlists.
        screen.press("shift+Tab", "shift+Tab", "shift+Tab", "shift+Tab", "Down")
        self.stage.program.wait_for("combo box", SECOND)
        screen.press("alt+s")
        self.stage.wait_for_dialog("Find Songs")
        screen.type_text(self.music.night.name)
        screen.press("Return")
        self.stage.program.wait_for("combo box", str(self.music.night))
        self.stage.wait_for_text("File name:", "")
        screen.press("shift+Tab")
        self.stage.wait_for_focus("tree", "Files")
        screen.press("ctrl+a", "Return")
        self.stage.wait_for_dialog("Create Set Lists")
        self.stage.press_tab_to("Create Set Lists", "Create")
        screen.press("space")
        self.manager.wait_for_outline(GROUP, *entries(FIRST, TYPED_SHOWN), *entries(SECOND, NIGHT))
        self.stage.press_tab_to("Create Set Lists", "OK")
        screen.press("Return")
        self.stage.wait_for_the_keys()
        self.stage.wait_for_rows(self.rows_of(NIGHT))

    def renames_with_ctrl_r(self):
        self.stage.wait_for_rows(self.rows_of(NIGHT))
        self.manager.focus()
        self.walk_to(SECOND, "Up")
        self.rename_to("Second Set")
        self.walk_to(LOST, "Up")
        self.rename_to("Spare.wav")
        self.manager.wait_for_outline(GROUP, *entries(FIRST, [*TYPED_SHOWN[:-1], "Spare.wav"]),
                                      *entries("Second Set", NIGHT))
        # Its file is looked for under the new name, and is there.
        screen.press("F3", "Left")
        self.stage.wait_for_rows(self.rows_of([*TYPED_SHOWN[:-1], "Spare.wav"]))

    def expect_first(self, songs_of_it):
        self.manager.wait_for_outline(GROUP, *entries(FIRST, songs_of_it), "  Second Set")
        self.stage.wait_for_rows(self.rows_of(songs_of_it))

    def rename_to(self, name):
        screen.press("ctrl+r")
        assert self.stage.enter_text(*RENAME_PROMPT, name) == ""
        self.manager.wait_for_selected(name)

    def walk_to(self, name, key):
        for _ in range(20):
            at = self.manager.selected()
            if at == name:
                return
            screen.press(key)
            wait_for("the next entry to be selected", lambda: self.manager.selected() not in (None, at), 5)
        raise AssertionError(f"{key} leads to no {name!r}")

    def moves_songs_in_the_playlist(self):
        screen.press("m", "ctrl+m", "ctrl+m", "shift+m")
        self.expect(FIRST, [" High.wav", "Harbour Tone.wav", "Two  Blanks.wav", "Zwölf Räder.wav", "Spare.wav"],
                    "Second Set", NIGHT)
        self.stage.wait_for_selected_rows(1)
        screen.press("ctrl+m", "ctrl+m", "ctrl+m", "ctrl+m")  # once more than there are places
        self.expect(FIRST, [" High.wav", "Two  Blanks.wav", "Zwölf Räder.wav", "Spare.wav", "Harbour Tone.wav"],
                    "Second Set", NIGHT)

    def expect(self, first, first_songs, second, second_songs):
        self.manager.wait_for_outline(GROUP, *entries(first, first_songs), *entries(second, second_songs))
        self.stage.wait_for_rows(self.rows_of(first_songs))

    def moves_entries_in_the_tree(self):
        self.manager.focus()
        self.manager.wait_for_selected("Harbour Tone.wav")
        for _ in range(2):
            screen.press("shift+Up")
        self.expect(FIRST, [" High.wav", "Two  Blanks.wav", "Harbour Tone.wav", "Zwölf Räder.wav", "Spare.wav"],
                    "Second Set", NIGHT)
        screen.press("shift+Down", "shift+Down")
        kept = [" High.wav", "Two  Blanks.wav", "Zwölf Räder.wav", "Spare.wav", "Harbour Tone.wav"]
        self.expect(FIRST, kept, "Second Set", NIGHT)
        # The last song has none of its kind below it: it stays, and so does the selection.
        screen.press("shift+Down", "shift+Down")
        self.manager.wait_for_selected("Harbour Tone.wav")
        self.expect(FIRST, kept, "Second Set", NIGHT)

        # Folded, the playlists stand one below the other.
        self.walk_to("Second Set", "Down")
        screen.press("Left")
        self.manager.wait_for_outline(GROUP, *entries(FIRST, kept), "  Second Set")
        self.walk_to(FIRST, "Up")
        screen.press("Left")
        self.manager.wait_for_outline(GROUP, "  " + FIRST, "  Second Set")
        screen.press("shift+Down")
        self.manager.wait_for_outline(GROUP, "  Second Set", "  " + FIRST)
        self.manager.wait_for_selected(FIRST)
        self.stage.wait_for_rows(self.rows_of(kept))
        screen.press("shift+Up")
        self.manager.wait_for_outline(GROUP, "  " + FIRST, "  Second Set")
        screen.press("Right")
        self.manager.wait_for_outline(GROUP, *entries(FIRST, kept), "  Second Set")

    def duplicates_and_removes(self):
        self.walk_to("Two  Blanks.wav", "Down")
        screen.press("ctrl+d")
        kept = [" High.wav", "Two  Blanks.wav", "Zwölf Räder.wav", "Spare.wav", "Harbour Tone.wav"]
        self.expect_first([*kept, "Two  Blanks.wav"])
        self.walk_to("Zwölf Räder.wav", "Up")

        for answer, left in (("Return", [*kept, "Two  Blanks.wav"]),
                             ("y", [*kept[:2], *kept[3:], "Two  Blanks.wav"])):
            screen.press("Delete")
            self.stage.wait_for_question("Are you sure you want to remove file: Zwölf Räder.wav")
            screen.press(answer)
            self.stage.wait_for_the_keys()
            self.expect_first(left)

        # The playlist's rows go unasked. The current song's is the one that was first in the beginning.
        screen.press("F3", "m", "Delete")
        self.expect_first([" High.wav", "Two  Blanks.wav", "Spare.wav", "Two  Blanks.wav"])

    def saves(self):
        screen.press("ctrl+s")
        self.stage.wait_for_dialog("Save As")
        screen.press("ctrl+a")
        screen.type_text("Abend mit Gästen")
        self.stage.wait_for_text("File name:", "Abend mit Gästen")
        screen.press("Return")
        wait_for("the title", lambda: screen.active_window_title() == "Abend mit Gästen.brv - Brevant")
        assert (self.music.home / "Abend mit Gästen.brv").is_file()

    def is_asked_about_a_change(self):
        self.manager.focus()
        self.walk_to("Second Set", "Down")
        screen.press("ctrl+d")
        songs_left = [" High.wav", "Two  Blanks.wav", "Spare.wav", "Two  Blanks.wav"]
        self.manager.wait_for_outline(GROUP, *entries(FIRST, songs_left), "  Second Set", "  Second Set")
        # A document tells playlists by their names: two of one name would come back as one.
        self.rename_to("Late Set")
        wait_for("the modified mark", lambda: screen.active_window_title() == "Abend mit Gästen.brv* - Brevant")
        for answer in ("Escape", "Return"):
            screen.press("alt+F4")
            self.stage.wait_for_question("Save changes to Abend mit Gästen.brv?")
            screen.press(answer)
            if answer == "Escape":
                self.stage.wait_for_the_keys()
                assert screen.active_window_title() == "Abend mit Gästen.brv* - Brevant"
        status = self.stage.program.exit_status()
        assert status == 0, f"the program ended with status {status}"

    def finds_everything_again(self):
        self.begin()
        self.stage.dismiss_the_about_box()
        wait_for("the title", lambda: screen.active_window_title() == "Abend mit Gästen.brv - Brevant")
        songs_left = [" High.wav", "Two  Blanks.wav", "Spare.wav", "Two  Blanks.wav"]
        self.stage.wait_for_rows(self.rows_of(songs_left))
        self.manager.wait_for_outline(GROUP)
        self.manager.focus()
        screen.press("Down")
        self.manager.wait_for_selected(GROUP)
        screen.press("asterisk")
        self.manager.wait_for_outline(GROUP, *entries(FIRST, songs_left), *entries("Second Set", NIGHT),
                                      *entries("Late Set", NIGHT))
        screen.press("F3", "Right", "Right")
        self.stage.wait_for_rows(self.rows_of(NIGHT))
        screen.press("Left", "Left")
        self.stage.wait_for_rows(self.rows_of(songs_left))


def perform(rig):
    screen.offer_letters("us", "ru", "de")
    keyboard = Keyboard(rig, Music(rig.home))
    steps = (
        (keyboard.starts_from_nothing, "starts from nothing"),
        (keyboard.makes_a_group_and_two_playlists, "makes a group and two playlists"),
        (keyboard.types_five_songs, "types the names of five songs"),
        (keyboard.finds_five_more, "finds five more"),
        (keyboard.renames_with_ctrl_r, "renames a playlist and a song"),
        (keyboard.moves_songs_in_the_playlist, "moves songs in the playlist"),
        (keyboard.moves_entries_in_the_tree, "moves songs and playlists in the tree"),
        (keyboard.duplicates_and_removes, "duplicates and removes"),
        (keyboard.saves, "saves"),
        (keyboard.is_asked_about_a_change, "is asked about a change when it closes"),
        (keyboard.finds_everything_again, "starts again and finds everything"),
    )
    rig.take(steps)


if __name__ == "__main__":
    flow.run(perform)
