#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Shows notices, by saying what they say. Arguments: the address of the bus, and what the service can do.

Each notice is one line on standard output: "ok", its number, the number it replaces, its title and its buttons. It obeys
line by line:
  press NUMBER BUTTON          a person presses it
  token NUMBER BUTTON TOKEN    the same, and the desktop lets the program come to the front
  close NUMBER                 a person closes the notice
  body                         what the last notice says below its title
  closed                       the numbers of the notices that were taken away
  asked                        how often it was asked what it can do
Ends with its input.
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
        self.body = ""
        self.taken = []
        self.asked = 0

    @dbus.service.method(NAME, out_signature="as")
    def GetCapabilities(self):
        self.asked += 1
        return dbus.Array(sys.argv[2:], "s")

    @dbus.service.method(NAME, in_signature="u")
    def CloseNotification(self, number):
        self.taken.append(int(number))
        self.NotificationClosed(number, dbus.UInt32(3))

    @dbus.service.method(NAME, in_signature="susssasa{sv}i", out_signature="u")
    def Notify(self, _program, replaced, _icon, title, body, actions, _hints, _expires):
        self.last += 1
        self.body = body
        print(f"ok {self.last} {int(replaced)} {title} [{', '.join(actions)}]", flush=True)
        return dbus.UInt32(self.last)

    @dbus.service.signal(NAME, signature="us")
    def ActionInvoked(self, number, action):
        pass

    @dbus.service.signal(NAME, signature="us")
    def ActivationToken(self, number, token):
        pass

    @dbus.service.signal(NAME, signature="uu")
    def NotificationClosed(self, number, reason):
        pass


def obey(service, command, number="0", action="", token=None):
    number = dbus.UInt32(int(number))
    if token:
        service.ActivationToken(number, token)
    if command in ("press", "token"):
        service.ActionInvoked(number, action)
    elif command == "close":
        service.NotificationClosed(number, dbus.UInt32(2))
    else:
        return {"body": service.body, "closed": " ".join(map(str, service.taken)), "asked": str(service.asked)}[command]
    return ""


if __name__ == "__main__":
    serve(sys.argv[1], NAME, Notifications, obey)
