"""Takes the sound server away in the middle of a song and brings it back: the program goes on, the keys answer, and
Play works again.
"""

from rig import flow, screen, songs
from rig.sound import Listener, Server
from rig.stage import Stage
from rig.waiting import holds_for, wait_for

WHITE, RED, GREEN, AMBER = (255, 255, 255), (255, 0, 0), (0, 255, 0), (255, 191, 0)

NOTICE = "No sound device. The song goes on when there is one again."


def make_the_document(folder):
    folder.mkdir()
    first, second = folder / "Long Tone.wav", folder / "Other Tone.wav"
    songs.write_wave(first, 440, 60)
    songs.write_wave(second, 660, 60)
    document = folder / "Storm.brv"
    songs.write_document(document, [("Band", "Set", first, "01:00"), ("Band", "Set", second, "01:00")])
    return document


def perform(rig):
    server = Server(rig.scratch / "sound")
    try:
        rig.use(Listener())
        program = rig.start(make_the_document(rig.scratch / "set lists"))
        stage = Stage(program, rig.listener)
        stage.dismiss_the_about_box()

        rig.step("the sound server dies while a song plays")
        screen.press("Return")
        stage.wait_to_hear(440)
        wait_for("the song to get going", lambda: stage.elapsed() >= 2)
        server.kill()
        stage.program.wait_for("label", NOTICE)
        held = stage.elapsed()
        rig.picture("without-sound")

        rig.step("the song is held where it is, and the keys answer")
        holds_for("the song neither goes on nor ends", lambda: held <= stage.elapsed() <= held + 1, 2.0)
        stage.wait_for_colours(GREEN, AMBER)
        screen.press("s")
        screen.press("Down")
        stage.wait_for_colours(RED, GREEN)
        screen.press("Return")
        stage.program.wait_for("label", "Other Tone.wav")
        holds_for("a song that cannot sound does not end", lambda: stage.elapsed() == 0, 1.5)
        stage.wait_for_colours(RED, GREEN)

        rig.step("the sound server is back, and Play works again")
        screen.press("s")
        server.start()
        rig.use(Listener())
        stage.listener = rig.listener
        screen.press("Return")
        stage.wait_to_hear(660, seconds=10)
        wait_for("the notice to go", lambda: program.find("label", NOTICE) is None)
        screen.press("s")
        stage.wait_for_silence()
        rig.picture("with-sound-again")
        screen.press("alt+F4")
        status = program.exit_status()
        assert status == 0, f"the program ended with status {status}"
    finally:
        server.kill()


if __name__ == "__main__":
    flow.run(perform)
