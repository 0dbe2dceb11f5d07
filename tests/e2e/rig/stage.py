"""The program's window as the operator sees it: what stands where, and waiting until it does."""

import pyatspi

from rig import accessibility as tree
from rig import screen
from rig.waiting import wait_for

BLACK = (0, 0, 0)


class Stage:
    SELECTED = "selected"  # in place of a row's colour: it stands on the colour of a selection

    def __init__(self, program, listener):
        self.program = program
        self.listener = listener

    def dismiss_the_about_box(self):
        box = self.program.wait_for("dialog", "About Brevant")
        assert tree.find(box, "label"), "the About box says nothing"
        wait_for("the About box to have the keys", lambda: screen.active_window_title() == "About Brevant")
        screen.press("Return")
        wait_for("the About box to close", lambda: self.program.find("dialog", "About Brevant") is None)
        self.wait_for_the_keys()

    def wait_for_the_keys(self):
        """The main window has the keys, and no dialog of its own is left."""
        def shown():
            title = screen.active_window_title()
            # A question is titled as the window of a new document is.
            return (title.endswith(" - Brevant") or title == "Brevant*" or
                    (title == "Brevant" and self.program.find("alert") is None))

        wait_for("the main window to have the keys", shown)

    def table(self):
        return self.program.wait_for("table", "Playlist")

    def rows(self):
        return [row[1:] for row in tree.rows(self.table())]

    def wait_for_rows(self, rows):
        def shown():
            try:
                return self.rows() == rows
            except tree.VANISHED:
                return False  # the playlist changed while it was read

        try:
            wait_for("the playlist", shown, 5)
        except AssertionError:
            raise AssertionError(f"the playlist shows {self.rows()} instead of {rows}") from None

    def selected_rows(self):
        grid = self.table().queryTable()
        return [row for row in range(grid.nRows) if grid.isRowSelected(row)]

    def wait_for_selected_rows(self, *rows):
        wait_for(f"the rows {rows} to be selected", lambda: self.selected_rows() == list(rows), 5)

    def header(self):
        return tree.headers(self.table())[4]

    def message(self):
        return tree.text_of(self.program.wait_for("text", "Brevant Information & Lyrics"))

    def message_lines(self):
        """The lines of the message display that are not blank, without the blanks around them."""
        return [line.strip() for line in self.message().split("\n") if line.strip()]

    def label(self, description):
        """What the player pane's label for something ("Elapsed time", "Volume") shows."""
        return self.program.wait_for("label", description=description).name

    def status(self):
        """What the status bar says."""
        said = tree.find(self.program.wait_for("status bar", "Status bar"), "label").name
        return "" if said == "Status message" else said

    def elapsed(self):
        minutes, seconds = self.label("Elapsed time").split(":")
        return int(minutes) * 60 + int(seconds)

    def wait_for_label(self, description, text, seconds=5):
        wait_for(f"{description} {text!r}", lambda: self.label(description) == text, seconds)

    def prompt_text(self, title, prompt):
        """What the field of the text prompt holds that is about to open."""
        dialog = self.wait_for_dialog(title)
        assert tree.find(dialog, "label", prompt), f"the prompt does not say {prompt!r}"
        return tree.text_of(tree.find(dialog, "text", prompt))

    def enter_text(self, title, prompt, text):
        """Answers the text prompt that is about to open; returns what its field held."""
        held = self.prompt_text(title, prompt)
        screen.type_text(text)
        self.wait_for_text(prompt, text)
        screen.press("Return")
        wait_for("the prompt to close", lambda: self.program.find("dialog", title) is None)
        self.wait_for_the_keys()
        return held

    def wait_for_text(self, field, text):
        """The field of that name holds the text: all that was typed has arrived."""
        wait_for(f"{text!r} in the field {field!r}",
                 lambda: tree.text_of(self.program.wait_for("text", field)) == text, 5)

    def wait_for_dialog(self, title):
        """The dialog, once it has the keys."""
        dialog = self.program.wait_for("dialog", title)
        wait_for(f"{title!r} to have the keys", lambda: screen.active_window_title() == title.strip())
        return dialog

    def wait_for_question(self, question):
        """The question that is about to be asked, once it has the keys."""
        box = self.program.wait_for("alert", "Brevant")
        wait_for("the question to have the keys", lambda: screen.active_window_title() == "Brevant")
        assert tree.find(box, "label", question), f"the question is not {question!r}"
        return box

    def has_focus(self, role, name):
        element = self.program.find(role, name)
        return element is not None and element.getState().contains(pyatspi.STATE_FOCUSED)

    def wait_for_focus(self, role, name):
        wait_for(f"the {role} {name!r} to have the keys", lambda: self.has_focus(role, name), 5)

    def press_tab_to(self, title, button):
        """Goes from control to control of a dialog until the button has the keys."""
        def focused():
            try:
                return [element.name for element in tree.elements(self.program.find("dialog", title))
                        if element.getState().contains(pyatspi.STATE_FOCUSED)]
            except tree.VANISHED:
                return []

        passed = [focused()]
        while button not in passed[-1]:
            assert len(passed) < 12, f"no Tab leads to {button!r}, only to {passed}"
            screen.press("Tab")
            wait_for("the next control to have the keys", lambda: focused() not in ([], passed[-1]), 5)
            passed.append(focused())

    def colours(self):
        """The text colour of each row's song name, on black; SELECTED for a row that does not stand on black."""
        table, picture = self.table(), screen.Picture()
        in_sight = tree.area(table)  # the last column may reach beyond it
        seen = [picture.text_and_background(screen.common_area(tree.cell_area(table, row, 4), in_sight))
                for row in range(len(tree.rows(table)))]
        return [text if background == BLACK else self.SELECTED for text, background in seen]

    def wait_for_colours(self, *expected):
        seen = []

        def shown():
            seen[:] = self.colours()
            return seen == list(expected)

        try:
            wait_for(f"rows in the colours {expected}", shown, 5)
        except AssertionError as failure:
            raise AssertionError(f"{failure}; the rows are {seen}") from None

    def wait_for_background(self, colour):
        """Every row's name stands on `colour`."""
        def seen():
            table, picture = self.table(), screen.Picture()
            cells = [tree.cell_area(table, row, 4) for row in range(len(tree.rows(table)))]
            return [picture.text_and_background(cell)[1] for cell in cells]

        wait_for(f"rows on {colour}", lambda: set(seen()) == {colour}, 5)

    def row_place(self, row):
        """Where a row's song name stands."""
        left, top, width, height = tree.cell_area(self.table(), row, 4)
        return left + min(width, 80) // 2, top + height // 2

    def double_click_row(self, row):
        screen.click(*self.row_place(row), times=2)

    def click_the_button(self, name, window=None):
        """A button of the main window, or of the dialog of that title."""
        button = self.program.wait_for("push button", name) if window is None else wait_for(
            f"{name!r} of {window!r}", lambda: tree.find(self.program.wait_for("dialog", window), "push button", name))
        screen.click(*tree.middle(button))

    def menu_item(self, text):
        """The shown entry of a menu with that text, whatever keys stand behind it."""
        application = tree.application_of(self.program.process.pid)
        for element in tree.elements(application):
            try:
                if (element.getRoleName() == "menu item" and element.name.split("\t")[0].strip() == text and
                        element.getState().contains(pyatspi.STATE_SHOWING)):
                    return element
            except tree.VANISHED:
                continue
        return None

    def open_context_menu(self, place):
        """With the right button; the window of the menu. The accessibility tree has no way to it."""
        screen.point_at(*place)
        below = screen.window_under_pointer()
        screen.right_click(*place)
        wait_for("a context menu", lambda: screen.window_under_pointer() != below, 5)
        return screen.window_under_pointer()

    def click_in_context_menu(self, place, entries, text):
        """Opens a context menu and clicks an entry. Its entries are of one height, and a line between them is next to
        none."""
        menu = self.open_context_menu(place)
        left, top, width, height = screen.window_area(menu)
        screen.click(left + width // 2, top + round((entries.index(text) + 0.5) * height / len(entries)))
        wait_for("the context menu to close", lambda: screen.window_under_pointer() != menu, 5)

    def click_in_menu(self, *texts):
        """Clicks from the menu bar to an entry."""
        for text in texts:
            screen.click(*tree.middle(wait_for(f"{text!r} in a menu", lambda: self.menu_item(text))))
        wait_for("the menu to close", lambda: self.menu_item(texts[-1]) is None)

    def wait_for_message(self, text, seconds=5):
        wait_for(f"the message display to show {text!r}", lambda: text in self.message(), seconds)

    def wait_to_hear(self, pitch, share=0.5, seconds=5):
        wait_for(f"a tone of {pitch} Hz", lambda: self.listener.sounds(pitch, share), seconds)

    def wait_for_silence(self, seconds=5):
        wait_for("silence", self.listener.silent, seconds)
