"""Performs a set list on the built program as a musician would: opens it, steps through it with single keys, hears
it, and finds it again at the next start.
"""

from rig import flow, screen, songs
from rig.stage import Stage
from rig.waiting import holds_for, wait_for

WHITE, BLACK = (255, 255, 255), (0, 0, 0)
RED, GREEN, AMBER = (255, 0, 0), (0, 255, 0), (255, 191, 0)  # played, playing, next

LYRICS = ["M: The harbour hums,", "F: the evening comes."]

# 9 + 2 + 8 + 8 seconds and three gaps of 15; the third song is noted three seconds short until it has been played.
FIRST_HEADER = "First Set - Total Playlist Time: 01:12"
FIRST_HEADER_AS_OPENED = "First Set - Total Playlist Time: 01:09"
SECOND_HEADER = "Second Set - Total Playlist Time: 00:31"  # 8 + 8 seconds and one gap

KEY_HELP = ("Play=ENTER, P, F5| Stop=S, F6, 6 | Pause Cont.=Spacebar | Playlist Prior=<- | Playlist Next=-> | "
            "Song Prior=^ | Song Next=v | Select=RETURN | Properties=Q | Focus Manager=F2/2 | Focus Playlist=F3/3")


class Evening:
    """The document: a tone of its own pitch for each song, a short one to hear the end of, and a song that is gone."""

    def __init__(self, folder):
        folder.mkdir()
        self.document = folder / "Evening.brv"
        self.missing = folder / "Lost Song.mp3"
        first = folder / "Harbour Tone.wav"
        songs.write_wave(first, 440, 9.2)
        songs.write_lyrics(first, [(0, LYRICS[0]), (5000, LYRICS[1])])
        songs.write_wave(folder / "Short Tone.wav", 660, 2.4)
        songs.write_mp3(folder / "Third Tone.mp3", 550, 8.2)
        songs.write_midi(folder / "Organ.mid", 69, 8.2)
        songs.write_wma(folder / "Last Tone.wma", 880, 8.2)
        songs.write_document(self.document, [
            ("Band", "First Set", first, "00:09"),
            ("Band", "First Set", folder / "Short Tone.wav", "00:02"),
            ("Band", "First Set", folder / "Third Tone.mp3", "00:05"),
            ("Band", "First Set", self.missing, "00:08"),
            ("Band", "Second Set", folder / "Organ.mid", "00:08"),
            ("Band", "Second Set", folder / "Last Tone.wma", "00:08"),
        ])


def opens_the_document(stage, evening):
    stage.dismiss_the_about_box()
    wait_for("the title", lambda: screen.active_window_title() == "Evening.brv - Brevant")
    assert stage.rows() == [
        ["1", "Found\\Lyrics", "00:09", "Harbour Tone.wav"],
        ["2", "Found", "00:02", "Short Tone.wav"],
        ["3", "Found", "00:05", "Third Tone.mp3"],
        ["4", "Not found", "00:08", "Lost Song.mp3"],
    ], stage.rows()
    assert stage.header() == FIRST_HEADER_AS_OPENED, stage.header()
    assert stage.message().strip() == "...Brevant...", stage.message()
    assert stage.program.find("label", KEY_HELP), "the status bar does not show the key help"
    stage.wait_for_colours(GREEN, AMBER, WHITE, WHITE)


def plays_pauses_and_stops(stage, listener):
    assert listener.silent(), "something sounds before Play"
    screen.press("Return")
    stage.wait_to_hear(440)
    stage.program.wait_for("label", "Harbour Tone.wav")  # in the player pane
    wait_for("the song's words, and nothing else", lambda: stage.message_lines() == LYRICS, 5)

    screen.press("space")
    stage.wait_for_silence()
    holds_for("a paused song is silent and stays current",
              lambda: listener.silent() and stage.header() == FIRST_HEADER_AS_OPENED, 1.5)
    stage.wait_for_colours(GREEN, AMBER, WHITE, WHITE)
    screen.press("space")
    stage.wait_to_hear(440)

    screen.press("s")
    stage.wait_for_silence()
    holds_for("a stopped song does not give way to the next", listener.silent, 1.0)
    stage.wait_for_colours(GREEN, AMBER, WHITE, WHITE)


def steps_through_the_songs(stage):
    screen.press("Down")
    stage.wait_for_colours(RED, GREEN, AMBER, WHITE)
    screen.press("Up")
    stage.wait_for_colours(GREEN, AMBER, WHITE, WHITE)
    screen.press("Up")
    stage.wait_for_colours(GREEN, AMBER, WHITE, WHITE)
    screen.press("Down")
    stage.wait_for_colours(RED, GREEN, AMBER, WHITE)


def a_song_runs_to_its_end(stage, listener):
    screen.press("Return")
    stage.wait_to_hear(660)
    stage.wait_for_colours(WHITE, RED, GREEN, AMBER)
    stage.wait_for_silence()
    holds_for("the next song waits for its key", listener.silent, 1.5)
    stage.wait_for_colours(WHITE, RED, GREEN, AMBER)
    assert stage.header() == FIRST_HEADER_AS_OPENED, stage.header()
    screen.press("F5")
    stage.wait_to_hear(550)
    wait_for("the total with the length that Play measured", lambda: stage.header() == FIRST_HEADER)
    assert stage.rows()[2] == ["3", "Found", "00:08", "Third Tone.mp3"], stage.rows()
    screen.press("F6")
    stage.wait_for_silence()


