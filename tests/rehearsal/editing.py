"""What the random user does between the songs: set lists made, changed, saved and opened, options asked for, panes and
sheets.
"""

import time

from rig import accessibility as tree
from rig import screen
from rig.set_lists import GROUP_PROMPT, RENAME_PROMPT, SET_PROMPT
from rig.waiting import wait_for

import material as songs_of

NUMBERS = (("n", "Enter the nominal time between songs in seconds", (0, 40)),
           ("o", "Enter the Fast Foward/Fast Reverse time step", (1, 9)),
           ("v", "Enter the value for the volume step size e.g. 5 (max= 100)", (2, 12)),
           ("f", "Enter the font size of the Playlist display e.g. 18", (9, 22)))
NAMES = ("Late Set", "Early Set", "Soundcheck", "Encore", "Two  Blanks", "Rain plan")


def fresh_name(run):
    run.made += 1
    return f"{run.chance.choice(NAMES)} {run.made}"


def makes_a_group(run):
    run.journal.press("g")
    answers_a_name(run, GROUP_PROMPT)


def makes_a_playlist(run):
    run.journal.press("F2", "Down")  # a playlist comes behind a selected entry
    run.journal.press("ctrl+l")
    answers_a_name(run, SET_PROMPT)
    run.journal.press("F3")


def answers_a_name(run, prompt):
    if run.chance.random() < 0.25:
        run.stage.wait_for_dialog(prompt[0])
        run.journal.press("Escape")
        run.stage.wait_for_the_keys()
        return None
    name = fresh_name(run)
    run.journal.line("typed", name)
    run.stage.enter_text(*prompt, name)
    return name


def adds_songs(run):
    run.journal.press("a")
    run.stage.wait_for_dialog("Create Set Lists")
    if run.chance.random() < 0.7:
        chosen = run.chance.sample(run.material.spare, run.chance.randrange(1, 4))
        text = " ".join(f'"{song.path}"' for song in chosen)
        screen.type_text(text)
        run.stage.wait_for_text("Song File Names:", text)
        run.stage.click_the_button("Create", "Create Set Lists")
        time.sleep(0.3)
    run.stage.click_the_button("OK" if run.chance.random() < 0.7 else "Cancel", "Create Set Lists")
    run.stage.wait_for_the_keys()
    run.journal.press("F3")


def renames(run):
    """A playlist or a group: a song that is renamed is looked for under the new name and lost to the show."""
    names = run.names_in_the_tree(songs=False)
    if not names or not run.select_in_tree(run.chance.choice(names)):
        return
    run.journal.press("ctrl+r")
    answers_a_name(run, RENAME_PROMPT)
    run.journal.press("F3")


def duplicates(run):
    names = run.names_in_the_tree(songs=True)
    if names and run.select_in_tree(run.chance.choice(names)):
        run.journal.press("ctrl+d")
    run.journal.press("F3")


def copies_and_pastes(run):
    look = run.judge.look()
    place = run.place_of_row(run.chance.randrange(len(look.rows))) if look.rows else None
    if place is None:
        return
    run.click("a row", *place)
    run.journal.press("ctrl+c", "ctrl+v")
    time.sleep(0.2)
    run.journal.press("Escape")


def removes_a_row(run):
    look = run.judge.look()
    if len(look.rows) < 4:
        return
    place = run.place_of_row(run.chance.randrange(len(look.rows)))
    if place is None:
        return
    run.click("a row", *place)
    run.journal.press("Delete")


def removes_in_the_tree(run):
    names = run.names_in_the_tree(songs=True)
    if len(names) < 3 or not run.select_in_tree(run.chance.choice(names)):
        return
    run.journal.press("Delete")
    run.stage.program.wait_for("alert", "Brevant")
    wait_for("the question to have the keys", lambda: screen.active_window_title() == "Brevant")
    run.journal.press(run.chance.choice(("y", "Return", "Escape")))
    run.stage.wait_for_the_keys()
    run.journal.press("F3")


def moves_a_song(run):
    run.journal.press("m", *[run.chance.choice(("ctrl+m", "shift+m"))] * run.chance.randrange(1, 4))


def drags_a_row(run):
    look = run.judge.look()
    if len(look.rows) < 3:
        return
    places = [run.place_of_row(row) for row in run.chance.sample(range(len(look.rows)), 2)]
    if None in places:
        return
    run.journal.line("mouse", "drags a row onto another")
    with screen.drag(*places):
        time.sleep(0.2)


