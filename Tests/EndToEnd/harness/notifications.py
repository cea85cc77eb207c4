"""A notification service on the session bus."""

import threading

from gi.repository import Gio, GLib

NAME, PATH = "org.freedesktop.Notifications", "/org/freedesktop/Notifications"
INTERFACE = f"""<node><interface name="{NAME}">
  <method name="GetCapabilities"><arg type="as" direction="out"/></method>
  <method name="Notify"><arg type="s"/><arg type="u"/><arg type="s"/><arg type="s"/><arg type="s"/><arg type="as"/>
    <arg type="a{{sv}}"/><arg type="i"/><arg type="u" direction="out"/></method>
  <method name="CloseNotification"><arg type="u"/></method>
  <signal name="ActionInvoked"><arg type="u"/><arg type="s"/></signal>
</interface></node>"""


class NotificationService:
    """Serves from a separate thread until close(). Records the shown notifications in order, as tuples of title, body
    and actions (alternating identifiers and titles), and the numbers of withdrawn ones."""

    def __init__(self):
        self.shown, self.withdrawn = [], []
        self._loop = GLib.MainLoop(GLib.MainContext())
        self._bus = None
        serving = threading.Event()
        self._thread = threading.Thread(target=self._serve, args=[serving])
        self._thread.start()
        serving.wait()

    def _serve(self, serving):
        self._loop.get_context().push_thread_default()
        self._bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        registration = self._bus.register_object(PATH, Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0],
                                                 self._called, None, None)
        owner = Gio.bus_own_name_on_connection(self._bus, NAME, Gio.BusNameOwnerFlags.NONE,
                                               lambda *_: serving.set(), None)
        self._loop.run()
        Gio.bus_unown_name(owner)
        self._bus.unregister_object(registration)

    def _called(self, _bus, _sender, _path, _interface, method, arguments, invocation):
        answer = None
        if method == "GetCapabilities":
            answer = GLib.Variant("(as)", [["actions", "body", "body-markup"]])
        elif method == "Notify":
            _, _, _, title, body, actions, _, _ = arguments.unpack()
            self.shown.append((title, body, actions))
            answer = GLib.Variant("(u)", [len(self.shown)])
        elif method == "CloseNotification":
            self.withdrawn += arguments.unpack()
        invocation.return_value(answer)

    def invoke(self, number, action):
        """Presses a button of a notification, or taps its body ("default"). The first notification has the number
        1."""
        self._bus.emit_signal(None, PATH, NAME, "ActionInvoked", GLib.Variant("(us)", [number, action]))

    def close(self):
        self._loop.quit()
        self._thread.join()
