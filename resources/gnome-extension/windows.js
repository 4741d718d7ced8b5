// SPDX-License-Identifier: MIT

import GLib from 'gi://GLib';
import Meta from 'gi://Meta';
import Shell from 'gi://Shell';

// The layers that Ticklog expects: ordinary windows are in layer 0.
function layerOf(window) {
    switch (window.get_window_type()) {
    case Meta.WindowType.NORMAL:
    case Meta.WindowType.DIALOG:
    case Meta.WindowType.MODAL_DIALOG:
    case Meta.WindowType.UTILITY:
        return 0;
    case Meta.WindowType.DESKTOP:
        return -1000;
    case Meta.WindowType.DOCK:
        return 20;
    default:
        return 10;
    }
}

// The id of a window's desktop entry; empty if it has none.
function applicationIdOf(window) {
    const application = Shell.WindowTracker.get_default().get_window_app(window);
    if (!application || application.is_window_backed())
        return '';
    return application.get_id().replace(/\.desktop$/, '');
}

// Watches the windows on the screen from construction until destroy().
export class WindowWatch {
    // `changed` is called once for all changes within a turn of the loop.
    constructor(changed) {
        this._changed = changed;
        this._soon = 0;
        // The signal handlers of each object that is watched.
        this._handlers = new Map();
        this._look(global.display, {
            'notify::focus-window': () => this._changeSoon(),
            'restacked': () => this._changeSoon(),
            'window-created': (_display, window) => this._add(window),
        });
        this._look(global.workspace_manager, {'active-workspace-changed': () => this._changeSoon()});
        this._look(Shell.WindowTracker.get_default(), {'tracked-windows-changed': () => this._changeSoon()});
        this._windows = new Set();
        for (const actor of global.get_window_actors())
            this._add(actor.get_meta_window());
    }

    destroy() {
        for (const [object, handlers] of this._handlers)
            handlers.forEach(handler => object.disconnect(handler));
        this._handlers.clear();
        this._windows.clear();
        if (this._soon)
            GLib.source_remove(this._soon);
        this._soon = 0;
    }

    // The number of the window with the focus, 0 for none; and the windows on the screen, front to back.
    describe() {
        const windows = global.get_window_actors().reverse().map(actor => actor.get_meta_window())
            .filter(window => this._isOnScreen(window));
        const focused = global.display.get_focus_window();
        const isFocused = focused && windows.includes(focused);
        return [isFocused ? focused.get_stable_sequence() : 0, windows.map(window => [
            window.get_stable_sequence(), window.get_pid(), window.get_title() ?? '',
            applicationIdOf(window), window.get_wm_class() ?? '', layerOf(window),
        ])];
    }

    _isOnScreen(window) {
        // A closed window fades out for a while.
        return this._windows.has(window) && !window.is_override_redirect() && window.showing_on_its_workspace() &&
            window.located_on_workspace(global.workspace_manager.get_active_workspace());
    }

    _add(window) {
        if (!window || this._windows.has(window))
            return;
        this._windows.add(window);
        const change = () => this._changeSoon();
        this._look(window, {
            'notify::title': change,
            'notify::minimized': change,
            'notify::wm-class': change,
            'workspace-changed': change,
            'unmanaging': () => this._remove(window),
        });
        this._changeSoon();
    }

    _remove(window) {
        this._handlers.get(window).forEach(handler => window.disconnect(handler));
        this._handlers.delete(window);
        this._windows.delete(window);
        this._changeSoon();
    }

    _look(object, receivers) {
        this._handlers.set(object, Object.entries(receivers).map(
            ([signal, receiver]) => object.connect(signal, receiver)));
    }

    _changeSoon() {
        if (this._soon)
            return;
        this._soon = GLib.idle_add(GLib.PRIORITY_DEFAULT, () => {
            this._soon = 0;
            this._changed();
            return GLib.SOURCE_REMOVE;
        });
    }
}
