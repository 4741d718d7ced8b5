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
        // Whether it tells of changes; else it only answers.
        bool tellsOfChanges = true;
        // Whom it tells; empty for this test program.
        QString executable = {};
    };

    // The main version of the shell that is installed; 0 without one.
    static int shellVersion();

    // Has the extension for this test program.
    GnomeDesk();
    explicit GnomeDesk(const Extension& extension, XServer xServer = XServer::None);
    ~GnomeDesk() override;

    QProcessEnvironment environment() const override;
    // As soon as the window is shown.
    bool activate(const QString& title) override;
    bool putAway(const QString& title) override;
    bool touch() override;
    // Brings the window with this title to the front, and waits until the shell says so.
    bool bringToFront(const QString& title);

    // A keyboard for the seat: without one no window of GTK says that it is active.
    bool plugInKeyboard();
    // Has programs that are started from now on tell assistive programs of their windows.
    bool letProgramsTell();

    // Switches the extension as the user does. Answers whether the shell knows it.
    bool enableExtension();
    bool disableExtension();
    // The shell's switch for all extensions of the user. The test's own goes on.
    bool switchAllExtensions(bool isOn);
    // Puts the extension where the shell finds it when it starts the next time.
    void installExtension() { installExtension(Extension()); }
    // Covers the screen as after a while without input, and uncovers it.
    bool coverScreen(bool isCovered);
    // Where the extension lies, or would.
    QString extensionFolder();

private:
    QString startCompositor(std::unique_ptr<Program>& compositor) override;
    void installExtension(const Extension& extension);
    void writeSettings(bool isEnabled);
    // Learns how programs get at the shell's X server, which starts with the first of them.
    void learnXDisplay();
    // Has the test's own extension of the shell do something.
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
