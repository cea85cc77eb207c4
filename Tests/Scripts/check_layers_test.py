#!/usr/bin/python3
"""Tests each rule of scripts/check-layers with violations in a small tree."""

import subprocess
import tempfile
import unittest
from pathlib import Path

SCRIPT = Path(__file__).resolve().parents[2] / "scripts" / "check-layers"

HEADERS = {
    "Platform/Foundation/include/Foundation/URL.h": "",
    "Platform/Dispatch/include/Dispatch/Timer.h": "",
    "Platform/Desktop/include/Desktop/Alert.h": "",
    "Platform/Testing/include/Testing/FakeTimer.h": "",
    "Libraries/logger/include/logger/Logger.h": "",
    "Libraries/Configuration/include/Configuration/Book.h": "",
    "Sources/Core/include/Core/AppManager.h": "",
    "Sources/Variables/include/Variables/Content.h": "",
    "Sources/Views/Window.h": "",
}
ALLOWED = [
    ("Sources/Core/src/AppManager.cpp", "Configuration/Book.h"),
    ("Sources/Views/Window.cpp", "QWidget"),
    ("Sources/Views/Window.cpp", "Core/AppManager.h"),
    ("Platform/Desktop/src/Alert.cpp", "QtWidgets/QMessageBox"),
    ("Platform/Foundation/src/URL.cpp", "unicode/unistr.h"),
    ("Libraries/logger/Tests/LoggerTest.cpp", "Testing/FakeTimer.h"),
]
REFUSED = [
    ("Platform/Foundation/src/URL.cpp", "logger/Logger.h", "never climb"),
    ("Libraries/logger/src/Logger.cpp", "Configuration/Book.h", "never climb"),
    ("Sources/Core/src/AppManager.cpp", "Views/Window.h", "never climb"),
    ("Sources/Core/src/AppManager.cpp", "QString", "Qt is used in"),
    ("Libraries/logger/src/Logger.cpp", "asio.hpp", "asio is used in"),
    ("Sources/main.cpp", "unicode/regex.h", "ICU is used in"),
    ("Platform/Desktop/src/Alert.cpp", "logger/Logger.h", "may use dispatch, foundation, interaction only"),
    ("Sources/Core/src/AppManager.cpp", "Testing/FakeTimer.h", "fakes are for tests"),
]


class CheckLayers(unittest.TestCase):
    def run_on(self, includes):
        with tempfile.TemporaryDirectory() as folder:
            tree = dict(HEADERS)
            for path, name in includes:
                tree[path] = tree.get(path, "") + f"#include <{name}>\n"
            for path, text in tree.items():
                (Path(folder) / path).parent.mkdir(parents=True, exist_ok=True)
                (Path(folder) / path).write_text(text)
            return subprocess.run([SCRIPT, folder], capture_output=True, text=True)

    def test_lets_every_room_use_what_lies_below(self):
        result = self.run_on(ALLOWED)
        self.assertEqual((0, f"{len(HEADERS) + 5} files, 0 faults\n"), (result.returncode, result.stdout))

    def test_names_the_line_that_breaks_a_rule(self):
        for path, name, message in REFUSED:
            with self.subTest(path=path, include=name):
                result = self.run_on([(path, name)])
                self.assertEqual(1, result.returncode)
                self.assertRegex(result.stdout, f"{path}:1: .*{message}")

    def test_finds_a_circle_on_one_floor(self):
        result = self.run_on([("Platform/Foundation/src/URL.cpp", "Dispatch/Timer.h"),
                              ("Platform/Dispatch/src/Timer.cpp", "Foundation/URL.h")])
        self.assertEqual(1, result.returncode)
        self.assertIn("in a circle: dispatch > foundation > dispatch", result.stdout)

    def test_finds_a_circle_within_the_application(self):
        result = self.run_on([("Sources/Core/src/AppManager.cpp", "Variables/Content.h"),
                              ("Sources/Variables/src/Content.cpp", "Core/AppManager.h")])
        self.assertEqual(1, result.returncode)
        self.assertIn("in a circle: core > variables > core", result.stdout)

    def test_names_a_file_of_the_application_outside_every_room(self):
        result = self.run_on([("Sources/Managers/Content.cpp", "Variables/Content.h")])
        self.assertEqual(1, result.returncode)
        self.assertIn("Sources/Managers/Content.cpp:1: no room is declared", result.stdout)


if __name__ == "__main__":
    unittest.main()
