"""Rehearses a song on the built program: louder and softer, to and fro in it, a passage again and again with the words
on the screen, a run that measures all songs given up while the song plays, and the true lengths at the end.
"""

import os

from rig import accessibility as tree
from rig import flow, screen, songs
from rig.stage import Stage
from rig.waiting import holds_for, wait_for

GREEN, PINK = (0, 255, 0), (255, 192, 203)  # the singers M and F on black

RUNG = 5  # seconds of each of the song's tones, and of each of its lyric lines
PITCHES = [330, 370, 415, 466, 523, 587, 659, 740, 831, 932, 1047, 1175]

HEADER_BEFORE = "Rehearsal - Total Playlist Time: 00:40"  # 1 + 8 + 1 seconds as the document has it, two gaps of 15
HEADER_MEASURED = "Rehearsal - Total Playlist Time: 01:33"  # 60 + 0 + 3 seconds
SPARES = 40  # songs of another playlist, so that a run over all of them lasts


class Rehearsal:
    """The document: a song that climbs through its tones, one that is gone, a short one, and a playlist of spare songs;
    all their times are wrong.
    """

    def __init__(self, folder):
        folder.mkdir()
        self.document = folder / "Rehearsal.brv"
        ladder = folder / "Ladder.wav"
        songs.write_ladder(ladder, PITCHES, RUNG)
        songs.write_lyrics(ladder, [(i * RUNG * 1000, line_of(i)) for i in range(len(PITCHES))])
        short = folder / "Short Tone.mp3"
        songs.write_mp3(short, 660, 3.2)
        spares = [folder / f"Spare {number}.mp3" for number in range(1, SPARES + 1)]
        for spare in spares:
            os.link(short, spare)
        songs.write_document(self.document, [
            ("Band", "Rehearsal", ladder, "00:01"),
            ("Band", "Rehearsal", folder / "Lost Song.mp3", "00:08"),
            ("Band", "Rehearsal", short, "00:01"),
            *(("Band", "Spare Songs", spare, "00:09") for spare in spares),
        ])


def line_of(rung):
    return f"{'MF'[rung % 2]}: This is rung {rung + 1}."


def clock(seconds):
    return f"{seconds // 60:02d}:{seconds % 60:02d}"


def opens_the_document(stage):
    stage.dismiss_the_about_box()
    wait_for("the title", lambda: screen.active_window_title() == "Rehearsal.brv - Brevant")
    assert stage.header() == HEADER_BEFORE, stage.header()


def changes_the_volume(stage):
    stage.wait_for_label("Volume", "100")
    screen.press("F8", "F8")
    stage.wait_for_label("Volume", "90")
    screen.press("XF86AudioLowerVolume")
    stage.wait_for_label("Volume", "85")
    screen.press("F9", "XF86AudioRaiseVolume")
    stage.wait_for_label("Volume", "95")
    screen.press("F9", "F9")
    stage.wait_for_label("Volume", "100")


def wait_for_the_words_of(stage, second):
    """The current line and the next one stand in the message display, and nothing else."""
    rung = second // RUNG
    wait_for(f"the words at {clock(second)}",
             lambda: stage.message_lines() == [line_of(rung), line_of(rung + 1)])


