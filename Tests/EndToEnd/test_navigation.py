"""The window, its slides and the way through them."""

import plistlib
import subprocess

from harness import machine
from harness.scenario import Scenario, configuration, slide

EXAMPLE = machine.SOURCES / "Examples" / "welcome.plist"
THREE = configuration(slide("First text", "Below it"), slide("Second text"), slide("Third text"),
                      Window={"OnScreen": "Simple", "Title": "A new computer"},
                      Navigation={"PreviousButtonText": "Back", "NextButtonText": "On", "QuitButtonText": "Done"})


class Navigation(Scenario):
    def test_shows_the_title_and_the_texts_of_the_first_slide(self):
        self.install(THREE)
        _, screen = self.velmar()
        screen.wait_for_title("A new computer")
        screen.wait_for_text("First text")
        screen.wait_for_text("Below it")
        screen.wait_for_buttons("On")
        self.assertNotIn("Second text", screen.texts())

    def test_goes_on_and_back_by_the_buttons(self):
        self.install(THREE)
        process, screen = self.velmar()
        screen.wait_for_text("First text")
        for button, text, buttons in [("On", "Second text", ("Back", "On")), ("Back", "First text", ("On",)),
                                      ("On", "Second text", ("Back", "On")), ("On", "Third text", ("Back", "Done")),
                                      ("Back", "Second text", ("Back", "On"))]:
            with self.subTest(button=button, text=text):
                screen.button(button).click()
                screen.wait_for_text(text)
                screen.wait_for_buttons(*buttons)
        self.assertFalse(process.ended())

    def test_goes_to_the_end_by_the_keyboard(self):
        self.install(THREE)
        process, screen = self.velmar()
        screen.wait_for_text("First text")
        for move, text in [("[0 -> 1]", "Second text"), ("[1 -> 2]", "Third text")]:
            screen.key("Return")
            screen.wait_for_text(text)
            self.wait_for_message(f"Successfully operated the slide transition {move}")
        screen.key("Return")
        self.assertEqual(0, process.wait(), process.story())

    def test_a_sole_slide_offers_only_to_quit(self):
        self.install(configuration(slide("Alone"), Navigation={"QuitButtonText": "Done"}))
        process, screen = self.velmar()
        screen.wait_for_text("Alone")
        screen.wait_for_buttons("Done")
        screen.button("Done").click()
        self.assertEqual(0, process.wait(), process.story())

    def test_hides_the_buttons_that_a_slide_does_not_want(self):
        self.install(configuration(slide("First text"), slide("Second text", HidePreviousButton=True),
                                   slide("Third text"),
                                   Navigation={"PreviousButtonText": "Back", "NextButtonText": "On"}))
        _, screen = self.velmar()
        screen.wait_for_text("First text")
        screen.button("On").click()
        screen.wait_for_text("Second text")
        screen.wait_for_buttons("On")

    def test_shows_every_text_of_the_example(self):
        self.install(EXAMPLE.read_bytes())
        slides = plistlib.loads(EXAMPLE.read_bytes())["Slides"]
        process, screen = self.velmar()
        for shown in slides:
            texts = [component["Text"] for container in shown["Containers"] for component in container["Components"]
                     if component["Type"] == "Text"]
            for text in texts:
                screen.wait_for_text(text)
            screen.key("Return")
        self.assertEqual(0, process.wait(), process.story())

    def test_takes_the_colour_of_the_appearance(self):
        font = {"Size": 60, "SystemFontWeight": "Heavy", "Color": {"LightMode": "#1B5FC1", "DarkMode": "#7FB4FF"}}
        text = {"Type": "Text", "Text": "Coloured", "TextFontConfiguration": font}
        self.install(configuration({"Containers": [{"Components": [text]}]}))
        for appearance, colour in [("light", "#1B5FC1"), ("dark", "#7FB4FF")]:
            with self.subTest(appearance=appearance):
                with subprocess.Popen([machine.SOURCES / "scripts/settings-service", appearance],
                                      stdout=subprocess.PIPE, text=True) as service:
                    self.addCleanup(service.kill)
                    self.assertEqual("ready\n", service.stdout.readline())
                    process, screen = self.velmar()
                    screen.wait_for_colour(colour)
                    process.close()
                    service.terminate()
