// SPDX-License-Identifier: MIT
// GNOME Shell up to 44 starts extensions as scripts, which can load modules only later.
'use strict';

const Me = imports.misc.extensionUtils.getCurrentExtension();

let isEnabled = false;
let service = null;

function init() {}

function enable() {
    isEnabled = true;
    import(Me.dir.get_child('service.js').get_uri()).then(({Service}) => {
        // It may have been disabled and enabled again meanwhile.
        if (isEnabled)
            service ??= new Service(Me.dir);
    }).catch(logError);
}

function disable() {
    isEnabled = false;
    service?.destroy();
    service = null;
}
