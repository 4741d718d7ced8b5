#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A screen saver that does as it is told.

Arguments: the address of the bus, the name to serve, the path, and whether it is active at first. Says "ready", then
obeys "active true" and "active false" line by line on standard input, and ends with it.
"""
import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

ADDRESS, NAME, PATH, AT_FIRST = sys.argv[1:]


class ScreenSaver(dbus.service.Object):
    is_active = AT_FIRST == "true"

    @dbus.service.method(NAME, out_signature="b")
    def GetActive(self):
        return self.is_active

    @dbus.service.signal(NAME, signature="b")
    def ActiveChanged(self, is_active):
        self.is_active = is_active


def main():
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.bus.BusConnection(ADDRESS)
    saver = ScreenSaver(bus, PATH)
    name = dbus.service.BusName(NAME, bus)
    loop = GLib.MainLoop()

    def obey(source, condition):
        line = source.readline()
        if not line:
            loop.quit()
            return False
        saver.ActiveChanged(line.split()[1] == "true")
        print("ok", flush=True)
        return True

    GLib.io_add_watch(sys.stdin, GLib.IO_IN | GLib.IO_HUP, obey)
    print("ready", flush=True)
    loop.run()
    del name


if __name__ == "__main__":
    main()
