"""Songs and documents for the flows: steady tones of a known pitch, so that what is heard can be told apart."""

import array
import math
import pathlib
import struct
import subprocess
import wave

RATE = 44100


def tone(pitch, seconds):
    return array.array("h", (round(9000 * math.sin(2 * math.pi * pitch * i / RATE)) for i in range(int(seconds * RATE))))


def write_wave(path, pitch, seconds):
    write_frames(path, tone(pitch, seconds))


def write_ladder(path, pitches, seconds_each):
    """One tone after the other, so that the place in the song can be heard."""
    frames = array.array("h")
    for pitch in pitches:
        frames.extend(tone(pitch, seconds_each))
    write_frames(path, frames)


def write_frames(path, frames):
    with wave.open(str(path), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(frames.tobytes())


def write_mp3(path, pitch, seconds):
    encode(path, pitch, seconds, lambda plain: ["lame", "--quiet", "-b", "96", plain, path])


def write_wma(path, pitch, seconds):
    encode(path, pitch, seconds,
           lambda plain: ["ffmpeg", "-v", "error", "-y", "-i", plain, "-c:a", "wmav2", "-b:a", "96k", path])


def encode(path, pitch, seconds, command):
    plain = path.with_suffix(".plain.wav")
    write_wave(plain, pitch, seconds)
    subprocess.run(list(map(str, command(plain))), check=True)
    plain.unlink()


def write_midi(path, note, seconds):
    """One held organ note (a MIDI note number) at 120 beats a minute."""
    ticks = round(seconds * 2 * 480)
    length = b"".join(bytes([0x80 | ticks >> shift & 0x7F]) for shift in (14, 7)) + bytes([ticks & 0x7F])
    body = b"\x00\xc0\x10\x00\x90" + bytes([note, 110]) + length + b"\x80" + bytes([note, 0]) + b"\x00\xff\x2f\x00"
    path.write_bytes(struct.pack(">4sIHHH", b"MThd", 6, 0, 1, 480) + struct.pack(">4sI", b"MTrk", len(body)) + body)


def windows_path(path):
    return str(path).replace("/", "\\")


def write_document(path, rows):
    """A document of (group, playlist, song path, time) rows."""
    lines = (f'"{group}" "{playlist}" "{windows_path(song)}" {time}\r\n' for group, playlist, song, time in rows)
    pathlib.Path(path).write_bytes("".join(lines).encode("utf-16-le"))


def names_in(document):
    """The file names of a document's songs, in its order."""
    lines = document.read_bytes().decode("utf-16-le").splitlines()
    return [line.split('"')[5].rpartition("\\")[2] for line in lines]


def write_lyrics(song, lines):
    """A lyric file beside the song from (milliseconds, text) lines."""
    text = "".join(f"[{at // 60000:02d}:{at // 1000 % 60:02d}.{at % 1000:03d}]{words}\r\n" for at, words in lines)
    song.with_suffix(".lrc").write_bytes(text.encode("utf-8"))
