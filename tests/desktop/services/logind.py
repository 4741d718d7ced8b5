#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A private bus with a login manager that does as it is told.

Commands come line by line on standard input; each is answered by one line, "ok" and what was asked for, on standard
output. The first line out is the address of the bus, whose socket lies in the folder given as argument. All ends with
the input, and with this process however it ends.
"""
import os
import subprocess
import sys
import time

import dbus
import dbusmock

MANAGER = "org.freedesktop.login1.Manager"
SESSION = "org.freedesktop.login1.Session"
USER = "org.freedesktop.login1.User"
NAME = "org.freedesktop.login1"
OBJECT = "/org/freedesktop/login1"
SESSION_PATH = OBJECT + "/session/c1"
USER_PATH = f"{OBJECT}/user/{os.getuid()}"

CONFIGURATION = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>system</type>
  <listen>{address}</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""


class Machine:
    def __init__(self, folder):
        self.folder = folder
        self.address = "unix:path=" + os.path.join(folder, "bus")
        self.daemon = None
        self.mock = None
        os.environ["DBUS_SYSTEM_BUS_ADDRESS"] = self.address

    def start_bus(self):
        configuration = os.path.join(self.folder, "bus.conf")
        with open(configuration, "w", encoding="utf-8") as file:
            file.write(CONFIGURATION.format(address=self.address))
        self.daemon = subprocess.Popen(
            ["setpriv", "--pdeathsig", "KILL", "dbus-daemon", "--nofork", "--config-file=" + configuration, "--print-address=1"],
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.daemon.stdout.readline()

    def stop_bus(self):
        self.stop_logind()
        self.daemon.kill()
        self.daemon.wait()
        socket = os.path.join(self.folder, "bus")
        if os.path.exists(socket):
            os.unlink(socket)

    def start_logind(self):
        template = os.path.join(os.path.dirname(os.path.abspath(__file__)), "logind_mock.py")
        self.mock = subprocess.Popen(["/usr/bin/python3", "-m", "dbusmock", "--system", "--template", template],
                                     stdout=subprocess.DEVNULL)
        self.bus = dbus.bus.BusConnection(self.address)
        self.bus.set_exit_on_disconnect(False)
        while not self.bus.name_has_owner(NAME):
            time.sleep(0.01)
        self.manager = self.bus.get_object(NAME, OBJECT, introspect=False)

    def stop_logind(self):
        if self.mock:
            self.mock.kill()
            self.mock.wait()
            self.mock = None

    def find(self, how):
        control = dbus.Interface(self.manager, dbusmock.MOCK_IFACE)
        if how == "name":
            control.AddMethod(MANAGER, "GetSession", "s", "o", 'ret = "/org/freedesktop/login1/session/" + args[0]')
        elif how == "user":
            control.AddMethod(MANAGER, "GetSessionByPID", "u", "o",
                              'raise dbus.exceptions.DBusException("none", name="org.freedesktop.login1.NoSessionForPID")')
            user = self.bus.get_object(NAME, USER_PATH, introspect=False)
            display = dbus.Struct(("c1", dbus.ObjectPath(SESSION_PATH)), signature="so", variant_level=1)
            dbus.Interface(user, dbus.PROPERTIES_IFACE).Set(USER, "Display", display)

    def signal(self, name, value):
        dbus.Interface(self.manager, dbusmock.MOCK_IFACE).EmitSignal(MANAGER, name, "b", [value == "true"])

    def set_session(self, name, value):
        session = self.bus.get_object(NAME, SESSION_PATH, introspect=False)
        dbus.Interface(session, dbusmock.MOCK_IFACE).UpdateProperties(SESSION, {name: value})

    def request(self, name):
        session = self.bus.get_object(NAME, SESSION_PATH, introspect=False)
        dbus.Interface(session, dbusmock.MOCK_IFACE).EmitSignal(SESSION, name, "", dbus.Array([], signature="v"))

    def inhibitors(self):
        listed = dbus.Interface(self.manager, MANAGER).ListInhibitors()
        return " ".join(sorted(f"{what}:{who}:{mode}" for what, who, _, mode, _, _ in listed))

    def obey(self, command, *arguments):
        if command == "prepare-for-sleep":
            self.signal("PrepareForSleep", arguments[0])
        elif command == "prepare-for-shutdown":
            self.signal("PrepareForShutdown", arguments[0])
        elif command == "active":
            self.set_session("Active", arguments[0] == "true")
        elif command == "locked-hint":
            self.set_session("LockedHint", arguments[0] == "true")
        elif command == "class":
            self.set_session("Class", arguments[0])
        elif command == "request":
            self.request(arguments[0])
        elif command == "find":
            self.find(arguments[0])
        elif command == "inhibitors":
            return self.inhibitors()
        elif command in ("start-bus", "stop-bus", "start-logind", "stop-logind"):
            getattr(self, command.replace("-", "_"))()
        else:
            return "unknown command"
        return ""


def main():
    machine = Machine(sys.argv[1])
    machine.start_bus()
    try:
        print(machine.address, flush=True)
        for line in sys.stdin:
            print(("ok " + machine.obey(*line.split())).strip(), flush=True)
    finally:
        machine.stop_bus()


if __name__ == "__main__":
    main()
