"""The log, the reloads and the end of a session."""

import os
import signal

from harness import machine
from harness.scenario import REFUSAL, Scenario, configuration, slide
from harness.waiting import until

ADMIN = {"Admin": {"IsAdminModeEnabled": True}}
RELOADS = ["Reload interface", "Reload interface (saving variables)"]
ENDING = ["Application will terminate", "-" * 81, "-"]


class Session(Scenario):
    def test_a_reload_picks_up_a_change(self):
        for entry in RELOADS:
            with self.subTest(entry=entry):
                self.setUp()
                self.install(configuration(slide("Before"), **ADMIN))
                process, screen = self.velmar()
                screen.wait_for_text("Before")
                self.install(configuration(slide("After"), slide("More"), **ADMIN))
                screen.menu_item(entry).press()
                screen.wait_for_text("After")
                screen.wait_until_gone("Before")
                process.close()

    def test_a_reload_of_a_broken_file_keeps_the_old_one(self):
        self.install(configuration(slide("Before"), **ADMIN))
        process, screen = self.velmar()
        screen.wait_for_text("Before")
        rows = [(configuration(**ADMIN), "The 'Slides' configuration array should be specified"),
                (b"not a property list", ""), (configuration(slide(7), **ADMIN), "Text")]
        for turn, (broken, reason) in enumerate(rows, 1):
            with self.subTest(reason=reason):
                self.install(broken)
                screen.menu_item("Reload interface").press()

                def is_told():
                    story = "\n".join(self.log()).split("Decoding configuration file...")
                    return len(story) == 2 + turn and "🛑" in story[-1] and reason in story[-1].split("🛑")[1]
                until(lambda: f"the fault of reload {turn} in {self.log()}", is_told)
                self.assertEqual(["Before"], screen.labels())
                self.assertFalse(process.ended())
                self.assertNotIn(REFUSAL, screen.texts())

    def test_the_reloads_are_there_only_for_administrators(self):
        self.install(configuration(slide("Text")))
        _, screen = self.velmar()
        screen.wait_for_text("Text")
        screen.menu_item("Quit Velmar")
        self.assertFalse(set(RELOADS) & set(screen.menu_items()))

    def test_the_quit_entry_and_signals_end_in_order(self):
        for ending in ["menu", signal.SIGTERM, signal.SIGINT]:
            with self.subTest(ending=ending):
                self.setUp()
                self.install(configuration(slide("Text")))
                process, screen = self.velmar()
                screen.wait_for_text("Text")
                if ending == "menu":
                    screen.menu_item("Quit Velmar").press()
                else:
                    process.send(ending)
                self.assertEqual(0, process.wait(), process.story())
                self.assertEqual(ENDING, self.messages()[-3:])

    def test_a_signal_during_the_refusal_ends_at_once(self):
        self.install(b"not a property list")
        process, screen = self.velmar()
        screen.wait_for_text(REFUSAL)
        process.send(signal.SIGTERM)
        self.assertEqual(0, process.wait(), process.story())
        self.assertNotIn(ENDING[0], self.messages())

    def test_a_window_in_place_of_the_status_item_ends_the_program_when_it_is_closed(self):
        self.install({"Window": {"OnScreen": "MenuBar"}, "MenuBarSlide": slide("Text")})
        process, screen = self.velmar()
        screen.wait_for_text("Text")
        screen.key("alt+F4")
        self.assertEqual(0, process.wait(), process.story())

    def test_the_force_quit_shortcut(self):
        for section, keys, ends in [({}, "f", True), ({"ForceQuitShortcutKey": "g"}, "g", True),
                                    ({"ForceQuitShortcutKey": "g"}, "f", False),
                                    ({"ForceQuitShortcutIsEnabled": False}, "f", False)]:
            with self.subTest(section=section, keys=keys):
                self.setUp()
                self.install(configuration(slide("Text"), slide("Next text"), AppTermination=section))
                process, screen = self.velmar()
                screen.wait_for_text("Text")
                screen.key(f"ctrl+alt+super+shift+{keys}")
                if ends:
                    self.assertEqual(0, process.wait(), process.story())
                    self.assertIn("Force quit shortcut detected. Forcing the application termination", self.messages())
                    self.assertEqual(ENDING, self.messages()[-3:])
                else:
                    # The next key has an effect, so the shortcut was received and ignored.
                    screen.key("Return")
                    screen.wait_for_text("Next text")
                    process.close()

    def test_three_modifiers_do_not_force_a_quit(self):
        self.install(configuration(slide("Text"), slide("Next text")))
        _, screen = self.velmar()
        screen.wait_for_text("Text")
        for modifiers in ["ctrl+alt+shift", "ctrl+super+shift", "alt+super+shift", "ctrl+alt+super"]:
            screen.key(f"{modifiers}+f")
        screen.key("Return")
        screen.wait_for_text("Next text")

    def test_the_log_goes_to_three_places_in_one_form(self):
        path = self.install(configuration(slide("Text")))
        process, screen = self.velmar()
        screen.wait_for_text("Text")
        process.send(signal.SIGTERM)
        process.wait()
        for line in self.log():
            self.assertRegex(line, r"^\[Velmar\] \d\d:\d\d:\d\d (🖨|⚙️|ℹ️|⚠️|🛑) > .* $")
        self.assertEqual(self.log(), process.output().split("\n")[:-1])
        permanent = machine.home("root") / "Library/Logs/Velmar/velmar.log"
        self.assertEqual(self.log(), permanent.read_text(encoding="utf-8").split("\n")[:-1])
        start = [f"Found configuration file at {path}", "Retrieving configuration file content...",
                 "Successfully retrieved configuration file content", "Decoding configuration file...",
                 "Successfully decoded configuration file"]
        self.assertEqual(start, [message for message in self.messages() if message in start])
        self.assertIn("Application did finish launching", self.messages())

    def test_an_ordinary_user_runs_it_with_a_log_of_his_own(self):
        self.install(configuration(slide("Text")))
        process, _ = self.velmar(user="bob")
        self.wait_for_message("Application did finish launching", user="bob")
        process.send(signal.SIGTERM)
        self.assertEqual(0, process.wait(), process.story())
        self.assertEqual(ENDING, self.messages("bob")[-3:])
        self.assertEqual(machine.user_number("bob"), self.log_path("bob").stat().st_uid)

    def test_what_root_logs_belongs_to_the_user_at_the_screen(self):
        machine.seat_user("bob")
        self.install(configuration(slide("Text")))
        process, _ = self.velmar()
        self.wait_for_message("Application did finish launching", user="bob")
        self.end(process)
        logs = machine.home("bob") / "Library/Logs"
        for path in (self.log_path("bob"), logs, logs / "Velmar", logs / "Velmar/velmar.log"):
            self.assertEqual(machine.user_number("bob"), path.stat().st_uid, path)
        self.assertEqual([], self.log("root"))

    def test_a_planted_log_is_not_written_to(self):
        self.install(configuration(slide("Text")))
        victim = machine.home("bob") / "victim"
        victim.write_text("untouched")
        plants = {"link": lambda: self.log_path().symlink_to(victim),
                  "hard link": lambda: os.link(victim, self.log_path()),
                  "other owner": lambda: (self.log_path().write_text("untouched"),
                                          os.chown(self.log_path(), machine.user_number("bob"), -1)),
                  "queue": lambda: os.mkfifo(self.log_path())}
        for kind, plant in plants.items():
            with self.subTest(kind=kind):
                self.log_path().unlink(missing_ok=True)
                if kind == "hard link":
                    # A hard link is possible because /Users and /tmp are on one file system here.
                    os.chown(victim, machine.user_number("bob"), -1)
                plant()
                process, screen = self.velmar()
                screen.wait_for_text("Text")
                process.send(signal.SIGTERM)
                self.assertEqual(0, process.wait(), process.story())
                self.assertIn("Application will terminate", process.output())
                self.assertEqual("untouched", victim.read_text())
                if kind == "other owner":
                    self.assertEqual("untouched", self.log_path().read_text())
