"""Renders a score to samples with the standard library alone: plucked strings, bells, organ, pads, drums and a room."""

import math
import random

from score import Score

RATE = 22050
TAIL_SECONDS = 1.2  # how long the last notes and the room ring on

KICK, SNARE, CLAP, CLOSED_HAT, OPEN_HAT, RIM, SHAKER = 36, 38, 39, 42, 46, 37, 70


def hertz(pitch):
    return 440.0 * 2 ** ((pitch - 69) / 12)


def envelope(samples, attack, release, held):
    """Fades a note in, and out after it is let go at `held` samples."""
    rise, fall = max(1, int(attack * RATE)), max(1, int(release * RATE))
    for i in range(min(rise, len(samples))):
        samples[i] *= i / rise
    for i in range(held, len(samples)):
        samples[i] *= max(0.0, 1 - (i - held) / fall)
    return samples


def pluck(pitch, seconds, noise, brightness=0.5, decay=0.996):
    """A string: a burst of noise going round a delay line that wears its edges off."""
    held, count = int(seconds * RATE), int((seconds + 0.25) * RATE)
    period = RATE / hertz(pitch) - 0.5  # the averaging below delays by half a sample
    length = int(period)
    tune = (1 - (period - length)) / (1 + (period - length))  # an all-pass for the part of a sample left over
    line = [noise.uniform(-1, 1) for _ in range(length)]
    for _ in range(int(6 * (1 - brightness))):
        line = [(line[i] + line[i - 1]) / 2 for i in range(length)]
    middle = sum(line) / length  # a burst that leans to one side would hum on as a shifted zero line
    line = [value - middle for value in line]
    top = max(abs(value) for value in line)
    line = [value / top for value in line]
    samples, before, kept, index = [0.0] * count, 0.0, 0.0, 0
    for i in range(count):
        value = line[index]
        damped = decay * 0.5 * (value + before)
        before = value
        line[index] = tune * damped + kept
        kept = damped - tune * line[index]
        index = index + 1 if index + 1 < length else 0
        samples[i] = value
    return envelope(samples, 0.001, 0.25, held)


def bell(pitch, seconds, ratio=3.5, depth=2.2, decay=3.0):
    """Two sines, the one bending the other: music box, electric piano, marimba."""
    held, count = int(seconds * RATE), int((seconds + 0.5) * RATE)
    step = 2 * math.pi * hertz(pitch) / RATE
    samples = []
    for i in range(count):
        level = math.exp(-decay * i / RATE)
        samples.append(level * math.sin(step * i + depth * level * level * math.sin(ratio * step * i)))
    return envelope(samples, 0.003, 0.5, held)


def waves(pitch, seconds, harmonics, attack, release, vibrato=0.0, detune=0.0):
    """A held tone from harmonics (number, level), with vibrato, and a second one beside it when detuned."""
    held, count = int(seconds * RATE), int((seconds + release) * RATE)
    table = [sum(level * math.sin(2 * math.pi * n * i / 2048) for n, level in harmonics) for i in range(2048)]
    step = 2048 * hertz(pitch) / RATE
    phase, other = 0.0, 700.0
    samples = []
    for i in range(count):
        bend = 1 + vibrato * math.sin(2 * math.pi * 5.2 * i / RATE) * min(1.0, i / (0.4 * RATE))
        phase += step * bend
        value = table[int(phase) & 2047]
        if detune:
            other += step * (1 + detune)
            value = 0.6 * (value + table[int(other) & 2047])
        samples.append(value)
    return envelope(samples, attack, release, held)


def drum(pitch, noise):
    if pitch == KICK:
        return [math.exp(-14 * t) * math.sin(2 * math.pi * (48 * t + 9 * (1 - math.exp(-30 * t))))
                for t in (i / RATE for i in range(int(0.3 * RATE)))]
    if pitch in (SNARE, CLAP):
        tone = 0.5 if pitch == SNARE else 0.0
        return [math.exp(-20 * t) * (0.55 * noise.uniform(-1, 1) + tone * math.sin(2 * math.pi * 185 * t))
                for t in (i / RATE for i in range(int(0.25 * RATE)))]
    if pitch == RIM:
        return [math.exp(-70 * t) * math.sin(2 * math.pi * 820 * t) for t in (i / RATE for i in range(2000))]
    decay = {CLOSED_HAT: 60, OPEN_HAT: 14, SHAKER: 45}[pitch]
    samples, last = [], 0.0
    for i in range(int(0.25 * RATE)):
        fresh = noise.uniform(-1, 1)
        samples.append(0.35 * math.exp(-decay * i / RATE) * (fresh - last))
        last = fresh
    return samples


