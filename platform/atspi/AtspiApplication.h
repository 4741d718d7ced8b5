// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/Bus.h"

#include <cstdint>
#include <optional>
#include <vector>

// A program on the accessibility bus, as it last described itself: its name, its windows, and which of them
// is the main one. Read as a whole, in steps that wait for nothing: single events of toolkits come in pairs
// that cancel each other, so what counts is the state once it has settled. A program that does not answer
// stays as it was. The bus and the loop must outlive it.
class AtspiApplication : public QObject {
    Q_OBJECT

public:
    // What a change is about.
    struct Change {
        bool isMainWindow = false;
        bool isTitle = false;
        // Another window is active, or none is any more, or it is not known any more.
        bool isActivity = false;
    };

    using Changed = std::function<void(std::int64_t processIdentifier, Change change)>;

    // How long after an event the state has settled.
    static constexpr std::chrono::milliseconds kSettling{50};

    // `name` is the connection's unique name, `root` the path of the application's own object. Reads it at
    // once.
    AtspiApplication(Bus& bus, RunLoop& runLoop, QString name, QString root, Changed changed);

    const QString& connectionName() const { return m_name; }

    // Zero until the bus has told.
    std::int64_t processIdentifier() const { return m_processIdentifier; }

    // Each is empty until it is read.
    const QString& title() const { return m_title; }

    // The path of the main window: the active one, else the last that was, else the first that shows.
    const QString& mainWindow() const { return m_mainWindow; }

    // The path of the active window; empty when none is, and while the program does not answer.
    QString activeWindow() const { return m_isSilent ? QString() : m_activeWindow; }

    // Absent when there is no such window.
    std::optional<QString> windowTitle(const QString& path) const;

    // Whether it has windows and has never told of anything: it may have asked who listens before we did.
    bool isDeaf() const { return !m_hasSpoken && !m_windows.empty(); }

    // Something happened in it: reads it again when that has settled.
    void touch();
    // One of its objects has a new name. Of the many objects that tell, only windows and the application
    // count.
    void rename(const QString& path, const QString& name);
    // Asks for the main window's title anew, unless the last answer is still owed. An application that has
    // never told of anything is read as a whole: it may have started too early to hear that somebody listens.
    void reread();

private:
    // For an answer, in milliseconds. Who takes longer is silent until then.
    static constexpr int kPatienceMs = 5000;

    struct Window {
        QString path;
        QString title;
        bool isActive = false;
        bool isShowing = false;
    };

    // A reading of the whole application under way.
    struct Reading {
        std::vector<Window> windows;
        int owed = 0;
        // In either case what is known stays.
        bool isSilent = false;
        bool isRefused = false;
    };

    void readSoon();
    void rereadTitle();
    void read();
    void readWindows(const QDBusMessage& children);
    void readWindow(const std::shared_ptr<Reading>& reading, std::size_t index);
    void settle(const std::shared_ptr<Reading>& reading, const QDBusMessage& reply);
    void adopt(std::vector<Window> windows);
    void tell(const QString& mainWindowBefore, const std::optional<QString>& titleBefore,
              bool isActivity = false);
    void fallSilent();
    void ask(const QString& path, const QString& interface, const QString& member,
             const QVariantList& arguments, Bus::Receiver receiver, int timeoutMs = kPatienceMs);
    void askName(const QString& path, std::function<void(const QDBusMessage&, const QString&)> receiver,
                 int timeoutMs = kPatienceMs);

    Bus& m_bus;
    RunLoop& m_runLoop;
    QString m_name;
    QString m_root;
    Changed m_changed;
    std::int64_t m_processIdentifier = 0;
    QString m_title;
    std::vector<Window> m_windows;
    QString m_mainWindow;
    QString m_activeWindow;
    bool m_isReading = false;
    // Touched while it was settling or being read.
    bool m_isStale = false;
    bool m_isTitleOwed = false;
    // Owes an answer for longer than the patience with which it is asked.
    bool m_isSilent = false;
    // Has sent an event.
    bool m_hasSpoken = false;
    // Runs from an event to the reading that it causes.
    std::unique_ptr<RunLoopTimer> m_settling;
};
