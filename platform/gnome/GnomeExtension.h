// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ShellExtension.h"
#include "platform/bus/BusService.h"
#include "platform/foundation/values/SystemLog.h"
#include "platform/gnome/GnomeShellVersion.h"

#include <QMap>
#include <QStringList>

// Ticklog's extension of GNOME Shell: its files, and what the shell makes of them. Main thread only.
class GnomeExtension : public ShellExtension {
public:
    struct Places {
        // A folder with the files to install: what all shells read, and below it what only those before 45 ("legacy") or
        // since then ("modules") do.
        QString source;
        // The folders with data of the user and of the system, the user's first, as the shell looks through them.
        QStringList dataFolders;
        // The program that the extension shall tell, as a full path.
        QString executable;

        // Those of this process.
        static Places forUser(const QString& source);
    };

    // A shell that starts has its name before it answers; it is asked again this much later.
    static constexpr std::chrono::seconds kAskingAgain{1};

    // Brings this user's copy, where there is one, up to what this program would install: it may be an earlier version's,
    // be made for another version of the shell, or know this program by another path. The path is there when this
    // returns, the rest when the shell has said which version it is. Bus, loop and log outlive this.
    GnomeExtension(Bus& sessionBus, RunLoop& runLoop, SystemLog& log, Places places);

    State state() const override { return m_state; }
    void observe(std::function<void()> changed) override { m_observer = std::move(changed); }
    Outcome install() override;
    void switchOn() override;
    Outcome remove() override;

private:
    void follow();
    void learnVersion();
    void renew();
    void ask();
    void takeIn(const QVariantMap& description);
    void setState(State state);
    State stateOf(const QVariantMap& description) const;
    // Why one that the shell could run does not run.
    State stateAtRest(const QVariantMap& description) const;
    // Whether the shell finds one that was made for it.
    bool isInstalled() const;
    QString usersFolder() const;
    // By file name; what belongs into the user's folder, as far as that is known.
    QMap<QString, QByteArray> files() const;
    Outcome write(const QMap<QString, QByteArray>& files) const;

    RunLoop& m_runLoop;
    SystemLog& m_log;
    Places m_places;
    State m_state = State::Unknown;
    std::function<void()> m_observer;
    bool m_isLocked = false;
    bool m_areAllOff = false;
    BusService m_shell;
    GnomeShellVersion m_version;
    std::unique_ptr<RunLoopTimer> m_askingAgain;
    std::unique_ptr<BusSignal> m_changed;
    std::unique_ptr<BusSignal> m_lockChanged;
    Subscription m_presence;
};
