"""Texts with variables, and components with conditions."""

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
        at_first = ["Good morning, Ada Byron", "For the early", "Below"]
        screen.wait_for_text(at_first[0])
        self.assertEqual(at_first, screen.labels(), process.story())
        self.wait_for_message("Successfully added a new variable [ TIME: 'morning' ]")
        self.install(content(evening))
        screen.menu_item("Reload interface (saving variables)").press()
        self.wait_for_message("Decoding configuration file...", times=2)
        screen.wait_for_text(at_first[0])
        self.assertEqual(at_first, screen.labels(), process.story())
        for variables, shown in [(evening, ["Good evening, Anne Byron", "For two or more", "Below"]),
                                 (morning, at_first)]:
            with self.subTest(variables=variables):
                self.install(content(variables))
                screen.menu_item("Reload interface").press()
                screen.wait_for_text(shown[0])
                self.assertEqual(shown, screen.labels(), process.story())

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
        # Space presses the focused button: changes of components beside the slides must not move the focus.
        for press, shown in [(None, ["At 0", "Always"]),
                             (lambda: screen.key("space"), ["At 1", "Begun", "Halfway", "Always"]),
                             (lambda: screen.key("space"), ["At 2", "Begun", "Nearly done", "Always"]),
                             (lambda: screen.click("Back"), ["At 1", "Begun", "Halfway", "Always"]),
                             (lambda: screen.key("space"), ["At 0", "Always"])]:
            with self.subTest(shown=shown):
                if press:
                    press()
                slides = {"First", "Second", "Third"}
                until(lambda: f"{shown} in {screen.labels()}",
                      lambda: [label for label in screen.labels() if label not in slides] == shown)
