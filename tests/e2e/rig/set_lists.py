"""The songs that set lists are made of in the flows, and what tree and playlist show of them. Their names are the kind
that musicians have and programs stumble over.
"""

from rig import songs

# Before a song's name ">" stands for a folder's end, so the second one is shown without its first word.
EVENING = ["Harbour Tone.wav", "Low > High.wav", "Spare.wav", "Two  Blanks.wav", "Zwölf Räder.wav"]
NIGHT = ["It's 5 o'clock.wav", "Last One.wav", "Éclair & Tonnerre.wav", "Νύχτα.wav", "Ночь.wav"]

GROUP_PROMPT = ("Create A Group Of Playlists ", "Enter the name of the group of play lists")
SET_PROMPT = ("Create A Set List", "Enter the name of the song play list")
RENAME_PROMPT = ("Enter property", "Enter the new folder name")


def shown(names):
    return [name.split(">")[-1] for name in names]


class Music:
    """Two folders of short songs in the operator's home, in the order of a chooser."""

    def __init__(self, home):
        self.home, self.evening, self.night = home, home / "Abend Lieder", home / "Nacht > Musik"
        for folder, names in ((self.evening, EVENING), (self.night, NIGHT)):
            folder.mkdir()
            for name in names:
                songs.write_wave(folder / name, 440, 0.3)


def entries(playlist, names):
    """The tree's lines of a playlist and its songs."""
    return ["  " + playlist, *("    " + name for name in names)]


def listed(names, lost=()):
    """The playlist's rows of songs that nobody has played yet; `lost` names those whose file is not there."""
    return [[str(number), "Not found" if name in lost else "Found", "00:00", name]
            for number, name in enumerate(names, 1)]
