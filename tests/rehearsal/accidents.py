"""What goes wrong on stages. Each accident is taken back after a while, and the show has to go on meanwhile and afterwards."""

import errno
import subprocess
import time

from rig import accessibility as tree
from rig import screen
from rig.waiting import wait_for

import acts
import editing
import material as songs_of
from judge import AUDIBLE

OTHER_PROGRAM = (1200, 40)


def goes_on(run, seconds):
    """The show meanwhile: stage keys, judged as ever."""
    until = time.time() + seconds
    while time.time() < until:
        run.judge.look()  # or a song number would be missed that a shorter playlist does not show
        run.do(run.chance.choice((acts.plays_the_green_song, acts.steps_a_song, acts.stops, acts.pauses, acts.seeks,
                                  acts.steps_a_playlist, acts.plays_by_its_key)))
        time.sleep(run.chance.uniform(0.1, 0.8))


def plays_again(run):
    """After it: a song that is there is started, and is heard."""
    for _ in range(4):
        look = run.judge.look()
        song = run.material.song(look.green_song() or "")
        lost = run.may_be_in_an_empty_playlist(look)  # Enter starts nothing of the rows that stayed
        if (song is not None and song.path.exists() and look.song is not None and look.volume >= AUDIBLE and
                run.immediate_play and not lost):
            break
        acts.sets_the_options_right(run)
        run.do(acts.steps_a_playlist if lost else acts.steps_a_song)
        time.sleep(0.3)
    else:
        return
    run.journal.press("Return")
    run.judge.expect_song(song.name, look)
    try:
        wait_for(f"{song.name!r} to be heard", lambda: run.judge.heard(song), 8)
    except AssertionError as failure:
        if run.window.look().song == song.name:
            run.judge.look()
            run.judge.fail("the show does not go on", str(failure))


def songs_that_are_there(run, look):
    """Of the playlist that is shown; each once, though it may stand there twice."""
    songs = dict.fromkeys(run.material.song(name) for name in look.rows)
    return [song for song in songs if song is not None and song.path.exists()]


def songs_disappear(run):
    look = run.judge.look()
    taken = songs_that_are_there(run, look)
    taken = run.chance.sample(taken, min(len(taken), run.chance.choice((1, 3, 99))))
    run.journal.accident("songs removed", f"{len(taken)} of the playlist that is shown")
    for song in taken:
        run.breaks(song)
        song.path.rename(song.path.with_name(song.path.name + ".taken"))
    goes_on(run, run.chance.uniform(4, 12))
    for song in taken:
        song.path.with_name(song.path.name + ".taken").rename(song.path)
        run.breaks(song)
    plays_again(run)


def permissions_go(run):
    look = run.judge.look()
    taken = songs_that_are_there(run, look)
    run.journal.accident("permissions gone", f"of {len(taken)} songs and of the document")
    folder = run.chance.random() < 0.4
    with run.document_unsure():
        for song in taken:
            run.breaks(song)
            song.path.chmod(0)
        if folder:
            for song in run.material.songs:
                run.breaks(song)
            run.material.folder.chmod(0)
        run.documents.chmod(0o500)
        if run.document.exists():
            run.document.chmod(0)
        try:
            goes_on(run, run.chance.uniform(2, 6))
            run.do(editing.moves_a_song)
            run.do(editing.saves)
            goes_on(run, 2)
        finally:
            run.material.folder.chmod(0o755)
            for song in taken:
                song.path.chmod(0o644)
                run.breaks(song)
            if folder:
                for song in run.material.songs:
                    run.breaks(song)
            run.documents.chmod(0o700)
            if run.document.exists():
                run.document.chmod(0o644)
    run.do(editing.saves)
    plays_again(run)


def the_sound_server_dies(run):
    run.journal.accident("sound server killed", "")
    run.sound.kill()
    goes_on(run, run.chance.uniform(1, 9))
    run.sound.start()
    goes_on(run, 2)
    time.sleep(5)
    plays_again(run)


def the_sound_server_hangs(run):
    run.journal.accident("sound server stopped", "by a signal")
    run.sound.hang()
    goes_on(run, run.chance.uniform(1, 9))
    run.sound.go_on()
    goes_on(run, 2)
    time.sleep(5)
    plays_again(run)


