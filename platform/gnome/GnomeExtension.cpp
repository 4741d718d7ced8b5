// SPDX-License-Identifier: MIT
#include "platform/gnome/GnomeExtension.h"

#include "platform/bus/BusMap.h"
#include "platform/gnome/GnomeShell.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>

namespace {

// Whom the extension tells; it lies beside its sources.
const QString kExecutableFile = QStringLiteral("executable");

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

QString folderBelow(const QString& dataFolder) {
    return dataFolder + QStringLiteral("/gnome-shell/extensions/") + kTicklogExtension;
}

// The numbers are those of the shell's own ExtensionState.
ShellExtension::State stateOf(int number) {
    switch (number) {
    case 1:
        return ShellExtension::State::On;
    case 3:
    case 4:
        return ShellExtension::State::Refused;
    default:
        return ShellExtension::State::Off;
    }
}

} // namespace

GnomeExtension::Places GnomeExtension::Places::forUser(const QString& source) {
    return {source, QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation),
            QFileInfo(QCoreApplication::applicationFilePath()).canonicalFilePath()};
}

GnomeExtension::GnomeExtension(Bus& sessionBus, RunLoop& runLoop, Places places)
    : m_runLoop(runLoop)
    , m_places(std::move(places))
    , m_shell(sessionBus, kGnomeShell)
    , m_version(m_shell, [this] { ask(); })
    , m_changed(m_shell.listen({kGnomeShellPath, kGnomeShellExtensions,
                                QStringLiteral("ExtensionStateChanged"), kTicklogExtension},
                               [this](const QDBusMessage&) { ask(); }))
    , m_presence(m_shell.observe([this] { follow(); })) {}

void GnomeExtension::follow() {
    if (m_shell.isServed()) {
        m_version.ask();
        ask();
    } else {
        setState(State::Unknown);
    }
}

void GnomeExtension::ask() {
    m_shell.call(kGnomeShellPath, kGnomeShellExtensions, QStringLiteral("GetExtensionInfo"),
                 {kTicklogExtension}, [this](const QDBusMessage& answer) {
                     if (answer.type() == QDBusMessage::ReplyMessage)
                         takeIn(mapIn(answer, "a{sv}", 0));
                     else if (m_shell.isServed())
                         m_askingAgain = m_runLoop.scheduleOnce(kAskingAgain, [this] { follow(); });
                 });
}

void GnomeExtension::takeIn(const QVariantMap& description) {
    const State described = stateOf(description.value(QStringLiteral("state")).toInt());
    // One that was not tested with it is not offered to a shell, which would refuse it after the next login.
    if (m_version.isUntested() && described != State::On)
        setState(State::Refused);
    // The shell describes what it does not know with nothing.
    else if (!description.isEmpty())
        setState(described);
    else
        setState(isInstalled() ? State::AwaitsLogin : State::Missing);
}

void GnomeExtension::setState(State state) {
    if (std::exchange(m_state, state) == state)
        return;
    // A copy, because it may be replaced while it runs.
    if (const std::function<void()> observer = m_observer)
        observer();
}

bool GnomeExtension::isInstalled() const {
    return std::ranges::any_of(m_places.dataFolders, [](const QString& folder) {
        return QFile::exists(folderBelow(folder) + QStringLiteral("/metadata.json"));
    });
}

QString GnomeExtension::usersFolder() const {
    return folderBelow(m_places.dataFolders.value(0));
}

QMap<QString, QByteArray> GnomeExtension::files() const {
    QMap<QString, QByteArray> files;
    for (const QString& name : QDir(m_places.source).entryList(QDir::Files))
        files.insert(name, contentOf(m_places.source + u'/' + name));
    files.insert(kExecutableFile, QFile::encodeName(m_places.executable) + '\n');
    return files;
}

Outcome GnomeExtension::install() {
    const QString folder = usersFolder();
    const Failure failure{Failure::Kind::CannotWrite,
                          QStringLiteral("GNOME Shell's extension cannot be written to ") + folder};
    if (!QDir().mkpath(folder))
        return failure;
    const auto written = files();
    for (auto content = written.cbegin(); content != written.cend(); ++content) {
        QSaveFile file(folder + u'/' + content.key());
        if (!file.open(QFile::WriteOnly) || file.write(*content) != content->size() || !file.commit())
            return failure;
    }
    if (m_shell.isServed())
        ask();
    return Done();
}

Outcome GnomeExtension::renew() {
    const QString folder = usersFolder();
    const auto wanted = files();
    bool isCurrent = true;
    for (auto content = wanted.cbegin(); content != wanted.cend(); ++content)
        isCurrent &= contentOf(folder + u'/' + content.key()) == *content;
    if (isCurrent || !QFileInfo::exists(folder))
        return Done();
    return install();
}

void GnomeExtension::switchOn() {
    // What it comes to is told by the signal.
    m_shell.call(kGnomeShellPath, kGnomeShellExtensions, QStringLiteral("EnableExtension"),
                 {kTicklogExtension});
}

Outcome GnomeExtension::remove() {
    m_shell.call(kGnomeShellPath, kGnomeShellExtensions, QStringLiteral("DisableExtension"),
                 {kTicklogExtension});
    if (!QDir(usersFolder()).removeRecursively())
        return Failure{Failure::Kind::CannotWrite,
                       QStringLiteral("GNOME Shell's extension cannot be removed from ") + usersFolder()};
    return Done();
}
