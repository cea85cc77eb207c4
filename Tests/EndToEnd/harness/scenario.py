"""The base of the scenarios."""

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
    """Begins on a machine without any configuration; ends with every program that it started."""

    def setUp(self):
        machine.reset()

    def install(self, content, name="Velmar.plist", place=machine.SUPPORT, owner="root", group="wheel", mode=0o644):
        """Puts a configuration, a dictionary or bytes, at a place of the machine. Gives its path."""
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
        """Starts the program. Gives the process and its screen."""
        process = self.run_program("velmar", *arguments, **options)
        return process, Screen(process)

    def velmarctl(self, *arguments):
        """Runs the administrator's command line to its end."""
        process = self.run_program("velmarctl", *arguments)
        process.wait()
        return process

    def dismiss_refusal(self, process, screen):
        """The alert stands there with its text and its one button; pressing it ends the program with 0."""
        screen.wait_for_text(REFUSAL)
        screen.wait_for_buttons("Quit")
        screen.button("Quit").press()
        self.assertEqual(0, process.wait(), process.story())

    def end(self, process):
        """Ends the program in order, after which its log is complete."""
        process.send(signal.SIGTERM)
        self.assertEqual(0, process.wait(), process.story())

    def log_path(self, user="root"):
        return Path(f"/tmp/{user}-velmar.log")

    def log(self, user="root"):
        """The lines of the log so far. A line may come later than what it tells of: as long as the program runs, lines
        are to be waited for, and that there are no more of them is known only at its end."""
        path = self.log_path(user)
        return path.read_text(encoding="utf-8").split("\n")[:-1] if path.exists() else []

    def messages(self, user="root"):
        """The messages of the log without name, time, level and trailing blank; a line of its own each."""
        return [re.sub(r"^\[.*?\] \d\d:\d\d:\d\d \S+ > ", "", line).rstrip(" ") for line in self.log(user)]

    def wait_for_message(self, message, user="root", times=1):
        until(lambda: f"the message '{message}', {times} times, in {self.log(user)}",
              lambda: self.messages(user).count(message) >= times)

    def wait_for_line(self, fragment):
        """Waits for a line of the log in which the fragment stands."""
        until(lambda: f"'{fragment}' in {self.log()}", lambda: any(fragment in line for line in self.log()))
