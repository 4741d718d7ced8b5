// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/BusService.h"

// The version of GNOME Shell, as it says itself. It refuses extensions that do not support its version.
class GnomeShellVersion {
public:
    // The main versions with which the extension was tested; its metadata.json has the same list.
    static const QStringList& tested();

    // `told` is called when the shell tells a new version. `shell` outlives this object.
    GnomeShellVersion(BusService& shell, std::function<void()> told);

    // Asks the shell that is there now.
    void ask();
    // In the form that people use, such as "43.9"; empty until the shell has answered.
    const QString& text() const { return m_text; }
    // Whether the version is known, and the extension was not tested with it.
    bool isUntested() const;
    // Whether it reads extensions as modules (from 45 on) rather than as scripts.
    bool readsModules() const;
    // Whether a list of versions, as in an extension's metadata.json, includes it.
    bool isAmong(const QStringList& versions) const;

private:
    QString main() const { return m_text.section(u'.', 0, 0); }

    BusService& m_shell;
    std::function<void()> m_told;
    QString m_text;
};
