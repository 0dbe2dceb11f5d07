"""Makes bars and keys its own on the built program: a key that another command has, a command dragged to a bar, a button
less, a menu of its own, larger icons with texts; all of it is there after the next start, and "Reset" undoes it.
"""

from rig import accessibility as tree
from rig import flow, screen, songs
from rig.customize import Bar, CustomizeSheet
from rig.stage import Stage
from rig.waiting import wait_for

PITCH = 440
DELIVERED = ("New", "Open...", "Save")
OWN = ("Open...", "Encore", "Stop", "Save")
NORMAL_ICONS, LARGE_ICONS_WITH_TEXTS = range(24, 40), range(45, 70)  # pixels a button is high


class Customizing:
    def __init__(self, rig):
        self.rig = rig
        folder = rig.home / "Evening"
        folder.mkdir()
        self.document = folder / "Evening.brv"
        song = folder / "Long Tone.wav"
        songs.write_wave(song, PITCH, 60)
        songs.write_document(self.document, [("Band", "Evening", song, "01:00")])

    def begins(self):
        self.start(self.document)
        self.bar.wait_for_buttons(*DELIVERED)

    def start(self, *arguments):
        self.stage = Stage(self.rig.start(*arguments), self.rig.listener)
        self.sheet = CustomizeSheet(self.stage)
        self.bar = Bar(self.stage, "Standard toolbar")
        self.stage.dismiss_the_about_box()
        wait_for("the title", lambda: screen.active_window_title() == "Evening.brv - Brevant")

    def leave(self):
        self.stage.click_in_menu("File", "Exit")
        status = self.stage.program.exit_status()
        assert status == 0, f"the program ended with status {status}"

    def wait_for_height(self, heights):
        wait_for(f"buttons {heights} high", lambda: self.bar.height_of("Save") in heights, 5)

    def gives_stop_the_key_of_play(self):
        self.sheet.open()
        screen.press("alt+s")
        screen.type_text("Stop")
        # "Set Repeat Stop Time" comes first.
        wait_for("the command to be found", lambda: self.sheet.keys_of("Play") is None, 5)
        screen.press("Tab", "Down")
        self.sheet.wait_for("label", "Stop S, F6, 6")
        screen.press("alt+n", "p")
        self.sheet.wait_for("label", "Is used by Play, which loses it.")
        self.rig.picture("a-key-that-another-command-has")
        self.assigns_what_the_field_shows()
        self.sheet.wait_for_keys_of("Stop", "S, F6, P")

    def gives_play_the_key_of_a_pedal(self):
        screen.press("alt+s", "ctrl+a")
        screen.type_text("F5")
        self.sheet.wait_for_keys_of("Play", "F5")
        screen.press("alt+n", "Next")
        self.sheet.wait_for("label", "Is free.")
        self.assigns_what_the_field_shows()
        self.sheet.wait_for_keys_of("Play", "F5, Page Down")

    @staticmethod
    def assigns_what_the_field_shows():
        # The field takes any key but Tab, Alt with a button's letter as well.
        screen.press("Tab", "space")

    def drags_a_command_to_a_bar(self):
        self.sheet.go_to_page("Commands", "ctrl+shift+Tab")
        self.sheet.choose("t", "p", wanted="Play")
        left, top, _, height = tree.area(self.bar.button("Save"))
        with screen.drag(tree.middle(self.sheet.entry("Commands", "Stop")), (left + 2, top + height // 2)):
            self.rig.picture("a-command-on-its-way")
        self.bar.wait_for_buttons("New", "Open...", "Stop", "Save")
        self.sheet.wait_for_entries("On the bar", "New", "Open...", "Stop", "Save")

    def removes_a_button(self):
        self.sheet.click_entry("On the bar", "New")
        self.sheet.press_button("Remove")
        self.bar.wait_for_buttons("Open...", "Stop", "Save")

    def makes_a_menu(self):
        self.sheet.choose("t", "End", wanted="New Menu")
        screen.press("alt+d")
        self.sheet.wait_for_entries("On the bar", "Open...", "New Menu", "Stop", "Save")
        self.sheet.choose("b", "Down", wanted="Standard toolbar > New Menu")
        screen.press("alt+m", "ctrl+a")
        screen.type_text("Encore")
        self.bar.wait_for_buttons(*OWN)
        self.sheet.choose("t", "p", wanted="Play")
        for command in ("Play", "Next Song"):
            self.sheet.click_entry("Commands", command)
            screen.press("alt+d")
        self.sheet.wait_for_entries("On the bar", "Play", "Next Song")

    def has_larger_icons_with_texts(self):
        self.wait_for_height(NORMAL_ICONS)
        self.sheet.go_to_page("Options", "ctrl+shift+Tab")
        self.sheet.choose("i", "l", wanted="Large")
        screen.press("alt+t")
        self.wait_for_height(LARGE_ICONS_WITH_TEXTS)
        self.sheet.close()

    def performs_with_what_is_its_own(self):
        self.bar.click_in_menu_of("Encore", 0, 2)
        self.stage.wait_to_hear(PITCH)
        screen.press("F3", "p")
        self.stage.wait_for_silence()
        screen.press("Next")
        self.stage.wait_to_hear(PITCH)
        screen.click(*tree.middle(self.bar.button("Stop")))
        self.stage.wait_for_silence()

    def finds_all_of_it_at_the_next_start(self):
        self.leave()
        self.start()
        self.bar.wait_for_buttons(*OWN)
        assert self.bar.out_of_sight() == [], f"a screen reader still finds {self.bar.out_of_sight()}"
        self.wait_for_height(LARGE_ICONS_WITH_TEXTS)
        self.performs_with_what_is_its_own()

    def brings_the_delivered_ones_back(self):
        self.sheet.open()
        screen.press("alt+s")
        screen.type_text("F5")
        self.sheet.wait_for_keys_of("Play", "F5, Page Down")
        self.sheet.press_button("Reset")
        self.sheet.wait_for_keys_of("Play", "P, F5")
        self.bar.wait_for_buttons(*DELIVERED)
        self.wait_for_height(NORMAL_ICONS)
        self.sheet.close()
        self.plays_with_p()

    def plays_with_p(self):
        screen.press("F3", "p")
        self.stage.wait_to_hear(PITCH)
        screen.press("s")
        self.stage.wait_for_silence()

    def finds_the_delivered_ones_at_the_next_start(self):
        self.leave()
        self.start()
        self.bar.wait_for_buttons(*DELIVERED)
        self.wait_for_height(NORMAL_ICONS)
        self.plays_with_p()
        self.leave()


def perform(rig):
    screen.offer_letters("us")
    one = Customizing(rig)
    steps = (
        (one.begins, "begins"),
        (one.gives_stop_the_key_of_play, "gives Stop the key of Play"),
        (one.gives_play_the_key_of_a_pedal, "gives Play the key of a pedal"),
        (one.drags_a_command_to_a_bar, "drags a command to a bar"),
        (one.removes_a_button, "removes a button"),
        (one.makes_a_menu, "makes a menu"),
        (one.has_larger_icons_with_texts, "has larger icons with texts"),
        (one.performs_with_what_is_its_own, "performs with what is its own"),
        (one.finds_all_of_it_at_the_next_start, "finds all of it at the next start"),
        (one.brings_the_delivered_ones_back, "brings the delivered ones back"),
        (one.finds_the_delivered_ones_at_the_next_start, "finds the delivered ones at the next start"),
    )
    rig.take(steps)


if __name__ == "__main__":
    flow.run(perform)
