"""The screen as a person without eyes has it: windows, texts and buttons through the accessibility bus, keys and clicks
through the X server. Whatever is read, pressed or clicked is so while the program is at rest: see Screen.windows."""

from gi.repository import GLib

from . import accessibility, xserver
from .waiting import until

EVERYTHING = 1000  # Levels.


class Screen:
    """What one process shows."""

    def __init__(self, process):
        self._process = process
        self.pid = process.pid
        self._name = None

    def windows(self, levels=2):
        """The windows that the process has on the bus, visible or not, at a time at which it is at rest: while an
        animation runs, it reports the content of the window, at the second level, as busy. All that looks at the screen,
        presses a key or clicks comes through here, which is what keeps it out of the middle of a transition."""
        return until(lambda: f"the end of what moves\n{self._process.story()}", lambda: self._look(levels))[0]

    def _look(self, levels):
        """A list as its only element; nothing if the process moves or something went away between two questions."""
        if self._process.ended():
            return [[]]
        try:
            self._name = self._name or accessibility.Bus.of_session().application(self.pid)
            windows = accessibility.windows(self._name, levels) if self._name else []
            return None if windows is None else [windows]
        except GLib.Error:
            return None

    def nodes(self):
        """The same with all that is in the windows, from these down."""
        return [node for window in self.windows(EVERYTHING) for node in window.walk()]

    def texts(self):
        return [node.text() for node in self.nodes() if node.showing and node.text()]

    def labels(self):
        """The plain texts, in the order in which a reader of the screen comes to them."""
        return [node.text() for node in self.nodes() if node.showing and node.role == "label"]

    def buttons(self):
        return [node.text() for node in self.nodes() if node.showing and node.role == "push button"]

    def titles(self):
        return [window.name for window in self.windows() if window.showing]

    def content(self):
        """Left, top, width and height of the first window, without what the window manager puts around it."""
        return next(window.position() for window in self.windows() if window.showing)

    def frame(self):
        """The same with what the window manager puts around it; None before that is known."""
        window = next(iter(xserver.windows_of(self.pid)), None)
        sides = window and xserver.frame_extents(window)
        if not sides:
            return None
        left, right, top, bottom = sides
        x, y, width, height = self.content()
        return x - left, y - top, width + left + right, height + top + bottom

    def window(self, text):
        """The same of the window in which the text stands; None where there is none."""
        return next((node.window.position() for node in self.nodes() if node.showing and node.text() == text), None)

    def wait_for_title(self, title):
        self._wait(f"a window titled '{title}'", lambda: title in self.titles())

    def wait_for_colour(self, colour):
        """Until some point of the whole screen has exactly the colour "#RRGGBB"."""
        wanted = tuple(bytes.fromhex(colour[1:]))
        self._wait(f"the colour {colour}", lambda: wanted in xserver.pixels())

    def wait_for_text(self, *texts):
        self._wait(f"the texts {texts}", lambda: set(texts) <= set(self.texts()))

    def wait_until_gone(self, text):
        def is_gone():
            texts = [node.text() for node in self.nodes() if node.showing or node.is_window]
            return texts and text not in texts
        self._wait(f"the end of the text '{text}'", is_gone)

    def wait_for_buttons(self, *names):
        self._wait(f"the buttons {names}", lambda: sorted(self.buttons()) == sorted(names))

    def button(self, name):
        return self._find("push button", name)

    def menu_items(self):
        """The names of the entries of the menus, open or not."""
        return [node.name for node in self.nodes() if node.role == "menu item"]

    def menu_item(self, name):
        return self._find("menu item", name, is_showing=False)

    def key(self, combination):
        """Presses keys ("Return", "ctrl+q") in the active window, which must be one of the process."""
        self.wait_for_focus()
        xserver.press_key(combination)

    def click(self, name, role="push button"):
        """Clicks on the middle of something, once its window is where the program has it, with nothing above that place."""
        def is_below_the_pointer():
            node = self._find(role, name)
            place = x, y, width, height = node.position()
            xserver.xdotool("mousemove", x + width // 2, y + height // 2)
            return xserver.geometry(xserver.window_below_pointer()) == node.window.position() and node.position() == place
        self._wait(f"the {role} '{name}' below the pointer", is_below_the_pointer)
        xserver.click()

    def is_active(self, title=None):
        """Whether the program knows that the keyboard is in one of its windows, or in that of a title."""
        return any(window.active and window.showing and title in (None, window.name) for window in self.windows())

    def activate(self, title):
        """Gives the keyboard to the window of that title."""
        def is_in_front():
            xserver.xdotool("search", "--onlyvisible", "--name", f"^{title}$", "windowactivate")
            return xserver.xdotool("getactivewindow", "getwindowname") == title and self.is_active(title)
        self._wait(f"the window '{title}' in front", is_in_front)

    def wait_until_active(self, title):
        """Until the window of that title has the keyboard of its own accord."""
        self._wait(f"the keyboard in the window '{title}'", lambda: self.is_active(title))

    def wait_for_focus(self):
        """Until one of the windows has the keyboard, which is given to them if they don't take it."""
        def story():
            return (f"the focus, which {xserver.active_window()} has, not one of {xserver.windows_of(self.pid)}, as the "
                    f"window manager has it, and {self.is_active()} as the program has it")

        def has_focus():
            if xserver.xdotool("getactivewindow", "getwindowpid") == str(self.pid):
                return self.is_active()
            xserver.xdotool("search", "--onlyvisible", "--pid", self.pid, "windowactivate")
            return False
        self._wait(story, has_focus)

    def _find(self, role, name, is_showing=True):
        return self._wait(f"the {role} '{name}'", lambda: next(
            (node for node in self.nodes() if node.role == role and node.text() == name and
             (node.showing or not is_showing)), None))

    def _wait(self, what, condition):
        def story():
            return f"{what() if callable(what) else what}; on screen: {self.texts()}, titles: {self.titles()}\n{self._process.story()}"

        def holds():
            try:
                value = condition()
            except GLib.Error:
                return None  # Something went away between two questions.
            if not value and self._process.ended():
                raise AssertionError(f"the program ended while waiting for {story()}")
            return value
        return until(story, holds)