def follows_the_words(stage):
    screen.press("Return")
    wait_for("the song to sound", lambda: stage.listener.sounds(PITCHES[stage.elapsed() // RUNG]), 10)
    screen.press("space")
    stage.wait_for_silence()
    wait_for_the_words_of(stage, stage.elapsed())
    pane = tree.area(stage.program.wait_for("text", "Brevant Information & Lyrics"))
    shown = screen.Picture().colours(pane)
    assert shown[GREEN] and shown[PINK], f"the singers' colours are missing: {shown.most_common(4)}"


def seeks(stage):
    # The key is held well into the prompt that it opens, and nothing of it is typed there.
    prompt = ("Enter property", "Enter the Fast Foward/Fast Reverse time step")
    screen.hold("o", lambda: holds_for("a prompt without the key that opened it",
                                       lambda: stage.prompt_text(*prompt) == "2", 1.5))
    held = stage.enter_text(*prompt, str(RUNG))
    assert held == "2", f"the prompt began with {held!r}"
    before = stage.elapsed()
    screen.press("ctrl+Right")
    wait_for("a step on", lambda: abs(stage.elapsed() - before - RUNG) <= 1)
    wait_for_the_words_of(stage, stage.elapsed())
    screen.press("ctrl+Left")
    wait_for("a step back", lambda: abs(stage.elapsed() - before) <= 1)
    wait_for_the_words_of(stage, stage.elapsed())


def field(stage, name):
    return stage.program.wait_for("spin button", name)


def wait_for_field(stage, name, text):
    wait_for(f"{name} {text}", lambda: tree.text_of(field(stage, name)) == text)


def repeats_a_passage(stage):
    begin = stage.elapsed()
    screen.press("z")
    wait_for_field(stage, "Repeat start time", clock(begin))
    screen.press("ctrl+Right")
    wait_for("a step on", lambda: stage.elapsed() > begin + 1)
    end = stage.elapsed()
    screen.press("x")
    wait_for_field(stage, "Repeat stop time", clock(end))

    # The song stands behind the end of the passage, so it jumps as soon as Auto Play is on.
    screen.press("ctrl+u")
    wait_for("the song to jump to the beginning", lambda: abs(stage.elapsed() - begin) <= 1)
    screen.press("space")
    for _ in range(2):
        wait_for("the passage to run to its end", lambda: stage.elapsed() >= end - 1, 4 * RUNG)
        wait_for("the passage to begin again", lambda: stage.elapsed() <= begin + 1)
        wait_for("the beginning to sound", lambda: stage.listener.sounds(PITCHES[stage.elapsed() // RUNG]))
        wait_for_the_words_of(stage, stage.elapsed())
    screen.press("ctrl+u")
    wait_for("the song to play on behind the end", lambda: stage.elapsed() > end + 1, 4 * RUNG)
    screen.press("space")
    stage.wait_for_label("What the player does", "Paused")


def types_a_time(stage):
    x, y, _, height = tree.area(field(stage, "Repeat stop time"))
    screen.click(x + 12, y + height // 2)
    screen.press("0", "0", "4", "5", "s", "space")
    wait_for_field(stage, "Repeat stop time", "00:45")
    stage.wait_for_label("What the player does", "Paused")
    screen.press("Return")
    screen.press("space")
    stage.wait_for_label("What the player does", "Playing")
    screen.press("space")
    stage.wait_for_label("What the player does", "Paused")

    screen.click(x + 12, y + height // 2)
    screen.press("3", "0", "Up")
    wait_for_field(stage, "Repeat stop time", "30:46")
    screen.press("Escape")
    wait_for_field(stage, "Repeat stop time", "00:45")
    screen.press("s")
    stage.wait_for_label("What the player does", "Stopped")
    stage.wait_for_silence()


def gives_up_a_run_while_the_song_plays(stage):
    def the_song_sounds():
        rung = stage.elapsed() // RUNG
        # A stretch that two rungs share has half of each.
        return any(stage.listener.sounds(pitch, 0.2) for pitch in PITCHES[max(0, rung - 1):rung + 2])

    screen.press("Return")
    wait_for("the song to sound", the_song_sounds)
    rows, header, before = stage.rows(), stage.header(), stage.elapsed()
    screen.press("alt+r")
    wait_for("the run to begin", lambda: stage.status().endswith(f" of {SPARES + 3}"))
    holds_for("the sound of the song that plays", the_song_sounds, 3.0)
    measured = int(stage.status().split(" of ")[0])
    assert 3 <= measured < SPARES, f"{measured} songs are measured by now"
    screen.press("Escape")
    wait_for("an empty status bar", lambda: stage.status() == "")
    holds_for("the run's end", lambda: stage.status() == "" and the_song_sounds(), 1.0)
    assert stage.elapsed() >= before + 3, "the song was held up"
    assert stage.label("Song") == "Ladder.wav" and stage.label("What the player does") == "Playing"
    assert (stage.rows(), stage.header()) == (rows, header), stage.rows()
    screen.press("Right")
    wait_for("the spare songs", lambda: stage.header().startswith("Spare Songs"))
    assert {row[2] for row in stage.rows()} == {"00:09"}, stage.rows()
    screen.press("Left")
    wait_for("the rehearsal", lambda: stage.header() == header)
    screen.press("s")
    stage.wait_for_silence()


def measures_all_songs(stage):
    screen.press("i")
    wait_for("an empty message display", lambda: stage.message().strip() == "")
    screen.press("t")
    wait_for("the measured total", lambda: stage.header() == HEADER_MEASURED, 30)
    assert stage.message_lines() == [
        'Calculating times for song "Ladder.wav": 01:00',
        'Calculating times for song "Lost Song.mp3": 00:00',
        'Calculating times for song "Short Tone.mp3": 00:03',
    ], stage.message()
    assert [row[2] for row in stage.rows()] == ["01:00", "00:00", "00:03"], stage.rows()
    stage.wait_for_silence()
    holds_for("a run that is over is silent", stage.listener.silent, 1.0)


def closes_and_keeps_the_times(stage, rehearsal):
    screen.press("alt+F4")
    wait_for("the question about the changes", lambda: screen.active_window_title() == "Brevant")
    screen.press("Return")
    status = stage.program.exit_status()
    assert status == 0, f"the program ended with status {status}"
    saved = rehearsal.document.read_bytes().decode("utf-16-le")
    assert 'Ladder.wav" 01:00\r\n' in saved and 'Lost Song.mp3" 00:00\r\n' in saved, saved
    settings = stage.program.settings_file.read_text("utf-8")
    assert f"FastFowardFastReverseTimeStep={RUNG}\n" in settings.replace("\r\n", "\n"), settings


def perform(evening_flow):
    rehearsal = Rehearsal(evening_flow.scratch / "set lists")
    stage = Stage(evening_flow.start(rehearsal.document), evening_flow.listener)
    steps = (
        (lambda: opens_the_document(stage), "opens the document"),
        (lambda: changes_the_volume(stage), "changes the volume with its keys"),
        (lambda: follows_the_words(stage), "plays, and reads the words of the song"),
        (lambda: seeks(stage), "seeks to and fro by a step that was entered"),
        (lambda: repeats_a_passage(stage), "repeats a passage set with Z and X"),
        (lambda: types_a_time(stage), "types a time and gets its keys back"),
        (lambda: gives_up_a_run_while_the_song_plays(stage), "gives up a run while the song plays"),
        (lambda: measures_all_songs(stage), "measures all songs"),
        (lambda: closes_and_keeps_the_times(stage, rehearsal), "closes and keeps the times"),
    )
    evening_flow.take(steps)


if __name__ == "__main__":
    flow.run(perform)
