"""Ears for an hour, and a sound server that dies, hangs and comes back."""

import signal
import time

from rig import sound


class Ears(sound.Listener):
    """Keeps the last half minute alone."""

    KEPT = 30 * sound.RATE

    def _collect(self):
        while chunk := self.recorder.stdout.read(sound.RATE // 50 * 2):
            if len(chunk) % 2 == 0:
                with self.lock:
                    self.samples.frombytes(chunk)
                    if len(self.samples) > 2 * self.KEPT:
                        del self.samples[:-self.KEPT]


class SoundSystem:
    """The server and who listens to it. `well_since` is when it last began to work; None while it does not."""

    def __init__(self, folder):
        self.server = sound.Server(folder)
        self.ears = Ears()
        self.well_since = time.monotonic()

    def well_for(self):
        return 0.0 if self.well_since is None else time.monotonic() - self.well_since

    def kill(self):
        self.well_since = None
        self.server.kill()
        self.ears.close()

    def start(self):
        self.server.start()
        self.ears = Ears()
        self.well_since = time.monotonic()

    def hang(self):
        self.well_since = None
        self.server.process.send_signal(signal.SIGSTOP)

    def go_on(self):
        self.server.process.send_signal(signal.SIGCONT)
        # Who records has missed some of it: what is heard from now on counts.
        self.ears.close()
        self.ears = Ears()
        self.well_since = time.monotonic()

    def close(self):
        self.server.process.send_signal(signal.SIGCONT)
        self.ears.close()
        self.server.kill()
