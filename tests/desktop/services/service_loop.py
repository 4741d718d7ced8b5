# SPDX-License-Identifier: MIT
"""A service on a bus of the test's own, which obeys the lines that the test writes to it."""

import sys

import dbus
import dbus.bus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib


def serve(address, name, make, obey):
    """Says "ready" when `make(bus)` is on the bus as `name`. `obey(service, *words)` is called for each line and answers what
    follows "ok". Ends with the input."""
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.bus.BusConnection(address)
    service = make(bus)
    held = dbus.service.BusName(name, bus)
    loop = GLib.MainLoop()

    def read(*_):
        line = sys.stdin.readline()
        if not line:
            loop.quit()
            return False
        print(f"ok {obey(service, *line.split()) or ''}".strip(), flush=True)
        return True

    GLib.io_add_watch(sys.stdin, GLib.IO_IN | GLib.IO_HUP, read)
    print("ready", flush=True)
    loop.run()
    del held