def drags_in_the_tree(run):
    names = run.names_in_the_tree(songs=True)
    if len(names) < 3:
        return
    source, target = run.chance.sample(names, 2)
    run.journal.line("mouse", f"drags {source!r} onto {target!r} in the tree")
    with screen.drag(run.manager.label(source), run.manager.label(target)):
        time.sleep(0.2)
    run.journal.press("F3")


def opens_a_playlist_in_the_tree(run):
    names = run.names_in_the_tree(songs=False)
    if not names:
        return
    run.judge.claim()
    run.notes_the_playlist_it_leaves()
    run.click("an entry of the tree, twice", *run.manager.label(run.chance.choice(names)), times=2)
    run.journal.press("F3")


def saves(run):
    """What stands on the disk afterwards is whole, and the playlist in it is the one on the screen."""
    look = run.judge.look()
    before = songs_of.kept_in(run.document)
    run.journal.press("ctrl+s")
    time.sleep(0.2)  # a save that takes longer shows its star by then
    wait_for("the modified mark to go", lambda: "*" not in run.window.look().title, 8)
    after = songs_of.kept_in(run.document)
    rows = None if after is None else songs_of.read_document(after)
    if after is None or rows is None:
        if run.may_save_fail:
            return
        run.judge.fail("half a file", f"{run.document} holds no document after a save")
    elif look.rows and not run.may_save_fail:
        kept = [name for _, playlist, name in rows if playlist == look.playlist()]
        if tuple(kept) != look.rows and run.rows_are_one_playlist(look):
            run.judge.fail("saved something else", f"{look.playlist()!r} shows {look.rows} and holds {kept}")
    run.journal.line("saved", f"{len(after or b'')} bytes, {len(before or b'')} before")


def saves_under_another_name(run):
    run.stage.click_in_menu("File", "Save As...")
    run.stage.wait_for_dialog("Save As")
    if run.chance.random() < 0.2:
        run.journal.press("Escape")
        run.stage.wait_for_the_keys()
        return
    name = run.chance.choice(("Show", "Show two", "Show three"))
    screen.press("ctrl+a")
    path = str(run.documents / f"{name}.brv")
    screen.type_text(path)
    run.stage.wait_for_text("File name:", path)
    run.journal.line("typed", path)
    exists = (run.documents / f"{name}.brv").exists()
    screen.press("Return")
    if exists:
        question = run.program.wait_for("alert", "Save As")
        screen.click(*tree.middle(tree.find(question, "push button", "Yes")))
    run.stage.wait_for_the_keys()
    run.document = run.documents / f"{name}.brv"
    wait_for("the title", lambda: run.window.look().title == f"{name}.brv - Brevant", 8)


def opens_again(run, path=None):
    """From the disk. The rows are those of a playlist of the file afterwards, and the title is its name."""
    changes_its_mind = path is None and run.chance.random() < 0.1
    path = path or run.chance.choice(sorted(run.documents.glob("*.brv")) or [run.document])
    if not path.exists():
        return
    run.journal.press("ctrl+o")
    run.stage.wait_for_dialog("Open")
    if changes_its_mind:
        run.journal.press("Escape")
        run.stage.wait_for_the_keys()
        return
    screen.press("ctrl+a")
    screen.type_text(str(path))
    run.stage.wait_for_text("File name:", str(path))
    run.journal.line("typed", str(path))
    screen.press("Return")
    answers_the_changes(run)
    run.stage.wait_for_the_keys()
    has_opened(run, path)


def answers_the_changes(run):
    """Save changes? Mostly not; the file stays what it was."""
    box = None
    for _ in range(12):
        if any(role == "alert" for role, _ in run.window.windows()):
            box = run.program.find("alert", "Brevant")
        if box is not None:
            break
        time.sleep(0.05)
    else:
        return False
    wait_for("the question to have the keys", lambda: screen.active_window_title() == "Brevant")
    answer = "Save" if run.chance.random() < 0.3 and not run.may_save_fail else "Discard"
    run.journal.line("answer", answer)
    screen.click(*tree.middle(tree.find(box, "push button", answer)))
    return True


