// SPDX-License-Identifier: MIT
// Reports the windows on the screen to Ticklog over D-Bus, and to nobody else. While Ticklog does not run, it
// looks at nothing.

import Gio from 'gi://Gio';
import GLib from 'gi://GLib';
import {WindowWatch} from './windows.js';

// The version of the messages below, and the oldest version of a reader that understands them.
const kVersion = 1;
const kOldestVersion = 1;

const kTicklog = 'org.ticklog.Ticklog';
const kPath = '/org/ticklog/Shell';
const kName = 'org.ticklog.Shell';
const kSight = '(uuua(uisssi))';
const kSightArguments = direction => `
    <arg name="version" type="u" ${direction}/>
    <arg name="oldestVersion" type="u" ${direction}/>
    <arg name="focusedWindow" type="u" ${direction}/>
    <arg name="windows" type="a(uisssi)" ${direction}/>`;
const kInterface = `<node><interface name="${kName}">
  <method name="Follow">${kSightArguments('direction="out"')}</method>
  <signal name="Changed">${kSightArguments('')}</signal>
  <signal name="Ended"/>
</interface></node>`;

// The answer of the message bus to a question, as a promise.
function askBus(method, signature, argument) {
    return new Promise((resolve, reject) => {
        Gio.DBus.session.call('org.freedesktop.DBus', '/org/freedesktop/DBus', 'org.freedesktop.DBus', method,
            new GLib.Variant('(s)', [argument]), new GLib.VariantType(signature), Gio.DBusCallFlags.NONE, -1, null,
            (bus, result) => {
                try {
                    resolve(bus.call_finish(result).deepUnpack()[0]);
                } catch (failure) {
                    reject(failure);
                }
            });
    });
}

// The full path of the program that has installed the extension in this folder.
function readExecutable(folder) {
    const [, content] = folder.get_child('executable').load_contents(null);
    return new TextDecoder().decode(content).trim();
}

// The whole extension, from construction until destroy(). Shells differ in how they start it.
export class Service {
    // `folder` is the extension's folder.
    constructor(folder) {
        this._folder = folder;
        // The connection that gets the reports, the last report, and the watch on the windows.
        this._follower = null;
        this._sight = null;
        this._watch = null;
        this._isDestroyed = false;
        this._object = Gio.DBusExportedObject.wrapJSObject(kInterface, this);
        this._object.export(Gio.DBus.session, kPath);
        // Ticklog may be running already, and nothing else tells it that the extension is here.
        this._nameWatch = Gio.bus_watch_name_on_connection(Gio.DBus.session, kTicklog,
            Gio.BusNameWatcherFlags.NONE,
            (_bus, _name, owner) => this._welcome(owner), () => this._setFollower(null));
    }

    destroy() {
        if (this._follower)
            this._send('Ended', null);
        this._setFollower(null);
        Gio.bus_unwatch_name(this._nameWatch);
        this._object.unexport();
        this._isDestroyed = true;
    }

    // The method of the interface: from now on the caller gets every change.
    async FollowAsync(_arguments, invocation) {
        const caller = invocation.get_sender();
        if (await this._isOurs(caller)) {
            this._setFollower(caller);
            // A caller that follows already gets the present state too, not the last report.
            this._sight = this._look();
            invocation.return_value(this._sight);
        } else {
            invocation.return_dbus_error('org.freedesktop.DBus.Error.AccessDenied',
                'Only the Ticklog that installed this extension is answered.');
        }
    }

    async _welcome(connection) {
        if (connection !== this._follower && await this._isOurs(connection) && this._setFollower(connection))
            this._send('Changed', this._sight);
    }

    // Whether a connection to the bus is Ticklog's.
    async _isOurs(connection) {
        try {
            if (await askBus('GetNameOwner', '(s)', kTicklog) !== connection)
                return false;
            const process = await askBus('GetConnectionUnixProcessID', '(u)', connection);
            // A program that was updated while it runs is still the installed one.
            const executable = GLib.file_read_link(`/proc/${process}/exe`).replace(/ \(deleted\)$/, '');
            return !this._isDestroyed && executable === readExecutable(this._folder);
        } catch (failure) {
            // The process has ended, or hides its executable.
            return false;
        }
    }

    // Answers whether the follower has changed.
    _setFollower(connection) {
        if (this._follower === connection)
            return false;
        this._follower = connection;
        this._watch?.destroy();
        this._watch = connection ? new WindowWatch(() => this._tell()) : null;
        this._sight = connection ? this._look() : null;
        return true;
    }

    _look() {
        return new GLib.Variant(kSight, [kVersion, kOldestVersion, ...this._watch.describe()]);
    }

    _tell() {
        const sight = this._look();
        if (sight.equal(this._sight))
            return;
        this._sight = sight;
        this._send('Changed', sight);
    }

    // Sends only to the follower.
    _send(signal, sight) {
        Gio.DBus.session.emit_signal(this._follower, kPath, kName, signal, sight);
    }
}
