"""render_test VELMARCTL EXAMPLES: the program makes the pictures that it is asked for, and nothing else."""

import os
import pathlib
import plistlib
import signal
import subprocess
import sys
import tempfile
import time
import unittest

VELMARCTL, EXAMPLES = sys.argv[1], pathlib.Path(sys.argv[2])
# No display and no bus. Tests of languages set the variables of a session.
ENVIRONMENT = {"PATH": os.environ["PATH"], "LANG": "C.UTF-8", "DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent"}


def text(content, condition=None):
    return {"Type": "Text", "Text": content, **({"Condition": condition} if condition else {})}


def slide(*components, **keys):
    return {"Containers": [{"Components": list(components)}], **keys}


class Render(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.out = self.folder / "some" / "out"

    def render(self, configuration, *options, status=0, languages="", out=None):
        """Returns the names of the pictures reported by the program, and its errors."""
        path = configuration
        if isinstance(configuration, dict):
            path = self.folder / "x.plist"
            path.write_bytes(plistlib.dumps({"Window": {"OnScreen": "Simple"}, **configuration}))
        session = {"LANGUAGE": languages, "LANG": "de_DE.UTF-8"} if languages else {}
        done = subprocess.run([VELMARCTL, "render", path, "--no-admission", "--out", out or self.out, *options],
                              capture_output=True, text=True, env={**ENVIRONMENT, **session})
        self.assertEqual(status, done.returncode, done.stdout + done.stderr)
        names = [pathlib.Path(line).name for line in done.stdout.splitlines()]
        if status == 0:
            self.assertEqual(sorted(names), sorted(os.listdir(out or self.out)))
        return names, done.stderr

    def picture(self, configuration, *options, number=1, languages=""):
        self.render(configuration, *options, languages=languages)
        return (self.out / f"slide-{number:02}.png").read_bytes()

    @staticmethod
    def size(picture):
        return int.from_bytes(picture[16:20], "big"), int.from_bytes(picture[20:24], "big")

    def mean(self, number=1):
        """Returns the mean lightness of the picture, from 0 to 1."""
        return float(subprocess.check_output(["convert", self.out / f"slide-{number:02}.png", "-colorspace", "Gray",
                                              "-format", "%[fx:mean]", "info:"]))

    def test_each_example_is_clean_and_gives_a_picture_a_slide(self):
        for path in sorted(EXAMPLES.glob("*.plist")):
            with self.subTest(example=path.name):
                # The example with items of every kind names files that exist only on an organisation's
                # computers.
                if path.name != "complete.plist":
                    subprocess.run([VELMARCTL, "check", "--strict", "--no-admission", path], check=True)
                count = len(plistlib.loads(path.read_bytes())["Slides"])
                names, _ = self.render(path, out=self.folder / path.stem)
                self.assertEqual([f"slide-{number:02}.png" for number in range(1, count + 1)], names)

    def test_the_size_is_that_of_the_window_or_the_one_asked_for(self):
        sizes = {"MinimumSize": {"Width": 500, "Height": 300}, "MaximumSize": {"Width": 900, "Height": 700},
                 "MenuBarSize": {"Width": 320, "Height": 480}}
        for mode, options, expected in [("Simple", [], (500, 300)), ("BlurredBackground", [], (900, 700)),
                                        ("FullScreen", [], (1280, 800)), ("MenuBar", [], (320, 480)),
                                        ("Simple", ["--scale", "2"], (1000, 600)),
                                        ("MenuBar", ["--size", "200x100", "--scale", "1.5"], (300, 150))]:
            with self.subTest(mode=mode, options=options):
                picture = self.picture({"Window": {"OnScreen": mode, **sizes}, "Slides": [slide(text("A"))],
                                        "MenuBarSlide": slide(text("B"))}, *options)
                self.assertEqual(expected, self.size(picture))

    def test_the_appearance_the_variables_and_the_conditions_show(self):
        configuration = {"General": {"Variables": {"NAME": "Ann"}},
                         "Slides": [slide(text("${NAME}", 'NAME == "Ann"')), slide(text("${NAME}"))],
                         "SideContainer": {"Width": 200, "Container": {"Components": [
                             text("Here", "CURRENT_SLIDE_INDEX == 1")]}}}
        first = self.picture(configuration)
        self.assertEqual(first, self.picture(configuration))
        self.assertGreater(self.mean(), 0.8)
        self.assertNotEqual(first, self.picture(configuration, "--var", "NAME=Bob"))
        # The text beside the slides makes the second picture darker, although its slide differs only by one
        # more button.
        self.render(configuration)
        self.assertLess(self.mean(2), self.mean())
        self.picture(configuration, "--dark")
        self.assertLess(self.mean(), 0.2)

    def test_hidden_buttons_and_mandatory_elements_hold_no_picture_back(self):
        configuration = {"Slides": [slide(text("A"), HideNextButton=True), slide(text("A")), slide(text("A"))]}
        self.render(configuration)
        with_next = (self.out / "slide-02.png").read_bytes()
        del configuration["Slides"][0]["HideNextButton"]
        self.assertEqual(with_next, self.picture(configuration, number=2))

    def test_the_language_is_that_of_the_session_or_the_one_asked_for(self):
        configuration = {"Slides": [slide(text("A"))]}
        pictures = {code: self.picture(configuration, "--language", code) for code in ["en", "de", "ar", "fr_CH"]}
        self.assertEqual(4, len(set(pictures.values())))
        for languages, code in [("", "en"), ("de:fr", "de"), ("sv:ar:de", "ar"), ("en_GB:de", "en"), ("sv", "en")]:
            with self.subTest(languages=languages):
                self.assertEqual(pictures[code], self.picture(configuration, languages=languages))
        for code in ["sv", "zh_TW", "klingon"]:
            names, complaint = self.render(configuration, "--language", code, status=2, out=self.folder / "none")
            self.assertEqual(f"velmarctl: Velmar has no texts in '{code}'; it has them in ar, de, en, es, fr, it, ja, nl, "
                             "pt, zh_Hans.\n", complaint)
            self.assertEqual([], names)
        self.assertFalse((self.folder / "none").exists())

    def test_only_the_pictures_are_replaced_and_never_what_they_link_to(self):
        self.out.mkdir(parents=True)
        kept, target = self.out / "slide-09.png", self.folder / "target"
        for path in (kept, target, self.out / "slide-02.png"):
            path.write_text("before")
        (self.out / "slide-01.png").symlink_to(target)
        subprocess.run([VELMARCTL, "render", EXAMPLES / "conditions.plist", "--no-admission", "--out", self.out],
                       check=True, capture_output=True, env=ENVIRONMENT)
        self.assertEqual(["before", "before"], [kept.read_text(), target.read_text()])
        self.assertEqual(["slide-01.png", "slide-02.png", "slide-09.png"], sorted(os.listdir(self.out)))
        self.assertTrue(all((self.out / name).read_bytes().startswith(b"\x89PNG") and not (self.out / name).is_symlink()
                            for name in ["slide-01.png", "slide-02.png"]))

    def test_what_the_program_would_log_is_said_once_and_steers_no_terminal(self):
        configuration = {"Slides": [slide(text("\u202e${DEVICE_NAME}"), text("\u202e${DEVICE_NAME}"))]}
        path = self.folder / "x.plist"
        self.assertEqual(f"{path}: warning: Use of undefined variable 'DEVICE_NAME' in condition [ \\u202e${{DEVICE_NAME}} ]\n",
                         self.render(configuration)[1])
        self.assertEqual("", self.render(configuration, "--var", "DEVICE_NAME=x")[1])

    def test_what_cannot_be_done_is_said_in_a_sentence(self):
        configuration = {"Slides": [slide(text("A"))]}
        taken = self.folder / "file"
        taken.write_text("")
        for options, out, fragment in [(["--size", "8192x8192", "--scale", "4"], self.folder / "none", "100 million pixels"),
                                       ([], taken / "in", str(taken))]:
            names, complaint = self.render(configuration, *options, status=2, out=out)
            self.assertEqual([], names)
            self.assertRegex(complaint, f"^velmarctl: [^\n]*{fragment}[^\n]*\\.\n$")
        self.assertIn(f"'{taken}' already exists and is not a folder.", self.render(configuration, status=2, out=taken)[1])

    def test_nothing_goes_on_when_the_program_is_interrupted(self):
        path = self.folder / "x.plist"
        path.write_bytes(plistlib.dumps({"Window": {"OnScreen": "Simple"}, "Slides": [slide(text("A " * 50_000))]}))
        render = subprocess.Popen([VELMARCTL, "render", path, "--no-admission", "--out", self.out], env=ENVIRONMENT,
                                  stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        deadline = time.monotonic() + 30
        at_work = []
        while not at_work and time.monotonic() < deadline:
            children = subprocess.run(["pgrep", "-P", str(render.pid)], capture_output=True, text=True).stdout.split()
            # A renderer that has loaded the offscreen plugin is well under way.
            at_work = [child for child in children if "libqoffscreen" in pathlib.Path(f"/proc/{child}/maps").read_text()]
        render.send_signal(signal.SIGINT)
        render.wait()
        # A process that has ended but was not reaped has an empty command line.
        command_line = pathlib.Path(f"/proc/{at_work[0]}/cmdline")
        while command_line.exists() and command_line.read_bytes() and time.monotonic() < deadline:
            time.sleep(0.01)
        self.assertEqual([], sorted(self.out.glob("*")))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
