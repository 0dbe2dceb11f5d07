"""The playlist manager's tree as the operator sees it, and the mouse in it."""

import pyatspi

from rig import accessibility as tree
from rig import screen
from rig.waiting import wait_for

INDENT = "  "  # before a line of the outline, once for each entry above it
PICTURE = 23  # pixels from the left of an entry to its label
INTO_THE_LABEL = 12
SHADES = 60  # how far apart colours may be that are shades of one, as red, green and blue in sum
ARROW = 10  # pixels from an entry's arrow to its left


class Manager:
    def __init__(self, stage):
        self.stage = stage

    def entries(self):
        """(element, level, name) of each entry that is not folded away, top down."""
        found = []
        pane = self.stage.program.wait_for("tree", "Play List Manager")
        for place in range(pane.childCount):
            element = pane.getChildAtIndex(place)
            if element is not None and element.getRoleName() == "table cell":
                found.append((element, tree.area(element)[0], element.name))
        # How deep an entry stands is told by nothing but its place.
        edges = sorted({left for _, left, _ in found})
        return [(element, edges.index(left), name) for element, left, name in found]

    def outline(self):
        """A line for each entry, indented by its level."""
        try:
            return [INDENT * level + name for _, level, name in self.entries()]
        except tree.VANISHED:
            return None  # the tree changed while it was read

    def wait_for_outline(self, *lines):
        wanted, seen = list(lines), []

        def shown():
            seen[:] = [self.outline()]
            return seen == [wanted]

        try:
            wait_for("the tree", shown, 5)
        except AssertionError:
            raise AssertionError(f"the tree shows {seen[0]} instead of {wanted}") from None

    def selected(self):
        """The name of the selected entry, or None."""
        try:
            return next((name for element, _, name in self.entries()
                         if element.getState().contains(pyatspi.STATE_SELECTED)), None)
        except tree.VANISHED:
            return None

    def wait_for_selected(self, name):
        wait_for(f"{name!r} to be selected in the tree", lambda: self.selected() == name, 5)

    def has_focus(self):
        pane = self.stage.program.wait_for("tree", "Play List Manager")
        return pane.getState().contains(pyatspi.STATE_FOCUSED)

    def focus(self):
        screen.press("F2")
        wait_for("the tree to have the keys", self.has_focus)

    def label(self, name, after=None):
        """Where the label of the first entry of that name is, below the first entry named `after`."""
        passed = after is None
        for element, _, text in self.entries():
            if passed and text == name:
                left, top, _, height = tree.area(element)
                return left + PICTURE + INTO_THE_LABEL, top + height // 2
            passed = passed or text == after
        raise AssertionError(f"the tree shows no {name!r}: {self.outline()}")

    def wait_for_label_field(self, name):
        """The label of the selected entry is being typed: the field covers what shows the selection behind the label.
        The accessibility tree has no way to the field."""
        def opened():
            x, y, width, _ = tree.area(next(element for element, _, text in self.entries() if text == name))
            picture = screen.Picture()
            before, behind = (next(iter(picture.colours((at, y + 2, 1, 1)))) for at in (x + 1, x + width - 9))
            return sum(abs(a - b) for a, b in zip(before, behind)) > SHADES

        wait_for(f"a field to rename {name!r} in", opened, 5)

    def click(self, name, after=None):
        screen.click(*self.label(name, after))
        self.wait_for_selected(name)

    def below_the_entries(self):
        """Below the few entries of a flow, with room on the display for a menu to open downwards, under the pointer."""
        left, top, width, height = tree.area(self.stage.program.wait_for("tree", "Play List Manager"))
        return left + width // 2, top + height * 2 // 3

    def unfold(self, name):
        """Clicks the arrow before an entry."""
        x, y = self.label(name)
        folded = len(self.entries())
        screen.click(x - PICTURE - INTO_THE_LABEL - ARROW, y)
        wait_for(f"what lies below {name!r}", lambda: len(self.entries()) > folded, 5)

    def drag(self, source, target):
        """Drags an entry onto another, both told by their names, and lets go when the target is shown as such."""
        with screen.drag(self.label(source), self.label(target)):
            self.wait_for_selected(target)
