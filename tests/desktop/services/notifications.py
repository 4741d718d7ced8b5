#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Shows notices, by saying what they say. Argument: the address of the bus.

Each notice is one line on standard output: "ok", its number, the number it replaces, its title and its buttons. A line
"press NUMBER BUTTON" on standard input is a person who presses it. Ends with its input.
"""
import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

NAME = "org.freedesktop.Notifications"


class Notifications(dbus.service.Object):
    def __init__(self, bus):
        super().__init__(bus, "/org/freedesktop/Notifications")
        self.last = 6

    @dbus.service.method(NAME, in_signature="susssasa{sv}i", out_signature="u")
    def Notify(self, _program, replaced, _icon, title, _body, actions, _hints, _expires):
        self.last += 1
        print(f"ok {self.last} {int(replaced)} {title} [{', '.join(actions)}]", flush=True)
        return dbus.UInt32(self.last)

    @dbus.service.signal(NAME, signature="us")
    def ActionInvoked(self, number, action):
        pass


def main():
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.bus.BusConnection(sys.argv[1])
    notifications = Notifications(bus)
    name = dbus.service.BusName(NAME, bus)
    loop = GLib.MainLoop()

    def read(*_):
        words = sys.stdin.readline().split()
        if not words:
            loop.quit()
            return False
        notifications.ActionInvoked(dbus.UInt32(int(words[1])), words[2])
        print("ok", flush=True)
        return True

    GLib.io_add_watch(sys.stdin, GLib.IO_IN | GLib.IO_HUP, read)
    print("ready", flush=True)
    loop.run()
    del name


if __name__ == "__main__":
    main()
