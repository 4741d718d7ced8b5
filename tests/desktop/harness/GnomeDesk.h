// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/harness/WaylandDesk.h"

#include <QDBusMessage>
#include <QMap>

// GNOME Shell on a bus of its own, with or without Ticklog's extension.
class GnomeDesk : public WaylandDesk {
public:
    // What the shell finds when it starts.
    struct Extension {
        bool isInstalled = true;
        bool isEnabled = true;
        // The versions that it says it speaks.
        int version = 1;
        int oldestVersion = 1;
        // Whether it reports changes; otherwise it only answers.
        bool tellsOfChanges = true;
        // The program to which it reports; empty for this test program.
        QString executable = {};
    };

    // The main version of the shell that is installed; 0 without one.
    static int shellVersion();

    // With the extension for this test program.
    GnomeDesk();
    explicit GnomeDesk(const Extension& extension, XServer xServer = XServer::None);
    ~GnomeDesk() override;

    QProcessEnvironment environment() const override;
    // Waits until the window is shown.
    bool activate(const QString& title) override;
    bool putAway(const QString& title) override;
    bool touch() override;
    // Brings the window with this title to the front, and waits until the shell says so.
    bool bringToFront(const QString& title);

    // Plugs in a keyboard: without one, no GTK window says that it is active.
    bool plugInKeyboard();
    // Makes programs that are started from now on tell assistive programs about their windows.
    bool letProgramsTell();

    // Switches the extension as a user does. Answers whether the shell knows it.
    bool enableExtension();
    bool disableExtension();
    // The shell's switch for all of the user's extensions. The test's own extension goes on.
    bool switchAllExtensions(bool isOn);
    // Puts the extension where the shell finds it at its next start.
    void installExtension() { installExtension(Extension()); }
    // Covers the screen, as after some time without input, or uncovers it.
    bool coverScreen(bool isCovered);
    // Where the extension lies, or would.
    QString extensionFolder();

private:
    QString startCompositor(std::unique_ptr<Program>& compositor) override;
    void installExtension(const Extension& extension);
    void writeSettings(bool isEnabled);
    // Learns how programs reach the shell's X server, which starts with the first of them.
    void learnXDisplay();
    // Makes the test's own shell extension do something.
    bool drive(const QString& method, const QString& argument);
    QDBusMessage askDriver(const QString& method, const QString& argument);
    bool set(const QString& service, const QString& path, const QString& interface, const QString& property,
             bool value);
    QDBusMessage call(const QString& service, const QString& path, const QString& interface,
                      const QString& method, const QVariantList& arguments);

    const XServer m_xServer;
    // Variables for programs of X.
    QMap<QString, QString> m_xVariables;
    std::unique_ptr<SessionBus> m_systemBus;
    bool m_letsProgramsTell = false;
};
