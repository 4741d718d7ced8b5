#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A file manager that says what it is asked to show. Argument: the address of the bus. Ends with its input."""
import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

NAME = "org.freedesktop.FileManager1"


class FileManager(dbus.service.Object):
    @dbus.service.method(NAME, in_signature="ass")
    def ShowItems(self, uris, _startup):
        print("ok " + " ".join(uris), flush=True)


def main():
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.bus.BusConnection(sys.argv[1])
    manager = FileManager(bus, "/org/freedesktop/FileManager1")
    name = dbus.service.BusName(NAME, bus)
    loop = GLib.MainLoop()
    GLib.io_add_watch(sys.stdin, GLib.IO_HUP, lambda *_: loop.quit())
    print("ready", flush=True)
    loop.run()
    del manager, name


if __name__ == "__main__":
    main()
