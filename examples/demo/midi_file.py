"""Writes a score as a standard MIDI file of format 1: a tempo track, then one track a part on General MIDI programs."""

import struct

from score import Score

TICKS_A_BEAT = 480
DRUM_CHANNEL = 9


def variable_length(value):
    text = [value & 0x7F]
    while value := value >> 7:
        text.insert(0, 0x80 | value & 0x7F)
    return bytes(text)


def track(events):
    """A track chunk of (tick, bytes) events; at one tick they keep the order given."""
    body, last = b"", 0
    for tick, message in sorted(events, key=lambda event: event[0]):
        body += variable_length(tick - last) + message
        last = tick
    body += variable_length(0) + b"\xff\x2f\x00"
    return b"MTrk" + struct.pack(">I", len(body)) + body


def text_event(kind, text):
    content = text.encode("utf-8")
    return b"\xff" + bytes([kind]) + variable_length(len(content)) + content


def part_track(part, channel):
    events = [] if channel == DRUM_CHANNEL else [(0, bytes([0xC0 | channel, part.program]))]
    events.append((0, bytes([0xB0 | channel, 7, min(127, round(127 * part.gain))])))
    for note in part.notes:
        begin = round(note.start * TICKS_A_BEAT)
        end = max(begin + 1, round((note.start + note.length) * TICKS_A_BEAT) - 1)
        velocity = max(1, min(127, round(127 * note.velocity)))
        events.append((begin, bytes([0x90 | channel, note.pitch, velocity])))
        events.append((end, bytes([0x80 | channel, note.pitch, 0])))
    return track(events)


def midi_file(score: Score, title):
    conductor = [(0, text_event(3, title)), (0, b"\xff\x58\x04" + bytes([score.beats_per_bar, 2, 24, 8]))]
    for beat, tempo in score.tempos:
        microseconds = round(60_000_000 / tempo)
        conductor.append((round(beat * TICKS_A_BEAT), b"\xff\x51\x03" + microseconds.to_bytes(3, "big")))
    tracks, channel = [track(conductor)], 0
    for part in score.parts:
        if part.voice == "drums":
            tracks.append(part_track(part, DRUM_CHANNEL))
            continue
        tracks.append(part_track(part, channel))
        channel += 2 if channel + 1 == DRUM_CHANNEL else 1
    return b"MThd" + struct.pack(">IHHH", 6, 1, len(tracks), TICKS_A_BEAT) + b"".join(tracks)
