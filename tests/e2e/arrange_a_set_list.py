"""Arranges set lists on the built program from nothing: one with the keyboard alone, one with the mouse alone; saves
them, finds them again at the next start, and mends one whose songs have gone to another folder.
"""

import sys

from rig import accessibility as tree
from rig import flow, screen, songs
from rig.manager import Manager
from rig.stage import Stage
from rig.waiting import holds_for, wait_for

WHITE = (255, 255, 255)

GROUP = "Abend > Гости"
FIRST, SECOND = "First Set", "Второй"

# Typed, quoted and in one go. Before a song's name ">" stands for a folder's end, and the last one is missing.
EVENING = ["Harbour Tone.wav", "Low > High.wav", "Two  Blanks.wav", "Zwölf Räder.wav", "Gone.wav"]
EVENING_SHOWN = ["Harbour Tone.wav", " High.wav", "Two  Blanks.wav", "Zwölf Räder.wav", "Gone.wav"]
SPARE = "Spare.wav"  # what the missing song is renamed to
NIGHT = ["It's 5 o'clock.wav", "Last One.wav", "Éclair & Tonnerre.wav", "Νύχτα.wav", "Ночь.wav"]  # as choosers sort

DAY = ["Harbour Tone.wav", "Low > High.wav", "Spare.wav", "Two  Blanks.wav", "Zwölf Räder.wav"]  # by the chooser
DAY_SHOWN = ["Harbour Tone.wav", " High.wav", "Spare.wav", "Two  Blanks.wav", "Zwölf Räder.wav"]

GROUP_PROMPT = ("Create A Group Of Playlists ", "Enter the name of the group of play lists")
SET_PROMPT = ("Create A Set List", "Enter the name of the song play list")
RENAME_PROMPT = ("Enter property", "Enter the new folder name")

TREE_MENU = ["Copy Song", "Paste", "Dublicate", "Remove", "Rename", "New Grouplist Folder", "New Playlist Folder",
             "Create Group List", "Create Playlist", "Add Song(s)", "Properties", "Cancel",
             "Refresh Playlist Song Times", "Refresh All Song Times", "Refresh Song Time", "Clear Information"]
