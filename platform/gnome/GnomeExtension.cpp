// SPDX-License-Identifier: MIT
#include "platform/gnome/GnomeExtension.h"

#include "platform/bus/BusMap.h"
#include "platform/gnome/GnomeShell.h"

#include <QCoreApplication>
#include <QDBusVariant>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QStandardPaths>

namespace {

// The file with the program to which the extension reports; it is beside the extension's sources.
const QString kExecutableFile = QStringLiteral("executable");

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

QString folderBelow(const QString& dataFolder) {
    return dataFolder + QStringLiteral("/gnome-shell/extensions/") + kTicklogExtension;
}

// The versions of the shell in an extension's metadata.json.
QStringList versionsOf(const QByteArray& metadata) {
    QStringList versions;
    for (const auto& version :
         QJsonDocument::fromJson(metadata).object().value(QLatin1String("shell-version")).toArray())
        versions << version.toString();
    return versions;
}

// From the shell's own ExtensionState.
enum ShellsState { kActive = 1, kError = 3, kOutOfDate = 4 };

const QString kAllExtensions = QStringLiteral("UserExtensionsEnabled");
const QString kScreenSaver = QStringLiteral("org.gnome.ScreenSaver");
const QString kScreenSaverPath = QStringLiteral("/org/gnome/ScreenSaver");

} // namespace

GnomeExtension::Places GnomeExtension::Places::forUser(const QString& source) {
    return {source, QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation),
            QFileInfo(QCoreApplication::applicationFilePath()).canonicalFilePath()};
}

GnomeExtension::GnomeExtension(Bus& sessionBus, RunLoop& runLoop, SystemLog& log, Places places)
    : m_runLoop(runLoop)
    , m_log(log)
    , m_places(std::move(places))
    , m_shell(sessionBus, kGnomeShell)
    , m_version(m_shell, [this] { learnVersion(); })
    , m_changed(m_shell.listen({kGnomeShellPath, kGnomeShellExtensions,
                                QStringLiteral("ExtensionStateChanged"), kTicklogExtension},
                               [this](const QDBusMessage&) { ask(); }))
    , m_lockChanged(
          m_shell.listen({kScreenSaverPath, kScreenSaver, QStringLiteral("ActiveChanged"), QString()},
                         [this](const QDBusMessage&) { ask(); }))
    , m_presence(m_shell.observe([this] { follow(); })) {
    renew();
}

void GnomeExtension::follow() {
    if (m_shell.isServed()) {
        m_version.ask();
        ask();
    } else {
        setState(State::Unknown);
    }
}

void GnomeExtension::learnVersion() {
    renew();
    ask();
}

void GnomeExtension::ask() {
    // Answers come in the order of the questions. A shell that cannot lock the screen has nothing to answer
    // to the first.
    m_shell.call(
        kScreenSaverPath, kScreenSaver, QStringLiteral("GetActive"), {}, [this](const QDBusMessage& answer) {
            m_isLocked = answer.type() == QDBusMessage::ReplyMessage && answer.arguments().value(0).toBool();
        });
    m_shell.getProperty(kGnomeShellPath, kGnomeShellExtensions, kAllExtensions,
                        [this](const QDBusMessage& answer) {
                            const auto isOn = answer.arguments().value(0).value<QDBusVariant>().variant();
                            m_areAllOff = answer.type() == QDBusMessage::ReplyMessage && !isOn.toBool();
                        });
    m_shell.call(kGnomeShellPath, kGnomeShellExtensions, QStringLiteral("GetExtensionInfo"),
                 {kTicklogExtension}, [this](const QDBusMessage& answer) {
                     if (answer.type() == QDBusMessage::ReplyMessage && !m_version.text().isEmpty())
                         takeIn(mapIn(answer, "a{sv}", 0));
                     else if (m_shell.isServed())
                         m_askingAgain = m_runLoop.scheduleOnce(kAskingAgain, [this] { follow(); });
                 });
}

void GnomeExtension::takeIn(const QVariantMap& description) {
    const State state = stateOf(description);
    // An extension that was not tested with this version is not offered: the shell would refuse it after the
    // next login.
    setState(m_version.isUntested() && state != State::On ? State::Refused : state);
}

