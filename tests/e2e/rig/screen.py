"""Looks at the stage's display: pictures and pixels of it, and keys typed into it."""

import collections
import contextlib
import re
import subprocess


class Picture:
    """What the whole display shows at one moment."""

    def __init__(self):
        shot = subprocess.run(["import", "-silent", "-window", "root", "-depth", "8", "ppm:-"],
                              check=True, capture_output=True).stdout
        header = re.match(rb"P6\s+(\d+)\s+(\d+)\s+255\s", shot)
        self.width, self.height = int(header.group(1)), int(header.group(2))
        self.pixels = shot[header.end():]

    def colours(self, area):
        """How many pixels of each (red, green, blue) stand in (x, y, width, height)."""
        left, top, width, height = area
        left, right = max(0, left), min(self.width, left + width)
        found = collections.Counter()
        for y in range(max(0, top), min(self.height, top + height)):
            row = self.pixels[(y * self.width + left) * 3:(y * self.width + right) * 3]
            found.update(zip(row[0::3], row[1::3], row[2::3]))
        return found

    def text_and_background(self, area):
        """(text colour, background colour) of a line of text: the background is what most pixels show, the text the
        colour farthest from it, for the pixels between the two are only the letters' smoothed edges."""
        found = self.colours(area)
        background = found.most_common(1)[0][0]

        def distance(colour):
            return sum(abs(a - b) for a, b in zip(colour, background))

        return max(found, key=lambda colour: (distance(colour), found[colour])), background


def common_area(first, second):
    """What two areas (x, y, width, height) have in common."""
    left, top = max(first[0], second[0]), max(first[1], second[1])
    right = min(first[0] + first[2], second[0] + second[2])
    bottom = min(first[1] + first[3], second[1] + second[3])
    return left, top, max(0, right - left), max(0, bottom - top)


def save_picture(path):
    subprocess.run(["import", "-silent", "-window", "root", str(path)], check=False)


def press(*keys):
    """Types keys by their X names, into whatever has the focus: press("Down"), press("alt+F4")."""
    subprocess.run(["xdotool", "key", "--clearmodifiers", "--delay", "30", *keys], check=True)


def offer_letters(*layouts):
    """Gives the display's keyboard the letters of these layouts. Letters that no key has would be lent a key for one
    stroke each, and the next one could come before everybody has heard of it."""
    subprocess.run(["setxkbmap", "-layout", ",".join(layouts)], check=True)


def type_text(text):
    """Types a text, letter by letter, into whatever has the focus."""
    subprocess.run(["xdotool", "type", "--clearmodifiers", "--delay", "15", "--", text], check=True)


def hold(key, while_held):
    """Keeps a key down, so that the keyboard repeats it, until `while_held` has run."""
    subprocess.run(["xdotool", "keydown", key], check=True)
    try:
        while_held()
    finally:
        subprocess.run(["xdotool", "keyup", key], check=True)


def click(x, y, times=1):
    subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", "--repeat", str(times), "--delay", "60", "1"],
                   check=True)


def right_click(x, y):
    subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", "3"], check=True)


def window_under_pointer():
    answer = subprocess.run(["xdotool", "getmouselocation", "--shell"], check=True, capture_output=True, text=True)
    return re.search(r"^WINDOW=(\d+)", answer.stdout, re.MULTILINE).group(1)


def window_area(window):
    """(x, y, width, height) on the display, or None when the window is gone."""
    answer = subprocess.run(["xdotool", "getwindowgeometry", "--shell", window], capture_output=True, text=True)
    values = dict(re.findall(r"^(\w+)=(-?\d+)", answer.stdout, re.MULTILINE))
    return tuple(int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT")) if values else None


def active_window():
    return subprocess.run(["xdotool", "getactivewindow"], check=True, capture_output=True, text=True).stdout.strip()


def place_window(window, x, y, width, height):
    """Asks the window manager to give the window this place and size."""
    subprocess.run(["xdotool", "windowsize", window, str(width), str(height)], check=True)
    subprocess.run(["xdotool", "windowmove", window, str(x), str(y)], check=True)


def point_at(x, y):
    subprocess.run(["xdotool", "mousemove", str(x), str(y)], check=True)


@contextlib.contextmanager
def held(key):
    """Keeps a key down for the length of a block: with held("ctrl"): ..."""
    subprocess.run(["xdotool", "keydown", key], check=True)
    try:
        yield
    finally:
        subprocess.run(["xdotool", "keyup", key], check=True)


@contextlib.contextmanager
def drag(start, end):
    """Presses the left button at one place and goes to another; the block looks at what is shown meanwhile, and the
    button is let go behind it."""
    point_at(*start)
    subprocess.run(["xdotool", "mousedown", "1"], check=True)
    try:
        for part in (1, 2, 3, 4):
            point_at(*(begin + (goal - begin) * part // 4 for begin, goal in zip(start, end)))
        yield
    finally:
        subprocess.run(["xdotool", "mouseup", "1"], check=True)


def active_window_title():
    answer = subprocess.run(["xdotool", "getactivewindow", "getwindowname"], capture_output=True, text=True)
    return answer.stdout.strip()
