# SPDX-License-Identifier: MIT
"""gtk4_client.py NAME TITLE: a program of GTK 4 with one window."""
import sys

import gi

gi.require_version('Gtk', '4.0')
from gi.repository import GLib, Gtk  # noqa: E402


def open_window(application):
    window = Gtk.ApplicationWindow(application=application, title=sys.argv[2])
    window.set_default_size(200, 100)
    window.present()


GLib.set_prgname(sys.argv[1])
client = Gtk.Application()
client.connect('activate', open_window)
client.run([])
