"""Termination: the shortcuts, and the script that runs before the end."""

import os
import signal
from pathlib import Path

from harness.scenario import Scenario, configuration, slide
from harness.waiting import until

MARK = Path("/tmp/velmar-e2e-mark")
# A FIFO. A script that reads from it blocks until the scenario writes to it.
GATE = Path("/tmp/velmar-e2e-gate")


class Termination(Scenario):
    def setUp(self):
        super().setUp()
        MARK.unlink(missing_ok=True)
        GATE.unlink(missing_ok=True)
        os.mkfifo(GATE)
        # Opened for reading and writing, so that opening it blocks neither the scenario nor the script.
        self.gate = os.open(GATE, os.O_RDWR)
        self.addCleanup(os.close, self.gate)

    def open_gate(self):
        os.write(self.gate, b"\n")

    def script(self, text, mode=0o755):
        path = Path("/Library/end.sh")
        path.write_text(text)
        os.chmod(path, mode)
        return str(path)

    def quit(self, **termination):
        """Quits by the menu and returns the log messages."""
        self.install(configuration(slide("Hello"), AppTermination=termination))
        process, screen = self.velmar()
        screen.wait_for_text("Hello")
        screen.menu_item("Quit Velmar").press()
        self.assertEqual(0, process.wait(), process.story())
        return self.messages()

    def test_the_end_waits_for_the_script(self):
        # A process that the script leaves running doesn't delay the end. Without a wait, velmar would end too early.
        path = self.script(f"#!/bin/sh\nsleep 60 &\nsleep 0.5\ntouch {MARK}\necho written\n")
        messages = self.quit(CompleteInstallationScriptPath=path, WaitForTerminationScriptExecution=True)
        self.assertTrue(MARK.exists())
        story = "\n".join(messages)
        for part in [f"Launched script at '{path}'", "Waiting for script to complete...",
                     f"Executed script at '{path}' with following output:", "Application will terminate"]:
            self.assertIn(part, story)

    def test_a_script_that_is_not_waited_for_outlives_the_program(self):
        # The output of the script has no reader any more.
        path = self.script(f"#!/bin/bash\nset -e -o pipefail\nread -r line <{GATE}\necho line\n"
                           f"printf 'a\\nb' | head -1\ntouch {MARK}\n")
        messages = self.quit(CompleteInstallationScriptPath=path)
        self.assertFalse(MARK.exists())
        self.assertNotIn("Waiting for script to complete...", "\n".join(messages))
        self.open_gate()
        until("the end of the script", MARK.exists)

    def test_a_script_that_cannot_be_run_holds_nothing_up(self):
        path = self.script("#!/bin/sh\n", mode=0o644)
        cases = [({"CompleteInstallationScriptPath": ""}, "Empty termination script path"),
                 ({"CompleteInstallationScriptPath": "/no/such"}, "No termination script at path '/no/such'"),
                 ({"IncompleteInstallationScriptPath": "/no/such"}, "Application will terminate"),
                 ({"CompleteInstallationScriptPath": path}, f"Error while executing script at '{path}': "),
                 ({"CompleteInstallationScriptPath": path, "ExecuteAsRoot": True,
                   "WaitForTerminationScriptExecution": True},
                  f"Error while executing script at '{path}' with root privileges: ")]
        for keys, line in cases:
            with self.subTest(keys=keys):
                self.assertIn(line, "\n".join(self.quit(**keys)))
                self.log_path().unlink()

    def test_the_shortcut_can_be_replaced_by_one_of_three_modifiers(self):
        self.install(configuration(slide("Hello"), slide("Second"), AppTermination={"QuitShortcutIsEnabled": False}))
        process, screen = self.velmar()
        screen.wait_for_text("Hello")
        self.wait_for_message("🚪 The quit shortcut has been replaced by ⌃⌥⌘Q")
        screen.key("ctrl+q")
        screen.key("Return")
        screen.wait_for_text("Second")
        screen.key("ctrl+alt+super+q")
        self.assertEqual(0, process.wait(), process.story())

    def test_signals_run_the_script_too(self):
        path = self.script(f"#!/bin/sh\ntouch {MARK}\n")
        self.install(configuration(slide("Hello"), AppTermination={"CompleteInstallationScriptPath": path,
                                                                   "WaitForTerminationScriptExecution": True}))
        process, screen = self.velmar()
        screen.wait_for_text("Hello")
        process.send(signal.SIGTERM)
        self.assertEqual(0, process.wait(), process.story())
        self.assertTrue(MARK.exists())

    def test_the_force_quit_waits_for_the_script_and_a_signal_ends_the_wait(self):
        path = self.script(f"#!/bin/sh\nread -r line <{GATE}\ntouch {MARK}\n")
        self.install(configuration(slide("Hello"), AppTermination={"CompleteInstallationScriptPath": path,
                                                                   "WaitForTerminationScriptExecution": True}))
        for is_urged in [False, True]:
            with self.subTest(is_urged=is_urged):
                MARK.unlink(missing_ok=True)
                self.log_path().unlink(missing_ok=True)
                process, screen = self.velmar()
                screen.wait_for_text("Hello")
                screen.key("ctrl+alt+super+shift+f")
                self.wait_for_message("🚪 Waiting for script to complete...")
                if is_urged:
                    process.send(signal.SIGTERM)
                else:
                    self.open_gate()
                self.assertEqual(0, process.wait(), process.story())
                self.assertEqual(not is_urged, MARK.exists())
                self.assertEqual("-", self.messages()[-1])
        self.open_gate()
        until("the end of the script", MARK.exists)
