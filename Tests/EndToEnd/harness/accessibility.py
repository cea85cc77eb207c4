"""Reads the accessibility trees of programs from the accessibility bus of the session."""

import functools

from gi.repository import Gio, GLib

REGISTRY, ROOT = "org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root"
NOTHING = "/org/a11y/atspi/null"
ACCESSIBLE, COMPONENT = "org.a11y.atspi.Accessible", "org.a11y.atspi.Component"
ACTION, TEXT = "org.a11y.atspi.Action", "org.a11y.atspi.Text"
MILLISECONDS = 5000
# Bit numbers in the set of states.
ACTIVE, BUSY, SHOWING = 1, 3, 25


class Bus:
    """A connection that sends several calls at once, since round trips dominate on a busy machine."""

    def __init__(self):
        session = Gio.bus_get_sync(Gio.BusType.SESSION)
        address = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
                                    Gio.DBusCallFlags.NONE, -1, None).unpack()[0]
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        self._connection = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)

    @staticmethod
    @functools.cache
    def of_session():
        return Bus()

    def ask(self, questions):
        """Returns the answers to questions, tuples of receiver, path, interface, method and arguments, in their
        order. Raises GLib.Error if a call fails."""
        answers = [None] * len(questions)
        missing = len(questions)

        def take(connection, result, index):
            nonlocal missing
            missing -= 1
            try:
                answers[index] = connection.call_finish(result).unpack()
            except GLib.Error as error:
                answers[index] = error

        for index, (receiver, path, interface, method, arguments) in enumerate(questions):
            self._connection.call(receiver, path, interface, method, arguments, None, Gio.DBusCallFlags.NONE,
                                  MILLISECONDS, None, take, index)
        while missing:
            GLib.MainContext.default().iteration(True)
        for answer in answers:
            if isinstance(answer, GLib.Error):
                raise answer
        return answers

    def application(self, pid):
        """Returns the bus name of a process, or None if it is not on the bus."""
        (names,), = self.ask([(REGISTRY, ROOT, ACCESSIBLE, "GetChildren", None)])
        for name, _ in names:
            try:
                (owner,), = self.ask([("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                                       "GetConnectionUnixProcessID", GLib.Variant("(s)", (name,)))])
            except GLib.Error:
                continue  # The program with that name has just ended.
            if owner == pid:
                return name
        return None


class Node:
    """An accessible object at the time when the tree was read: its role ("push button"), its name, and its window,
    which is a node, too. position() and press() call the program."""

    def __init__(self, receiver, path, window=None):
        self._receiver = receiver
        self._path = path
        self.window = window or self
        self.is_window = window is None
        self.role = self.name = self.content = ""
        self._states = 0
        self.children = []

    def question(self, interface, method, arguments=None):
        return self._receiver, self._path, interface, method, arguments

    def questions(self):
        return [self.question(ACCESSIBLE, "GetRoleName"), self.question(ACCESSIBLE, "GetState"),
                self.question("org.freedesktop.DBus.Properties", "Get", GLib.Variant("(ss)", (ACCESSIBLE, "Name"))),
                self.question(ACCESSIBLE, "GetChildren")]

    def take(self, role, states, name, children):
        """Stores the answers to questions()."""
        self.role, = role
        self.take_states(states)
        self.name, = name
        # Invisible parts are skipped, except menus, whose entries exist while they are closed.
        if self.showing or "menu" in self.role or self.is_window:
            self.children = [Node(receiver, path, self.window) for receiver, path in children[0] if path != NOTHING]

    def take_states(self, states):
        low, high = states[0]
        self._states = low | high << 32

    def _has(self, state):
        return bool(self._states >> state & 1)

    showing = property(lambda self: self._has(SHOWING))
    active = property(lambda self: self._has(ACTIVE))
    busy = property(lambda self: self._has(BUSY))

    def walk(self):
        """Yields the node and its descendants in the order of a screen reader."""
        yield self
        for child in self.children:
            yield from child.walk()

    def text(self):
        """Returns the name, or the content of a text field without a name."""
        return self.name or self.content

    def _ask(self, interface, method, signature, *arguments):
        return Bus.of_session().ask([self.question(interface, method, GLib.Variant(signature, arguments))])[0][0]

    def position(self):
        """Returns the current left, top, width and height, from the program."""
        return tuple(self._ask(COMPONENT, "GetExtents", "(u)", 0))

    def press(self):
        """Performs the action of a click without the pointer, also in closed menus. The action of a menu item is
        complete on return; a button is shown pressed first and acts later."""
        if not self._ask(ACTION, "DoAction", "(i)", 0):
            raise AssertionError(f"the {self.role} '{self.name}' cannot be pressed")


def windows(receiver, levels):
    """Returns the windows of a program with their content, down to a number of levels; None if a part is busy."""
    bus = Bus.of_session()
    (children,), = bus.ask([(receiver, ROOT, ACCESSIBLE, "GetChildren", None)])
    found = level = [Node(receiver, path) for receiver, path in children]
    nodes = []
    while level and levels:
        answers = bus.ask([question for node in level for question in node.questions()])
        for index, node in enumerate(level):
            node.take(*answers[4 * index:4 * index + 4])
            if node.busy:
                return None
        nodes += level
        level = [child for node in level for child in node.children]
        levels -= 1
    fields = [node for node in nodes if node.role == "text" and node.showing and not node.name]
    for node, (content,) in zip(fields, bus.ask([node.question(TEXT, "GetText", GLib.Variant("(ii)", (0, -1)))
                                                 for node in fields])):
        node.content = content
    # An animation may have started since the first read. The content of a window is a panel on the bus.
    panels = [node for node in nodes if node.role == "panel"]
    for node, states in zip(panels, bus.ask([node.question(ACCESSIBLE, "GetState") for node in panels])):
        node.take_states(states)
    return None if any(node.busy for node in panels) else found
