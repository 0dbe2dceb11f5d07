#!/usr/bin/env python3
"""Makes the demo songs with their lyric files, in the folder beside this script or the one named on the command line.

The songs are composed in tunes.py and rendered here: WAV and MIDI directly, MP3 by lame, WMA by ffmpeg. The result is
in the repository, so only who changes a tune needs to run this.
"""

import array
import dataclasses
import pathlib
import subprocess
import sys
import tempfile
import wave

import tunes
from midi_file import midi_file
from synth import RATE, TAIL_SECONDS, render


@dataclasses.dataclass
class Song:
    file: str
    compose: object
    writer: str = ""  # of the words
    lyric_type: str = "lrc"
    offset: int = 0  # milliseconds by which the lyric lines come earlier


SONGS = (
    Song("Morning Ferry.mp3", tunes.morning_ferry, "The deck hands"),
    Song("Paper Lanterns.mp3", tunes.paper_lanterns, "The deck hands", offset=200),
    Song("Gravel Road Shuffle.mp3", tunes.gravel_road_shuffle, "The deck hands"),
    Song("Über den Dächern.mp3", tunes.over_the_roofs, "The deck hands"),
    Song("Tin Roof Rain.wav", tunes.tin_roof_rain),
    Song("Neon Carousel.wma", tunes.neon_carousel),
    Song("Белая ночь.wma", tunes.white_night, "The deck hands", lyric_type="lrcx"),
    Song("Clockwork Polka.mid", tunes.clockwork_polka),
    Song("Long Way Down the River.mid", tunes.long_way_down_the_river, "The deck hands"),
    Song("Market Day Samba.mid", tunes.market_day_samba),
)


def write_wave(path, samples):
    frames = array.array("h", (round(32767 * value) for value in samples))
    if sys.byteorder == "big":
        frames.byteswap()
    with wave.open(str(path), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(frames.tobytes())


def encode(source, target):
    commands = {
        ".mp3": ["lame", "--quiet", "-m", "m", "-b", "64", source, target],
        ".wma": ["ffmpeg", "-v", "error", "-y", "-i", source, "-c:a", "wmav2", "-b:a", "48k",
                 "-fflags", "+bitexact", target],
    }
    subprocess.run(list(map(str, commands[target.suffix])), check=True)


def clock(seconds):
    return f"{int(seconds) // 60:02d}:{int(seconds) % 60:02d}"


def lyric_time(seconds):
    """Three digits after the point: the reader takes them as milliseconds."""
    milliseconds = round(seconds * 1000)
    return f"{milliseconds // 60000:02d}:{milliseconds // 1000 % 60:02d}.{milliseconds % 1000:03d}"


def lyric_file(song, score, seconds):
    """The lyric text; every line ends with CR LF, the last one too, or its reader would lose it."""
    lines = [f"[ti:{pathlib.Path(song.file).stem}]", "[ar:The Lantern Street Band]", "[al:Demo songs]",
             f"[by:{song.writer}]", "[au:The Lantern Street Band]", "[ve:1]", f"[length:{clock(seconds)}]"]
    if song.offset:
        lines.append(f"[offset:{song.offset}]")
    lines += [f"[{lyric_time(score.seconds(beat))}]{text}" for beat, text in score.lyrics]
    return "".join(line + "\r\n" for line in lines)


def main():
    here = pathlib.Path(__file__).resolve().parent
    folder = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else here / "songs"
    folder.mkdir(parents=True, exist_ok=True)
    for song in SONGS:
        score = song.compose()
        target = folder / song.file
        if target.suffix == ".mid":
            target.write_bytes(midi_file(score, target.stem))
        elif target.suffix == ".wav":
            write_wave(target, render(score))
        else:
            with tempfile.TemporaryDirectory() as scratch:
                plain = pathlib.Path(scratch) / "song.wav"
                write_wave(plain, render(score))
                encode(plain, target)
        seconds = score.seconds(score.end()) + (0 if target.suffix == ".mid" else TAIL_SECONDS)
        if score.lyrics:
            text = lyric_file(song, score, seconds)
            encoding = "utf-8" if song.lyric_type == "lrc" else "utf-16-le"
            target.with_suffix("." + song.lyric_type).write_bytes(text.encode(encoding))
        print(f"{clock(seconds)}  {target.name}", flush=True)


if __name__ == "__main__":
    main()
