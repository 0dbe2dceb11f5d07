"""What has to hold at every look, whatever was done before: the song that sounds is the one that is shown, nothing starts
by itself that should not, nothing asks unasked, no file is half written, the event loop comes round.
"""

import time

import material as songs_of

SETTLED = 5.0  # seconds after which a sound system that came back, or a file, is held to work
CLOSE_LISTENING = 0.4  # seconds of sound that are looked at
LOUD = 30  # of 32767
AUDIBLE = 40  # the volume from which on a song is louder than that


class Judge:
    def __init__(self, run):
        self.run = run
        self.before = None  # the last look
        self.claimed_until = 0.0  # a start was asked for: until then another song may begin
        self.claimed_at = 0.0
        self.claimed = None  # the song that was asked for, until it is seen
        self.silent = None  # the song that cannot be played
        self.loading_since = None
        self.asking_since = None
        self.number, self.number_in, self.old_green = None, None, None  # of the current song, as far as seen
        self.still = None  # (song, elapsed, since) of a song that plays

    def claim(self, seconds=4.0):
        self.claimed_at = time.time()
        self.claimed_until = self.claimed_at + seconds

    def fail(self, kind, sentence, picture=True):
        self.run.journal.fail(kind, f"{sentence} -- {self.before}", picture)

    def look(self, expecting_a_question=False):
        """Looks once and judges it."""
        run = self.run
        self.news_of_the_watches()
        look = run.window.look()
        before, self.before = self.before, look
        self.leave_out_old_colours(look)
        if look.asking and not expecting_a_question:
            self.asks_unasked(look)
        if before is not None and look.song is not None:
            self.song_changed(before, look)
            self.loads_for_ever(look)
            self.cannot_play(look)
            self.stands_still(before, look)
        if before is not None and run.sound.well_for() > SETTLED:
            self.sounds_as_shown(before, look)
        return look

    def leave_out_old_colours(self, look):
        """The number of the current song stays from one playlist to the next. One that is too short for it has no current
        song, and may still show the colours of the last time: nothing is expected of that green row."""
        if look.green is None:
            return
        if look.header and look.playlist() != self.number_in:
            too_short = self.number is not None and self.number >= len(look.rows)
            self.old_green = look.green if too_short else None
            self.number_in = look.playlist()
        if look.green == self.old_green:
            look.green = None
        else:
            self.number, self.old_green = look.green, None

    def news_of_the_watches(self):
        run = self.run
        for stall in run.loop.news():
            kind = "stall" if stall["judged"] == "program" else "busy machine"
            sentence = (f"the event loop stood for {stall['waited'] * 1000:.0f} ms: {stall['worked'] * 1000:.0f} at work, "
                        f"{stall['queued'] * 1000:.0f} in the queue for a processor, its helpers {stall['helpers'] * 1000:.0f}, "
                        f"after {run.act!r}")
            if kind == "stall":
                stack = run.loop.stack_lines(stall["stacks"][0]) if stall["stacks"] else ["not caught"]
                stall["after"] = run.act
                stall["told"] = stack
                run.journal.fail(kind, sentence, picture=False)
                for frame in stack:
                    run.journal.line("", "    " + frame)
            else:
                run.journal.line("machine", sentence)
        for broken in run.disk_watch.news():
            run.journal.fail("half a file", broken)
        heap = (run.loop.spread or {}).get("heap", 0)
        sample = run.memory.sample(run.journal.minutes(), heap)
        if sample:
            run.journal.line("memory", f"{sample[1]:.1f} MB resident, {sample[2]:.1f} MB heap, {sample[3]} threads, "
                                       f"{sample[4]} files")

    def asks_unasked(self, look):
        # What the last act opened may still be on its way out.
        for _ in range(10):
            time.sleep(0.1)
            look = self.run.window.look()
            if not look.asking:
                return
        self.before = look
        self.fail("a dialog nobody asked for", f"{look.asking} after {self.run.act!r}")
        self.run.back_to_the_window()

    def song_changed(self, before, look):
        if look.song == before.song or before.song is None:
            return
        self.run.journal.starts += look.phase in ("Loading", "Playing")
        self.run.journal.line("song", f"{before.song} -> {look.song}")
        if time.time() < self.claimed_until:
            return
        # The song that was asked for may have begun, and a short one ended, between the two looks.
        if look.song == self.claimed or self.claimed_at >= before.at:
            self.claimed = None
            return
        gone_by = look.at - before.at
        if not before.auto_play and not look.auto_play:
            self.fail("a song by itself", f"{before.song!r} gave way to {look.song!r} without Auto Play")
        elif (before.phase == "Playing" and before.total is not None and
              before.total - before.elapsed > gone_by + 3 and not self.run.seeks_lately()):
            self.fail("a song cut short", f"{before.song!r} gave way to {look.song!r} "
                      f"{before.total - before.elapsed} s before its end")

    def loads_for_ever(self, look):
        if look.phase != "Loading" or self.run.sound.well_for() < SETTLED:
            self.loading_since = None
        elif self.loading_since is None:
            self.loading_since = time.time()
        elif time.time() - self.loading_since > 8:
            self.fail("loads for ever", f"{look.song!r} is loading for 8 s")
            self.loading_since = None

    def cannot_play(self, look):
        if look.phase != "Cannot play":
            self.silent = None
        if look.phase != "Cannot play" or self.silent == look.song:
            return
        # Only where it begins: a song that was gone then stays so in the player when its file is back.
        self.silent = look.song
        song = self.run.material.song(look.song)
        # A song that has been renamed since it was started is looked for where it no longer is named.
        if (song is None or self.run.broken_lately(song) or not song.path.exists() or
                self.run.sound.well_for() < SETTLED):
            return
        self.fail("cannot play", f"{look.song!r} is there and cannot be played: {look.notice!r}")

    def stands_still(self, before, look):
        # Whoever did not look for seconds cannot tell a song that stood from one that began anew.
        if (look.phase != "Playing" or self.run.sound.well_for() < SETTLED or self.run.repeats or
                look.at - before.at > 2.5):
            self.still = None
        elif self.still is None or self.still[:2] != (look.song, look.elapsed):
            self.still = (look.song, look.elapsed, look.at)
        elif look.at - self.still[2] > 6:
            self.fail("stands still", f"{look.song!r} plays and stays at {look.elapsed} s")
            self.still = None

    def sounds_as_shown(self, before, look):
        """A song that has been shown as playing is heard, and nothing is while none is."""
        if look.song is None or (look.song, look.phase) != (before.song, before.phase):
            return
        ears, song = self.run.sound.ears, self.run.material.song(look.song)
        if look.phase in ("Stopped", "Paused", "Cannot play"):
            if look.at - before.at > 1 and not self.patiently(look, lambda: ears.silent(CLOSE_LISTENING)):
                self.fail("sound out of nothing", f"{self.sounding()} sounds while "
                          f"{look.song!r} is shown as {look.phase}")
        elif (look.phase == "Playing" and song is not None and look.volume >= AUDIBLE and look.elapsed >= 1 and
              not look.nearly_over() and not self.run.repeats):
            if not self.patiently(look, lambda: self.heard(song)):
                self.fail("wrong sound", f"{look.song!r} is shown as playing, and what sounds is {self.sounding()}")
            else:
                self.run.heard_right += 1

    def heard(self, song):
        """Most of what sounds is this song."""
        ears = self.run.sound.ears
        return ears.loudness(CLOSE_LISTENING) >= LOUD and song.share(ears.last(CLOSE_LISTENING)) >= 0.5

    def sounding(self):
        ears = self.run.sound.ears
        return (f"{songs_of.song_heard(self.run.material, ears.last(CLOSE_LISTENING))} of loudness "
                f"{ears.loudness(CLOSE_LISTENING):.0f}")

    def patiently(self, look, condition):
        """True as soon as it holds, within three seconds, or when another song or phase is shown meanwhile."""
        for _ in range(12):
            if condition():
                return True
            time.sleep(0.25)
            now = self.run.window.look()
            if (now.song, now.phase) != (look.song, look.phase) or now.nearly_over(2):
                return True
        return False

    def expect_song(self, name, look_before):
        """Enter was pressed on a row of that name: that song is the one in the player, soon."""
        deadline = time.time() + 4
        self.claim()
        self.claimed = name
        song = self.run.material.song(name)
        # A missing song ends the one that sounds, and the green moves on by itself.
        if look_before.song is None or (song is not None and (self.run.broken_lately(song) or not song.path.exists())):
            return
        while time.time() < deadline:
            look = self.run.window.look()
            if look.song == name:
                # One that was in the player already says nothing of the playlist that it was asked for in.
                if name != look_before.song:
                    self.run.stepped_from = None
                return
            if look.song is None:
                return
            # A song that ended in the very moment of the key moved the green row on before the key came.
            if look_before.nearly_over() and look.song in look_before.rows:
                return
            time.sleep(0.1)
        self.before = look
        if look.song == look_before.song and self.run.may_be_in_an_empty_playlist(look):
            self.run.journal.line("empty", "a step led to a playlist without songs, and the rows stayed")
            return
        self.fail("wrong song started", f"{name!r} was the green one and {look.song!r} is in the player")
