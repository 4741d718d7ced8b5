# SPDX-License-Identifier: MIT
"""gtk_client.py NAME: a GTK program whose windows bear NAME, and that does as it is told, line by line:
  open TITLE, title NUMBER TITLE, await NUMBER, close NUMBER
Windows are numbered from 0. Says "ok" when it has obeyed; when it awaits a window, as soon as this has the focus."""
import os
import sys

import gi

# It takes its time, for something that hardly any test asks for.
os.environ.setdefault('NO_AT_BRIDGE', '1')
gi.require_version('Gdk', '3.0')
gi.require_version('Gtk', '3.0')
from gi.repository import Gdk, GLib, Gtk  # noqa: E402

windows = []
awaited = None


def say_ok():
    print('ok', flush=True)


def look_for_awaited(*_event):
    global awaited
    # Without a keyboard no window of GTK is active by its own account; the compositor's word is its state.
    surface = awaited.get_window() if awaited else None
    if surface and surface.get_state() & Gdk.WindowState.FOCUSED:
        awaited = None
        say_ok()


def open_window(title):
    window = Gtk.Window(title=title)
    window.set_default_size(200, 100)
    window.connect_after('window-state-event', look_for_awaited)
    window.show_all()
    windows.append(window)


def obey(_channel, _condition):
    global awaited
    line = sys.stdin.readline()
    if not line:
        Gtk.main_quit()
        return False
    command, _, argument = line.rstrip('\n').partition(' ')
    number, _, title = argument.partition(' ')
    if command == 'await':
        awaited = windows[int(number)]
        look_for_awaited()
        return True
    if command == 'open':
        open_window(argument)
    elif command == 'title':
        windows[int(number)].set_title(title)
    elif command == 'close':
        windows[int(number)].destroy()
    say_ok()
    return True


GLib.set_prgname(sys.argv[1])
Gdk.set_program_class(sys.argv[1])
GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IO_IN | GLib.IO_HUP, obey)
Gtk.main()
