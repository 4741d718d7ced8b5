#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Shows notices, by saying what they say. Argument: the address of the bus.

Each notice is one line on standard output: "ok", its number, the number it replaces, its title and its buttons. A line
"press NUMBER BUTTON" on standard input is a person who presses it. Ends with its input.
"""
import sys

import dbus
import dbus.service
from service_loop import serve

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


if __name__ == "__main__":
    serve(sys.argv[1], NAME, Notifications,
          lambda service, _, number, action: service.ActionInvoked(dbus.UInt32(int(number)), action))
