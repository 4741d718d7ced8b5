// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/harness/Program.h"
#include "tests/desktop/harness/SessionBus.h"
#include "tests/desktop/harness/TemporaryHome.h"

#include <memory>
#include <optional>

// A Wayland desktop of its own: a fresh home and a compositor without a screen that anybody sees.
class WaylandDesk {
public:
    // Whether there is an X server for programs that know no Wayland.
    enum class XServer { None, Own };

    virtual ~WaylandDesk();
    WaylandDesk(const WaylandDesk&) = delete;
    WaylandDesk& operator=(const WaylandDesk&) = delete;

    TemporaryHome& home() { return m_home; }

    SessionBus& bus() { return m_bus; }

    // The full path of the compositor's socket, as WAYLAND_DISPLAY takes it.
    const QString& display() const { return m_display; }

    // For programs on this desk.
    virtual QProcessEnvironment environment() const;

    std::unique_ptr<Program> start(const QString& executable, const QStringList& arguments = {},
                                   Program::Output output = Program::Output::Discarded) const;
    // Runs a program to its end and answers whether it succeeded.
    bool run(const QString& executable, const QStringList& arguments) const;

    // Brings the window with this title to the front. Answers whether there is one.
    virtual bool activate(const QString& title) = 0;
    // Takes a window from the screen as the user would, without closing it.
    virtual bool putAway(const QString& title) = 0;

    // Moves the pointer a little. Answers whether that was possible.
    virtual bool touch() = 0;

    // The X server that the compositor runs for older programs, as DISPLAY takes it; empty without one.
    const QString& xDisplay() const { return m_xDisplay; }

    // Stops the compositor, like one that hangs, and lets it go on.
    void pause() const { m_compositor->pause(); }
    void resume() const { m_compositor->resume(); }
    // Kills the compositor, and all windows with it.
    void kill();
    // Starts a compositor again under the same name.
    void restart();

protected:
    WaylandDesk();

    // Reads the display's name from a file that a program of the compositor writes.
    void awaitXDisplay(const QString& path);

    // Starts the compositor and answers its socket; aborts the test program if it does not come up.
    virtual QString startCompositor(std::unique_ptr<Program>& compositor) = 0;

private:
    TemporaryHome m_home;
    SessionBus m_bus;
    std::unique_ptr<Program> m_compositor;
    QString m_display;
    QString m_xDisplay;
};

// sway, for the wlroots family. It refuses to run as root, so it then runs as nobody.
class SwayDesk : public WaylandDesk {
public:
    explicit SwayDesk(XServer xServer = XServer::None);
    ~SwayDesk() override;

    bool activate(const QString& title) override;
    bool putAway(const QString& title) override;
    bool touch() override;
    // As swaymsg does.
    bool tell(const QString& command) const;

private:
    QString startCompositor(std::unique_ptr<Program>& compositor) override;
    QString socketPath() const;

    XServer m_xServer;
    // Belongs to the user that sway runs as.
    QTemporaryDir m_place;
};

// Others that let task bars control windows, by executable, such as "labwc"; tests control them in the same
// way.
class TaskBarDesk : public WaylandDesk {
public:
    explicit TaskBarDesk(const QString& compositor, XServer xServer = XServer::None);
    ~TaskBarDesk() override;

    bool activate(const QString& title) override;
    bool putAway(const QString& title) override;
    bool touch() override;

private:
    QString startCompositor(std::unique_ptr<Program>& compositor) override;

    QString m_name;
    XServer m_xServer;
};

// labwc, whose windows lie over each other.
class LabwcDesk : public TaskBarDesk {
public:
    explicit LabwcDesk(XServer xServer = XServer::None)
        : TaskBarDesk(QStringLiteral("labwc"), xServer) {}
};

// phoc, a compositor for phones.
class PhocDesk : public TaskBarDesk {
public:
    PhocDesk()
        : TaskBarDesk(QStringLiteral("phoc")) {}
};

// Miriway, which offers the protocol where its configuration says so.
class MiriwayDesk : public TaskBarDesk {
public:
    MiriwayDesk()
        : TaskBarDesk(QStringLiteral("miriway")) {}

    // It accepts no input from programs, and reports none.
    bool touch() override { return true; }
};

// KWin, for Plasma.
class KWinDesk : public WaylandDesk {
public:
    // Whether every program may see the windows, or only those whose desktop entry asks for it.
    enum class Windows { ForAll, ForThoseThatAsk };

    explicit KWinDesk(Windows windows = Windows::ForAll, XServer xServer = XServer::None);
    ~KWinDesk() override;

    bool activate(const QString& title) override;
    bool putAway(const QString& title) override;
    bool touch() override;

private:
    QString startCompositor(std::unique_ptr<Program>& compositor) override;
    // Runs statements with `window`, for the window with this title.
    bool script(const QString& title, const QString& statements);

    Windows m_windows;
    XServer m_xServer;
    int m_scripts = 0;
};
