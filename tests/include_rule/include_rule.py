#!/usr/bin/env python3
"""Holds the order of the rooms over every #include under src/: include_rule.py SRC

A room includes only rooms below it, the GStreamer back end is seen by app/ alone, Qt stays in the window rooms,
GStreamer and its companions stay in the back end, and everything else is the standard library. What of that reads and
writes files counts as a call to the system.
"""

import pathlib
import re
import sys

# Top to bottom. playback/gst/ is a room inside a room: it sees what playback/ sees, and playback/ itself.
ROOMS = ("app", "views", "document", "playback", "model", "lyrics", "text", "resources")
BACK_END = "playback/gst"
ICONS = "resources/icons"  # compiled-in pictures, a target of its own beside the std-only room

MAY_USE_QT = ("app", "views", ICONS)
MAY_CALL_THE_SYSTEM = ("app", "text", BACK_END)

STANDARD = set("""
    algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv chrono cinttypes climits
    clocale cmath codecvt compare complex concepts condition_variable coroutine csetjmp csignal cstdarg cstddef cstdint
    cstdio cstdlib cstring ctime cuchar cwchar cwctype deque exception execution format forward_list functional future
    initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map memory memory_resource
    mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator semaphore set
    shared_mutex source_location span sstream stack stdexcept stop_token streambuf string string_view strstream
    syncstream system_error thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility valarray
    variant vector version
""".split())
DISK = ("filesystem", "fstream")
SYSTEM = re.compile(r"(sys/[\w/]+|dlfcn|fcntl|unistd|dirent|errno|limits|poll|signal|spawn|windows|io)\.h$")
QT = re.compile(r"(Q[A-Za-z]\w*(/.*)?|q[a-z]+\.h|qpa/.*)$")
MEDIA = re.compile(r"(gst/.*|glib.*|gio/.*|fluidsynth.*|mpg123\.h)$")

INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>|(\S.*))')
SOURCES = (".h", ".cpp", ".hpp", ".cc", ".inc")


def room_of(path):
    """The room of a path relative to src/, or None for a path in none."""
    for inner in (BACK_END, ICONS):
        if path.startswith(inner + "/"):
            return inner
    first = path.split("/")[0]
    return first if first in ROOMS and "/" in path else None


def depth(room):
    return ROOMS.index(room.split("/")[0])


def ours(source, room, name):
    """What is wrong with `#include "name"` in a room, or None."""
    if name.endswith(".moc") and room in MAY_USE_QT:
        return None  # the meta-object compiler's output for this very file
    target = room_of(name)
    if target is None:
        return "names no room; write it as \"room/file.h\""
    if not (source / name).is_file():
        return "names a file that is not there"
    if target == BACK_END and room not in ("app", BACK_END):
        return "looks into the back end, which app/ alone may see"
    if target == ICONS and room not in MAY_USE_QT:
        return "takes the pictures into a room without a window"
    if depth(target) < depth(room):
        return f"goes up from {room}/ to {target}/"
    return None


def foreign(room, name):
    """What is wrong with `#include <name>` in a room, or None."""
    if name in STANDARD:
        return None
    if QT.match(name):
        return None if room in MAY_USE_QT else "takes Qt below the window rooms"
    if MEDIA.match(name):
        return None if room == BACK_END else f"belongs in {BACK_END}/ alone"
    if name in DISK or SYSTEM.match(name):
        return None if room in MAY_CALL_THE_SYSTEM else "calls the system past text/, where the files are read and written"
    return "is neither the standard library nor one that this room may use"


def complaints(source):
    """One line for each include that breaks the rule; a tree without any include is a complaint of its own."""
    found, seen = [], 0
    for path in sorted(p for p in source.rglob("*") if p.suffix in SOURCES):
        relative = path.relative_to(source).as_posix()
        room = room_of(relative)
        if room is None:
            found.append(f"src/{relative}: lies in no room")
            continue
        for number, line in enumerate(path.read_text("utf-8").splitlines(), 1):
            match = INCLUDE.match(line)
            if not match:
                continue
            seen += 1
            quoted, angled, other = match.groups()
            if other:
                fault, shown = "hides its name behind a macro", other
            elif quoted:
                fault, shown = ours(source, room, quoted), f'"{quoted}"'
            else:
                fault, shown = foreign(room, angled), f"<{angled}>"
            if fault:
                found.append(f"src/{relative}:{number}: #include {shown} {fault}")
    return found if seen else found + [f"{source}: not a single #include was found, so nothing was checked"]


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    found = complaints(pathlib.Path(sys.argv[1]))
    print("\n".join(found) if found else "every #include keeps to the order of the rooms")
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
