"""What is rehearsed: three hundred tones of all four kinds, each of a pitch of its own, most with words, in thirty
playlists. The songs are made once and kept; a run moves them about and puts them back.
"""

import pathlib
import random
import struct
import subprocess

from rig import songs, sound

SONGS, SPARE = 300, 24
KINDS = ("mp3", "wav", "mid", "wma")
WORDS = "Hafen Ebbe Öl Lärm Nacht Café Garçon Señor Ферри Ночь Νύχτα It's Two  Blanks & Co".split(" ")
PLAIN_WORDS = "Harbour Tide Boats Storm Lantern Ferry Quay".split()  # of the spare songs: names that are typed
GROUPS = ("Mariner Sets", "Abend > Гости", "Café", "Été 2026", "Zugaben", "Probe")
EDGE = 14  # hertz between two tones, so that a quarter of a second tells them apart
FIRST_NOTE, NOTES = 33, 36  # an organ's higher notes tremble too much to be told by their pitch


class Song:
    def __init__(self, number, folder, chance):
        self.number = number
        self.kind = KINDS[number % len(KINDS)]
        words = WORDS if number < SONGS else PLAIN_WORDS
        self.name = f"{number:03d} {chance.choice(words)} {chance.choice(words)}.{self.kind}"
        self.path = folder / self.name
        self.seconds = round(chance.choice((chance.uniform(3, 20), chance.uniform(3, 20), chance.uniform(20, 60),
                                            chance.uniform(60, 200))), 1)
        if self.kind == "wav":
            self.seconds = min(self.seconds, 40.0)
        if self.kind == "mid":
            self.note = FIRST_NOTE + number // len(KINDS) % NOTES
            self.pitch = 440 * 2 ** ((self.note - 69) / 12)
        else:
            self.pitch = 220 + EDGE * (number % (SONGS + SPARE))

    def share(self, stretch):
        """Which part of a stretch of sound is this song's: 1 for it alone."""
        if self.kind != "mid":
            return sound.share_of_pitch(stretch, self.pitch)
        # An organ sounds the octave below and what stands above it as well.
        return sum(sound.share_of_pitch(stretch, self.pitch * part / 2) for part in range(1, 9))

    def make(self):
        if self.path.exists() and self.kind != "mid":  # those take no time
            return
        half_made = self.path.with_name("half-made." + self.kind)
        if self.kind == "mid":
            half_made.write_bytes(midi_of(self.note, round(self.seconds * 2)))
        else:
            codec = {"mp3": ["-c:a", "libmp3lame", "-b:a", "96k"], "wav": ["-c:a", "pcm_s16le"],
                     "wma": ["-c:a", "wmav2", "-b:a", "96k"]}[self.kind]
            subprocess.run(["ffmpeg", "-v", "error", "-y", "-f", "lavfi", "-i",
                            f"sine=frequency={self.pitch}:duration={self.seconds}:sample_rate=44100", "-filter:a",
                            "volume=2", *codec, str(half_made)], check=True)
        half_made.rename(self.path)

    def write_words(self):
        """Every fifth song is without; the others have one of the three kinds of lyric file."""
        if self.number % 5 == 4:
            return
        lines = (f"[{at // 60:02d}:{at % 60:02d}.{at * 37 % 1000:03d}]{'MFD'[at % 3]}: line {at}, Ebbe und Flut – l'été\r\n"
                 for at in range(0, int(self.seconds), 2 + self.number % 4))
        text = f"[ti:Song {self.number}]\r\n" + "".join(lines)
        ending, encoding = ((".lrc", "utf-8"), (".lrc", "cp1252"), (".lrcx", "utf-16-le"))[self.number % 3]
        self.path.with_suffix(ending).write_bytes(text.encode(encoding))


def midi_of(note, strokes):
    """An organ note struck anew every half second, so that whoever jumps into the song hears it, too."""
    strike = bytes([0x00, 0x90, note, 110, 0x83, 0x50, 0x80, note, 0])  # held for 464 of 480 ticks
    body = b"\x00\xc0\x10" + (strike + b"\x10\x90" + bytes([note, 0])) * strokes + b"\x00\xff\x2f\x00"
    return struct.pack(">4sIHHH", b"MThd", 6, 0, 1, 480) + struct.pack(">4sI", b"MTrk", len(body)) + body


class Material:
    """The same for everybody: what differs between runs is what the user does with it."""

    def __init__(self, folder):
        self.folder, self.spare_folder = folder / "songs", folder / "spare"
        chance = random.Random("material")
        self.songs = [Song(number, self.folder, chance) for number in range(SONGS)]
        self.spare = [Song(SONGS + number, self.spare_folder, chance) for number in range(SPARE)]
        self.by_name = {song.name: song for song in self.songs + self.spare}
        sizes = [chance.choice((4, 7, 10, 13, 16)) for _ in range(30)]
        self.sets, used = [], 0  # (group, playlist, songs)
        order = chance.sample(self.songs, SONGS)
        for number, size in enumerate(sizes):
            last = number == len(sizes) - 1
            members = order[used:SONGS if last else used + size]
            used += len(members)
            if members:
                self.sets.append((GROUPS[number * len(GROUPS) // len(sizes)], f"Set {number + 1}", members))

    def make(self):
        for folder in (self.folder, self.spare_folder):
            folder.mkdir(parents=True, exist_ok=True)
        for song in self.songs + self.spare:
            song.make()
            song.write_words()

    def put_back(self):
        """Undoes what an earlier run that was cut off had taken away."""
        for folder in (self.folder, self.spare_folder):
            folder.mkdir(parents=True, exist_ok=True)
            folder.chmod(0o755)
            for file in folder.iterdir():
                file.chmod(0o644)
                if file.name.endswith(".taken"):
                    file.rename(file.with_name(file.name.removesuffix(".taken")))

    def write_document(self, path):
        """Beside it first, as whoever replaces a file under a running program would."""
        beside = path.with_name("." + path.name + ".new")
        songs.write_document(beside, ((group, playlist, song.path, "00:00")
                                      for group, playlist, members in self.sets for song in members))
        beside.replace(path)

    def song(self, name):
        """The song of that file name, or None: a rename has led to a name that is no file's."""
        return self.by_name.get(name)


def song_heard(material, stretch):
    """The name of the song that most of a stretch of sound is, for the record of a wrong one."""
    best = max(material.songs + material.spare, key=lambda song: song.share(stretch))
    return f"{best.name} ({best.share(stretch):.2f})"


def read_document(content):
    """(group, playlist, file name) of each line; None when the file is not a whole document."""
    try:
        text = content.decode("utf-16-le")
    except UnicodeDecodeError:
        return None
    if text and not text.endswith("\r\n"):
        return None
    rows = []
    for line in text.split("\r\n")[:-1]:
        parts = line.split('"')
        if len(parts) != 7 or len(parts[6].strip()) != 5 or parts[6].strip()[2] != ":":
            return None
        rows.append((parts[1], parts[3], parts[5].split("\\")[-1]))
    return rows


def kept_in(path):
    """The bytes of a file; None when it is not there or not to be read for the moment."""
    try:
        return pathlib.Path(path).read_bytes()
    except OSError:
        return None