ORGAN = ((1, 0.5), (2, 0.35), (3, 0.2), (4, 0.16), (6, 0.08))
STRINGS = tuple((n, 0.5 / n ** 1.4) for n in range(1, 9))
SQUARE = tuple((n, 0.55 / n ** 1.15) for n in (1, 3, 5, 7, 9))
FLUTE = ((1, 0.6), (2, 0.18), (3, 0.06))

VOICES = {
    "guitar": lambda pitch, seconds, noise: pluck(pitch, seconds, noise, 0.6, 0.997),
    "mandolin": lambda pitch, seconds, noise: pluck(pitch, seconds, noise, 0.9, 0.994),
    "bass": lambda pitch, seconds, noise: pluck(pitch, seconds, noise, 0.1, 0.998),
    "music box": lambda pitch, seconds, noise: bell(pitch, seconds, 3.5, 1.6, 2.6),
    "electric piano": lambda pitch, seconds, noise: bell(pitch, seconds, 1.0, 1.4, 1.5),
    "marimba": lambda pitch, seconds, noise: bell(pitch, seconds, 4.0, 0.9, 7.0),
    "organ": lambda pitch, seconds, noise: waves(pitch, seconds, ORGAN, 0.01, 0.05, 0.003),
    "strings": lambda pitch, seconds, noise: waves(pitch, seconds, STRINGS, 0.25, 0.5, 0.003, 0.004),
    "lead": lambda pitch, seconds, noise: waves(pitch, seconds, SQUARE, 0.01, 0.12, 0.006, 0.003),
    "chip": lambda pitch, seconds, noise: waves(pitch, seconds, SQUARE, 0.003, 0.06),
    "flute": lambda pitch, seconds, noise: waves(pitch, seconds, FLUTE, 0.05, 0.15, 0.007),
}


def room(samples, wet):
    """A small room: four combs side by side, their sum added to the dry sound."""
    out = list(samples)
    for delay, feedback in ((1117, 0.74), (1277, 0.72), (1399, 0.70), (1523, 0.68)):
        line, index, low = [0.0] * delay, 0, 0.0
        for i, value in enumerate(samples):
            echo = line[index]
            low += 0.6 * (echo - low)  # a wall swallows the treble first
            line[index] = value + feedback * low
            index = index + 1 if index + 1 < delay else 0
            out[i] += wet * 0.25 * echo
    return out


def render(score: Score, wet=0.35, level=0.14, peak=0.8):
    """The score as samples between -peak and peak, as loud as `level` on average, so that no song jumps out."""
    noise = random.Random(1)  # a fixed seed: the same score is the same file
    samples = [0.0] * int((score.seconds(score.end()) + TAIL_SECONDS) * RATE)
    ready = {}
    for part in score.parts:
        for note in part.notes:
            begin = score.seconds(note.start)
            seconds = score.seconds(note.start + note.length) - begin
            key = (part.voice, note.pitch, round(seconds, 4))
            if key not in ready:
                ready[key] = (drum(note.pitch, noise) if part.voice == "drums" else
                              VOICES[part.voice](note.pitch, seconds, noise))
            at, strength = int(begin * RATE), part.gain * note.velocity
            for i, value in enumerate(ready[key][: len(samples) - at], at):
                samples[i] += strength * value
    samples = room(samples, wet)
    loudness = math.sqrt(sum(value * value for value in samples) / len(samples))
    # Above the knee the curve bends towards the peak, so that no stroke clips.
    samples = [peak * math.tanh(level / loudness / peak * value) for value in samples]
    fade = int(0.6 * RATE)
    for i in range(fade):
        samples[-1 - i] *= i / fade
    return samples