def has_opened(run, path):
    run.document = path
    run.judge.claim(2)
    wait_for(f"the title of {path.name}", lambda: run.window.look().title == f"{path.name} - Brevant", 8)
    rows = songs_of.read_document(songs_of.kept_in(path) or b"")
    look = run.window.look()
    if rows and look.rows and not run.document_in_danger:
        kept = [name for _, playlist, name in rows if playlist == look.playlist()]
        if tuple(kept) != look.rows:
            run.judge.fail("opened something else", f"{look.playlist()!r} shows {look.rows} and the file has {kept}")


def makes_a_new_document(run):
    run.journal.press("ctrl+n")
    answers_the_changes(run)
    run.stage.wait_for_the_keys()
    opens_again(run, run.document)


def looks_at_properties(run):
    look = run.judge.look()
    place = run.place_of_row(run.chance.randrange(len(look.rows))) if look.rows else None
    if place is None or run.may_be_in_an_empty_playlist(look):
        return
    run.click("a row", *place)
    run.journal.press("q")
    run.stage.wait_for_dialog("Song properties")
    run.stage.click_the_button(run.chance.choice(("OK", "Cancel")), "Song properties")
    run.stage.wait_for_the_keys()


def answers_a_number(run):
    key, prompt, between = run.chance.choice(NUMBERS)
    run.journal.press(key)
    title = run.title_of_a_prompt()
    if run.chance.random() < 0.4:
        run.journal.press("Escape")
        run.stage.wait_for_the_keys()
    else:
        number = str(run.chance.randint(*between))
        run.journal.line("typed", number)
        run.stage.enter_text(title, prompt, number)


def looks_at_the_file_types(run):
    run.journal.press("ctrl+y")
    run.title_of_a_prompt()
    run.journal.press("Escape")
    run.stage.wait_for_the_keys()


def looks_at_the_customise_sheet(run):
    run.stage.click_in_menu("View", "Toolbars", "Customize...")
    time.sleep(1)
    run.back_to_the_window()


def looks_at_the_guide(run):
    run.journal.press("F1")
    wait_for("the guide to have the keys", lambda: screen.active_window_title().endswith("Help"), 8)
    run.journal.press(*run.chance.choice((("Next",), ("Next", "Next"), ("Tab", "Return"), ("End",))))
    time.sleep(0.5)
    run.journal.press("Escape")
    if screen.active_window_title().endswith("Help"):
        run.journal.press("alt+F4")
    run.stage.wait_for_the_keys()


def looks_at_the_about_box(run):
    run.stage.click_in_menu("Help", "About Brevant...")
    run.stage.wait_for_dialog("About Brevant")
    run.journal.press("Return")
    run.stage.wait_for_the_keys()


def floats_a_pane(run):
    """A double-click on its title takes it out of the window, and another one puts it back."""
    title = run.chance.choice(("Properties", "Windows Media Player", "Brevant Information & Lyrics"))
    for _ in range(2):
        pane = run.program.find("frame", title)
        if pane is None:
            return
        x, y, width, _ = tree.area(pane)
        run.click(f"the title of {title}, twice", x + width // 3, y + 9, times=2)
        time.sleep(0.6)
        run.judge.look()
    run.journal.press("F3")


def closes_and_opens_a_pane(run):
    entry = run.chance.choice(("Playlist Manager", "Properties", "Song Player", "Message Display"))
    for _ in range(2):
        run.stage.click_in_menu("View", entry)
        time.sleep(0.4)
        run.judge.look()


def measures_times(run):
    run.journal.press(run.chance.choice(("t", "t", "alt+r")))
    time.sleep(run.chance.uniform(0.5, 6))
    if run.chance.random() < 0.3:
        run.journal.press("Escape")


EDITS = ((makes_a_group, 1), (makes_a_playlist, 2), (adds_songs, 2), (renames, 2), (duplicates, 2), (copies_and_pastes, 2),
         (removes_a_row, 3), (removes_in_the_tree, 2), (moves_a_song, 4), (drags_a_row, 3), (drags_in_the_tree, 2),
         (opens_a_playlist_in_the_tree, 3), (saves, 6), (saves_under_another_name, 2), (opens_again, 4),
         (makes_a_new_document, 1), (looks_at_properties, 2), (answers_a_number, 3), (looks_at_the_file_types, 1),
         (looks_at_the_customise_sheet, 1), (looks_at_the_guide, 1), (looks_at_the_about_box, 1), (floats_a_pane, 2),
         (closes_and_opens_a_pane, 2), (measures_times, 3))
