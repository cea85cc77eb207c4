"""Reads windows, texts and buttons from the accessibility bus, and sends keys and clicks through the X server. All
reads, keys and clicks wait until no animation runs: see Screen.windows."""

from gi.repository import GLib

from . import accessibility, xserver
from .waiting import until

EVERYTHING = 1000  # Levels.


class Screen:
    """The windows of one process."""

    def __init__(self, process):
        self._process = process
        self.pid = process.pid
        self._name = None

    def windows(self, levels=2):
        """Returns the windows of the process on the bus, visible or not, when no animation runs: during an animation
        the program reports the content of the window, at the second level, as busy. All functions that read the
        screen, press a key or click call this one, so that none acts in the middle of a transition."""
        return until(lambda: f"the end of what moves\n{self._process.story()}", lambda: self._look(levels))[0]

    def _look(self, levels):
        """Returns the windows within a list, which is true for until() even without windows. Returns None if an
        animation runs or an object disappeared between two calls."""
        if self._process.ended():
            return [[]]
        try:
            self._name = self._name or accessibility.Bus.of_session().application(self.pid)
            windows = accessibility.windows(self._name, levels) if self._name else []
            return None if windows is None else [windows]
        except GLib.Error:
            return None

    def nodes(self):
        """Returns the windows and all their descendants."""
        return [node for window in self.windows(EVERYTHING) for node in window.walk()]

    def texts(self):
        return [node.text() for node in self.nodes() if node.showing and node.text()]

    def labels(self):
        """Returns the plain texts in the order of a screen reader."""
        return [node.text() for node in self.nodes() if node.showing and node.role == "label"]

    def buttons(self):
        return [node.text() for node in self.nodes() if node.showing and node.role == "push button"]

    def titles(self):
        return [window.name for window in self.windows() if window.showing]

    def content(self):
        """Returns left, top, width and height of the first window without its frame."""
        return next(window.position() for window in self.windows() if window.showing)

    def frame(self):
        """Returns left, top, width and height of the first window with its frame; None before the frame is known."""
        window = next(iter(xserver.windows_of(self.pid)), None)
        sides = window and xserver.frame_extents(window)
        if not sides:
            return None
        left, right, top, bottom = sides
        x, y, width, height = self.content()
        return x - left, y - top, width + left + right, height + top + bottom

    def window(self, text):
        """Returns left, top, width and height of the window with the text, without its frame; None without such a
        window."""
        return next((node.window.position() for node in self.nodes() if node.showing and node.text() == text), None)

    def wait_for_title(self, title):
        self._wait(f"a window titled '{title}'", lambda: title in self.titles())

    def wait_for_colour(self, colour):
        """Waits until a pixel of the screen has exactly the colour "#RRGGBB"."""
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
        """Returns the names of the menu entries, also of closed menus."""
        return [node.name for node in self.nodes() if node.role == "menu item"]

    def menu_item(self, name):
        return self._find("menu item", name, is_showing=False)

    def key(self, combination):
        """Presses keys ("Return", "ctrl+q") after giving the focus to a window of the process."""
        self.wait_for_focus()
        xserver.press_key(combination)

    def click(self, name, role="push button"):
        """Clicks on the middle of an object when its window is at the reported position and no other window covers
        it."""
        def is_below_the_pointer():
            node = self._find(role, name)
            place = x, y, width, height = node.position()
            xserver.xdotool("mousemove", x + width // 2, y + height // 2)
            return xserver.geometry(xserver.window_below_pointer()) == node.window.position() and node.position() == place
        self._wait(f"the {role} '{name}' below the pointer", is_below_the_pointer)
        xserver.click()

    def is_active(self, title=None):
        """Returns whether the program reports the keyboard focus in one of its windows, or in the window of that
        title."""
        return any(window.active and window.showing and title in (None, window.name) for window in self.windows())

    def activate(self, title):
        """Gives the keyboard focus to the window of that title."""
        def is_in_front():
            xserver.xdotool("search", "--onlyvisible", "--name", f"^{title}$", "windowactivate")
            return xserver.xdotool("getactivewindow", "getwindowname") == title and self.is_active(title)
        self._wait(f"the window '{title}' in front", is_in_front)

    def wait_until_active(self, title):
        """Waits until the window of that title takes the keyboard focus by itself."""
        self._wait(f"the keyboard in the window '{title}'", lambda: self.is_active(title))

    def wait_for_focus(self):
        """Waits until a window of the process has the keyboard focus, and activates one if none takes it."""
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
                return None  # An object disappeared between two calls.
            if not value and self._process.ended():
                raise AssertionError(f"the program ended while waiting for {story()}")
            return value
        return until(story, holds)
