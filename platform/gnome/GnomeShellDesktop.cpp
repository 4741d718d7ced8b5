// SPDX-License-Identifier: MIT
#include "platform/gnome/GnomeShellDesktop.h"

#include "platform/foundation/programs/ProcessExecutable.h"
#include "platform/foundation/text/LocalizedStrings.h"
#include "platform/gnome/GnomeShell.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

GnomeShellDesktop::GnomeShellDesktop(Bus& sessionBus, BusName& ownName, SystemLog& log,
                                     DesktopEntries& entries)
    : m_log(log)
    , m_desktopEntries(entries)
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

bool GnomeShellDesktop::installSwitchHandler(std::function<void()> handler) {
    m_handler = std::move(handler);
    return true;
}

QString GnomeShellDesktop::bundleName(const QString& path) const {
    return m_desktopEntries.nameForExecutable(path).value_or(QFileInfo(path).fileName());
}

QString GnomeShellDesktop::describe() const {
    return m_isTold ? QStringLiteral("GNOME Shell: Ticklog's extension tells of the windows")
                    : QStringLiteral("GNOME Shell: nobody tells of the windows");
}

QString GnomeShellDesktop::reasonForSilence() const {
    if (m_version.isUntested())
        return localized(
                   "The extension that belongs to Ticklog has not been tested with GNOME Shell %@, which "
                   "does not run it therefore.")
            .replace(QLatin1String("%@"), m_version.text());
    return localized("GNOME Shell tells which window is in front only to its extensions, and the one that "
                     "belongs to Ticklog is not running.");
}

QString GnomeShellDesktop::obstacle() const {
    if (m_isTold)
        return {};
    return reasonForSilence() + u' ' + localized("Until it runs, no window is credited.");
}

void GnomeShellDesktop::follow() {
    if (!m_shell.isServed() || !m_name.isOwned()) {
        end();
        hear();
        return;
    }
    m_version.ask();
    // Answered by the extension itself, and not by the shell's part of the bus, which goes on while the shell hangs.
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
    // A call of what is not there is refused by the shell's part of the bus. What the shell says of itself it says itself.
    m_shell.call(
        kGnomeShellPath, kPropertiesInterface, QStringLiteral("Get"),
        {kGnomeShell, QStringLiteral("ShellVersion")}, [this](const QDBusMessage&) { hear(); },
        Bus::kHoweverLate);
}

void GnomeShellDesktop::hear() {
    if (m_heardHandler)
        m_heardHandler();
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
        // When it comes it tells us.
        logOnce(QStringLiteral("Ticklog's extension of GNOME Shell is not running."));
}

void GnomeShellDesktop::takeIn(const QDBusMessage& message) {
    // A last message may come after somebody else has been given our name.
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
    m_entries.clear();
    // A shell that is started anew counts its windows anew.
    m_programs.clear();
    m_isTold = false;
    // The account goes on crediting whoever was told last, and that must not be a window that nobody sees any more.
    if (m_front)
        setFront(nothingInFront());
}

void GnomeShellDesktop::adopt(const GnomeSight& sight) {
    ApplicationRecord front = nothingInFront();
    std::unordered_map<std::uint32_t, Program> programs;
    std::vector<WindowListEntry> entries;
    for (const GnomeSight::Window& window : sight.windows) {
        const ApplicationRecord& application =
            programs.emplace(window.number, programOf(window)).first->second.application;
        WindowListEntry entry{window.number, application.processIdentifier, window.layer,
                              window.title.isEmpty() ? std::nullopt : std::optional(window.title),
                              application.name};
        const bool isFocused = window.number == sight.focused;
        if (isFocused && window.layer >= 0)
            front = application;
        // What has the focus is in front even where it is not raised.
        entries.insert(isFocused ? entries.begin() : entries.end(), std::move(entry));
    }
    m_entries = std::move(entries);
    m_programs = std::move(programs);
    m_madeUpProcesses.settle(m_programs, [](const auto& entry) -> QString {
        return entry.second.applicationId + u'\n' + entry.second.windowClass;
    });
    m_isTold = true;
    setFront(front);
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
    ApplicationRecord application;
    application.processIdentifier = processOf(window);
    if (window.process > 0)
        application.path = executableOfProcess(window.process);
    const QStringList names{window.applicationId, window.windowClass};
    if (application.processIdentifier == QCoreApplication::applicationPid())
        application.name = kOwnName;
    else if (const auto name = m_desktopEntries.nameForWindow(names, application.path))
        application.name = *name;
    else
        application.name = window.windowClass;
    for (const QString& name :
         {window.applicationId, QFileInfo(application.path).fileName(), kNamelessName}) {
        if (application.name.isEmpty())
            application.name = name;
    }
    return application;
}

std::int64_t GnomeShellDesktop::processOf(const GnomeSight::Window& window) {
    if (window.process > 0)
        return window.process;
    return m_madeUpProcesses.of(window.applicationId + u'\n' + window.windowClass);
}

void GnomeShellDesktop::setFront(const std::optional<ApplicationRecord>& front) {
    if (m_front == front)
        return;
    m_front = front;
    // A copy, because the handler may install another one.
    if (const std::function<void()> handler = m_handler)
        handler();
}

void GnomeShellDesktop::logOnce(const QString& line) {
    if (std::exchange(m_lastLogged, line) != line)
        m_log.log(line);
}
