"""The sheet that changes bars and keys, and the bars of the main window, as the operator sees them."""

import pyatspi

from rig import accessibility as tree
from rig import screen
from rig.waiting import wait_for


class CustomizeSheet:
    TITLE = "Customize"

    def __init__(self, stage):
        self.stage = stage

    def open(self):
        self.stage.click_in_menu("View", "Toolbars", "Customize...")
        self.stage.wait_for_dialog(self.TITLE)

    def close(self):
        screen.press("Escape")
        wait_for("the sheet to close", lambda: self.stage.program.find("dialog", self.TITLE) is None, 5)
        self.stage.wait_for_the_keys()

    def find(self, role, name=None):
        sheet = self.stage.program.find("dialog", self.TITLE)
        return sheet and tree.find(sheet, role, name)

    def wait_for(self, role, name=None):
        return wait_for(f"a {role} named {name!r} in the sheet", lambda: self.find(role, name), 5)

    def press_button(self, name):
        screen.click(*tree.middle(self.wait_for("push button", name)))

    def go_to_page(self, name, key):
        """Goes on to the next page with the keyboard."""
        screen.press(key)
        wait_for(f"the page {name!r}", lambda: self.find("page tab list", name), 5)

    def choose(self, letter, *keys, wanted):
        """Chooses in the combo box whose label has that letter."""
        screen.press(f"alt+{letter}", *keys)
        self.wait_for("combo box", wanted)

    def entries(self, name):
        """(element, text) of each entry of the list of that name."""
        shown = self.wait_for("list", name)
        return [(entry, entry.name) for entry in shown]

    def wait_for_entries(self, name, *texts):
        wait_for(f"the list {name!r} of {texts}", lambda: [text for _, text in self.entries(name)] == list(texts), 5)

    def entry(self, name, text):
        return next(entry for entry, shown in self.entries(name) if shown == text)

    def click_entry(self, name, text):
        screen.click(*tree.middle(self.entry(name, text)))

    def keys_of(self, command):
        """What the page of keys shows beside a command, or None when it does not list the command."""
        cells = [cell.name for cell in self.wait_for("tree", "Commands") if cell.getRoleName() == "table cell"]
        return next((keys for name, keys in zip(cells[0::2], cells[1::2]) if name == command), None)

    def wait_for_keys_of(self, command, keys):
        wait_for(f"{command!r} with the keys {keys!r}", lambda: self.keys_of(command) == keys, 5)


class Bar:
    """A tool bar of the main window."""

    def __init__(self, stage, name):
        self.stage = stage
        self.name = name

    def out_of_sight(self):
        """The texts of the buttons that are there and not shown: none on a bar that has room for all."""
        return [element.name for element in tree.elements(self.stage.program.wait_for("tool bar", self.name))
                if element.getRoleName() == "push button" and element.name and
                not element.getState().contains(pyatspi.STATE_SHOWING)]

    def buttons(self):
        """(left edge, element, text) of each button that is shown, from left to right."""
        found = [(tree.area(element)[0], element, element.name)
                 for element in tree.elements(self.stage.program.wait_for("tool bar", self.name))
                 if element.getRoleName() == "push button" and element.name and
                 element.getState().contains(pyatspi.STATE_SHOWING)]
        return sorted(found, key=lambda button: button[0])

    def button(self, text):
        return next(element for _, element, name in self.buttons() if name == text)

    def wait_for_buttons(self, *texts):
        def shown():
            try:
                return [name for _, _, name in self.buttons()]
            except tree.VANISHED:
                return None  # the bar changed while it was read

        try:
            wait_for("the bar", lambda: shown() == list(texts), 5)
        except AssertionError:
            raise AssertionError(f"{self.name!r} holds {shown()} instead of {texts}") from None

    def height_of(self, text):
        return tree.area(self.button(text))[3]

    def click_in_menu_of(self, text, place, entries):
        """Opens the menu on a button and clicks the entry at `place` of so many. The accessibility tree has no way to
        the menu."""
        x, y, width, height = tree.area(self.button(text))
        inside = x + width // 2, y + height + 8
        screen.point_at(*inside)
        below = screen.window_under_pointer()
        screen.click(x + width // 2, y + height // 2)

        def opened():
            screen.point_at(*inside)
            return screen.window_under_pointer() != below

        wait_for(f"the menu of {text!r}", opened, 5)
        menu = screen.window_under_pointer()
        left, top, width, height = screen.window_area(menu)
        screen.click(left + width // 2, top + round((place + 0.5) * height / entries))
        wait_for(f"the menu of {text!r} to close", lambda: screen.window_under_pointer() != menu, 5)
