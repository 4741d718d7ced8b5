#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A screen saver that does as it is told.

Arguments: the address of the bus, the name to serve, the path, the interface, and whether it is active at first. Says "ready", then
obeys "active true" and "active false" line by line on standard input, and ends with it.
"""
import sys

import dbus
import dbus.service
from service_loop import serve

ADDRESS, NAME, PATH, INTERFACE, AT_FIRST = sys.argv[1:]


class ScreenSaver(dbus.service.Object):
    is_active = AT_FIRST == "true"

    @dbus.service.method(INTERFACE, out_signature="b")
    def GetActive(self):
        return self.is_active

    @dbus.service.signal(INTERFACE, signature="b")
    def ActiveChanged(self, is_active):
        self.is_active = is_active


if __name__ == "__main__":
    serve(ADDRESS, NAME, lambda bus: ScreenSaver(bus, PATH),
          lambda saver, _, is_active: saver.ActiveChanged(is_active == "true"))
