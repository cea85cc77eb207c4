"""Texts that show variables, and components that come and go by their conditions."""

from harness.scenario import Scenario, configuration
from harness.waiting import until

ADMIN = {"IsAdminModeEnabled": True}


def text(content, condition=None):
    return {"Type": "Text", "Text": content, **({"Condition": condition} if condition else {})}


def slide(*components):
    return {"Containers": [{"Components": list(components)}]}


class Variables(Scenario):
    def test_a_reset_changes_texts_and_components(self):
        def content(variables):
            return configuration(slide(text("Good ${TIME}, ${PERSON}"), text("For the early", "IS_EARLY"),
                                       text("For two or more", "COUNT >= 2 && IS_EARLY == false"), text("Below")),
                                 General={"Variables": variables}, Admin=ADMIN,
                                 Conditions={"IS_EARLY": 'TIME == "morning"'})

        morning = {"TIME": "morning", "PERSON": "${FIRST} Byron", "FIRST": "Ada", "COUNT": "3"}
        evening = {"TIME": "evening", "PERSON": "${FIRST} Byron", "FIRST": "Anne", "COUNT": "2"}
        self.install(content(morning))
        process, screen = self.velmar()
        for variables, shown, hidden in [(morning, ["Good morning, Ada Byron", "For the early", "Below"],
                                          "For two or more"),
                                         (evening, ["Good evening, Anne Byron", "For two or more", "Below"],
                                          "For the early"),
                                         (morning, ["Good morning, Ada Byron", "For the early", "Below"],
                                          "For two or more")]:
            with self.subTest(variables=variables):
                self.install(content(variables))
                screen.menu_item("Reload interface").press()
                screen.wait_for_text(shown[0])
                self.assertEqual(shown, screen.labels(), process.story())
                self.assertNotIn(hidden, screen.texts())

    def test_what_stands_beside_the_slides_follows_the_current_one(self):
        side = slide(text("At ${CURRENT_SLIDE_INDEX}"), text("Begun", "CURRENT_SLIDE_INDEX > 0"),
                     text("Halfway", "CURRENT_SLIDE_INDEX == 1"), text("Nearly done", "CURRENT_SLIDE_INDEX == 2"),
                     text("Always"))["Containers"][0]
        self.install(configuration(slide(text("First")), slide(text("Second")), slide(text("Third")),
                                   SideContainer={"Container": side, "Width": 240},
                                   Navigation={"PreviousButtonText": "Back", "NextButtonText": "On",
                                               "QuitButtonText": "Done"}))
        _, screen = self.velmar()
        screen.wait_for_text("At 0")
        for button, shown in [(None, ["At 0", "Always"]), ("On", ["At 1", "Begun", "Halfway", "Always"]),
                              ("On", ["At 2", "Begun", "Nearly done", "Always"]),
                              ("Back", ["At 1", "Begun", "Halfway", "Always"]), ("Back", ["At 0", "Always"])]:
            with self.subTest(shown=shown):
                if button:
                    screen.button(button).click()
                slides = {"First", "Second", "Third"}
                until(lambda: f"{shown} in {screen.labels()}",
                      lambda: [label for label in screen.labels() if label not in slides] == shown)

    def test_a_name_without_a_value_is_shown_raw_and_told_in_the_log(self):
        raw = "${FAILED_INSTALL_MONITORS_COUNT} failed"
        self.install(configuration(slide(text(raw), text("Unknown", "FAILED_INSTALL_MONITORS_COUNT == 1"))))
        process, screen = self.velmar()
        screen.wait_for_text(raw)
        self.assertEqual([raw], screen.labels())
        told = [line for line in self.log() if "FAILED_INSTALL_MONITORS_COUNT" in line]
        self.assertEqual(["⚠️", "🛑"], sorted({symbol for line in told for symbol in ("⚠️", "🛑") if symbol in line}),
                         process.story())
        self.assertTrue(any("Unable to evaluate the expression FAILED_INSTALL_MONITORS_COUNT == 1.0. " in line
                            for line in told), told)
