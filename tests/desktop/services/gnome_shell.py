#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A GNOME Shell that only says which version it is, and of every extension that it is in the same state.

Arguments: the address of the bus, the version and, unless it knows no extension, the number of the state. Says "ready", and ends with its input.
"""
import sys

import dbus
import dbus.service
from service_loop import serve

ADDRESS, VERSION, *STATE = sys.argv[1:]
NAME = "org.gnome.Shell"


class Shell(dbus.service.Object):
    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="ss", out_signature="v")
    def Get(self, _interface, _property):
        return dbus.String(VERSION, variant_level=1)

    @dbus.service.method(NAME + ".Extensions", in_signature="s", out_signature="a{sv}")
    def GetExtensionInfo(self, _extension):
        return dbus.Dictionary({"state": dbus.Double(float(each)) for each in STATE}, signature="sv")


if __name__ == "__main__":
    serve(ADDRESS, NAME, lambda bus: Shell(bus, "/org/gnome/Shell"), lambda *_: None)
