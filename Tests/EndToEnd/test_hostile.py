"""Hostile files: refused with one sentence, in less than a second and 200 MB."""

import os
import plistlib

from harness import machine
from harness.scenario import Scenario, configuration, slide

HEAD = b'<?xml version="1.0" encoding="UTF-8"?>\n<plist version="1.0">\n'
SECONDS = 1.0
MEGABYTES = 200


def nested(depth):
    return HEAD + b"<array>" * depth + b"</array>" * depth + b"</plist>"


def expanding():
    """Returns a binary property list of thirty arrays, each with twenty references to the next one."""
    levels, width = 30, 20
    objects, offsets, data = [], [], b"bplist00"
    for level in range(levels):
        objects.append(bytes([0xAF, 0x10, width]) + bytes([level + 1]) * width)
    objects.append(b"\x51a")
    for item in objects:
        offsets.append(len(data))
        data += item
    table = len(data)
    data += b"".join(offset.to_bytes(2, "big") for offset in offsets)
    return data + bytes(6) + bytes([2, 1]) + len(objects).to_bytes(8, "big") + bytes(8) + table.to_bytes(8, "big")


WHOLE = plistlib.dumps(configuration(slide("Text")))
BINARY = plistlib.dumps(configuration(slide("Text")), fmt=plistlib.FMT_BINARY)
CONTENTS = {
    "100,000 deep": nested(100_000),
    "65 MiB": HEAD + b" " * (65 * 1024 * 1024) + b"<dict/></plist>",
    "invalid UTF-8": WHOLE.replace(b"Text", b"T\xc3\x28t"),
    "truncated": WHOLE[:len(WHOLE) // 2],
    "truncated binary": BINARY[:-10],
    "expanding without end": expanding(),
    "entities that multiply": b'<?xml version="1.0"?><!DOCTYPE plist [<!ENTITY a "' + b"a" * 1000
                              + b'"><!ENTITY b "' + b"&a;" * 1000 + b'"><!ENTITY c "' + b"&b;" * 1000
                              + b'">]><plist><string>&c;</string></plist>',
    "a file of the machine": b'<?xml version="1.0"?><!DOCTYPE plist [<!ENTITY a SYSTEM "file:///etc/passwd">]>'
                             b"<plist><dict><key>Slides</key><string>&a;</string></dict></plist>",
    "empty": b"",
    "JSON": b'{"Slides": []}',
}
SPECIAL = {"directory": lambda path: path.mkdir(mode=0o644), "FIFO": lambda path: os.mkfifo(path, 0o644),
           "device": lambda path: os.mknod(path, 0o020644, os.makedev(1, 5))}


class Hostile(Scenario):
    def assert_refused(self, path):
        process, screen = self.velmar()
        self.dismiss_refusal(process, screen)
        problems = [message for message in self.messages()
                    if message.startswith("A problem occurred while retrieving configuration: ")]
        self.assertEqual(1, len(problems), self.messages())
        check = self.velmarctl("check", path)
        self.assertEqual(1, check.status, check.story())
        self.assertTrue(check.output().startswith(f"{path}:"), check.story())
        for process in (process, check):
            self.assertLess(process.cpu_seconds(), SECONDS, process.story())
            self.assertLess(process.peak_megabytes(), MEGABYTES, process.story())
        self.assertNotIn("root:x:", "\n".join(self.log()))

    def test_refuses_hostile_contents(self):
        for kind, content in CONTENTS.items():
            with self.subTest(kind=kind):
                self.setUp()
                self.assert_refused(self.install(content))

    def test_refuses_what_is_not_a_file(self):
        for kind, make in SPECIAL.items():
            with self.subTest(kind=kind):
                self.setUp()
                path = machine.SUPPORT / "Velmar.plist"
                make(path)
                os.chmod(path, 0o644)
                self.assert_refused(path)
