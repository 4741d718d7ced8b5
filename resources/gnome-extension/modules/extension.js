// SPDX-License-Identifier: MIT
// GNOME Shell from 45 on starts extensions as modules.
import {Extension} from 'resource:///org/gnome/shell/extensions/extension.js';
import {Service} from './service.js';

export default class TicklogExtension extends Extension {
    enable() {
        this._service = new Service(this.dir);
    }

    disable() {
        this._service.destroy();
        this._service = null;
    }
}
