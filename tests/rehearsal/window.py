"""The program's window at a glance: what an operator takes in with one look, read from the accessibility tree and from
the colours on the screen.
"""

import dataclasses
import time

import pyatspi

from rig import accessibility as tree
from rig import screen

SONG, PHASE, ELAPSED, TOTAL, VOLUME, NOTICE = ("Song", "What the player does", "Elapsed time", "Total time", "Volume",
                                               "Notice of the player")
ASKING = ("dialog", "alert", "file chooser")


@dataclasses.dataclass
class Look:
    at: float = 0.0
    title: str = ""
    asking: tuple = ()  # titles of dialogs and questions
    song: str | None = None  # None: the player pane is not shown
    phase: str = ""
    elapsed: int = 0
    total: int | None = None
    volume: int = 0
    notice: str = ""
    status: str = ""
    header: str = ""
    rows: tuple = ()
    green: int | None = None  # the row in the current song's colour, when there is exactly one in sight
    auto_play: bool = False

    def green_song(self):
        return self.rows[self.green] if self.green is not None else None

    def playlist(self):
        return self.header.rsplit(" - Total Playlist Time", 1)[0]

    def nearly_over(self, seconds=3):
        return self.phase == "Playing" and (self.total is None or self.total - self.elapsed <= seconds)

    def __str__(self):
        total = "--:--" if self.total is None else f"{self.total // 60:02d}:{self.total % 60:02d}"
        pane = ("no player pane" if self.song is None else
                f"{self.song} | {self.phase} {self.elapsed // 60:02d}:{self.elapsed % 60:02d}/{total} "
                f"at {self.volume}{' | ' + self.notice if self.notice else ''}")
        asking = f" | ASKS {self.asking}" if self.asking else ""
        return (f"{self.title} | {self.playlist()}, green {self.green_song()!r} ({self.green}) of {len(self.rows)} | {pane}"
                f" | {self.status!r}{asking}")


def seconds_of(text):
    parts = text.split(":")
    return sum(int(part) * 60 ** place for place, part in enumerate(reversed(parts))) if parts[0].isdigit() else None


class Window:
    def __init__(self, program, pixels):
        self.program, self.pixels = program, pixels
        self.kept = {}

    def element(self, role, name=None, description=None):
        """Found once and kept as long as it answers: finding takes hundreds of questions to the program."""
        wanted = (role, name, description)
        kept = self.kept.get(wanted)
        try:
            if kept is not None and kept.getState().contains(pyatspi.STATE_SHOWING):
                return kept
            if kept is not None and kept.getRoleName() == role:
                return None  # it is there, and hidden
        except tree.VANISHED:
            pass
        found = self.program.find(role, name, description)
        if found is not None:
            self.kept[wanted] = found
        return found

    def text(self, description):
        label = self.element("label", description=description)
        return None if label is None else label.name

    def look(self):
        """One that nothing vanished under; the last try's failure otherwise."""
        for patience in range(20):
            try:
                return self._look()
            except tree.VANISHED as vanished:
                self.kept.clear()
                failure = vanished
                time.sleep(0.05 * patience)
        raise AssertionError(f"the window cannot be read: {failure!r}")

    def windows(self):
        """(role, title) of all windows of the program."""
        application = tree.application_of(self.program.process.pid)
        return [] if application is None else [(window.getRoleName(), window.name) for window in application if window]

    def _look(self):
        look = Look(at=time.time())
        for role, title in self.windows():
            if role in ASKING:
                look.asking += (title,)
            elif role == "frame" and (title.endswith(" - Brevant") or title.rstrip("*") == "Brevant"):
                look.title = title
        look.song = self.text(SONG)
        if look.song is not None:
            look.phase, look.notice = self.text(PHASE) or "", self.text(NOTICE) or ""
            look.elapsed, look.total = seconds_of(self.text(ELAPSED) or "") or 0, seconds_of(self.text(TOTAL) or "")
            look.volume = int(self.text(VOLUME) or 0)
        bar = self.element("status bar", "Status bar")
        if bar is not None:
            said = tree.find(bar, "label")
            look.status = "" if said is None or said.name == "Status message" else said.name
        button = self.element("check box", "Auto Play")
        look.auto_play = button is not None and button.getState().contains(pyatspi.STATE_CHECKED)
        self._look_at_the_playlist(look)
        return look

    def _look_at_the_playlist(self, look):
        table = self.element("table", "Playlist")
        if table is None:
            return
        grid = table.queryTable()
        look.header = grid.getColumnDescription(4)
        count = grid.nRows
        if count == 0:
            return
        cells = [grid.getAccessibleAt(row, 4) for row in range(count)]
        look.rows = tuple(cell.name for cell in cells)
        seen = tree.area(table)
        x, y, width, height = tree.area(cells[0])
        if height <= 0:
            return
        marked = []
        for row in range(count):
            area = screen.common_area((x, y + row * height, min(width, 260), height), seen)
            if area[3] >= height // 2 and self.pixels.green(area) >= 4:
                marked.append(row)
        look.green = marked[0] if len(marked) == 1 else None
