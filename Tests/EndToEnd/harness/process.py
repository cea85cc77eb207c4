"""Running programs."""

import os
import signal
import subprocess
import tempfile
from pathlib import Path

from . import machine
from .waiting import DEADLINE, until

# Makes the toolkit serve the accessibility bus even without a screen reader.
ACCESSIBILITY = {"QT_ACCESSIBILITY": "1", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}


class Program:
    """A process that the constructor starts. Standard output and error are files, so that it never blocks on a reader.
    cpu_seconds() and peak_megabytes() are available after its end."""

    def __init__(self, command, **options):
        self._output, self._errors = tempfile.TemporaryFile("w+"), tempfile.TemporaryFile("w+")
        self._popen = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=self._output, stderr=self._errors,
                                       **options)
        self.pid = self._popen.pid
        self.usage = None
        self.status = None

    def ended(self):
        """Returns whether the process has ended, and stores its status. The status of a signal is negative."""
        if self.status is None:
            pid, status, usage = os.wait4(self.pid, os.WNOHANG)
            if pid:
                self.usage = usage
                self.status = self._popen.returncode = os.waitstatus_to_exitcode(status)
        return self.status is not None

    def wait(self, deadline=DEADLINE):
        """Waits for the end of the process and returns its exit status."""
        until(lambda: f"the end of the program\n{self.story()}", self.ended, deadline)
        return self.status

    def send(self, number):
        os.kill(self.pid, number)

    def close(self):
        if not self.ended():
            self.send(signal.SIGKILL)
            self.wait()
        self._output.close()
        self._errors.close()

    def output(self):
        return self._read(self._output)

    def errors(self):
        return self._read(self._errors)

    def story(self):
        return f"--- output:\n{self.output()[-3000:]}--- errors:\n{self.errors()[-2000:]}"

    @staticmethod
    def _read(file):
        # A separate file description, since reading must not move the program's write position.
        with open(f"/proc/self/fd/{file.fileno()}", encoding="utf-8", errors="replace") as reader:
            return reader.read()

    def cpu_seconds(self):
        return self.usage.ru_utime + self.usage.ru_stime

    def peak_megabytes(self):
        return self.usage.ru_maxrss / 1024


class Process(Program):
    """A program under test, started as a user of the machine."""

    def __init__(self, program, *arguments, user="root", environment=None):
        number, group = machine.user_number(user), machine.group_number(machine.primary_group(user))
        groups = [machine.group_number(name) for own, _, _, names in machine.USERS if own == user for name in names]
        super().__init__([machine.BINARIES / program, *arguments], env={**_environment(user), **(environment or {})},
                         user=number, group=group, extra_groups=groups, cwd="/")


def _environment(user):
    home = machine.home(user)
    runtime = Path("/run/user") / str(machine.user_number(user))
    runtime.mkdir(parents=True, exist_ok=True, mode=0o700)
    os.chown(runtime, machine.user_number(user), -1)
    # The session bus accepts only the user that started it.
    bus = os.environ["DBUS_SESSION_BUS_ADDRESS"] if user == "root" else "unix:path=/nonexistent"
    return {"PATH": os.environ["PATH"], "DISPLAY": os.environ["DISPLAY"], "LANG": "C.UTF-8", "HOME": str(home),
            "USER": user, "XDG_CONFIG_HOME": str(home / ".config"), "XDG_RUNTIME_DIR": str(runtime),
            "DBUS_SYSTEM_BUS_ADDRESS": "unix:path=/nonexistent", "DBUS_SESSION_BUS_ADDRESS": bus, **ACCESSIBILITY}
