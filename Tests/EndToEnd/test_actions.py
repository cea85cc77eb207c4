"""Sets of actions: each trigger, and the effects of the actions."""

import os
import shutil
import signal
import subprocess
from pathlib import Path

from harness.notifications import NotificationService
from harness.scenario import Scenario, configuration, slide
from harness.waiting import until


def log(message, **keys):
    return {"Type": "Log", "Message": message, **keys}


def update(variable, value):
    return {"Type": "UpdateVariable", "Variable": variable, "NewValue": value}


def action_set(trigger, *actions, **keys):
    return {"Type": "Chained", "Triggers": [trigger] if isinstance(trigger, str) else trigger,
            "Actions": list(actions), **keys}


NAVIGATION = {"PreviousButtonText": "Back", "NextButtonText": "On", "QuitButtonText": "Done"}


class Actions(Scenario):
    def start(self, *sets, variables=None, slides=(slide("At ${STEP}"), slide("Second"), slide("Third")), **sections):
        self.install(configuration(*slides, General={"Variables": {"STEP": "start", **(variables or {})}},
                                   Navigation=NAVIGATION, ActionSets=list(sets), **sections))
        return self.velmar()

    def test_the_launch_fires_its_sets_in_order_and_texts_follow(self):
        process, screen = self.start(
            action_set("Launch", update("STEP", "one"), {"Type": "SaveInputs"}, log("never")),
            action_set(["Launch", "Update(STEP)"], log("step ${STEP}"), ContinueAfterFailure=True))
        screen.wait_for_text("At one")
        self.wait_for_message("step one")
        until("both runs of the second set", lambda: len([m for m in self.messages() if m.startswith("step ")]) == 2)
        self.wait_for_line("Actions of the type 'SaveInputs' cannot be run yet")
        self.end(process)
        self.assertNotIn("never", self.messages())

    def test_clicks_move_the_slides_and_fire_their_sets(self):
        _, screen = self.start(
            action_set("NextButtonClick", log("next"), {"Type": "NavigateToSlide", "Offset": 1, "Condition": "SKIP"}),
            action_set("PreviousButtonClick", update("SKIP", "true"), log("previous")),
            variables={"SKIP": "false"})
        screen.wait_for_text("At start")
        for button, text, message in [("On", "Second", "next"), ("Back", "At start", "previous"),
                                      ("On", "Third", None)]:
            screen.click(button)
            screen.wait_for_text(text)
            if message:
                self.wait_for_message(message)

    def test_an_alert_waits_for_its_answer_and_others_for_their_turn(self):
        def alert(title, *buttons):
            return {"Type": "DisplayAlert", "Title": title, "Message": "Choose.", "Style": "Informational",
                    "ButtonsText": list(buttons), "Variable": "ANSWER", "IconPath": "/no/such.png"}
        _, screen = self.start(
            action_set("Launch", {**alert("First?", "Yes", "No")}, update("STEP", "${ANSWER}")),
            action_set("Update(STEP)", alert("Second?"), log("second ${ANSWER}")))
        screen.wait_for_text("First?")
        screen.button("No").press()
        screen.wait_for_text("Second?")
        screen.wait_for_text("At No")
        screen.button("OK").press()
        self.wait_for_message("second OK")
        self.wait_for_message(". DisplayAlert: could not retrieve icon at /no/such.png")

    def test_a_notification_is_answered_by_its_button_but_not_by_a_tap(self):
        service = NotificationService()
        self.addCleanup(service.close)
        notification = {"Type": "DisplayNotification", "Title": "For ${STEP}", "Body": "1 < 2",
                        "Actions": [{"Title": "Go on", "Trigger": "go"}]}
        process, screen = self.start(action_set("Launch", notification, notification, log("shown")),
                                     action_set("Custom(go)", update("STEP", "gone"), log("went on")))
        self.wait_for_message("shown")
        shown = [("For start", "1 &lt; 2", ["default", "", "0", "Go on"])] * 2
        until(lambda: f"{shown}, not {service.shown}", lambda: service.shown == shown)
        service.invoke(1, "default")
        self.wait_for_line("Received notification default notification response. A trigger name should have been set.")
        screen.wait_for_text("At start")
        for number, action in [(1, "0"), (3, "0"), (2, "1"), (2, "-1"), (2, "go")]:
            service.invoke(number, action)
        service.invoke(2, "0")
        screen.wait_for_text("At gone")
        until("the end of both notifications", lambda: service.withdrawn == [1, 2])
        self.end(process)
        self.assertEqual(1, self.messages().count("went on"))

    def test_the_clipboard_and_a_sound_without_a_device(self):
        process, screen = self.start(action_set("Launch", {"Type": "CopyToClipboard", "Text": "for ${STEP} é"},
                                                {"Type": "PlaySound", "SoundNameOrFilePath": "/no/such.wav"},
                                                log("played")))
        screen.wait_for_text("At start")
        self.wait_for_message("played")

        def clipboard():
            return subprocess.run(["xclip", "-out", "-selection", "clipboard"], capture_output=True, text=True).stdout
        until(lambda: f"the text, not '{clipboard()}'", lambda: clipboard() == "for start é")
        self.wait_for_line("Unable to read the termination sound at /no/such.wav")

    def test_another_application_that_starts_fires_its_sets_once(self):
        program = Path("/tmp/velmar-e2e-calculator")
        shutil.copy("/usr/bin/sleep", program)
        self.addCleanup(program.unlink)
        process, screen = self.start(action_set("AppLaunch(e2e-calc)", log("calculator")))
        screen.wait_for_text("At start")
        started = subprocess.Popen([program, "600"])
        self.addCleanup(started.wait)
        self.addCleanup(started.kill)
        self.wait_for_message("calculator")
        self.end(process)
        self.assertEqual(1, self.messages().count("calculator"))

    def test_a_button_runs_its_set_and_fires_its_trigger_by_mouse_and_keyboard(self):
        button = {"Type": "Button", "Style": "Simple", "Text": "Take ${STEP}", "Trigger": "Go",
                  "OnClick": {"Type": "Chained", "Actions": [log("clicked"), update("STEP", "another")]}}
        unknown = {"Type": "Button", "Style": "Info", "Text": "More", "Trigger": "Nowhere"}
        _, screen = self.start(action_set("Custom(Go)", log("triggered")),
                               slides=({"Containers": [{"Components": [button, unknown]}]}, slide("Second")))
        screen.click("Take start")
        screen.button("Take another")
        screen.key("Return")
        for message in ["clicked", "triggered"]:
            self.wait_for_message(message, times=2)
        screen.button("More").press()
        self.wait_for_line("Trying to execute Action sets for trigger 'Nowhere' although")

    def test_a_window_of_its_own_opens_and_is_closed_by_its_own_button(self):
        window = {"Type": "OpenWindow", "Size": {"Width": 360, "Height": 200},
                  "Slide": {"Containers": [{"Components": [
                      {"Type": "Text", "Text": "Beside ${STEP}"},
                      {"Type": "Button", "Style": "Simple", "Text": "Close",
                       "OnClick": {"Type": "Chained",
                                   "Actions": [{"Type": "CloseOpenedWindow"}, update("STEP", "closed")]}}]}]}}
        _, screen = self.start(action_set("Launch", window))
        screen.wait_for_text("Beside start")
        until("the size that was asked for", lambda: screen.window("Beside start")[2:] == (360, 200))
        screen.click("Close")
        screen.wait_until_gone("Close")
        screen.wait_for_text("At closed")

    def test_a_window_that_is_closed_at_once_or_last(self):
        opened = {"Type": "OpenWindow", "Size": {"Width": 360, "Height": 200}, "IsMovable": False,
                  "Slide": slide("Beside")}
        for _ in range(4):
            process, screen = self.start(action_set("Launch", opened, {"Type": "CloseOpenedWindow"}, log("closed")))
            self.wait_for_message("closed")
            screen.wait_for_text("At start")
            self.end(process)
            self.log_path().unlink()
        close = {"Type": "Button", "Style": "Simple", "Text": "Close",
                 "OnClick": {"Type": "Chained", "Actions": [{"Type": "CloseOpenedWindow"}]}}
        opened["Slide"] = {"Containers": [{"Components": [close]}]}
        process, screen = self.start(action_set("Launch", opened), Window={"OnScreen": "Simple", "Title": "Main"})
        # Wait first: the opened window may request the focus after the main window has it.
        screen.wait_until_active("Close")
        screen.activate("Main")
        screen.key("alt+F4")
        screen.wait_until_gone("At start")
        screen.button("Close").press()
        self.assertEqual(0, process.wait(), process.story())

    def test_an_action_leads_on_and_back_with_the_buttons_of_each_slide(self):
        def go(offset):
            return {"Type": "Button", "Style": "Simple", "Text": f"Go {offset}",
                    "OnClick": {"Type": "Chained", "Actions": [{"Type": "NavigateToSlide", "Offset": offset}]}}
        _, screen = self.start(slides=({"Containers": [{"Components": [go(1)]}], "HideNextButton": True},
                                       {"Containers": [{"Components": [go(1)]}]},
                                       {"Containers": [{"Components": [go(-1)]}]}))
        for press, buttons in [("Go 1", ["Back", "Go 1", "On"]), ("Go 1", ["Back", "Done", "Go -1"]),
                               ("Go -1", ["Back", "Go 1", "On"]), ("Back", ["Go 1"])]:
            screen.click(press)
            screen.wait_for_buttons(*buttons)

    def test_sets_of_the_termination_come_before_the_end(self):
        process, screen = self.start(action_set("Termination", update("STEP", "end"), log("bye ${STEP}")))
        screen.wait_for_text("At start")
        screen.menu_item("Quit Velmar").press()
        self.assertEqual(0, process.wait())
        messages = self.messages()
        self.assertLess(messages.index("bye end"), messages.index("Application will terminate"))

    def test_a_set_of_the_termination_that_stops_keeps_the_program_until_a_signal(self):
        process, screen = self.start(action_set("Termination", log("first"), {"Type": "SaveInputs"}, log("last")))
        screen.wait_for_text("At start")
        screen.menu_item("Quit Velmar").press()
        self.wait_for_message("first")
        screen.click("On")
        screen.wait_for_text("Second")
        self.assertFalse(process.ended())
        process.send(signal.SIGTERM)
        self.assertEqual(0, process.wait())
        self.assertNotIn("last", self.messages())

    def test_the_tool_runs_a_set_of_an_admitted_file_only(self):
        path = self.install(configuration(slide("Hello"), ActionSets=[action_set("Launch", log("told"))]))
        tool = self.velmarctl("run-set", path, "0")
        self.assertEqual(0, tool.status)
        self.assertIn("    info: told\n", tool.output())
        os.chmod(path, 0o666)
        tool = self.velmarctl("run-set", path, "0")
        self.assertEqual((1, ""), (tool.status, tool.output()))
