#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A program with one window, which is active, that tells assistive programs of it in an odd way.

Arguments: the address of the accessibility bus, the way and, unless it is "Odd", its name. The way: "well" is as programs do it, "children" and "states" answer
with another kind of value than is expected, "many" has a thousand windows, "late" answers nothing until it is told to.
Obeys "asked", which answers how often it was asked, "activate", which tells of its window, "hang" and "answer". Ends
with its input."""
import sys

import dbus
import dbus.bus
import dbus.service
from service_loop import serve

ADDRESS, WAY, *NAMES = sys.argv[1:]
NAME = NAMES[0] if NAMES else "Odd"
ACCESSIBLE = "org.a11y.atspi.Accessible"
ROOT = "/org/a11y/atspi/accessible/root"
WINDOW = "/org/a11y/atspi/accessible/window"
# Bits of the state set: active, and showing.
STATES = [1 << 1 | 1 << 25, 0]
CHILDREN = "ai" if WAY == "children" else "a(so)"
STATE = "a(u)" if WAY == "states" else "au"


class Node(dbus.service.Object):
    def __init__(self, bus, path, name):
        super().__init__(bus, path)
        self.name = name
        self.asked = 0
        self.owed = []

    def answer(self, reply, value):
        self.asked += 1
        if WAY == "late":
            self.owed.append((reply, value))
        else:
            reply(value)

    def pay(self):
        global WAY
        WAY = "well"
        for reply, value in self.owed:
            reply(value)
        self.owed = []

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="ss", out_signature="v", async_callbacks=("reply", "_error"))
    def Get(self, _interface, _property, reply, _error):
        self.answer(reply, self.name)

    @dbus.service.method(ACCESSIBLE, out_signature=CHILDREN, async_callbacks=("reply", "_error"))
    def GetChildren(self, reply, _error):
        own = self.connection.get_unique_name()
        count = 0 if self.name != NAME else 1000 if WAY == "many" else 1
        children = [(own, dbus.ObjectPath(WINDOW))] * count
        self.answer(reply, [1, 2, 3] if CHILDREN == "ai" else children)

    @dbus.service.method(ACCESSIBLE, out_signature=STATE, async_callbacks=("reply", "_error"))
    def GetState(self, reply, _error):
        self.answer(reply, [(state,) for state in STATES] if STATE == "a(u)" else STATES)

    @dbus.service.signal("org.a11y.atspi.Event.Window", signature="siiv(so)")
    def Activate(self, _kind, _first, _second, _value, _sender):
        pass


def make(bus):
    nodes = [Node(bus, ROOT, NAME), Node(bus, WINDOW, "Window")]
    bus.call_async("org.a11y.atspi.Registry", ROOT, "org.a11y.atspi.Socket", "Embed", "(so)",
                   ((bus.get_unique_name(), dbus.ObjectPath(ROOT)),), lambda *_: None, lambda *_: None)
    return nodes


def obey(nodes, command):
    global WAY
    root, window = nodes
    if command == "asked":
        return root.asked + window.asked
    if command == "activate":
        window.Activate("", 0, 0, "Window", (root.connection.get_unique_name(), dbus.ObjectPath(ROOT)))
    elif command == "hang":
        WAY = "late"
    elif command == "answer":
        for node in nodes:
            node.pay()
    return None


if __name__ == "__main__":
    serve(ADDRESS, "org.ticklog.OddProgram", make, obey)
