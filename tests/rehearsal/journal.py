"""What a run leaves behind: a line for each thing done and what the window showed then, a picture of each failure, and the
figures.
"""

import collections
import time

from rig import screen


class Journal:
    def __init__(self, folder, pixels):
        self.folder, self.pixels = folder, pixels
        self.file = open(folder / "rehearsal.log", "w", encoding="utf-8", buffering=1)
        self.begun = time.time()
        self.keys, self.starts = 0, 0
        self.acts, self.accidents, self.failures = (collections.Counter() for _ in range(3))
        self.failed = []  # (when, kind, sentence)

    def minutes(self):
        return (time.time() - self.begun) / 60

    def line(self, kind, text):
        self.file.write(f"{self.minutes():7.3f} {time.strftime('%H:%M:%S')} {kind:9} {text}\n")

    def press(self, *keys):
        """Types keys and counts them."""
        self.keys += len(keys)
        self.line("keys", " ".join(keys))
        screen.press(*keys)

    def accident(self, kind, sentence):
        self.accidents[kind] += 1
        self.line("accident", f"{kind}: {sentence}")

    def fail(self, kind, sentence, picture=True):
        self.failures[kind] += 1
        self.failed.append((self.minutes(), kind, sentence))
        self.line("FAILURE", f"{kind}: {sentence}")
        print(f"{self.minutes():6.2f}  FAILURE  {kind}: {sentence}", flush=True)
        if picture and self.failures[kind] <= 20:
            self.pixels.save(self.folder / f"{self.minutes():06.2f}-{kind.replace(' ', '-')}.png")