def turns_black_into_white_and_back(stage):
    screen.press("w")
    stage.wait_for_background(WHITE)
    screen.press("w")
    stage.wait_for_background(BLACK)
    stage.wait_for_colours(WHITE, RED, GREEN, AMBER)


def picks_a_row_with_the_mouse(stage):
    stage.double_click_row(0)
    stage.wait_to_hear(440)
    stage.wait_for_colours(stage.SELECTED, AMBER, WHITE, WHITE)
    stage.double_click_row(2)
    stage.wait_to_hear(550)
    stage.wait_for_colours(WHITE, RED, stage.SELECTED, AMBER)
    screen.press("s")
    stage.wait_for_silence()
    screen.press("Down")
    stage.wait_for_colours(WHITE, WHITE, stage.SELECTED, GREEN)


def plays_with_the_mouse(stage):
    stage.click_the_button("Play")
    stage.wait_to_hear(550)
    stage.click_the_button("Pause")
    stage.wait_for_silence()
    stage.click_the_button("Pause")
    stage.wait_to_hear(550)
    stage.click_the_button("Stop")
    stage.wait_for_silence()
    stage.wait_for_colours(WHITE, RED, GREEN, AMBER)


def a_lost_song_is_reported(stage, listener, evening):
    screen.press("Down")
    stage.wait_for_colours(WHITE, WHITE, RED, GREEN)
    screen.press("Return")
    lost = songs.windows_path(evening.missing)
    stage.wait_for_message(f"Unable to play song as unable to find file: {lost}")
    assert stage.rows()[3][1] == "Not found", stage.rows()
    holds_for("a lost song stays silent", listener.silent, 1.0)


def goes_to_the_next_playlist(stage):
    screen.press("Right")
    wait_for("the second playlist", lambda: stage.header() == SECOND_HEADER)
    assert stage.rows() == [["1", "Found", "00:08", "Organ.mid"], ["2", "Found", "00:08", "Last Tone.wma"]], stage.rows()
    # The fourth song was current, and this playlist has two: no row is marked until Play takes the first.
    stage.wait_for_colours(WHITE, WHITE)
    screen.press("p")
    stage.wait_to_hear(440, share=0.2)
    stage.wait_for_colours(GREEN, AMBER)
    screen.press("Down")
    stage.wait_for_colours(RED, GREEN)
    screen.press("Return")
    stage.wait_to_hear(880)
    screen.press("s")
    stage.wait_for_silence()
    screen.press("Left")
    wait_for("the first playlist", lambda: stage.header() == FIRST_HEADER)
    stage.wait_for_colours(RED, GREEN, AMBER, WHITE)


def closes_and_writes_its_settings(stage, program, evening):
    screen.press("alt+F4")
    status = program.exit_status()
    assert status == 0, f"the program ended with status {status}"
    settings = program.settings_file.read_text("utf-8")
    assert settings.startswith("[Brevant]"), settings
    assert f"LastLoadedFileName={songs.windows_path(evening.document)}" in settings, settings
    assert "AutoSongAdvance=Yes" in settings, settings


def perform(rig):
    evening = Evening(rig.scratch / "set lists")
    listener = rig.listener
    program = rig.start(evening.document)
    stage = Stage(program, listener)
    steps = (
        (lambda: opens_the_document(stage, evening), "opens the document named on the command line"),
        (lambda: plays_pauses_and_stops(stage, listener), "plays, pauses, continues and stops the first song"),
        (lambda: steps_through_the_songs(stage), "steps down and up"),
        (lambda: a_song_runs_to_its_end(stage, listener), "hears a song to its end, and the next becomes current"),
        (lambda: turns_black_into_white_and_back(stage), "turns black into white and back"),
        (lambda: plays_with_the_mouse(stage), "plays with the mouse in the player pane"),
        (lambda: a_lost_song_is_reported(stage, listener, evening), "is told of a lost song"),
        (lambda: picks_a_row_with_the_mouse(stage), "picks a row with a double-click"),
        (lambda: goes_to_the_next_playlist(stage), "goes to the next playlist and back"),
        (lambda: closes_and_writes_its_settings(stage, program, evening), "closes"),
    )
    rig.take(steps)

    rig.step("starts again and finds the last document")
    again = rig.start()
    second = Stage(again, listener)
    second.dismiss_the_about_box()
    wait_for("the title", lambda: screen.active_window_title() == "Evening.brv - Brevant")
    assert second.header() == FIRST_HEADER_AS_OPENED, second.header()
    second.wait_for_colours(GREEN, AMBER, WHITE, WHITE)
    rig.picture("the-second-start")
    screen.press("alt+f")
    screen.press("x")
    status = again.exit_status()
    assert status == 0, f"the second run ended with status {status}"


if __name__ == "__main__":
    flow.run(perform)