ShellExtension::State GnomeExtension::stateOf(const QVariantMap& description) const {
    const int told = description.value(QStringLiteral("state")).toInt();
    // An empty description means that the shell does not know the extension. An extension for another version
    // may have been replaced since; the shell does not look again before the next login.
    if (description.isEmpty() || told == kOutOfDate)
        return isInstalled() ? State::AwaitsLogin : State::Missing;
    if (told == kActive)
        return State::On;
    return told == kError ? State::Refused : stateAtRest(description);
}

ShellExtension::State GnomeExtension::stateAtRest(const QVariantMap& description) const {
    // Shells from 46 on tell which are switched on, and bring them back one after the other when the screen
    // is unlocked.
    if (m_isLocked || description.value(QStringLiteral("enabled")).toBool())
        return State::Paused;
    return m_areAllOff ? State::AllOff : State::Off;
}

void GnomeExtension::setState(State state) {
    if (std::exchange(m_state, state) == state)
        return;
    m_changes.tell();
}

bool GnomeExtension::isInstalled() const {
    for (const QString& folder : m_places.dataFolders) {
        const QString metadata = folderBelow(folder) + QStringLiteral("/metadata.json");
        // The shell uses the first folder that has it.
        if (QFile::exists(metadata))
            return m_version.isAmong(versionsOf(contentOf(metadata)));
    }
    return false;
}

QString GnomeExtension::usersFolder() const {
    return folderBelow(m_places.dataFolders.value(0));
}

QMap<QString, QByteArray> GnomeExtension::files() const {
    QMap<QString, QByteArray> files{{kExecutableFile, QFile::encodeName(m_places.executable) + '\n'}};
    if (m_version.text().isEmpty())
        return files;
    const QString form = m_version.readsModules() ? QStringLiteral("/modules") : QStringLiteral("/legacy");
    for (const QString& folder : QStringList{m_places.source, m_places.source + form}) {
        for (const QString& name : QDir(folder).entryList(QDir::Files))
            files.insert(name, contentOf(folder + u'/' + name));
    }
    return files;
}

Outcome GnomeExtension::write(const QMap<QString, QByteArray>& files) const {
    const QString folder = usersFolder();
    const Failure failure{Failure::Kind::CannotWrite,
                          QStringLiteral("GNOME Shell's extension cannot be written to ") + folder};
    if (!QDir().mkpath(folder))
        return failure;
    for (auto content = files.cbegin(); content != files.cend(); ++content) {
        QSaveFile file(folder + u'/' + content.key());
        if (!file.open(QFile::WriteOnly) || file.write(*content) != content->size() || !file.commit())
            return failure;
    }
    return Done();
}

Outcome GnomeExtension::install() {
    if (m_version.text().isEmpty())
        return Failure{Failure::Kind::NotFound,
                       QStringLiteral("GNOME Shell has not said which version it is.")};
    const Outcome written = write(files());
    if (written && m_shell.isServed())
        ask();
    return written;
}

void GnomeExtension::renew() {
    if (!QFileInfo::exists(usersFolder()))
        return;
    QMap<QString, QByteArray> wanted = files();
    wanted.removeIf(
        [this](const auto& file) { return contentOf(usersFolder() + u'/' + file.key()) == file.value(); });
    if (const Outcome written = write(wanted); !written)
        m_log.log(written.failure().text);
}

void GnomeExtension::switchOn() {
    // The result comes by the signal.
    m_shell.call(kGnomeShellPath, kGnomeShellExtensions, QStringLiteral("EnableExtension"),
                 {kTicklogExtension});
    if (m_state == State::AllOff)
        m_shell.call(kGnomeShellPath, kPropertiesInterface, QStringLiteral("Set"),
                     {kGnomeShellExtensions, kAllExtensions, QVariant::fromValue(QDBusVariant(true))});
}

Outcome GnomeExtension::remove() {
    m_shell.call(kGnomeShellPath, kGnomeShellExtensions, QStringLiteral("DisableExtension"),
                 {kTicklogExtension});
    if (!QDir(usersFolder()).removeRecursively())
        return Failure{Failure::Kind::CannotWrite,
                       QStringLiteral("GNOME Shell's extension cannot be removed from ") + usersFolder()};
    return Done();
}