PLAYLIST_MENU = ["Copy Song(s)", "Paste", "Remove", "Create Group List", "Create Playlist", "Add Song(s)", "Properties",
                 "Cancel", "Refresh Playlist Song Times", "Refresh All Song Times", "Refresh Song Time", "Clear Information"]


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

    def renames_with_ctrl_r(self):
        self.stage.wait_for_rows(listed(NIGHT))
        self.manager.focus()
        self.walk_to(SECOND, "Up")
        self.rename_to("Second Set")
        self.walk_to("Gone.wav", "Up")
        self.rename_to(SPARE)
        self.manager.wait_for_outline(GROUP, *songs_below(FIRST, [*EVENING_SHOWN[:-1], SPARE]),
                                      *songs_below("Second Set", NIGHT))
        # Its file is looked for under the new name, and is there.
        screen.press("F3", "Left")
        self.stage.wait_for_rows(listed([*EVENING_SHOWN[:-1], SPARE]))

    def expect_first(self, songs_of_it):
        self.manager.wait_for_outline(GROUP, *songs_below(FIRST, songs_of_it), "  Second Set")
        self.stage.wait_for_rows(listed(songs_of_it))

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
        self.expect(FIRST, [" High.wav", "Harbour Tone.wav", "Two  Blanks.wav", "Zwölf Räder.wav", SPARE],
                    "Second Set", NIGHT)
        self.stage.wait_for_selected_rows(1)
        screen.press("ctrl+m", "ctrl+m", "ctrl+m", "ctrl+m")  # once more than there are places
        self.expect(FIRST, [" High.wav", "Two  Blanks.wav", "Zwölf Räder.wav", SPARE, "Harbour Tone.wav"],
                    "Second Set", NIGHT)

    def expect(self, first, first_songs, second, second_songs):
        self.manager.wait_for_outline(GROUP, *songs_below(first, first_songs), *songs_below(second, second_songs))
        self.stage.wait_for_rows(listed(first_songs))

    def moves_entries_in_the_tree(self):
        self.manager.focus()
        self.manager.wait_for_selected("Harbour Tone.wav")
        for _ in range(2):
            screen.press("shift+Up")
        self.expect(FIRST, [" High.wav", "Two  Blanks.wav", "Harbour Tone.wav", "Zwölf Räder.wav", SPARE],
                    "Second Set", NIGHT)
        screen.press("shift+Down", "shift+Down")
        kept = [" High.wav", "Two  Blanks.wav", "Zwölf Räder.wav", SPARE, "Harbour Tone.wav"]
        self.expect(FIRST, kept, "Second Set", NIGHT)
        # The last song has none of its kind below it: the keys go on, the song stays.
        screen.press("shift+Down")
        self.manager.wait_for_selected("Second Set")
        self.expect(FIRST, kept, "Second Set", NIGHT)

        # Folded, the playlists stand one below the other.
        screen.press("Left")
        self.manager.wait_for_outline(GROUP, *songs_below(FIRST, kept), "  Second Set")
        self.walk_to(FIRST, "Up")
        screen.press("Left")
        self.manager.wait_for_outline(GROUP, "  " + FIRST, "  Second Set")
        screen.press("shift+Down")
        self.manager.wait_for_outline(GROUP, "  Second Set", "  " + FIRST)
        self.manager.wait_for_selected(FIRST)
        self.stage.wait_for_rows(listed(kept))
        screen.press("shift+Up")
        self.manager.wait_for_outline(GROUP, "  " + FIRST, "  Second Set")
        screen.press("Right")
        self.manager.wait_for_outline(GROUP, *songs_below(FIRST, kept), "  Second Set")

    def duplicates_and_removes(self):
        self.walk_to("Two  Blanks.wav", "Down")
        screen.press("ctrl+d")
        kept = [" High.wav", "Two  Blanks.wav", "Zwölf Räder.wav", SPARE, "Harbour Tone.wav"]
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
        self.expect_first([" High.wav", "Two  Blanks.wav", SPARE, "Two  Blanks.wav"])

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
        songs_left = [" High.wav", "Two  Blanks.wav", SPARE, "Two  Blanks.wav"]
        self.manager.wait_for_outline(GROUP, *songs_below(FIRST, songs_left), "  Second Set", "  Second Set")
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

    def finds_everything_again(self, stage):
        self.stage, self.manager = stage, Manager(stage)
        stage.dismiss_the_about_box()
        wait_for("the title", lambda: screen.active_window_title() == "Abend mit Gästen.brv - Brevant")
        songs_left = [" High.wav", "Two  Blanks.wav", SPARE, "Two  Blanks.wav"]
        stage.wait_for_rows(listed(songs_left))
        self.manager.wait_for_outline(GROUP)
        self.manager.focus()
        screen.press("asterisk")
        self.manager.wait_for_outline(GROUP, *songs_below(FIRST, songs_left), *songs_below("Second Set", NIGHT),
                                      *songs_below("Late Set", NIGHT))
        screen.press("F3", "Right", "Right")
        stage.wait_for_rows(listed(NIGHT))
        screen.press("Left", "Left")
        stage.wait_for_rows(listed(songs_left))


