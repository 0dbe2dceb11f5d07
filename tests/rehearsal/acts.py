"""What the random user does on the stage: one key or click at a time, as a musician would in a set. Each act takes the run
and leaves the window as one that has the keys.
"""

import time

from rig import accessibility as tree
from rig import screen

HELD = ("Down", "Up", "Left", "Right", "ctrl+Right", "ctrl+Left", "F8", "F9", "Return", "s", "space", "p")


def plays_the_green_song(run):
    look = run.judge.look()
    if look.song is None or look.green is None or not run.immediate_play:
        run.judge.claim()
        run.journal.press("Return")
        return
    run.journal.press("Return")
    run.judge.expect_song(look.green_song(), look)


def plays_by_its_key(run):
    look = run.judge.look()
    run.judge.claim()
    run.journal.press(run.chance.choice(("p", "F5")))
    if look.song is not None and look.green is not None:
        run.judge.expect_song(look.green_song(), look)


def stops(run):
    run.journal.press(run.chance.choice(("s", "F6")))


def pauses(run):
    run.journal.press("space")


def steps_a_song(run):
    run.journal.press(*[run.chance.choice(("Down", "d", "Up", "u", "Down"))] * run.chance.choice((1, 1, 2, 3)))


def steps_a_playlist(run):
    keys = [run.chance.choice(("Right", "r", "Left", "l", "Right"))] * run.chance.choice((1, 1, 2, 4))
    if keys[1:]:
        run.journal.press(*keys[1:])
    run.notes_the_playlist_it_leaves()
    run.journal.press(keys[0])


def seeks(run):
    run.sought()
    run.journal.press(*[run.chance.choice(("ctrl+Right", "ctrl+Right", "ctrl+Left"))] * run.chance.choice((1, 2, 5)))


def turns_the_volume(run):
    look = run.judge.look()
    # Not so low for long that nothing can be told from what is heard.
    key = "F9" if look.volume < 60 else run.chance.choice(("F8", "F9"))
    run.journal.press(*[key] * run.chance.choice((1, 2, 4)))


def jumps_in_the_song(run):
    slider = run.window.element("slider", "Song position")
    if slider is None:
        return
    x, y, width, height = tree.area(slider)
    run.sought()
    run.click("the slider", x + round(width * run.chance.uniform(0.02, 0.95)), y + height // 2)


def sets_the_repeat_range(run):
    """Only with Auto Play on it repeats; it is taken back after a while by the stop time 00:00."""
    if not run.judge.look().auto_play:
        run.journal.press("ctrl+u")
    run.repeats = True
    run.journal.press("z")
    time.sleep(run.chance.uniform(1.2, 4))
    run.journal.press("x")
    time.sleep(run.chance.uniform(2, 8))
    ends_the_repeat_range(run)


def ends_the_repeat_range(run):
    run.journal.press("s")
    time.sleep(0.4)
    run.journal.press("x", "z")
    run.judge.claim()
    run.journal.press("p")
    time.sleep(1)
    run.repeats = False


def picks_a_row(run):
    look = run.judge.look()
    if not look.rows:
        return
    row = run.chance.randrange(len(look.rows))
    place = run.place_of_row(row)
    if place is None:
        return
    if run.chance.random() < 0.4 or not run.immediate_play:
        run.click(f"row {row}", *place)
        return
    run.judge.claim()
    run.click(f"row {row} twice", *place, times=2)
    run.judge.expect_song(look.rows[row], look)


def presses_a_button(run):
    name = run.chance.choice(("Play", "Pause", "Stop", "Pause"))
    button = run.window.element("push button", name)
    if button is None:
        return
    run.judge.claim()
    run.click(name, *tree.middle(button))


def listens(run):
    """Lets the song be, to its end if that is near."""
    for _ in range(run.chance.randrange(4, 16)):
        time.sleep(1)
        run.judge.look()


def holds_a_key(run):
    key = run.chance.choice(HELD)
    if key in ("Return", "p"):
        run.judge.claim(8)
    run.sought()
    run.journal.keys += 1
    run.journal.accident("key held", f"{key} for seconds")
    *modifiers, letter = key.split("+")
    seconds = run.chance.uniform(1.5, 4)
    if modifiers:
        with screen.held(modifiers[0]):
            screen.hold(letter, lambda: time.sleep(seconds))
    else:
        screen.hold(letter, lambda: time.sleep(seconds))
    if key == "F8":
        with screen.held("F9"):
            time.sleep(4)


def turns_an_option(run):
    key = run.chance.choice(("ctrl+u", "ctrl+u", "ctrl+k", "ctrl+f", "w", "c", "ctrl+e", "ctrl+h", "ctrl+j"))
    run.toggle(key)


def sets_the_options_right(run):
    """Auto advance on, immediate play on, colours on: the show as it is played most."""
    for key in sorted(run.turned):
        run.toggle(key)
    if not run.judge.look().auto_play and run.chance.random() < 0.8:
        run.journal.press("ctrl+u")


def looks_at_the_live_view(run):
    run.journal.press("Home")
    for _ in range(run.chance.randrange(2, 6)):
        run.chance.choice((steps_a_song, plays_the_green_song, stops, pauses, steps_a_playlist, seeks))(run)
        time.sleep(run.chance.uniform(0.3, 2))
        run.judge.look()
    run.journal.press("Home")


def clears_and_cancels(run):
    run.journal.press(run.chance.choice(("i", "Escape", "F3", "3")))


def walks_in_the_tree(run):
    run.journal.press("F2")
    run.journal.press(*[run.chance.choice(("Down", "Up", "Right", "Left")) for _ in range(run.chance.randrange(1, 8))])
    if run.chance.random() < 0.3:
        run.judge.claim()
        run.notes_the_playlist_it_leaves()
        run.journal.press("Return")
    run.journal.press("F3")


STAGE = ((plays_the_green_song, 14), (plays_by_its_key, 5), (stops, 5), (pauses, 5), (steps_a_song, 12),
         (steps_a_playlist, 9), (seeks, 6), (turns_the_volume, 4), (jumps_in_the_song, 4), (sets_the_repeat_range, 1),
         (picks_a_row, 7), (presses_a_button, 4), (listens, 7), (holds_a_key, 2), (turns_an_option, 3),
         (sets_the_options_right, 3), (looks_at_the_live_view, 1), (clears_and_cancels, 3), (walks_in_the_tree, 2))
