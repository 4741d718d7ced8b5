// SPDX-License-Identifier: MIT
// Does in GNOME Shell what a person would, for tests. Has its name on the bus once the shell can be used.

import Clutter from 'gi://Clutter';
import Gio from 'gi://Gio';
import GLib from 'gi://GLib';

const kInterface = `<node><interface name="org.ticklog.TestDriver">
  <method name="Activate"><arg type="s" direction="in"/><arg type="b" direction="out"/></method>
  <method name="Minimise"><arg type="s" direction="in"/><arg type="b" direction="out"/></method>
  <method name="IsInFront"><arg type="s" direction="in"/><arg type="b" direction="out"/></method>
  <method name="Touch"><arg type="s" direction="in"/><arg type="b" direction="out"/></method>
  <method name="PlugIn"><arg type="s" direction="in"/><arg type="b" direction="out"/></method>
  <method name="Cover"><arg type="s" direction="in"/><arg type="b" direction="out"/></method>
  <method name="Uncover"><arg type="s" direction="in"/><arg type="b" direction="out"/></method>
  <method name="Variable"><arg type="s" direction="in"/><arg type="s" direction="out"/></method>
</interface></node>`;

function withWindow(title, act) {
    // Before a window is shown it can be activated, but takes the focus once more when it is. One that is put away is
    // hidden a while later.
    const actor = global.get_window_actors().find(each =>
        (each.visible || each.get_meta_window().minimized) && each.get_meta_window().get_title() === title);
    if (actor)
        act(actor.get_meta_window());
    return Boolean(actor);
}

function plugIn(kind) {
    // The first is how newer shells have it.
    const backend = global.stage.context?.get_backend() ?? Clutter.get_default_backend();
    return backend.get_default_seat().create_virtual_device(kind);
}

export class Driver {
    // `main` and `ScreenShield` are what the shell calls so: how one gets at them differs from shell to shell.
    constructor(main, ScreenShield) {
        this._main = main;
        this._ScreenShield = ScreenShield;
        // Kept, or it would be taken from the bus with the next collection of garbage.
        this._object = Gio.DBusExportedObject.wrapJSObject(kInterface, this);
        this._object.export(Gio.DBus.session, '/org/ticklog/TestDriver');
        if (main.layoutManager._startingUp)
            main.layoutManager.connect('startup-complete', () => this._leaveOverview());
        else
            this._leaveOverview();
    }

    Activate(title) {
        return withWindow(title, window => this._main.activateWindow(window));
    }

    Minimise(title) {
        return withWindow(title, window => window.minimize());
    }

    IsInFront(title) {
        return global.display.get_focus_window()?.get_title() === title;
    }

    Touch() {
        this._pointer ??= plugIn(Clutter.InputDeviceType.POINTER_DEVICE);
        this._pointer.notify_relative_motion(GLib.get_monotonic_time(), 1, 1);
        return true;
    }

    PlugIn() {
        this._keyboard ??= plugIn(Clutter.InputDeviceType.KEYBOARD_DEVICE);
        for (const state of [Clutter.KeyState.PRESSED, Clutter.KeyState.RELEASED])
            this._keyboard.notify_keyval(GLib.get_monotonic_time(), Clutter.KEY_Shift_L, state);
        return true;
    }

    // The shell has a shield of its own only where a display manager could open it again.
    Cover() {
        this._shield ??= new this._ScreenShield();
        this._shield.activate(false);
        return true;
    }

    Uncover() {
        this._shield.deactivate(false);
        return true;
    }

    // A variable of the shell's environment; empty when it is not set.
    Variable(name) {
        return GLib.getenv(name) ?? '';
    }

    // The shell begins with it, and no window has the focus there.
    _leaveOverview() {
        if (!this._main.overview.visible)
            return this._begin();
        this._main.overview.connect('hidden', () => this._begin());
        this._main.overview.hide();
    }

    _begin() {
        this._name ??= Gio.bus_own_name_on_connection(Gio.DBus.session, 'org.ticklog.TestDriver',
            Gio.BusNameOwnerFlags.NONE, null, null);
    }
}
