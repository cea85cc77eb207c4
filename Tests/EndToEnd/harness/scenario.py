"""Base class of the scenarios."""

import os
import plistlib
import re
import signal
import unittest
from pathlib import Path

from . import machine
from .process import Process
from .screen import Screen
from .waiting import until

REFUSAL = "The configuration file is incorrect"


def slide(*texts, **keys):
    return {"Containers": [{"Components": [{"Type": "Text", "Text": text} for text in texts]}], **keys}


def configuration(*slides, **sections):
    return {"Slides": list(slides), **sections}


class Scenario(unittest.TestCase):
    """Starts on a machine without a configuration; ends all programs that it started."""

    def setUp(self):
        machine.reset()

    def install(self, content, name="Velmar.plist", place=machine.SUPPORT, owner="root", group="wheel", mode=0o644):
        """Writes a configuration, given as a dictionary or bytes, to a folder of the machine. Returns its path."""
        path = place / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content if isinstance(content, bytes) else plistlib.dumps(content))
        os.chown(path, machine.user_number(owner), machine.group_number(group))
        os.chmod(path, mode)
        return path

    def run_program(self, program, *arguments, **options):
        process = Process(program, *map(str, arguments), **options)
        self.addCleanup(process.close)
        return process

    def velmar(self, *arguments, **options):
        """Starts velmar. Returns the process and its screen."""
        process = self.run_program("velmar", *arguments, **options)
        return process, Screen(process)

    def velmarctl(self, *arguments):
        """Runs velmarctl to its end and returns the process."""
        process = self.run_program("velmarctl", *arguments)
        process.wait()
        return process

    def dismiss_refusal(self, process, screen):
        """Checks text and button of the alert of a refused configuration, and that the button ends velmar with 0."""
        screen.wait_for_text(REFUSAL)
        screen.wait_for_buttons("Quit")
        screen.button("Quit").press()
        self.assertEqual(0, process.wait(), process.story())

    def end(self, process):
        """Ends velmar regularly; its log is complete afterwards."""
        process.send(signal.SIGTERM)
        self.assertEqual(0, process.wait(), process.story())

    def log_path(self, user="root"):
        return Path(f"/tmp/{user}-velmar.log")

    def log(self, user="root"):
        """Returns the lines of the log so far. Lines are written asynchronously: while the program runs, wait for a
        line, and check that there are no others only after its end."""
        path = self.log_path(user)
        return path.read_text(encoding="utf-8").split("\n")[:-1] if path.exists() else []

    def messages(self, user="root"):
        """Returns the log messages without name, time, level and trailing blanks, one for each line."""
        return [re.sub(r"^\[.*?\] \d\d:\d\d:\d\d \S+ > ", "", line).rstrip(" ") for line in self.log(user)]

    def wait_for_message(self, message, user="root", times=1):
        until(lambda: f"the message '{message}', {times} times, in {self.log(user)}",
              lambda: self.messages(user).count(message) >= times)

    def wait_for_line(self, fragment):
        """Waits for a log line that contains the fragment."""
        until(lambda: f"'{fragment}' in {self.log()}", lambda: any(fragment in line for line in self.log()))
