"""What goes on beside the keys: the watch over the program's event loop, its memory, and its files on the disk."""

import json
import os
import re
import subprocess
import threading
import time

from material import read_document

SAMPLE_EVERY = 10  # seconds


class LoopWatch:
    """Reads what the library brevant_watchdog appends to its log."""

    def __init__(self, log, binary):
        self.log, self.binary, self.read = log, binary, 0
        self.stalls, self.spread, self.start = [], None, None

    def news(self):
        """The stalls noted since the last time."""
        found = []
        if not self.log.exists():
            return found
        with open(self.log, encoding="utf-8", errors="replace") as file:
            file.seek(self.read)
            lines = file.readlines()
            for line in lines:
                if not line.endswith("\n"):
                    break
                self.read += len(line.encode("utf-8", "replace"))
                note = json.loads(line)
                if note["kind"] == "stall":
                    found.append(note)
                elif note["kind"] == "spread":
                    self.spread = note
                else:
                    self.start = note
        self.stalls += found
        return found

    def stack_lines(self, stack):
        """Frames with the names that only the debugger's tables know, innermost first."""
        lines = []
        for frame in stack:
            place, _, name = frame.partition(" ")
            file, _, offset = place.rpartition("+")
            if os.path.realpath(file) == os.path.realpath(self.binary):
                # A return address is that of the next instruction.
                told = subprocess.run(["addr2line", "-Cfpsie", str(self.binary), hex(int(offset, 16) - 1)],
                                      capture_output=True, text=True, check=False).stdout
                name = " < ".join(told.strip().splitlines())
            lines.append(f"{os.path.basename(file)} {name or offset}")
        return lines


class Memory:
    """The program's memory, threads and open files every ten seconds."""

    def __init__(self, process_id):
        self.process_id, self.samples, self.next = process_id, [], 0.0

    def sample(self, minutes, heap):
        """(minutes, resident MB, heap MB, threads, files), or None when it is not yet time."""
        if time.monotonic() < self.next:
            return None
        self.next = time.monotonic() + SAMPLE_EVERY
        try:
            with open(f"/proc/{self.process_id}/status", encoding="ascii") as status:
                said = status.read()
            files = len(os.listdir(f"/proc/{self.process_id}/fd"))
        except OSError:
            return None
        resident = int(re.search(r"VmRSS:\s+(\d+)", said).group(1)) / 1024
        threads = int(re.search(r"Threads:\s+(\d+)", said).group(1))
        self.samples.append((minutes, resident, heap / 2**20, threads, files))
        return self.samples[-1]

    def at(self, minute):
        """The sample nearest to a minute, or None beyond the last one."""
        if not self.samples or minute > self.samples[-1][0] + 0.5:
            return None
        return min(self.samples, key=lambda sample: abs(sample[0] - minute))

    def slope(self, column, begin):
        """Growth an hour from a minute on, by least squares; None for less than two minutes of samples."""
        points = [(sample[0] / 60, sample[column]) for sample in self.samples if sample[0] >= begin]
        if len(points) < 12:
            return None
        mean_x, mean_y = (sum(values) / len(points) for values in zip(*points))
        spread = sum((x - mean_x) ** 2 for x, _ in points)
        return sum((x - mean_x) * (y - mean_y) for x, y in points) / spread


class DiskWatch:
    """Looks at the documents and settings as often as it can; whatever it ever reads of them has to be whole."""

    def __init__(self, folders):
        self.folders, self.seen, self.broken, self.read = folders, {}, [], 0
        self.over = threading.Event()
        self.thread = threading.Thread(target=self._watch, daemon=True)
        self.thread.start()

    def _watch(self):
        while not self.over.wait(0.05):
            for folder in self.folders:
                for ending in ("*.brv", "*.ini"):
                    for file in folder.rglob(ending):
                        self._look_at(file)

    def _look_at(self, file):
        try:
            state = file.stat()
            mark = (state.st_ino, state.st_mtime_ns, state.st_size)
            if self.seen.get(file) == mark:
                return
            content = file.read_bytes()
        except OSError:
            return  # gone again, or not to be read for the moment
        self.seen[file] = mark
        self.read += 1
        whole = (read_document(content) is not None if file.suffix == ".brv" else
                 not content or content.endswith(b"\n"))
        if not whole:
            self.broken.append(f"{file} is half a file of {len(content)} bytes, ending in {content[-60:]!r}")

    def news(self):
        found, self.broken = self.broken, []
        return found

    def close(self):
        self.over.set()
        self.thread.join()
