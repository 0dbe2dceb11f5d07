"""The frame of a flow: a folder for what it leaves behind, a home for the program, and a picture when it fails.

A flow is a script that ctest runs on a stage (scripts/stage): FLOW BINARY FOLDER.
"""

import contextlib
import pathlib
import shutil
import subprocess
import sys
import tempfile
import traceback

from rig import screen
from rig.program import Program
from rig.sound import Listener


class Flow:
    def __init__(self, binary, folder):
        self.binary = binary
        self.folder = folder
        self.scratch = pathlib.Path(tempfile.mkdtemp(prefix="brevant-flow."))
        self.home = self.scratch / "home"
        self.home.mkdir()
        self.programs = []
        self.listener = Listener()
        self.pictures = 0

    def start(self, *arguments, **more_environment):
        self.programs.append(Program(self.binary, self.home, self.folder / "program.log", arguments, **more_environment))
        return self.programs[-1]

    @contextlib.contextmanager
    def another_program(self, *command):
        """A program that is no Brevant, running for the length of a block."""
        with open(self.folder / "other.log", "ab") as output:
            process = subprocess.Popen([*map(str, command)], stdin=subprocess.DEVNULL, stdout=output, stderr=output)
        try:
            yield process
        finally:
            process.kill()
            process.wait()

    def use(self, listener):
        """Listens with another one from now on, to another sound server."""
        self.listener.close()
        self.listener = listener

    def step(self, sentence):
        """Says what is done next, so that a failure's place can be read in the log."""
        print(sentence, flush=True)

    def take(self, steps):
        """Takes one step after the other, each (action, sentence); a picture of what it led to bears the sentence's first
        words."""
        for action, sentence in steps:
            self.step(sentence)
            action()
            self.picture(sentence.split(",")[0].replace(" ", "-"))

    def picture(self, name):
        self.pictures += 1
        screen.save_picture(self.folder / f"{self.pictures:02d}-{name}.png")

    def close(self):
        for program in self.programs:
            program.kill()
        self.listener.close()
        self.listener.save(self.folder / "heard.wav")
        shutil.rmtree(self.scratch, ignore_errors=True)


def run(perform):
    """Performs one flow and leaves with its outcome."""
    binary, folder = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()
    folder.mkdir(parents=True, exist_ok=True)
    for leftover in filter(pathlib.Path.is_file, folder.iterdir()):
        leftover.unlink()
    flow = Flow(binary, folder)
    try:
        perform(flow)
    except BaseException:
        traceback.print_exc()
        flow.picture("at-the-failure")
        print(f"pictures and logs: {folder}", flush=True)
        sys.exit(1)
    finally:
        flow.close()
