"""The screen as a person without eyes has it: windows, texts and buttons through the accessibility bus, keys and clicks
through the X server."""

import subprocess
import warnings

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

from .waiting import until  # noqa: E402

warnings.filterwarnings("ignore", category=DeprecationWarning, module=__name__)
Atspi.set_timeout(2000, 10000)

# Of the screen that scripts/with-display makes.
SIZE = (1280, 800)


class Node:
    """One visible thing: its role ("push button"), its name, and the node of the bus behind it."""

    def __init__(self, accessible, is_window):
        self._accessible = accessible
        self.is_window = is_window
        self.role = accessible.get_role_name()
        self.name = accessible.get_name() or ""
        states = accessible.get_state_set()
        self.showing = states.contains(Atspi.StateType.SHOWING)
        self.enabled = states.contains(Atspi.StateType.ENABLED)

    def text(self):
        """What stands in it: the name, and for a text field or a document its content."""
        content = self._accessible.get_text_iface()
        return self.name or (content.get_text(0, content.get_character_count()) if content else "")

    def position(self):
        area = self._accessible.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        return area.x, area.y, area.width, area.height

    def press(self):
        """Does what a click on it does, without the pointer: for menus that need not be open."""
        if not self._accessible.get_action_iface().do_action(0):
            raise AssertionError(f"the {self.role} '{self.name}' cannot be pressed")

    def click(self):
        x, y, width, height = self.position()
        subprocess.run(["xdotool", "mousemove", str(x + width // 2), str(y + height // 2), "click", "1"], check=True)


def _walk(parent, is_window=True):
    for index in range(parent.get_child_count()):
        child = parent.get_child_at_index(index)
        if child is not None:
            yield Node(child, is_window)
            yield from _walk(child, is_window=False)


class Screen:
    """What one process shows."""

    def __init__(self, process):
        self._process = process
        self.pid = process.pid

    def nodes(self):
        """Everything that the process has on the bus, visible or not, from the windows down."""
        try:
            desktop = Atspi.get_desktop(0)
            desktop.clear_cache()
            for index in range(desktop.get_child_count()):
                application = desktop.get_child_at_index(index)
                if application is not None and application.get_process_id() == self._process.pid:
                    application.clear_cache()
                    return list(_walk(application))
        except GLib.Error:
            # Something went away between two questions: the next look sees what there is then.
            pass
        return []

    def texts(self):
        return [node.text() for node in self.nodes() if node.showing and node.text()]

    def labels(self):
        """The plain texts, in the order in which a reader of the screen comes to them."""
        return [node.text() for node in self.nodes() if node.showing and node.role == "label"]

    def titles(self):
        return [node.name for node in self.nodes() if node.is_window and node.showing]

    def content(self):
        """Left, top, width and height of the first window, without what the window manager puts around it."""
        return next(node.position() for node in self.nodes() if node.is_window and node.showing)

    def window(self, text):
        """The same of the window in which the text stands; nothing where there is none."""
        found = None
        for node in self.nodes():
            if node.is_window:
                window = node
            elif node.showing and node.text() == text:
                found = window
        return found and found.position()

    def frame(self):
        """The same with what the window manager puts around it."""
        window = _xdotool("search", "--onlyvisible", "--pid", self._process.pid).split()[-1]
        extents = subprocess.run(["xprop", "-id", window, "-notype", "_NET_FRAME_EXTENTS"], capture_output=True,
                                 text=True, check=True).stdout
        left, right, top, bottom = (int(number) for number in extents.split("=")[1].split(","))
        x, y, width, height = self.content()
        return x - left, y - top, width + left + right, height + top + bottom

    def buttons(self):
        return [node.text() for node in self.nodes() if node.showing and node.role == "push button"]

    def wait_for_title(self, title):
        self._wait(f"a window titled '{title}'", lambda: title in self.titles())

    def wait_for_colour(self, colour):
        """Until some point of the whole screen has exactly the colour "#RRGGBB"."""
        def colours():
            return subprocess.run(["import", "-silent", "-window", "root", "-depth", "8", "-format", "%c",
                                   "histogram:info:-"], capture_output=True, text=True, check=True).stdout
        self._wait(f"the colour {colour}", lambda: colour in colours())

    def wait_for_text(self, text):
        self._wait(f"the text '{text}'", lambda: text in self.texts())

    def wait_until_gone(self, text):
        self._wait(f"the end of the text '{text}'", lambda: self.nodes() and text not in self.texts())

    def wait_for_buttons(self, *names):
        self._wait(f"the buttons {names}", lambda: sorted(self.buttons()) == sorted(names))

    def button(self, name):
        return self._wait(f"the button '{name}'", lambda: self._find("push button", name, showing=True))

    def node(self, text):
        return next(node for node in self.nodes() if node.showing and not node.is_window and node.text() == text)

    def menu_items(self):
        """The entries of the menus, open or not."""
        return [node.name for node in self.nodes() if node.role == "menu item"]

    def menu_item(self, name):
        return self._wait(f"the menu item '{name}'", lambda: self._find("menu item", name, showing=False))

    def key(self, combination):
        """Presses keys ("Return", "ctrl+q") in the active window, which must be one of the process."""
        self.wait_for_focus()
        subprocess.run(["xdotool", "key", "--clearmodifiers", combination], check=True)

    def activate(self, title):
        """Gives the keyboard to the window of that title."""
        def is_active():
            _xdotool("search", "--onlyvisible", "--name", f"^{title}$", "windowactivate")
            return _xdotool("getactivewindow", "getwindowname") == title
        until(f"the window '{title}' in front", is_active)

    def wait_for_focus(self):
        def focused():
            window = _xdotool("getactivewindow", "getwindowpid")
            return window == str(self._process.pid) or _xdotool("search", "--onlyvisible", "--pid",
                                                                self._process.pid, "windowactivate")
        until("the focus", lambda: focused() and _xdotool("getactivewindow", "getwindowpid") == str(self._process.pid))

    def _find(self, role, name, showing):
        return next((node for node in self.nodes()
                     if node.role == role and node.text() == name and (node.showing or not showing)), None)

    def _wait(self, what, condition):
        def story():
            return f"{what}; on screen: {self.texts()}, titles: {self.titles()}\n{self._process.story()}"

        def alive():
            value = condition()
            if not value and self._process.ended():
                raise AssertionError(f"the program ended while waiting for {story()}")
            return value
        return until(story, alive)


def _xdotool(*arguments):
    result = subprocess.run(["xdotool", *map(str, arguments)], capture_output=True, text=True)
    return result.stdout.strip() if result.returncode == 0 else None
