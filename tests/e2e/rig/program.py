"""The built program as a process with a home of its own, and its windows as the accessibility tree tells them."""

import os
import subprocess

from rig import accessibility
from rig.waiting import wait_for


class Program:
    """One run. Settings and state lie below `home`, so that a second run finds those of the first."""

    def __init__(self, binary, home, log, arguments=(), **more_environment):
        environment = dict(os.environ, HOME=str(home), XDG_CONFIG_HOME=str(home / "config"),
                           XDG_STATE_HOME=str(home / "state"), XDG_CACHE_HOME=str(home / "cache"),
                           XDG_DATA_HOME=str(home / "data"), LC_ALL="C.UTF-8", **more_environment)
        self.settings_file = home / "config" / "Korvel" / "Brevant" / "Brevant.ini"
        with open(log, "ab") as output:
            self.process = subprocess.Popen([str(binary), *map(str, arguments)], env=environment, cwd=home,
                                            stdin=subprocess.DEVNULL, stdout=output, stderr=output)

    def running(self):
        return self.process.poll() is None

    def exit_status(self, seconds=10):
        """What the program ended with, once it has; it is given `seconds` to get there."""
        return wait_for("the program's end", lambda: (self.process.poll(),) if not self.running() else None, seconds)[0]

    def kill(self):
        if self.running():
            self.process.kill()
        self.process.wait()

    def find(self, role, name=None, description=None):
        application = accessibility.application_of(self.process.pid)
        return accessibility.find(application, role, name, description) if application else None

    def wait_for(self, role, name=None, description=None, seconds=15.0):
        def look():
            assert self.running(), f"the program ended with status {self.process.returncode}"
            return self.find(role, name, description)

        return wait_for(f"a {role} named {name or description!r}", look, seconds)
