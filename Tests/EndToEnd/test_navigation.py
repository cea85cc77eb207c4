"""The window, its slides and the navigation between them."""

import plistlib
import signal
import subprocess

from harness import machine
from harness.scenario import Scenario, configuration, slide
from harness.waiting import until
from harness.xserver import SIZE as SCREEN

EXAMPLE = machine.SOURCES / "Examples" / "welcome.plist"
THREE = configuration(slide("First text", "Below it"), slide("Second text"), slide("Third text"),
                      Window={"OnScreen": "Simple", "Title": "A new computer"},
                      Navigation={"PreviousButtonText": "Back", "NextButtonText": "On", "QuitButtonText": "Done"})


class Navigation(Scenario):
    def test_shows_the_title_and_the_texts_of_the_first_slide(self):
        self.install(THREE)
        _, screen = self.velmar()
        screen.wait_for_title("A new computer")
        screen.wait_for_text("First text", "Below it")
        screen.wait_for_buttons("On")
        self.assertNotIn("Second text", screen.texts())

    def test_opens_at_its_smallest_where_it_was_asked_to(self):
        minimum, padding, menu_bar = (600, 400), 30, 22
        for horizontal, vertical in [("Left", "Bottom"), ("Right", "Top"), ("Center", "Center")]:
            with self.subTest(horizontal=horizontal, vertical=vertical):
                window = {"OnScreen": "Simple", "MinimumSize": {"Width": minimum[0], "Height": minimum[1]},
                          "Position": {"Horizontal": horizontal, "Vertical": vertical, "Padding": padding}}
                self.install(configuration(slide("Text"), Window=window))
                process, screen = self.velmar()
                screen.wait_for_text("Text")

                def is_in_its_place():
                    x, y, width, height = screen.frame() or (0, 0, 0, 0)
                    left = {"Left": padding, "Center": (SCREEN[0] - width) // 2, "Right": SCREEN[0] - width - padding}
                    top = {"Top": padding + menu_bar, "Center": (SCREEN[1] - height) // 2,
                           "Bottom": SCREEN[1] - height - padding}
                    return screen.content()[2:] == minimum and abs(x - left[horizontal]) <= 1 and \
                        abs(y - top[vertical]) <= 1
                until(lambda: f"{horizontal}, {vertical}: {screen.content()} in {screen.frame()}", is_in_its_place)
                process.close()

    def test_goes_on_and_back_by_the_buttons(self):
        self.install(THREE)
        process, screen = self.velmar()
        screen.wait_for_text("First text")
        for button, text, buttons in [("On", "Second text", ("Back", "On")), ("Back", "First text", ("On",)),
                                      ("On", "Second text", ("Back", "On")), ("On", "Third text", ("Back", "Done")),
                                      ("Back", "Second text", ("Back", "On"))]:
            with self.subTest(button=button, text=text):
                screen.click(button)
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
            self.assertEqual([text], screen.labels())
        screen.key("Return")
        self.assertEqual(0, process.wait(), process.story())

    def test_a_sole_slide_offers_only_to_quit(self):
        self.install(configuration(slide("Alone"), Navigation={"QuitButtonText": "Done"}))
        process, screen = self.velmar()
        screen.wait_for_text("Alone")
        screen.wait_for_buttons("Done")
        screen.click("Done")
        self.assertEqual(0, process.wait(), process.story())

    def test_hides_the_buttons_that_a_slide_does_not_want(self):
        self.install(configuration(slide("First text"), slide("Second text", HidePreviousButton=True),
                                   slide("Third text"),
                                   Navigation={"PreviousButtonText": "Back", "NextButtonText": "On"}))
        _, screen = self.velmar()
        screen.wait_for_text("First text")
        screen.click("On")
        screen.wait_for_text("Second text")
        screen.wait_for_buttons("On")

    def test_shows_every_text_of_the_example(self):
        self.install(EXAMPLE.read_bytes())
        slides = plistlib.loads(EXAMPLE.read_bytes())["Slides"]
        process, screen = self.velmar()
        for shown in slides:
            texts = {component["Text"] for container in shown["Containers"] for component in container["Components"]
                     if component["Type"] == "Text"}
            screen.wait_for_text(*texts)
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

    def test_very_much_in_a_small_window_scrolls_and_goes_on(self):
        size = {"Width": 300, "Height": 200}
        many = [{"Type": "Text", "Text": f"Line {line}"} for line in range(98)]
        long = [{"Type": "Text", "Text": "word " * 20_000},
                {"Type": "Button", "Style": "Simple", "Text": "title " * 20_000}]
        slides = [{"Containers": [{"Components": many + long}]}] + [slide(f"Slide {index}") for index in range(1, 200)]
        self.install(configuration(*slides, Window={"OnScreen": "Simple", "MinimumSize": size, "MaximumSize": size},
                                   Navigation={"NextButtonText": "On", "PreviousButtonText": "Back"}))
        process, screen = self.velmar()
        screen.wait_for_text("Line 0")

        def is_inside():
            left, top, width, height = screen.content()
            x, y, button_width, button_height = screen.button("On").position()
            return (width, height) == (300, 200) and left <= x and x + button_width <= left + width and \
                y + button_height <= top + height
        until(lambda: f"{screen.button('On').position()} inside of {screen.content()}", is_inside)
        for index in range(1, 4):
            screen.click("On")
            screen.wait_for_text(f"Slide {index}")
        process.send(signal.SIGTERM)
        self.assertEqual(0, process.wait())
        self.assertLess(process.cpu_seconds(), 8, process.story())
