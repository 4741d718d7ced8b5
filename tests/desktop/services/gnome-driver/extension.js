// SPDX-License-Identifier: MIT
// Does in GNOME Shell what a person would, for tests. Has its name on the bus once the shell can be used.
'use strict';

const {Clutter, Gio, GLib} = imports.gi;
const Main = imports.ui.main;

const kInterface = `<node><interface name="org.ticklog.TestDriver">
  <method name="Activate"><arg type="s" direction="in"/><arg type="b" direction="out"/></method>
  <method name="Minimise"><arg type="s" direction="in"/><arg type="b" direction="out"/></method>
  <method name="IsInFront"><arg type="s" direction="in"/><arg type="b" direction="out"/></method>
  <method name="Touch"><arg type="s" direction="in"/><arg type="b" direction="out"/></method>
  <method name="PlugIn"><arg type="s" direction="in"/><arg type="b" direction="out"/></method>
</interface></node>`;

function withWindow(title, act) {
    // Before a window is shown it can be activated, but takes the focus once more when it is.
    const actor = global.get_window_actors().find(each =>
        each.visible && each.get_meta_window().get_title() === title);
    if (actor)
        act(actor.get_meta_window());
    return Boolean(actor);
}

function plugIn(kind) {
    return Clutter.get_default_backend().get_default_seat().create_virtual_device(kind);
}

let pointer = null;
let keyboard = null;
// Kept, or it would be taken from the bus with the next collection of garbage.
let object = null;
const driver = {
    Activate: title => withWindow(title, window => Main.activateWindow(window)),
    Minimise: title => withWindow(title, window => window.minimize()),
    IsInFront: title => global.display.get_focus_window()?.get_title() === title,
    Touch: () => {
        pointer ??= plugIn(Clutter.InputDeviceType.POINTER_DEVICE);
        pointer.notify_relative_motion(GLib.get_monotonic_time(), 1, 1);
        return true;
    },
    PlugIn: () => {
        keyboard ??= plugIn(Clutter.InputDeviceType.KEYBOARD_DEVICE);
        keyboard.notify_keyval(GLib.get_monotonic_time(), Clutter.KEY_Shift_L, Clutter.KeyState.PRESSED);
        keyboard.notify_keyval(GLib.get_monotonic_time(), Clutter.KEY_Shift_L, Clutter.KeyState.RELEASED);
        return true;
    },
};

function init() {}

function enable() {
    // Windows can have the focus from the start.
    Main.sessionMode.hasOverview = false;
    object = Gio.DBusExportedObject.wrapJSObject(kInterface, driver);
    object.export(Gio.DBus.session, '/org/ticklog/TestDriver');
    const begin = () => Gio.bus_own_name_on_connection(Gio.DBus.session, 'org.ticklog.TestDriver',
        Gio.BusNameOwnerFlags.NONE, null, null);
    if (Main.layoutManager._startingUp)
        Main.layoutManager.connect('startup-complete', begin);
    else
        begin();
}

function disable() {}
