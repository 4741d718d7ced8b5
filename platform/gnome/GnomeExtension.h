// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ShellExtension.h"
#include "platform/bus/BusService.h"
#include "platform/foundation/values/SystemLog.h"
#include "platform/gnome/GnomeShellVersion.h"

#include <QMap>
#include <QStringList>

// Ticklog's extension of GNOME Shell: its files, and its state in the shell. Main thread only.
class GnomeExtension : public ShellExtension {
public:
    struct Places {
        // The folder with the files to install: those for all shells and, below it, those for shells before
        // 45 ("legacy") and from 45 on ("modules").
        QString source;
        // The data folders of the user and of the system, the user's first, in the order in which the shell
        // searches them.
        QStringList dataFolders;
        // The program to which the extension reports, as a full path.
        QString executable;

        // The folders for this process.
        static Places forUser(const QString& source);
    };

    // A shell that is starting has its bus name before it answers; it is asked again after this time.
    static constexpr std::chrono::seconds kAskingAgain{1};

    // Updates this user's copy, if there is one: it may be from an earlier version, for another version of
    // the shell, or have another path for this program. The path is updated when the constructor returns, the
    // other files when the shell has told its version. Bus, loop and log outlive this object.
    GnomeExtension(Bus& sessionBus, RunLoop& runLoop, SystemLog& log, Places places);

    State state() const override { return m_state; }
    Subscription observe(News::Hearer hearer) override { return m_changes.observe(std::move(hearer)); }
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
    // Why an extension that the shell could run does not run.
    State stateAtRest(const QVariantMap& description) const;
    // Whether the shell can find a copy that suits its version.
    bool isInstalled() const;
    QString usersFolder() const;
    // By file name; the files for the user's folder, as far as they are known.
    QMap<QString, QByteArray> files() const;
    Outcome write(const QMap<QString, QByteArray>& files) const;

    RunLoop& m_runLoop;
    SystemLog& m_log;
    Places m_places;
    State m_state = State::Unknown;
    News m_changes;
    bool m_isLocked = false;
    bool m_areAllOff = false;
    BusService m_shell;
    GnomeShellVersion m_version;
    std::unique_ptr<RunLoopTimer> m_askingAgain;
    std::unique_ptr<BusSignal> m_changed;
    std::unique_ptr<BusSignal> m_lockChanged;
    Subscription m_presence;
};
