"""A score: notes on parts, counted in beats, with a tempo map. The tunes are written in it; the synthesiser and the
MIDI writer both play it.
"""

import dataclasses
import re

NOTE_NAMES = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}

CHORDS = {
    "": (0, 4, 7),
    "m": (0, 3, 7),
    "7": (0, 4, 7, 10),
    "m7": (0, 3, 7, 10),
    "maj7": (0, 4, 7, 11),
    "m7b5": (0, 3, 6, 10),
}


@dataclasses.dataclass
class Note:
    start: float  # beats from the start of the tune
    length: float  # beats
    pitch: int  # MIDI note number; on a drum part the General MIDI drum
    velocity: float  # 0 to 1


@dataclasses.dataclass
class Part:
    voice: str  # a voice of synth.VOICES, or "drums"
    program: int = 0  # General MIDI program, zero-based; unused on drums
    gain: float = 1.0
    notes: list = dataclasses.field(default_factory=list)


def pitch_of(name):
    """The MIDI number of a note name such as F#4, Bb3."""
    letter, accidental, octave = re.fullmatch(r"([A-G])([#b]?)(-?\d)", name).groups()
    shift = {"#": 1, "b": -1, "": 0}[accidental]
    return 12 * (int(octave) + 1) + NOTE_NAMES[letter] + shift


def chord_pitches(name, lowest):
    """The chord's notes, its root the first one at or above the note `lowest`."""
    root, quality = re.fullmatch(r"([A-G][#b]?)(.*)", name).groups()
    low = pitch_of(lowest)
    first = low + (pitch_of(root + "0") - low) % 12
    return [first + step for step in CHORDS[quality]]


class Score:
    """A tune of bars of equal length."""

    def __init__(self, tempo, beats_per_bar=4, swing=False):
        self.beats_per_bar = beats_per_bar
        self.swing = swing
        self.tempos = [(0.0, tempo)]  # (beat, beats a minute), ascending
        self.parts = []
        self.lyrics = []  # (beat, text)

    def part(self, voice, program=0, gain=1.0):
        self.parts.append(Part(voice, program, gain))
        return self.parts[-1]

    def tempo_from_bar(self, bar, tempo):
        self.tempos.append((float(bar * self.beats_per_bar), tempo))

    def swung(self, beat):
        """A shuffle: the second eighth of each beat comes on the last third."""
        if not self.swing:
            return beat
        whole, rest = divmod(beat, 1.0)
        return whole + (rest * 4 / 3 if rest <= 0.5 else 2 / 3 + (rest - 0.5) * 2 / 3)

    def add(self, part, start, length, pitch, velocity):
        begin, end = self.swung(start), self.swung(start + length)
        part.notes.append(Note(begin, end - begin, pitch, velocity))

    def melody(self, part, text, bar=0, velocity=0.8):
        """Notes as `NAME:BEATS`, the length kept until the next one, `-` a rest, `|` a bar line that must fit."""
        beat, length = float(bar * self.beats_per_bar), 1.0
        for token in text.split():
            if token == "|":
                if beat % self.beats_per_bar:
                    raise ValueError(f"the bar before beat {beat} does not come out: {text}")
                continue
            name, _, beats = token.partition(":")
            length = float(beats) if beats else length
            if name != "-":
                accent = 0.08 if beat % self.beats_per_bar == 0 else 0.0
                self.add(part, beat, length, pitch_of(name), velocity + accent)
            beat += length
        if beat % self.beats_per_bar:
            raise ValueError(f"the last bar does not come out: {text}")

    def chords(self, text):
        """(beat, beats, chord name) for `C G Am,F`: a bar each, a comma halves one."""
        spans = []
        for bar, names in enumerate(text.split()):
            names = names.split(",")
            share = self.beats_per_bar / len(names)
            spans += [(bar * self.beats_per_bar + i * share, share, name) for i, name in enumerate(names)]
        return spans

    def comp(self, part, chords, hits, lowest="C4", velocity=0.5, strum=0.0):
        """The whole chord at each (beat, beats) of `hits` that lies within its span."""
        for start, share, name in self.chords(chords):
            for beat, length in hits:
                if beat < share:
                    for i, pitch in enumerate(chord_pitches(name, lowest)):
                        self.add(part, start + beat + i * strum, length, pitch, velocity)

    def arpeggio(self, part, chords, order, step, lowest="C4", velocity=0.5, ring=1.0):
        """The chord note by note in `order` (indexes, past the end an octave up), one every `step` beats."""
        for start, share, name in self.chords(chords):
            pitches = chord_pitches(name, lowest)
            for i in range(round(share / step)):
                octave, index = divmod(order[i % len(order)], len(pitches))
                self.add(part, start + i * step, step * ring, pitches[index] + 12 * octave, velocity)

    def bass(self, part, chords, pattern, lowest="E2", velocity=0.8):
        """Root, fifth and so on: (beat, beats, half tones above the root)."""
        for start, share, name in self.chords(chords):
            root = chord_pitches(name, lowest)[0]
            for beat, length, above in pattern:
                if beat < share:
                    self.add(part, start + beat, length, root + above, velocity)

    def drums(self, part, bars, lines, step=0.5, first_bar=0):
        """One text per drum, a character per step: `x` a stroke, `o` a soft one; repeated for `bars` bars."""
        steps = round(self.beats_per_bar / step)
        for bar in range(first_bar, first_bar + bars):
            for drum, line in lines.items():
                for i in range(steps):
                    mark = line[i % len(line)]
                    if mark != ".":
                        beat = bar * self.beats_per_bar + i * step
                        self.add(part, beat, 0.25, drum, 0.85 if mark == "x" else 0.45)

    def sing(self, bar, text):
        self.lyrics.append((bar * self.beats_per_bar, text))

    def seconds(self, beat):
        """When a beat sounds."""
        time = 0.0
        for (start, tempo), following in zip(self.tempos, self.tempos[1:] + [(float("inf"), 1)]):
            time += max(0.0, min(beat, following[0]) - start) * 60 / tempo
        return time

    def end(self):
        """The beat at which the last note is let go."""
        return max(note.start + note.length for part in self.parts for note in part.notes)
