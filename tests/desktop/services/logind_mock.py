# SPDX-License-Identifier: MIT
"""The stock mock of the login manager with a session in it, and with ways to find that session.

A template for python3-dbusmock: unlike objects that are added later, all of this is there when the name is taken, as it
is with the real one.
"""
import os

from dbusmock.templates.logind import *  # noqa: F401,F403 (its methods are picked up by name)
from dbusmock.templates.logind import load as load_stock

NO_SESSION = 'raise dbus.exceptions.DBusException("none", name="org.freedesktop.login1.NoSuchSession")'


def load(mock, parameters):
    load_stock(mock, parameters)
    session = mock.AddSession("c1", "seat0", os.getuid(), "user", True)
    mock.AddMethod(MAIN_IFACE, "GetSession", "s", "o", NO_SESSION)  # noqa: F405
    mock.AddMethod(MAIN_IFACE, "GetSessionByPID", "u", "o", f'ret = "{session}"')  # noqa: F405
    mock.AddMethod(MAIN_IFACE, "GetUser", "u", "o", 'ret = f"/org/freedesktop/login1/user/{args[0]}"')  # noqa: F405
