// SPDX-License-Identifier: MIT
#include "platform/gnome/GnomeShellDesktop.h"

#include "platform/foundation/text/LocalizedStrings.h"
#include "platform/gnome/GnomeShell.h"

#include <QCoreApplication>

GnomeShellDesktop::GnomeShellDesktop(Bus& sessionBus, BusName& ownName, SystemLog& log,
                                     DesktopEntries& entries)
    : TellingDesktop(entries)
    , m_log(log)
    , m_shell(sessionBus, kGnomeShell)
    , m_version(m_shell, [] {})
    , m_changed(m_shell.listen({kTicklogShellPath, kTicklogShell, QStringLiteral("Changed"), QString()},
                               [this](const QDBusMessage& signal) {
                                   takeIn(signal);
                                   hear();
                               }))
    , m_ended(m_shell.listen({kTicklogShellPath, kTicklogShell, QStringLiteral("Ended"), QString()},
                             [this](const QDBusMessage&) {
                                 end();
                                 hear();
                             }))
    , m_name(ownName)
    , m_naming(m_name.observe([this] { follow(); }))
    , m_presence(m_shell.observe([this] { follow(); })) {}

QString GnomeShellDesktop::describe() const {
    return m_isTold ? QStringLiteral("GNOME Shell: Ticklog's extension tells of the windows")
                    : QStringLiteral("GNOME Shell: nobody tells of the windows");
}

QString GnomeShellDesktop::reasonForSilence() const {
    if (m_version.isUntested())
        return localized("Ticklog’s extension does not support GNOME Shell %@ yet.")
            .replace(QLatin1String("%@"), m_version.text());
    return localized("GNOME Shell tells which window is in front only to its extensions, and the one that "
                     "belongs to Ticklog is not running.");
}

QString GnomeShellDesktop::obstacle() const {
    if (m_isTold)
        return {};
    return reasonForSilence() + u' ' + localized("Until it runs, no window’s time is counted.");
}

void GnomeShellDesktop::follow() {
    if (!m_shell.isServed() || !m_name.isOwned()) {
        end();
        hear();
        return;
    }
    m_version.ask();
    // The extension itself answers this; the shell's part of the bus also answers while the shell hangs.
    m_shell.call(
        kTicklogShellPath, kTicklogShell, QStringLiteral("Follow"), {},
        [this](const QDBusMessage& answer) {
            takeInAnswer(answer);
            hear();
        },
        Bus::kHoweverLate);
}

void GnomeShellDesktop::askForSign() {
    if (m_isTold)
        return follow();
    // Calls to unknown objects are answered by the shell's part of the bus. A property of the shell is
    // answered by the shell itself.
    m_shell.call(
        kGnomeShellPath, kPropertiesInterface, QStringLiteral("Get"),
        {kGnomeShell, QStringLiteral("ShellVersion")}, [this](const QDBusMessage&) { hear(); },
        Bus::kHoweverLate);
}

void GnomeShellDesktop::takeInAnswer(const QDBusMessage& answer) {
    if (answer.type() == QDBusMessage::ReplyMessage) {
        takeIn(answer);
        return;
    }
    end();
    if (answer.errorName() == QLatin1String("org.freedesktop.DBus.Error.AccessDenied"))
        logOnce(QStringLiteral("The extension of GNOME Shell belongs to another Ticklog than this: ") +
                QCoreApplication::applicationFilePath());
    else
        // If the extension comes, it reports.
        logOnce(QStringLiteral("Ticklog's extension of GNOME Shell is not running."));
}

void GnomeShellDesktop::takeIn(const QDBusMessage& message) {
    // A last message may come after another process has got our name.
    const auto sight = isUnderstood(message) && m_name.isOwned() ? GnomeSight::read(message) : std::nullopt;
    if (sight)
        adopt(*sight);
    else
        end();
}

bool GnomeShellDesktop::isUnderstood(const QDBusMessage& message) {
    const auto versions = GnomeSight::versionsOf(message);
    const bool isReadable = versions && versions->areUnderstood() && GnomeSight::read(message);
    const QString spoken = versions ? QString::number(versions->spoken) : QStringLiteral("unknown");
    if (!isReadable)
        logOnce(QStringLiteral(
                    "Ticklog's extension of GNOME Shell speaks version %1, which this Ticklog does not "
                    "understand: it knows %2. Install the extension anew and log in again.")
                    .arg(spoken)
                    .arg(GnomeSight::kVersion));
    else if (versions->spoken != GnomeSight::kVersion)
        logOnce(
            QStringLiteral("Ticklog's extension of GNOME Shell speaks version %1; this Ticklog knows %2, and "
                           "understands it.")
                .arg(spoken)
                .arg(GnomeSight::kVersion));
    else
        logOnce(QStringLiteral("Ticklog's extension of GNOME Shell tells of the windows."));
    return isReadable;
}

void GnomeShellDesktop::end() {
    // A restarted shell numbers its windows from 1 again.
    m_programs.clear();
    m_isTold = false;
    show({}, frontAfterwards());
}

void GnomeShellDesktop::adopt(const GnomeSight& sight) {
    ApplicationRecord front = nothingInFront();
    std::unordered_map<std::uint32_t, Program> programs;
    std::vector<WindowListEntry> entries;
    for (const GnomeSight::Window& window : sight.windows) {
        const ApplicationRecord& application =
            programs.emplace(window.number, programOf(window)).first->second.application;
        entries.push_back({window.number, application.processIdentifier, window.layer == 0,
                           window.title.isEmpty() ? std::nullopt : std::optional(window.title),
                           application.name});
        if (window.number == sight.focused && window.layer >= 0)
            front = application;
    }
    m_programs = std::move(programs);
    m_madeUpProcesses.settle(m_programs, [](const auto& entry) -> QString {
        return entry.second.applicationId + u'\n' + entry.second.windowClass;
    });
    m_isTold = true;
    show(std::move(entries), sight.focused, front);
}

GnomeShellDesktop::Program GnomeShellDesktop::programOf(const GnomeSight::Window& window) {
    const auto known = m_programs.find(window.number);
    if (known != m_programs.end() && known->second.process == window.process &&
        known->second.applicationId == window.applicationId &&
        known->second.windowClass == window.windowClass)
        return known->second;
    return {window.process, window.applicationId, window.windowClass, applicationOf(window)};
}

ApplicationRecord GnomeShellDesktop::applicationOf(const GnomeSight::Window& window) {
    const QStringList classes{window.applicationId, window.windowClass};
    const std::int64_t process =
        window.process > 0 ? window.process : m_madeUpProcesses.of(classes.join(u'\n'));
    return recordOf(process, classes, process == QCoreApplication::applicationPid());
}

void GnomeShellDesktop::logOnce(const QString& line) {
    if (std::exchange(m_lastLogged, line) != line)
        m_log.log(line);
}
