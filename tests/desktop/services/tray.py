#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A panel without a picture: takes tray icons over the bus and opens their menus as panels do.

Argument: the address of the bus. Obeys line by line:
  watch            takes the name of the watcher's service
  unwatch          gives it up
  item             the icon: its title, or "none"
  tooltip          what it says under the pointer
  activate         clicks it
  open             opens its menu
  menu             what stands in the menu: "Start | - | All Timers >", line breaks as a slash
  submenu LABEL    opens that submenu of the menu that was opened last, and says what stands in it
  click LABEL      chooses an entry of the menu that was opened last
  close            closes the menu
  changes          how often texts were changed since this was last asked, today's work left out: it is read from
                   the history whenever the menu opens, and the answer may come after it was closed
A label is known by its beginning.
"""
import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
MENU = "com.canonical.dbusmenu"


class Watcher(dbus.service.Object):
    def __init__(self, bus):
        super().__init__(bus, "/StatusNotifierWatcher")
        self.items = []

    @dbus.service.method(WATCHER, in_signature="s", sender_keyword="sender")
    def RegisterStatusNotifierItem(self, _service, sender=None):
        self.items.append(sender)

    @dbus.service.method(WATCHER, in_signature="s")
    def RegisterStatusNotifierHost(self, _service):
        pass

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="ss", out_signature="v")
    def Get(self, _interface, name):
        return {"IsStatusNotifierHostRegistered": True, "ProtocolVersion": 0}[name]

    @dbus.service.method(dbus.INTROSPECTABLE_IFACE, out_signature="s", path_keyword="object_path",
                         connection_keyword="connection")
    def Introspect(self, object_path, connection):
        # Programs read properties only if they are announced, which the library does not do.
        text = dbus.service.Object.Introspect(self, object_path, connection)
        announced = '<property name="IsStatusNotifierHostRegistered" type="b" access="read"/>'
        return text.replace(f'<interface name="{WATCHER}">', f'<interface name="{WATCHER}">{announced}')


class Panel:
    def __init__(self, address):
        self.bus = dbus.bus.BusConnection(address)
        self.watcher = Watcher(self.bus)
        self.name = None
        self.opened = 0
        self.count = 0
        self.bus.add_signal_receiver(self.properties_updated, "ItemsPropertiesUpdated", MENU)

    def properties_updated(self, updated, _removed):
        self.count += sum(not self.label(properties).startswith("Today:") for _, properties in updated)

    def watch(self):
        self.name = dbus.service.BusName(WATCHER, self.bus)

    def unwatch(self):
        self.bus.release_name(WATCHER)
        self.name = None

    def icon(self, path):
        return self.bus.get_object(self.watcher.items[-1], path, introspect=False)

    def property(self, name):
        return self.icon("/StatusNotifierItem").Get(ITEM, name, dbus_interface=dbus.PROPERTIES_IFACE)

    def item(self):
        return str(self.property("Title")) if self.watcher.items else "none"

    def tooltip(self):
        return str(self.property("ToolTip")[2])

    def activate(self):
        self.icon("/StatusNotifierItem").Activate(10, 10, dbus_interface=ITEM)

    def entries(self):
        _, layout = self.icon("/MenuBar").GetLayout(self.opened, -1, dbus.Array([], "s"), dbus_interface=MENU)
        return [(int(number), properties, len(children)) for number, properties, children in layout[2]]

    def label(self, properties):
        return str(properties.get("label", ""))

    def text(self):
        texts = []
        for _, properties, _ in self.entries():
            if properties.get("type") == "separator":
                texts.append("-")
            else:
                submenu = " >" if properties.get("children-display") == "submenu" else ""
                texts.append(self.label(properties).replace("\n", "/") + submenu)
        return " | ".join(texts)

    def find(self, beginning):
        return next(number for number, properties, _ in self.entries()
                    if self.label(properties).replace("_", "").startswith(beginning))

    def show(self, number):
        self.opened = number
        self.icon("/MenuBar").AboutToShow(number, dbus_interface=MENU)
        self.event(number, "opened")

    def event(self, number, kind):
        self.icon("/MenuBar").Event(number, kind, dbus.String("", variant_level=1), dbus.UInt32(0),
                                    dbus_interface=MENU)

    def open(self):
        self.show(0)

    def menu(self):
        return self.text()

    def submenu(self, label):
        self.show(self.find(label))
        return self.text()

    def click(self, label):
        self.event(self.find(label), "clicked")

    def close(self):
        self.event(0, "closed")

    def changes(self):
        # What was told before an answer may wait behind the line that asks for the count.
        while GLib.MainContext.default().pending():
            GLib.MainContext.default().iteration(False)
        count, self.count = self.count, 0
        return str(count)

    def obey(self, source, _condition):
        line = source.readline()
        if not line:
            loop.quit()
            return False
        command, _, argument = line.rstrip("\n").partition(" ")
        try:
            answer = getattr(self, command)(*([argument] if argument else []))
            print("ok " + (answer or ""), flush=True)
        except Exception as failure:  # pylint: disable=broad-except
            print(f"{type(failure).__name__} {failure}".replace("\n", " "), flush=True)
        return True


dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
loop = GLib.MainLoop()
panel = Panel(sys.argv[1])
GLib.io_add_watch(sys.stdin, GLib.IO_IN | GLib.IO_HUP, panel.obey)
print("ready", flush=True)
loop.run()
