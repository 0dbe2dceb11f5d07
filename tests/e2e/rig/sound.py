"""Listens to what the program plays: records the monitor of the stage's null sink."""

import array
import cmath
import math
import os
import subprocess
import threading
import wave

from rig.waiting import wait_for

RATE = 22050
BITS_OF_SILENCE = 4.0  # loudness below which nothing is heard: the last two bits of a 16-bit sample


class Server:
    """A sound server of a flow's own, to be killed and started again: where programs find it is in the environment
    as soon as this is made."""

    def __init__(self, folder):
        self.folder = folder
        (folder / "state").mkdir(parents=True)
        os.environ["PULSE_SERVER"] = f"unix:{folder}/native"
        self.start()

    def start(self):
        environment = dict(os.environ, PULSE_RUNTIME_PATH=str(self.folder), PULSE_STATE_PATH=str(self.folder / "state"))
        del environment["PULSE_SERVER"]
        self.process = subprocess.Popen(
            ["pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no", "--disable-shm=yes",
             "-L", f"module-native-protocol-unix socket={self.folder}/native auth-anonymous=1",
             "-L", "module-null-sink sink_name=stage norewinds=1"],
            env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for("the sound server", lambda: subprocess.run(["pactl", "info"], capture_output=True).returncode == 0)

    def kill(self):
        self.process.kill()
        self.process.wait()


class Listener:
    """Records from its start on; `heard(seconds)` looks at the last stretch of it."""

    def __init__(self):
        self.samples = array.array("h")
        self.lock = threading.Lock()
        # A sink that nobody plays to falls asleep and swallows the first fifth of a second: keep it awake.
        self.silence = subprocess.Popen(
            ["pacat", "--playback", "--device=stage", "--latency-msec=20", "--raw", "/dev/zero"],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.recorder = subprocess.Popen(
            ["parec", "--device=stage.monitor", "--latency-msec=20", "--raw", "--format=s16le",
             f"--rate={RATE}", "--channels=1"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        threading.Thread(target=self._collect, daemon=True).start()

    def _collect(self):
        while chunk := self.recorder.stdout.read(RATE // 50 * 2):
            if len(chunk) % 2 == 0:
                with self.lock:
                    self.samples.frombytes(chunk)

    def last(self, seconds):
        with self.lock:
            return self.samples[-int(seconds * RATE):]

    def loudness(self, seconds=0.2):
        """Root mean square of the last stretch; 32767 is as loud as it gets."""
        stretch = self.last(seconds)
        return math.sqrt(sum(value * value for value in stretch) / len(stretch)) if stretch else 0.0

    def silent(self, seconds=0.2):
        return len(self.samples) >= seconds * RATE and self.loudness(seconds) < BITS_OF_SILENCE

    def sounds(self, pitch, share=0.5, seconds=0.25):
        """Whether the last stretch is loud and at least `share` of its power lies at `pitch` (hertz)."""
        stretch = self.last(seconds)
        if len(stretch) < int(seconds * RATE) or self.loudness(seconds) < 50:
            return False
        return share_of_pitch(stretch, pitch) >= share

    def save(self, path):
        with self.lock, wave.open(str(path), "wb") as file:
            file.setnchannels(1)
            file.setsampwidth(2)
            file.setframerate(RATE)
            file.writeframes(self.samples.tobytes())

    def close(self):
        for process in (self.recorder, self.silence):
            process.terminate()
            process.wait()


def share_of_pitch(stretch, pitch):
    """Which part of the power is a sine of `pitch`: 1 for a pure tone, about 0 for any other."""
    turn = -2j * math.pi * pitch / RATE
    found = abs(sum(value * cmath.exp(turn * i) for i, value in enumerate(stretch)))
    power = sum(value * value for value in stretch)
    return 2 * found * found / (len(stretch) * power) if power else 0.0
