#!/usr/bin/python3
"""Tests each rule of scripts/check-comments in each kind of file, and texts that the rules don't apply to."""

import subprocess
import tempfile
import unittest
from pathlib import Path

SCRIPT = Path(__file__).resolve().parents[2] / "scripts" / "check-comments"

# File, content, line and text of the fault.
FAULTS = [
    ("a.h", "int a;\n/// What is read.\n", 2, "What"),
    ("a.h", "int a; ///< of the window\n", 1, "of"),
    ("a.h", "/// Reads. Ends\n/// there. That of the root stays.\n", 2, "That of"),
    ("a.h", "/**\n * Reads.\n *\n * With what it has.\n */\n", 4, "With what"),
    ("a.cpp", 'f(R"(// " )", \'"\', 1\'000); // Who calls.\n', 1, "Who"),
    ("a.cpp", "int a; // Reads,\n       // as it\n       // were.\n", 2, "as it were"),
    ("a.cpp", "// Reads.\n// NOLINT(x): What it takes.\n", 2, "What"),
    ("a.cpp", "// - one\n// - Whoever reads.\n", 2, "Whoever"),
    ("CMakeLists.txt", 'set(A "# b")\n# It is made anew.\n', 2, "anew"),
    ("a.cmake", "#[[\nWhat it builds.\n]]\n", 2, "What"),
    ("a.py", '"""Reads.\n\nWho calls.\n"""\n', 3, "Who"),
    ("a.py", 'def f():\n    """What is read."""\n', 2, "What"),
    ("a.py", "a = 1  # It is told of the end.\n", 1, "told of"),
    ("script", "#!/usr/bin/env bash\n# What it does.\n", 2, "What"),
    ("a.md", "# Title\n\nReads. *What* it reads.\n", 3, "What"),
    ("a.md", "| a | b |\n|---|---|\n| c | Of the file. |\n", 3, "Of"),
    ("a.1", '.SH NAME\na \\- b\n.TP\n.B \\-\\-help\nWhat it does.\n', 5, "What"),
]
# File and content.
ALLOWED = [
    ("a.h", "/// What is this? Reads what it finds, and whatever follows.\n"),
    ("a.h", '/// Reads "as it were. What", `Who` and `anew`.\n/// Returns one of them, i.e. what is left.\n'),
    ("a.h", "/// Shows:\n///\n///     What is code.\n"),
    ("a.cpp", 'const char *a = "// What"; const char *b = R"x(\n// Who calls.\n)x";\nconst char c = u\'"\';\n'),
    ("a.py", 'a = "What is read."\nb = """\nWho calls.\n"""\n'),
    ("a.md", "Reads.\n\n```\nWhat is code.\n```\n\n    Who is code.\n\nSee `What | who`.\n"),
    ("a.1", '.\\" What is a comment.\n.nf\nWhat is an example.\n.fi\n'),
    ("a.txt", "What is not checked.\n"),
]


class CheckComments(unittest.TestCase):
    def run_on(self, name, content):
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / name
            path.write_text(content, encoding="utf-8")
            results = [subprocess.run([SCRIPT, argument], capture_output=True, text=True)
                       for argument in (path, Path(folder))]
            self.assertEqual(results[0].stdout, results[1].stdout)
            return results[0].returncode, results[0].stdout.replace(f"{folder}/", "").splitlines()[:-1]

    def test_names_the_line_that_breaks_a_rule(self):
        for name, content, line, word in FAULTS:
            with self.subTest(name=name, content=content):
                status, faults = self.run_on(name, content)
                self.assertEqual(1, status)
                self.assertTrue(faults)
                for fault in faults:
                    self.assertRegex(fault, f'^{name}:{line}: .*"{word}"$')

    def test_leaves_questions_quotes_and_code_alone(self):
        for name, content in ALLOWED:
            with self.subTest(name=name, content=content):
                self.assertEqual((0, []), self.run_on(name, content))

    def test_refuses_files_that_it_cannot_read(self):
        self.assertEqual(1, self.run_on("a.py", '"""')[0])
        missing = subprocess.run([SCRIPT, "/nonexistent"], capture_output=True, text=True)
        self.assertEqual(1, missing.returncode)


if __name__ == "__main__":
    unittest.main()
