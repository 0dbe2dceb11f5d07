"""Arranges a set list on the built program with the mouse alone: makes it from nothing through menus and choosers,
renames in place, drags songs, playlists and rows; mends it when its songs have gone to another folder, and takes files
that are dragged out of another program. FLOW BINARY FOLDER DRAG_SOURCE
"""

import sys
import time

from rig import accessibility as tree
from rig import flow, screen, songs
from rig.manager import Manager
from rig.set_lists import EVENING, GROUP_PROMPT, NIGHT, SET_PROMPT, Music, entries, listed, shown
from rig.stage import Stage
from rig.waiting import holds_for, wait_for

WHITE = (255, 255, 255)
OTHER_PROGRAM = (1200, 700)  # where its window is, over the message display

TREE_MENU = ["Copy Song", "Paste", "Dublicate", "Remove", "Rename", "New Grouplist Folder", "New Playlist Folder",
             "Create Group List", "Create Playlist", "Add Song(s)", "Properties", "Cancel",
             "Refresh Playlist Song Times", "Refresh All Song Times", "Refresh Song Time", "Clear Information"]
PLAYLIST_MENU = ["Copy Song(s)", "Paste", "Remove", "Create Group List", "Create Playlist", "Add Song(s)", "Properties",
                 "Cancel", "Refresh Playlist Song Times", "Refresh All Song Times", "Refresh Song Time", "Clear Information"]


