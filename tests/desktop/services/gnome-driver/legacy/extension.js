// SPDX-License-Identifier: MIT
'use strict';

const Me = imports.misc.extensionUtils.getCurrentExtension();

let driver = null;

function init() {}

function enable() {
    import(Me.dir.get_child('driver.js').get_uri()).then(({Driver}) => {
        driver ??= new Driver(imports.ui.main, imports.ui.screenShield.ScreenShield);
    }).catch(logError);
}

function disable() {}