def the_disk_is_full(run):
    """The old document or the new one is there afterwards, never half of one; and a failed save is kept elsewhere."""
    run.do(editing.moves_a_song)
    before, copies = songs_of.kept_in(run.document), len(run.recovered())
    run.journal.accident("disk full", str(run.disk))
    filler = run.disk / "filler"
    with run.document_unsure():
        with open(filler, "wb", buffering=0) as file:
            try:
                while True:
                    file.write(bytes(65536))
            except OSError as error:
                if error.errno != errno.ENOSPC:
                    raise
        try:
            run.do(editing.saves)
            after = songs_of.kept_in(run.document)
            if after is None or (after != before and songs_of.read_document(after) is None):
                run.judge.fail("half a file", f"on a full disk {run.document} went from {len(before or b'')} to "
                               f"{len(after or b'')} bytes")
            elif after == before and len(run.recovered()) == copies:
                run.judge.fail("a save lost", "the disk is full, and neither document nor recovery folder has the change")
            goes_on(run, run.chance.uniform(2, 6))
        finally:
            filler.unlink(missing_ok=True)
    run.do(editing.moves_a_song)
    run.do(editing.saves)
    run.empty_recovery()
    plays_again(run)


def the_document_is_replaced(run):
    run.journal.accident("document replaced", run.document.name)
    run.material.write_document(run.document)
    goes_on(run, run.chance.uniform(1, 4))
    run.do(editing.opens_again)
    plays_again(run)


def the_document_is_deleted(run):
    run.journal.accident("document deleted", run.document.name)
    run.document.unlink(missing_ok=True)
    goes_on(run, run.chance.uniform(1, 4))
    run.do(editing.saves)
    if not run.document.exists():
        run.judge.fail("a save lost", f"{run.document} was deleted and is not there after a save")
        run.material.write_document(run.document)
    plays_again(run)


def a_second_start(run):
    path = run.chance.choice(sorted(run.documents.glob("*.brv")))
    run.journal.accident("second start", path.name)
    second = subprocess.Popen([str(run.binary), str(path)], env=run.environment, stdin=subprocess.DEVNULL,
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    deadline = time.time() + 20
    while second.poll() is None and time.time() < deadline:
        if editing.answers_the_changes(run):
            break
    try:
        status = second.wait(20)
    except subprocess.TimeoutExpired:
        second.kill()
        run.judge.fail("second start", "it does not end")
        return
    if status != 0:
        run.judge.fail("second start", f"it ended with {status}")
    run.stage.wait_for_the_keys()
    editing.has_opened(run, path)
    plays_again(run)


def files_are_dropped(run):
    chosen = run.chance.sample(run.material.spare, run.chance.randrange(1, 5))
    run.journal.accident("files dropped", f"{len(chosen)}")

    with open(run.folder / "other.log", "ab") as output:
        process = subprocess.Popen([str(run.drag_source), *map(str, OTHER_PROGRAM), *(str(song.path) for song in chosen)],
                                   stdin=subprocess.DEVNULL, stdout=output, stderr=output)

    def says(text):
        application = tree.application_of(process.pid)
        return tree.find(application, "label", text) if application else None

    try:
        place = wait_for("the other program", lambda: says("Drag me"))
        wait_for("its window in its place", lambda: tree.area(place)[:2] >= OTHER_PROGRAM)
        target = run.place_of_row(0)
        if target is None:
            return

        def taken():
            screen.point_at(target[0] + time.monotonic_ns() % 5, target[1])
            return says("Taken")

        with screen.drag(tree.middle(place), target):
            wait_for("the window to take the files", taken)
        # Whoever dies before has the window wait for what it was promised.
        wait_for("the other program to be told", lambda: says("Dropped"))
    finally:
        process.kill()
        process.wait()
    if run.chance.random() < 0.3:
        run.journal.press("Escape")
        return
    names = run.names_in_the_tree(songs=False)
    if not names:
        run.journal.press("Escape")
        return
    run.click("a playlist, to place them", *run.manager.label(run.chance.choice(names)))
    time.sleep(0.3)
    run.journal.press("F3")  # the click gave the tree the keys, and Enter means another thing there
    run.back_to_the_window()


ACCIDENTS = ((songs_disappear, 4), (permissions_go, 3), (the_sound_server_dies, 3), (the_sound_server_hangs, 3),
             (the_disk_is_full, 3), (the_document_is_replaced, 2), (the_document_is_deleted, 2), (a_second_start, 2),
             (files_are_dropped, 2), (acts.holds_a_key, 3))