class Mouse:
    """What the operator does without the keyboard, which is there for names alone."""

    def __init__(self, rig, music):
        self.rig, self.music = rig, music
        self.begin()

    def begin(self):
        self.stage = Stage(self.rig.start(), self.rig.listener)
        self.manager = Manager(self.stage)

    def begins_a_new_document(self):
        self.stage.dismiss_the_about_box()
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
        self.manager.wait_for_outline("Matinee", *entries("Early", NIGHT), "  Late")
        screen.click(*tree.middle(self.stage.program.wait_for("combo box", "Early")))
        screen.click(*tree.middle(self.stage.program.wait_for("list item", "Late")))
        self.stage.program.wait_for("combo box", "Late")
        self.find_all_songs_of(self.music.evening.name, EVENING)
        self.stage.click_the_button("Create", "Create Set Lists")
        self.manager.wait_for_outline("Matinee", *entries("Early", NIGHT), *entries("Late", shown(EVENING)))
        self.stage.click_the_button("OK", "Create Set Lists")
        self.stage.wait_for_the_keys()
        self.stage.wait_for_rows(listed(shown(EVENING)))

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
        self.manager.wait_for_outline("Matinee", *entries("Early", NIGHT), *entries("Evening", shown(EVENING)))

    def drags_in_the_tree(self):
        with screen.drag(self.manager.label("Spare.wav"), self.manager.label("Last One.wav")):
            self.manager.wait_for_selected("Last One.wav")
            self.rig.picture("a-song-on-its-way-to-another-playlist")
        self.early = [NIGHT[0], "Spare.wav", *NIGHT[1:]]
        self.evening = [name for name in shown(EVENING) if name != "Spare.wav"]
        self.expect(*entries("Early", self.early), *entries("Evening", self.evening))
        self.manager.drag("Evening", "Early")
        self.expect(*entries("Evening", self.evening), *entries("Early", self.early))

    def expect(self, *entries):
        self.manager.wait_for_outline("Matinee", *entries)
        self.stage.wait_for_rows(listed(self.evening))

    def drags_a_row(self):
        with screen.drag(self.stage.row_place(0), self.stage.row_place(2)):
            self.stage.wait_for_selected_rows(2)
            self.rig.picture("a-row-on-its-way")
        self.evening = [" High.wav", "Two  Blanks.wav", "Harbour Tone.wav", "Zwölf Räder.wav"]
        self.expect(*entries("Evening", self.evening), *entries("Early", self.early))

    def removes_a_row(self):
        self.stage.click_in_context_menu(self.stage.row_place(0), PLAYLIST_MENU, "Remove")
        self.evening = self.evening[1:]
        self.expect(*entries("Evening", self.evening), *entries("Early", self.early))

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
        self.expect(*entries("Evening", self.evening), *entries("Early", self.early))

    def saves_and_leaves(self):
        self.stage.click_in_menu("File", "Save As...")
        self.stage.wait_for_dialog("Save As")
        screen.press("ctrl+a")
        screen.type_text("Matinee")
        self.stage.wait_for_text("File name:", "Matinee")
        self.stage.click_the_button("Save", "Save As")
        wait_for("the title", lambda: screen.active_window_title() == "Matinee.brv - Brevant")
        self.stage.click_in_menu("File", "Exit")
        status = self.stage.program.exit_status()
        assert status == 0, f"the program ended with status {status}"

    def repairs_songs_that_were_moved(self):
        moved = self.music.evening.rename(self.music.home / "Abend > Archiv")
        self.begin()
        self.stage.dismiss_the_about_box()
        self.stage.wait_for_rows(listed(self.evening, lost=self.evening))
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
        self.manager.wait_for_outline("Matinee", "  Evening", *entries("Early", self.early))

    def drops_files_of_another_program(self):
        files = [self.music.night / NIGHT[4], self.music.night / NIGHT[0], self.music.night / "Missing.wav"]
        with self.rig.another_program(sys.argv[3], *OTHER_PROGRAM, *files) as process:
            def says(text):
                application = tree.application_of(process.pid)
                return tree.find(application, "label", text) if application else None

            def taken():
                # The window answers to a mouse that moves over it.
                screen.point_at(target[0] + time.monotonic_ns() % 5, target[1])
                return says("Taken")

            window = wait_for("the other program", lambda: says("Drag me"))
            wait_for("its window in its place", lambda: tree.area(window)[:2] >= OTHER_PROGRAM)
            target = self.stage.row_place(1)
            with screen.drag(tree.middle(window), target):
                wait_for("the playlist to take the files", taken)
                self.rig.picture("files-dragged-over-the-playlist")
            wait_for("the other program to be told", lambda: says("Dropped"))
        wait_for("what the drop waits for", lambda: self.stage.status() ==
                 "Click a playlist in the Play List Manager to place 3 files, Esc to cancel")
        self.rig.picture("files-that-wait-for-a-click")
        screen.click(*self.manager.label("Early"))
        # The missing one is last, so that it is the one selected.
        placed = [*self.early, NIGHT[4], NIGHT[0], "Missing.wav"]
        self.manager.wait_for_outline("Matinee", "  Evening", *entries("Early", placed))
        self.manager.wait_for_selected("Missing.wav")
        wait_for("an empty status bar", lambda: self.stage.status() == "")

    def looks_at_both_menus(self, look):
        for place, name in ((self.manager.label("Early"), "tree"), (self.stage.row_place(1), "playlist")):
            menu = self.stage.open_context_menu(place)
            self.rig.picture(f"the-menu-of-the-{name}-{look}")
            screen.press("Escape")
            wait_for("the menu to close", lambda: screen.window_under_pointer() != menu, 5)

    def looks_at_it_in_both_colours(self):
        self.looks_at_both_menus("white-on-black")
        self.stage.click_in_menu("Options", "White On Black")
        table = tree.area(self.stage.table())
        wait_for("a white playlist", lambda: screen.Picture().colours(table).most_common(1)[0][0] == WHITE)
        self.looks_at_both_menus("black-on-white")

    def leaves_without_saving(self):
        self.stage.click_in_menu("File", "Exit")
        question = self.stage.wait_for_question("Save changes to Matinee.brv?")
        screen.click(*tree.middle(tree.find(question, "push button", "Discard")))
        status = self.stage.program.exit_status()
        assert status == 0, f"the program ended with status {status}"


def perform(rig):
    screen.offer_letters("us")
    mouse = Mouse(rig, Music(rig.home))
    steps = (
        (mouse.begins_a_new_document, "begins a new document"),
        (mouse.makes_a_group_and_two_playlists, "makes a group and two playlists"),
        (mouse.finds_ten_songs, "finds ten songs"),
        (mouse.renames_in_place, "renames a playlist in place"),
        (mouse.drags_in_the_tree, "drags a song and a playlist in the tree"),
        (mouse.drags_a_row, "drags a row of the playlist"),
        (mouse.removes_a_row, "removes a row"),
        (mouse.copies_rows_into_the_tree, "copies rows into the tree"),
        (mouse.saves_and_leaves, "saves and leaves"),
        (mouse.repairs_songs_that_were_moved, "starts again and repairs songs that were moved"),
        (mouse.pastes_in_vain, "pastes in vain"),
        (mouse.drops_files_of_another_program, "drops files of another program"),
        (mouse.looks_at_it_in_both_colours, "looks at it in both colours"),
        (mouse.leaves_without_saving, "leaves without saving"),
    )
    rig.take(steps)


if __name__ == "__main__":
    flow.run(perform)
