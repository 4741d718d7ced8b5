// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/BusService.h"

// Which version of GNOME Shell runs, as it says itself. It refuses extensions that were not made for its version.
class GnomeShellVersion {
public:
    // The main versions that Ticklog's extension was tested with; its metadata.json names the same.
    static const QStringList& tested();

    // `told` is called when the shell has said another version than before. `shell` outlives this.
    GnomeShellVersion(BusService& shell, std::function<void()> told);

    // Asks the shell that is there now.
    void ask();
    // As people know it, such as "43.9"; empty until the shell has said.
    const QString& text() const { return m_text; }
    // Whether it is known to be one that the extension was not tested with.
    bool isUntested() const;
    // Whether it reads extensions as modules, as shells do since 45; those before read scripts.
    bool readsModules() const;
    // Whether a list of versions, as in an extension's metadata.json, names it.
    bool isAmong(const QStringList& versions) const;

private:
    QString main() const { return m_text.section(u'.', 0, 0); }

    BusService& m_shell;
    std::function<void()> m_told;
    QString m_text;
};