class Mouse:
    """The second set lists, made with the mouse alone; only names are typed."""

    def __init__(self, stage, music, rig):
        self.stage, self.manager, self.music, self.rig = stage, Manager(stage), music, rig

    def begins_a_new_document(self):
        self.stage.click_in_menu("File", "New")
        wait_for("the title", lambda: screen.active_window_title() == "Brevant")
        self.manager.wait_for_outline()

    def makes_a_group_and_two_playlists(self):
        self.stage.click_in_context_menu(self.manager.below_the_entries(), TREE_MENU, "Create Group List")
        self.answer(*GROUP_PROMPT, "Matinee")
        for name in ("Early", "Late"):
            self.manage("Matinee", "Create Playlist")
            self.answer(*SET_PROMPT, name)
            self.manager.wait_for_selected(name)
        self.manager.wait_for_outline("Matinee", "  Early", "  Late")

    def manage(self, name, command):
        self.stage.click_in_context_menu(self.manager.label(name), TREE_MENU, command)

    def answer(self, title, prompt, text):
        self.stage.wait_for_dialog(title)
        screen.type_text(text)
        self.stage.wait_for_text(prompt, text)
        self.stage.click_the_button("OK", title)
        self.stage.wait_for_the_keys()

    def finds_ten_songs(self):
        self.manage("Early", "Add Song(s)")
        self.stage.wait_for_dialog("Create Set Lists")
        self.find_all_songs_of(self.music.night.name, NIGHT)
        self.stage.click_the_button("Create", "Create Set Lists")
        self.manager.wait_for_outline("Matinee", *songs_below("Early", NIGHT), "  Late")
        screen.click(*tree.middle(self.stage.program.wait_for("combo box", "Early")))
        screen.click(*tree.middle(self.stage.program.wait_for("list item", "Late")))
        self.stage.program.wait_for("combo box", "Late")
        self.find_all_songs_of(self.music.evening.name, DAY)
        self.stage.click_the_button("Create", "Create Set Lists")
        self.manager.wait_for_outline("Matinee", *songs_below("Early", NIGHT), *songs_below("Late", DAY_SHOWN))
        self.stage.click_the_button("OK", "Create Set Lists")
        self.stage.wait_for_the_keys()
        self.stage.wait_for_rows(listed(DAY_SHOWN))

    def find_all_songs_of(self, folder, names):
        self.stage.click_the_button("Find Songs", "Create Set Lists")
        self.stage.wait_for_dialog("Find Songs")
        if self.stage.program.find("combo box", str(self.music.home)) is None:
            self.stage.click_the_button("Parent Directory", "Find Songs")
        self.click_file("Find Songs", folder, times=2)
        self.stage.program.wait_for("combo box", str(self.music.home / folder))
        self.click_file("Find Songs", names[0])
        with screen.held("shift"):
            self.click_file("Find Songs", names[-1])
        self.stage.wait_for_text("File name:", " ".join(f'"{name}"' for name in names))
        self.stage.click_the_button("Open", "Find Songs")
        self.stage.wait_for_dialog("Create Set Lists")

    def click_file(self, chooser, name, times=1):
        file = wait_for(f"{name!r} in the chooser",
                        lambda: tree.find(self.stage.program.wait_for("dialog", chooser), "table cell", name))
        left, top, _, height = tree.area(file)
        screen.click(left + 30, top + height // 2, times)

    def renames_in_place(self):
        self.manager.click("Late")
        left, top = self.manager.label("Late")
        screen.click(left + 12, top)  # a little beside the first click: it is a second one, not a double-click
        self.manager.wait_for_label_field("Late")
        self.rig.picture("the-rename-editor")
        screen.type_text("Evening")
        screen.press("Return")
        self.manager.wait_for_outline("Matinee", *songs_below("Early", NIGHT), *songs_below("Evening", DAY_SHOWN))

    def drags_in_the_tree(self):
        with screen.drag(self.manager.label("Spare.wav"), self.manager.label("Last One.wav")):
            self.manager.wait_for_selected("Last One.wav")
            self.rig.picture("a-song-on-its-way-to-another-playlist")
        self.early = [NIGHT[0], "Spare.wav", *NIGHT[1:]]
        self.evening = [name for name in DAY_SHOWN if name != "Spare.wav"]
        self.expect(*songs_below("Early", self.early), *songs_below("Evening", self.evening))
        self.manager.drag("Evening", "Early")
        self.expect(*songs_below("Evening", self.evening), *songs_below("Early", self.early))

    def expect(self, *entries):
        self.manager.wait_for_outline("Matinee", *entries)
        self.stage.wait_for_rows(listed(self.evening))

    def drags_a_row(self):
        with screen.drag(self.stage.row_place(0), self.stage.row_place(2)):
            self.stage.wait_for_selected_rows(2)
            self.rig.picture("a-row-on-its-way")
        self.evening = [" High.wav", "Two  Blanks.wav", "Harbour Tone.wav", "Zwölf Räder.wav"]
        self.expect(*songs_below("Evening", self.evening), *songs_below("Early", self.early))

    def removes_a_row(self):
        self.stage.click_in_context_menu(self.stage.row_place(0), PLAYLIST_MENU, "Remove")
        self.evening = self.evening[1:]
        self.expect(*songs_below("Evening", self.evening), *songs_below("Early", self.early))

    def copies_rows_into_the_tree(self):
        screen.click(*self.stage.row_place(0))
        self.stage.wait_for_selected_rows(0)
        with screen.held("ctrl"):
            screen.click(*self.stage.row_place(2))
            self.stage.wait_for_selected_rows(0, 2)
            with screen.drag(self.stage.row_place(0), self.manager.label("Early")):
                self.manager.wait_for_selected("Early")
                self.rig.picture("two-songs-on-their-way-into-the-tree")
        self.early = [*self.early, self.evening[0], self.evening[2]]
        self.expect(*songs_below("Evening", self.evening), *songs_below("Early", self.early))

    def saves_and_leaves(self):
        self.stage.click_in_menu("File", "Save As...")
        self.stage.wait_for_dialog("Save As")
        screen.press("ctrl+a")
        screen.type_text("Matinee")
        self.stage.wait_for_text("File name:", "Matinee")
        self.stage.click_the_button("Save", "Save As")
        wait_for("the title", lambda: screen.active_window_title() == "Matinee.brv - Brevant")
        screen.click(*tree.middle(self.stage.menu_item("File")))
        screen.click(*tree.middle(wait_for("Exit", lambda: self.stage.menu_item("Exit"))))
        status = self.stage.program.exit_status()
        assert status == 0, f"the program ended with status {status}"

    def repairs_songs_that_were_moved(self, stage):
        moved = self.music.evening.rename(self.music.home / "Abend > Archiv")
        self.stage, self.manager = stage(), None
        self.manager = Manager(self.stage)
        self.stage.dismiss_the_about_box()
        lost = [[number, "Not found", time, name] for number, _, time, name in listed(self.evening)]
        self.stage.wait_for_rows(lost)
        self.stage.click_in_context_menu(self.stage.row_place(1), PLAYLIST_MENU, "Properties")
        dialog = self.stage.wait_for_dialog("Song properties")
        self.stage.click_the_button("Set Dir", "Song properties")
        self.stage.wait_for_dialog("Choose a Song")
        self.rig.picture("Set-Dir")
        self.click_file("Choose a Song", moved.name, times=2)
        self.stage.program.wait_for("combo box", str(moved))
        self.click_file("Choose a Song", "Zwölf Räder.wav")
        self.stage.wait_for_text("File name:", "Zwölf Räder.wav")
        self.stage.click_the_button("Open", "Choose a Song")
        self.stage.wait_for_dialog("Song properties")
        self.stage.wait_for_text("Song File Path:", songs.windows_path(moved) + "\\")
        self.stage.wait_for_text("Song Name:", self.evening[1])
        left, top, _, height = tree.area(tree.find(
            dialog, "check box", "Use this directory/file path to update all songs in this playlist"))
        screen.click(left + 10, top + height // 2)
        self.rig.picture("Song-properties")
        self.stage.click_the_button("OK", "Song properties")
        self.stage.wait_for_the_keys()
        self.stage.wait_for_rows(listed(self.evening))

    def pastes_in_vain(self):
        self.manager.unfold("Matinee")
        screen.click(*self.stage.row_place(0))
        self.stage.wait_for_selected_rows(0)
        screen.press("ctrl+c", "ctrl+v")
        wait_for("what the paste waits for", lambda: self.stage.status() == "No dropped files to place, Esc to cancel")
        self.manager.click("Early")
        holds_for("a paste that waits", lambda: self.stage.status().startswith("No dropped files"), 0.5)
        screen.press("Escape")
        wait_for("an empty status bar", lambda: self.stage.status() == "")
        # The playlist unfolded below the mouse, to show where a file would go, and has nothing new.
        self.manager.wait_for_outline("Matinee", "  Evening", *songs_below("Early", self.early))

    def drops_files_of_another_program(self):
        files = [self.music.night / NIGHT[4], self.music.night / NIGHT[0], self.music.night / "Missing.wav"]
        with self.rig.another_program(sys.argv[3], 1200, 700, *files) as process:
            source = tree.area(wait_for("the other program's window", lambda: find_in(process, "label", "Drag me")))
            with screen.drag((source[0] + 20, source[1] + 20), self.stage.row_place(1)):
                self.rig.picture("files-dragged-over-the-playlist")
            wait_for("the other program to be told", lambda: find_in(process, "label", "Dropped"))
        wait_for("what the drop waits for", lambda: self.stage.status() ==
                 "Click a playlist in the Play List Manager to place 3 files, Esc to cancel")
        self.rig.picture("files-that-wait-for-a-click")
        screen.click(*self.manager.label("Early"))
        # The missing one is last, so that it is the one selected.
        placed = [*self.early, NIGHT[4], NIGHT[0], "Missing.wav"]
        self.manager.wait_for_outline("Matinee", "  Evening", *songs_below("Early", placed))
        self.manager.wait_for_selected("Missing.wav")
        wait_for("an empty status bar", lambda: self.stage.status() == "")

    def looks_at_it_in_black_on_white(self):
        self.stage.click_in_menu("Options", "White On Black")
        table = tree.area(self.stage.table())
        wait_for("a white playlist", lambda: screen.Picture().colours(table).most_common(1)[0][0] == WHITE)
        for place, name in ((self.manager.label("Early"), "the-tree-s-menu"), (self.stage.row_place(1), "the-playlist-s-menu")):
            self.stage.open_context_menu(place)
            self.rig.picture(name + "-black-on-white")
            screen.press("Escape")

    def leaves_without_saving(self):
        screen.click(*tree.middle(self.stage.menu_item("File")))
        screen.click(*tree.middle(wait_for("Exit", lambda: self.stage.menu_item("Exit"))))
        question = self.stage.wait_for_question("Save changes to Matinee.brv?")
        screen.click(*tree.middle(tree.find(question, "push button", "Discard")))
        status = self.stage.program.exit_status()
        assert status == 0, f"the program ended with status {status}"


def find_in(process, role, name):
    application = tree.application_of(process.pid)
    return tree.find(application, role, name) if application else None


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
        (keys.renames_with_ctrl_r, "renames a playlist and a song"),
        (keys.moves_songs_in_the_playlist, "moves songs in the playlist"),
        (keys.moves_entries_in_the_tree, "moves songs and playlists in the tree"),
        (keys.duplicates_and_removes, "duplicates and removes"),
        (keys.saves, "saves"),
        (keys.is_asked_about_a_change, "is asked about a change when it closes"),
        (lambda: keys.finds_everything_again(Stage(rig.start(), rig.listener)), "starts again and finds everything"),
    )
    import os
    if os.environ.get("ONLY"):
        steps = (steps[0],)
        mouse = Mouse(stage, music, rig)
    else:
        mouse = None
    def m(name):
        global M
        if name == "begins_a_new_document": M = mouse or Mouse(keys.stage, music, rig)
        getattr(M, name)()
    steps = (*steps,
        (lambda: m("begins_a_new_document"), "begins a new document"),
        (lambda: m("makes_a_group_and_two_playlists"), "makes a group and two playlists with the mouse"),
        (lambda: m("finds_ten_songs"), "finds ten songs"),
        (lambda: m("renames_in_place"), "renames in place"),
        (lambda: m("drags_in_the_tree"), "drags in the tree"),
        (lambda: m("drags_a_row"), "drags a row"),
        (lambda: m("removes_a_row"), "removes a row"),
        (lambda: m("copies_rows_into_the_tree"), "copies rows into the tree"),
        (lambda: m("saves_and_leaves"), "saves and leaves"),
        (lambda: M.repairs_songs_that_were_moved(lambda: Stage(rig.start(), rig.listener)), "repairs"),
        (lambda: m("pastes_in_vain"), "pastes in vain"),
        (lambda: m("drops_files_of_another_program"), "drops"),
        (lambda: m("looks_at_it_in_black_on_white"), "looks at it in black on white"),
        (lambda: m("leaves_without_saving"), "leaves"),
    )
    for action, sentence in steps:
        rig.step(sentence)
        action()
        rig.picture(sentence.split(",")[0].replace(" ", "-"))


if __name__ == "__main__":
    flow.run(perform)
