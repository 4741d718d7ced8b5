#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A polkit that decides as it is told. Argument: the address of the bus.

Commands come line by line on standard input; each is answered by one line, "ok" and what was asked for, on standard
output: "allow", "deny" and "hold" say what becomes of questions from now on, "decide" ends what is held by "yes" or "no",
"asked" answers the last question and "cancelled" how many were. Ends with its input.
"""
import sys

import dbus
import dbus.service
from service_loop import serve

NAME = "org.freedesktop.PolicyKit1"
INTERFACE = "org.freedesktop.PolicyKit1.Authority"
FAILED = "org.freedesktop.PolicyKit1.Error.Failed"
CANCELLED = "org.freedesktop.PolicyKit1.Error.Cancelled"


class Authority(dbus.service.Object):
    def __init__(self, bus):
        super().__init__(bus, "/org/freedesktop/PolicyKit1/Authority")
        self.mode = "deny"
        self.asked = "nothing"
        self.held = {}
        self.cancelled = 0

    @dbus.service.method(INTERFACE, in_signature="(sa{sv})sa{ss}us", out_signature="(bba{ss})",
                         async_callbacks=("reply", "fail"))
    def CheckAuthorization(self, subject, action, details, flags, cancellation, reply, fail):
        kind, properties = subject
        program = " ".join(f"{key}={value}" for key, value in details.items())
        self.asked = f"{kind} {properties['name']} {action} {program} {int(flags)}"
        if self.mode == "hold":
            self.held[str(cancellation)] = (reply, fail)
        else:
            self.answer(reply, self.mode == "allow")

    @dbus.service.method(INTERFACE, in_signature="s")
    def CancelCheckAuthorization(self, cancellation):
        if str(cancellation) not in self.held:
            raise dbus.DBusException("no such question", name=FAILED)
        self.cancelled += 1
        _, fail = self.held.pop(str(cancellation))
        fail(dbus.DBusException("cancelled", name=CANCELLED))

    @staticmethod
    def answer(reply, is_authorized):
        reply(dbus.Struct((is_authorized, False, dbus.Dictionary({}, signature="ss")), signature="bba{ss}"))

    def obey(self, command, *arguments):
        if command in ("allow", "deny", "hold"):
            self.mode = command
        elif command == "decide":
            for reply, _ in self.held.values():
                self.answer(reply, arguments[0] == "yes")
            self.held.clear()
        elif command == "asked":
            return self.asked
        elif command == "cancelled":
            return str(self.cancelled)
        else:
            return "unknown command"
        return ""


if __name__ == "__main__":
    serve(sys.argv[1], NAME, Authority, Authority.obey)
