"""Fakes of the desktop's panel for status items and of its settings, on the session bus of the scenarios."""

import threading

from gi.repository import Gio, GLib

from .waiting import DEADLINE, until

WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
PORTAL = "org.freedesktop.portal.Desktop"
PORTAL_PATH = "/org/freedesktop/portal/desktop"
SETTINGS = "org.freedesktop.portal.Settings"
WATCHER_XML = f"""<node><interface name="{WATCHER}">
<method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
<method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
<property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
<property name="ProtocolVersion" type="i" access="read"/>
<property name="RegisteredStatusNotifierItems" type="as" access="read"/>
</interface></node>"""


class _Service:
    """A name on the bus, served by a separate thread until close()."""

    def __init__(self, name):
        self._context = GLib.MainContext.new()
        self._loop = GLib.MainLoop.new(self._context, False)
        self._owned = threading.Event()
        self._thread = threading.Thread(target=self._serve, args=(name,), daemon=True)
        self._thread.start()
        assert self._owned.wait(DEADLINE), f"{name} is not to be had"

    def _serve(self, name):
        self._context.push_thread_default()
        address = Gio.dbus_address_get_for_bus_sync(Gio.BusType.SESSION, None)
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        self.connection = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
        self.export()
        Gio.bus_own_name_on_connection(self.connection, name, Gio.BusNameOwnerFlags.NONE,
                                       lambda *_: self._owned.set(), None)
        self._loop.run()
        self.connection.close_sync(None)
        self._context.pop_thread_default()

    def export(self):
        pass

    def close(self):
        self._loop.quit()
        self._thread.join()


class Tray(_Service):
    """The panel. It records registered items and clicks on them. With hangs, it answers no call."""

    def __init__(self, hangs=False):
        self.items = []
        self._hangs = hangs
        super().__init__(WATCHER)

    def export(self):
        if self._hangs:
            self.connection.add_filter(lambda _, message, incoming: None if incoming and message.get_message_type() ==
                                       Gio.DBusMessageType.METHOD_CALL else message)
        interface = Gio.DBusNodeInfo.new_for_xml(WATCHER_XML).interfaces[0]
        self.connection.register_object("/StatusNotifierWatcher", interface, self._called, self._property, None)

    def _called(self, _connection, _sender, _path, _interface, method, arguments, invocation):
        if method == "RegisterStatusNotifierItem":
            self.items.append(arguments.unpack()[0])
        invocation.return_value(None)

    def _property(self, _connection, _sender, _path, _interface, name):
        return {"IsStatusNotifierHostRegistered": GLib.Variant("b", True), "ProtocolVersion": GLib.Variant("i", 0),
                "RegisteredStatusNotifierItems": GLib.Variant("as", self.items)}[name]

    def wait_for_item(self):
        return until("a status item", lambda: self.items and self.items[-1])

    def _call(self, interface, method, arguments):
        return self.connection.call_sync(self.wait_for_item(), "/StatusNotifierItem", interface, method, arguments, None,
                                         Gio.DBusCallFlags.NONE, int(1000 * DEADLINE), None)

    def click(self):
        self._call(ITEM, "Activate", GLib.Variant("(ii)", (0, 0)))

    def icon(self):
        """Returns the largest picture of the item: its side length, and its pixels as (alpha, red, green, blue)."""
        pictures = self._call("org.freedesktop.DBus.Properties", "Get",
                              GLib.Variant("(ss)", (ITEM, "IconPixmap"))).unpack()[0]
        side, _, data = max(pictures)
        return side, [tuple(data[index:index + 4]) for index in range(0, len(data), 4)]


class Settings(_Service):
    """The desktop's settings service, reduced to its signal for changed settings."""

    def __init__(self):
        super().__init__(PORTAL)

    def set_dark(self, is_dark):
        value = GLib.Variant("(ssv)", ("org.freedesktop.appearance", "color-scheme", GLib.Variant("u", 1 if is_dark else 2)))
        self.connection.emit_signal(None, PORTAL_PATH, SETTINGS, "SettingChanged", value)
