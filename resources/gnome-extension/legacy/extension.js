// SPDX-License-Identifier: MIT
// GNOME Shell up to 44 begins extensions as scripts, which get at modules a little later.
'use strict';

const Me = imports.misc.extensionUtils.getCurrentExtension();

let isEnabled = false;
let service = null;

function init() {}

function enable() {
    isEnabled = true;
    import(Me.dir.get_child('service.js').get_uri()).then(({Service}) => {
        // It may have been disabled in the meantime, and enabled once more.
        if (isEnabled)
            service ??= new Service(Me.dir);
    }).catch(logError);
}

function disable() {
    isEnabled = false;
    service?.destroy();
    service = null;
}
