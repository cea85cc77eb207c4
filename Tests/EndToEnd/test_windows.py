"""The four window modes: covered screens, other applications, changes of the screens and the panel."""

import contextlib
import itertools
import re
import socket
import subprocess
import time

from harness.scenario import Scenario, configuration, slide
from harness.tray import Settings, Tray
from harness.waiting import until
from harness.xserver import SIZE as SCREEN, active_window, geometry, keyboard_is_grabbed, pixels, windows_of, xdotool

MAIN, OTHER = (0, 0, 800, 800), (800, 0, 480, 800)
DESKTOP = (0x5D, 0x6B, 0x7A)
LIGHT, DARK = (0xFF, 0xFF, 0xFF), (0x1E, 0x1F, 0x24)
VEIL = 0.4


def xrandr(*arguments):
    subprocess.run(["xrandr", *arguments], check=True, capture_output=True)


def two_screens():
    xrandr("--setmonitor", "main", "800/211x800/211+0+0", "screen")
    plug_in()


def plug_in():
    xrandr("--setmonitor", "other", "480/127x800/211+800+0", "none")


def monitors():
    text = subprocess.run(["xrandr", "--listmonitors"], capture_output=True, text=True, check=True).stdout
    return re.findall(r"\b(?:main|other)\b", text)


def veiled(page):
    return tuple(round(VEIL * own + (1 - VEIL) * behind) for own, behind in zip(page, DESKTOP))


def near(colour, other):
    return all(abs(one - two) <= 2 for one, two in zip(colour, other))


def root_property(name):
    return subprocess.run(["xprop", "-root", "-notype", name], capture_output=True, text=True, check=True).stdout.strip()


def stacking():
    """Returns the windows of all applications, from bottom to top."""
    return [int(number, 16) for number in re.findall("0x[0-9a-f]+", root_property("_NET_CLIENT_LIST_STACKING"))]


applications = itertools.count(1)


