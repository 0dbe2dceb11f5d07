"""Arranges set lists on the built program from nothing: one with the keyboard alone, one with the mouse alone; saves
them, finds them again at the next start, and mends one whose songs have gone to another folder.
"""

from rig import accessibility as tree
from rig import flow, screen, songs
from rig.manager import Manager
from rig.stage import Stage
from rig.waiting import holds_for, wait_for

GROUP = "Abend > Гости"
FIRST, SECOND = "First Set", "Второй"

# Typed, quoted and in one go. Before a song's name ">" stands for a folder's end, and the last one is missing.
EVENING = ["Harbour Tone.wav", "Low > High.wav", "Two  Blanks.wav", "Zwölf Räder.wav", "Gone.wav"]
EVENING_SHOWN = ["Harbour Tone.wav", " High.wav", "Two  Blanks.wav", "Zwölf Räder.wav", "Gone.wav"]
SPARE = "Spare.wav"  # what the missing song is renamed to
NIGHT = ["It's 5 o'clock.wav", "Last One.wav", "Éclair & Tonnerre.wav", "Νύχτα.wav", "Ночь.wav"]  # as choosers sort

GROUP_PROMPT = ("Create A Group Of Playlists ", "Enter the name of the group of play lists")
SET_PROMPT = ("Create A Set List", "Enter the name of the song play list")
RENAME_PROMPT = ("Enter property", "Enter the new folder name")


class Music:
    """Folders of short songs in the operator's home."""

    def __init__(self, home):
        self.home, self.evening, self.night = home, home / "Abend Lieder", home / "Nacht > Musik"
        for folder, names in ((self.evening, [*EVENING[:-1], SPARE]), (self.night, NIGHT)):
            folder.mkdir()
            for name in names:
                songs.write_wave(folder / name, 440, 0.3)


def songs_below(playlist, names):
    return ["  " + playlist, *("    " + name for name in names)]


def listed(names):
    return [[str(number), "Not found" if name == "Gone.wav" else "Found", "00:00", name]
            for number, name in enumerate(names, 1)]


class Keys:
    """The first set lists, made with the keyboard alone."""

    def __init__(self, stage, music):
        self.stage, self.manager, self.music = stage, Manager(stage), music

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

    def types_five_songs(self, rig):
        screen.press("a")
        self.stage.wait_for_dialog("Create Set Lists")
        print([e.name for e in tree.elements(self.stage.program.find("dialog","Create Set Lists")) if e.getRoleName()=="combo box"])
        text = " ".join(f'"{self.music.evening / name}"' for name in EVENING)
        screen.type_text(text)
        self.stage.wait_for_text("Song File Names:", text)
        rig.picture("Create-Set-Lists-filled-in")
        screen.press("Tab", "space")
        self.manager.wait_for_outline(GROUP, *songs_below(FIRST, EVENING_SHOWN), "  " + SECOND)

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
        self.manager.wait_for_outline(GROUP, *songs_below(FIRST, EVENING_SHOWN), *songs_below(SECOND, NIGHT))
        self.stage.press_tab_to("Create Set Lists", "OK")
        screen.press("Return")
        self.stage.wait_for_the_keys()
        self.stage.wait_for_rows(listed(NIGHT))


def perform(rig):
    music = Music(rig.home)
    screen.offer_letters("us", "ru", "de")
    stage = Stage(rig.start(), rig.listener)
    keys = Keys(stage, music)
    steps = (
        (keys.starts_from_nothing, "starts with an empty document"),
        (keys.makes_a_group_and_two_playlists, "makes a group and two playlists"),
        (lambda: keys.types_five_songs(rig), "types the names of five songs"),
        (keys.finds_five_more, "finds five more"),
    )
    for action, sentence in steps:
        rig.step(sentence)
        action()
        rig.picture(sentence.split(",")[0].replace(" ", "-"))


if __name__ == "__main__":
    flow.run(perform)
