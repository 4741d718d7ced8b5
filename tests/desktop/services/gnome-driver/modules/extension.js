// SPDX-License-Identifier: MIT
import {Extension} from 'resource:///org/gnome/shell/extensions/extension.js';
import * as Main from 'resource:///org/gnome/shell/ui/main.js';
import {ScreenShield} from 'resource:///org/gnome/shell/ui/screenShield.js';
import {Driver} from './driver.js';

export default class DriverExtension extends Extension {
    enable() {
        this._driver ??= new Driver(Main, ScreenShield);
    }

    disable() {}
}