@contextlib.contextmanager
def another_application():
    """Opens a window of another application and yields its number, after the window manager manages it."""
    name = f"Another {next(applications)}"
    process = subprocess.Popen(["xev", "-name", name, "-geometry", "300x200+40+40"],
                               stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        window = int(until("another application", lambda: xdotool("search", "--onlyvisible", "--name", f"^{name}$")))
        until("the window manager", lambda: window in stacking())
        yield window
    finally:
        process.kill()
        process.wait()


class Windows(Scenario):
    def setUp(self):
        super().setUp()
        self.addCleanup(lambda: [xrandr("--delmonitor", name) for name in monitors()])

    def configure(self, mode, *slides, **sections):
        window = sections.pop("Window", {})
        self.install(configuration(*(slides or (slide("Text"), slide("Next text"))),
                                   Window={"OnScreen": mode, **window}, MenuBarSlide=slide("In the popover"), **sections))

    def start(self, mode, *slides, environment=None, **sections):
        self.configure(mode, *slides, **sections)
        return self.velmar(environment=environment)

    def wait_for_place(self, screen, place):
        until(lambda: f"{place}, not {screen.window('Text')}", lambda: screen.window("Text") == place)

    def wait_for_colours(self, expected, meanwhile=lambda: None):
        def seen():
            meanwhile()
            return {(x, y): pixels(x, y, 1, 1)[0] for x, y in expected}
        until(lambda: f"{expected}, not {seen()}",
              lambda: all(near(colour, expected[point]) for point, colour in seen().items()))

    def wait_until_below(self, window, screen):
        def is_below():
            own = set(windows_of(screen.pid))
            stack = stacking()
            return own & set(stack[:stack.index(window)]) == set() and set(stack) & own and active_window() in own
        until(lambda: f"{window} at the bottom of {stacking()}", is_below)

    def wait_for_window_manager(self, window):
        """Waits until the window manager has handled all earlier requests, which it handles in order."""
        x, y, *_ = geometry(window)
        xdotool("windowmove", window, x + 1, y)
        until("the window manager", lambda: geometry(window)[0] != x)

    def test_the_covering_modes_cover_every_screen(self):
        sizes = {"MinimumSize": {"Width": 300, "Height": 200}, "MaximumSize": {"Width": 500, "Height": 400}}
        for mode, on_main, place, corner in [("BlurredBackground", veiled(LIGHT), (150, 200, 500, 400), veiled(LIGHT)),
                                             ("FullScreen", LIGHT, MAIN, LIGHT)]:
            with self.subTest(mode=mode):
                self.setUp()
                two_screens()
                process, screen = self.start(mode, Window={**sizes, "ScreenIndex": 1})
                screen.wait_for_text("Text")
                self.wait_for_place(screen, place)
                both = {(5, 5): on_main, (place[0], place[1]): corner, (1200, 400): veiled(LIGHT), (805, 5): veiled(LIGHT)}
                self.wait_for_colours(both)
                xrandr("--delmonitor", "other")
                self.wait_for_colours({(1200, 400): DESKTOP, (5, 5): on_main})
                plug_in()
                self.wait_for_colours(both)
                xrandr("--delmonitor", "other")
                xrandr("--delmonitor", "main")
                self.wait_for_place(screen, (0, 0, *SCREEN) if mode == "FullScreen" else (390, 200, 500, 400))
                self.wait_for_colours({(5, 5): on_main, (1200, 400): on_main})
                screen.key("ctrl+q")
                self.assertEqual(0, process.wait(), process.story())

    def test_an_ordinary_window_goes_to_a_screen_that_is_there(self):
        two_screens()
        _, screen = self.start("Simple", Window={"ScreenIndex": 1, "IsTitleBarHidden": True,
                                                 "MinimumSize": {"Width": 300, "Height": 200}})
        screen.wait_for_text("Text")
        self.wait_for_place(screen, (890, 300, 300, 200))
        xrandr("--delmonitor", "other")
        self.wait_for_place(screen, (250, 300, 300, 200))

    def test_a_reload_keeps_the_mode_of_the_launch(self):
        admin = {"Admin": {"IsAdminModeEnabled": True}}
        two_screens()
        _, screen = self.start("FullScreen", **admin)
        screen.wait_for_text("Text")
        self.wait_for_place(screen, MAIN)
        small = {"MinimumSize": {"Width": 300, "Height": 200}, "MaximumSize": {"Width": 500, "Height": 400}}
        for mode in ["Simple", "BlurredBackground", "MenuBar"]:
            self.configure(mode, slide("Text"), slide(mode), slide(mode), Window=small, **admin)
            screen.menu_item("Reload interface").press()
            screen.key("Return")
            screen.wait_for_text(mode)
            screen.key("Left")
            screen.wait_for_text("Text")
        xrandr("--delmonitor", "other")
        xrandr("--delmonitor", "main")
        self.wait_for_place(screen, (0, 0, *SCREEN))
        self.wait_for_colours({(5, 5): LIGHT})

    def test_nothing_comes_above_a_covering_window(self):
        for mode in ["BlurredBackground", "FullScreen"]:
            with self.subTest(mode=mode):
                self.setUp()
                process, screen = self.start(mode)
                screen.wait_for_text("Text")
                screen.wait_for_focus()
                main = active_window()
                with another_application() as other:
                    self.wait_until_below(other, screen)
                    for request in [["windowactivate", other], ["windowraise", other], ["windowfocus", other],
                                    ["windowminimize", main], ["mousemove", 2, 400, "click", 1]]:
                        xdotool(*request)
                        self.wait_for_window_manager(other)
                        self.wait_until_below(other, screen)
                        until("the window above its backdrop", lambda: stacking()[-1] == main)
                # Shortcuts of the window manager: show the desktop, close the window, switch the workspace.
                screen.wait_for_focus()
                until("the grab of the keyboard", keyboard_is_grabbed)
                for keys in ["super+d", "alt+F4", "ctrl+alt+Right"]:
                    screen.key(keys)
                screen.key("Return")
                screen.wait_for_text("Next text")
                for state in ["_NET_SHOWING_DESKTOP", "_NET_CURRENT_DESKTOP"]:
                    self.assertEqual(f"{state} = 0", root_property(state))
                process.close()

    def test_an_alert_has_the_keyboard_to_itself(self):
        alert = {"Type": "DisplayAlert", "Title": "An alert", "Message": "Text of it", "Style": "Informational"}
        _, screen = self.start("BlurredBackground", ActionSets=[{"Type": "Chained", "Triggers": ["Launch"],
                                                                        "Actions": [alert]}])
        screen.wait_for_text("An alert")
        until("the alert above all", lambda: xdotool("getwindowname", stacking()[-1]) == "Velmar")
        screen.wait_until_active("An alert")
        screen.key("alt+F4")
        screen.wait_until_gone("An alert")
        screen.key("Return")
        screen.wait_for_text("Next text")

    def test_a_window_that_an_action_opens_stays_above(self):
        window = {"Type": "OpenWindow", "Size": {"Width": 360, "Height": 200}, "Slide": slide("Beside")}
        _, screen = self.start("BlurredBackground", ActionSets=[{"Type": "Chained", "Triggers": ["Launch"],
                                                                 "Actions": [window]}])
        screen.wait_for_text("Beside")
        screen.click("Next")
        screen.wait_for_text("Next text")
        until(lambda: f"the opened window at the top of {stacking()}",
              lambda: (geometry(stacking()[-1]) or ())[2:] == (360, 200))

    def test_an_opened_window_fits_the_screen_and_has_a_name_and_the_shortcuts(self):
        window = {"Type": "OpenWindow", "Size": {"Width": 9000, "Height": 9000}, "Slide": slide("Beside", "Below it")}
        for shortcut in ["ctrl+q", "ctrl+alt+super+shift+f"]:
            with self.subTest(shortcut=shortcut):
                process, screen = self.start("Simple", ActionSets=[{"Type": "Chained", "Triggers": ["Launch"],
                                                                    "Actions": [window]}])
                screen.wait_for_title("Beside")
                # The window with its frame fills the screen.
                def fills_the_screen():
                    x, y, width, height = screen.window("Beside")
                    return 0 <= x < 17 < y < 60 and SCREEN[0] - 17 < x + width <= SCREEN[0] and \
                        SCREEN[1] - 49 < y + height <= SCREEN[1]
                until(lambda: f"a window that fits, not {screen.window('Beside')}", fills_the_screen)
                screen.activate("Beside")
                screen.key(shortcut)
                self.assertEqual(0, process.wait(), process.story())

    def test_a_window_that_is_opened_before_the_popover_may_reload(self):
        tray = Tray()
        self.addCleanup(tray.close)
        window = {"Type": "OpenWindow", "Size": {"Width": 360, "Height": 200}, "Slide": slide("Beside")}
        process, screen = self.start("MenuBar", Admin={"IsAdminModeEnabled": True},
                                     ActionSets=[{"Type": "Chained", "Triggers": ["Launch"], "Actions": [window]}])
        screen.wait_for_title("Beside")
        tray.wait_for_item()
        screen.activate("Beside")
        screen.key("ctrl+r")
        screen.key("ctrl+q")
        self.assertEqual(0, process.wait(), process.story())

    def test_a_program_that_takes_the_keyboard_again_and_again_is_not_fought_for_ever(self):
        with another_application() as other:
            xdotool("set_window", "--classname", "rival", other)
            _, screen = self.start("FullScreen")
            screen.wait_for_text("Text")

            # A pause of a second would end the attempts. No --sync: the activation may never take effect.
            rival = subprocess.Popen(["xdotool", *["windowactivate", str(other), "sleep", "0.05"] * 1000],
                                     stderr=subprocess.DEVNULL)
            self.addCleanup(rival.wait)
            self.addCleanup(rival.kill)
            self.wait_for_line("The program 'rival' comes above the window")

    def test_a_dialog_for_a_password_is_let_through(self):
        with another_application() as other:
            xdotool("set_window", "--class", "polkit-agent", other)
            _, screen = self.start("BlurredBackground")
            screen.wait_for_text("Text")
            until(lambda: f"{other} at the top of {stacking()}",
                  lambda: stacking()[-1] == other and active_window() == other)
        screen.key("Return")
        screen.wait_for_text("Next text")

    def test_every_mode_follows_light_and_dark(self):
        settings = Settings()
        self.addCleanup(settings.close)
        unread = {"QT_ACCESSIBILITY": "0", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "0"}
        for mode, point, environment in [("Simple", (640, 600), None), ("Simple", (640, 600), unread),
                                         ("BlurredBackground", (640, 600), None), ("FullScreen", (5, 5), None)]:
            with self.subTest(mode=mode, environment=environment):
                process, _ = self.start(mode, environment=environment)
                for is_dark, page in [(False, LIGHT), (True, DARK), (False, LIGHT)]:
                    # Repeat the signal: the program connects to it after the first paint.
                    self.wait_for_colours({point: page, **({(5, 5): veiled(page)} if "Blurred" in mode else {})},
                                          meanwhile=lambda: settings.set_dark(is_dark))
                process.close()

    def test_the_popover_comes_and_goes_and_keeps_its_session(self):
        tray = Tray()
        self.addCleanup(tray.close)
        settings = Settings()
        self.addCleanup(settings.close)
        for admin, stays in [({}, False), ({"IsAdminModeEnabled": False, "IsMenuBarSemiTransient": True}, False),
                             ({"IsAdminModeEnabled": True, "IsMenuBarSemiTransient": True}, True)]:
            with self.subTest(admin=admin):
                self.setUp()
                tray.items.clear()
                sections = {"Admin": admin} if admin else {}
                process, screen = self.start("MenuBar", Window={"MenuBarSize": {"Width": 420, "Height": 300}}, **sections)
                tray.wait_for_item()
                self.assertEqual([], screen.texts())
                tray.click()
                screen.wait_for_text("In the popover")
                self.assertEqual((420, 300), screen.window("In the popover")[2:])
                screen.wait_for_focus()
                with another_application() as other:
                    xdotool("windowactivate", "--sync", other)
                    if stays:
                        # A transient popover closes when the program loses the focus.
                        until("the loss of the keyboard", lambda: not screen.is_active())
                        self.assertIn("In the popover", screen.texts())
                        screen.click("In the popover", "label")
                    else:
                        screen.wait_until_gone("In the popover")
                        until("the popover", lambda: "In the popover" in screen.texts() or tray.click())
                screen.key("Escape")
                screen.wait_until_gone("In the popover")
                tray.click()
                screen.wait_for_text("In the popover")
                screen.key("ctrl+q")
                self.assertEqual(0, process.wait(), process.story())

    def test_a_popover_that_the_user_turned_away_from_goes_with_its_alert(self):
        tray = Tray()
        self.addCleanup(tray.close)
        alert = {"Type": "DisplayAlert", "Title": "An alert", "Message": "Text of it", "Style": "Informational"}
        ask = {"Type": "Button", "Style": "Simple", "Text": "Ask",
               "OnClick": {"Type": "Chained", "Actions": [alert]}}
        self.install({"Window": {"OnScreen": "MenuBar"},
                      "MenuBarSlide": {"Containers": [{"Components": [{"Type": "Text", "Text": "Below"}, ask]}]}})
        _, screen = self.velmar()
        for turns_away in [False, True]:
            with self.subTest(turns_away=turns_away):
                until("the popover", lambda: "Below" in screen.texts() or tray.click())
                screen.wait_for_focus()
                screen.click("Ask")
                screen.wait_for_text("An alert")
                with another_application() if turns_away else contextlib.nullcontext() as other:
                    if turns_away:
                        xdotool("windowactivate", "--sync", other)
                    screen.button("OK").press()
                    screen.wait_until_gone("An alert")
                    if turns_away:
                        screen.wait_until_gone("Below")
                if not turns_away:
                    # A popover closes at once or up to one second after its alert, if it closes at all.
                    screen.wait_until_active("Velmar")
                    end = time.monotonic() + 1.2
                    while time.monotonic() < end:
                        self.assertIn("Below", screen.texts())

    def test_the_session_moves_into_a_window_when_the_panel_goes(self):
        tray = Tray()
        process, screen = self.start("MenuBar")
        tray.click()
        screen.wait_for_text("In the popover")
        screen.key("Escape")
        screen.wait_until_gone("In the popover")
        tray.close()
        screen.wait_for_text("In the popover")
        screen.key("alt+F4")
        self.assertEqual(0, process.wait(), process.story())

    def test_what_hangs_on_the_desktop_holds_up_no_launch(self):
        silent = socket.socket(socket.AF_UNIX)
        silent.bind("/tmp/silent-bus")
        silent.listen()
        self.addCleanup(silent.close)
        panel = Tray(hangs=True)
        self.addCleanup(panel.close)
        begin = time.monotonic()
        launches = [self.start("MenuBar", environment=environment)[0]
                    for environment in [{}, {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/tmp/silent-bus"}]]
        for process in launches:
            until(lambda: f"the first paint\n{process.story()}", lambda: "First paint" in process.output())
        # Without time limits in the program, the first launch would take fifteen seconds and the second would hang.
        self.assertLess(time.monotonic() - begin, 14)

    def test_the_icon_of_the_status_item(self):
        tray = Tray()
        self.addCleanup(tray.close)
        wide = "Custom menu bar icon has a width of 28 pixels which is not valid and can lead to unexpected graphics behaviours."
        cases = {"own": (None, []), "wide": (("-size", "28x20", "xc:red"), [wide]),
                 "good": (("-size", "18x18", "xc:red"), []), "no image": (b"text", ["cannot be used as an image"])}
        for kind, (content, problems) in cases.items():
            with self.subTest(kind=kind):
                self.setUp()
                tray.items.clear()
                icon = self.install(content if isinstance(content, bytes) else b"", name="icon.png")
                if isinstance(content, tuple):
                    subprocess.run(["convert", *content, f"png:{icon}"], check=True)
                process, screen = self.start("MenuBar", Window={} if content is None else {"MenuBarIconPath": str(icon)})
                tray.wait_for_item()
                _, pixels = tray.icon()
                self.assertEqual(kind != "no image", any(alpha for alpha, *_ in pixels))
                shades = {tuple(rest) for alpha, *rest in pixels if alpha == 255}
                self.assertLessEqual(len(shades), 1, "a template has one colour")
                tray.click()
                screen.wait_for_text("In the popover")
                self.end(process)
                told = [message for message in self.messages() if "menu bar icon" in message or "as an image" in message]
                self.assertEqual(len(problems), len(told), told)
                self.assertTrue(all(problem in line for problem, line in zip(problems, told)), told)
