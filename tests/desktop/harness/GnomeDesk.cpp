// SPDX-License-Identifier: MIT
#include "tests/desktop/harness/GnomeDesk.h"
#include "tests/Places.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>

namespace {

const QString kExtension = QStringLiteral("ticklog@ticklog.org");
const QString kDriver = QStringLiteral("driver@ticklog.org");
const QString kDriverService = QStringLiteral("org.ticklog.TestDriver");
const QString kShellService = QStringLiteral("org.gnome.Shell");
// A whole shell starts in a second or two on an idle machine; time that it spends waiting for the processor
// does not count.
constexpr double kSecondsToStart = 20;
constexpr std::chrono::minutes kUtmostToStart{2};
constexpr int kFirstWithModules = 45;

void copyFiles(const QString& from, const QString& to) {
    QDir().mkpath(to);
    for (const QString& name : QDir(from).entryList(QDir::Files)) {
        if (!QFile::copy(from + u'/' + name, to + u'/' + name))
            qFatal("cannot copy %s", qPrintable(name));
    }
}

// What the shell that is installed would read of an extension's folder.
void copyExtension(const QString& from, const QString& to) {
    copyFiles(from, to);
    copyFiles(from + (GnomeDesk::shellVersion() < kFirstWithModules ? u"/legacy" : u"/modules"), to);
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

// How long a process was ready to run but had to wait.
double secondsKeptWaiting(qint64 process) {
    const QByteArray ranAndWaited = contentOf(QStringLiteral("/proc/%1/schedstat").arg(process));
    return ranAndWaited.split(' ').value(1).toDouble() / 1e9;
}

void replaceIn(const QString& path, const QString& before, const QString& after) {
    QFile file(path);
    if (!file.open(QFile::ReadWrite))
        qFatal("cannot change %s", qPrintable(path));
    const QString content = QString::fromUtf8(file.readAll());
    if (!content.contains(before))
        qFatal("%s does not hold \"%s\"", qPrintable(path), qPrintable(before));
    file.resize(0);
    file.write(QString(content).replace(before, after).toUtf8());
}

// Whether the called method exists and did not answer "false".
bool isDone(const QDBusMessage& answer) {
    return answer.type() == QDBusMessage::ReplyMessage && answer.arguments().value(0, true).toBool();
}

QDBusConnection connectTo(const SessionBus& bus) {
    return QDBusConnection::connectToBus(bus.address(), QStringLiteral("gnome-desk-") + bus.address());
}

} // namespace

GnomeDesk::GnomeDesk()
    : GnomeDesk(Extension()) {}

GnomeDesk::GnomeDesk(const Extension& extension, XServer xServer)
    : m_xServer(xServer) {
    const QString systemFolder = home().path() + QStringLiteral("/system");
    QDir().mkpath(systemFolder);
    // The shell does not start without a system bus.
    m_systemBus = std::make_unique<SessionBus>(home().environment(), systemFolder);
    if (extension.isInstalled)
        installExtension(extension);
    copyExtension(QStringLiteral(TICKLOG_SOURCE_DIR "/tests/desktop/services/gnome-driver"),
                  home().dataFolder() + QStringLiteral("/gnome-shell/extensions/") + kDriver);
    writeSettings(extension.isEnabled);
    restart();
}

GnomeDesk::~GnomeDesk() {
    QDBusConnection::disconnectFromBus(connectTo(bus()).name());
}

int GnomeDesk::shellVersion() {
    static const int kVersion = [] {
        Program shell(QStringLiteral("gnome-shell"), {QStringLiteral("--version")},
                      QProcessEnvironment::systemEnvironment(), Program::Output::Read);
        // "GNOME Shell 43.9"
        const QString line = QString::fromLatin1(shell.readLine().value_or(QByteArray()));
        return line.section(u' ', -1).section(u'.', 0, 0).toInt();
    }();
    return kVersion;
}

QProcessEnvironment GnomeDesk::environment() const {
    QProcessEnvironment environment = WaylandDesk::environment();
    environment.insert(QStringLiteral("XDG_CURRENT_DESKTOP"), QStringLiteral("GNOME"));
    for (auto variable = m_xVariables.cbegin(); variable != m_xVariables.cend(); ++variable)
        environment.insert(variable.key(), variable.value());
    if (m_letsProgramsTell)
        environment.insert(QStringLiteral("NO_AT_BRIDGE"), QStringLiteral("0"));
    return environment;
}

QString GnomeDesk::extensionFolder() {
    return home().dataFolder() + QStringLiteral("/gnome-shell/extensions/") + kExtension;
}

void GnomeDesk::installExtension(const Extension& extension) {
    copyExtension(QStringLiteral(TICKLOG_SOURCE_DIR "/resources/gnome-extension"), extensionFolder());
    const QString executable =
        extension.executable.isEmpty() ? QCoreApplication::applicationFilePath() : extension.executable;
    home().write(QDir(home().path()).relativeFilePath(extensionFolder() + QStringLiteral("/executable")),
                 executable.toUtf8());
    const QString script = extensionFolder() + QStringLiteral("/service.js");
    replaceIn(script, QStringLiteral("kVersion = 1"), QStringLiteral("kVersion = %1").arg(extension.version));
    replaceIn(script, QStringLiteral("kOldestVersion = 1"),
              QStringLiteral("kOldestVersion = %1").arg(extension.oldestVersion));
    if (!extension.tellsOfChanges)
        replaceIn(script, QStringLiteral("this._send('Changed', sight);"), QString());
}

void GnomeDesk::writeSettings(bool isEnabled) {
    const QString enabled = isEnabled ? QStringLiteral("'%1', '%2'").arg(kExtension, kDriver)
                                      : QStringLiteral("'%1'").arg(kDriver);
    home().write(QStringLiteral("config/glib-2.0/settings/keyfile"),
                 QStringLiteral("[org/gnome/shell]\nenabled-extensions=[%1]\ndisable-user-extensions=false\n"
                                "welcome-dialog-last-shown-version='99'\n"
                                "[org/gnome/desktop/interface]\nenable-animations=false\n")
                     .arg(enabled)
                     .toUtf8());
}

QString GnomeDesk::startCompositor(std::unique_ptr<Program>& compositor) {
    const QString name = QStringLiteral("wayland-gnome");
    QProcessEnvironment own = environment();
    own.remove(QStringLiteral("WAYLAND_DISPLAY"));
    own.remove(QStringLiteral("QT_QPA_PLATFORM"));
    own.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), m_systemBus->address());
    own.insert(QStringLiteral("GSETTINGS_BACKEND"), QStringLiteral("keyfile"));
    own.insert(QStringLiteral("LIBGL_ALWAYS_SOFTWARE"), QStringLiteral("1"));
    QStringList arguments{QStringLiteral("--headless"), QStringLiteral("--virtual-monitor"),
                          QStringLiteral("800x600"), QStringLiteral("--wayland-display"), name};
    if (m_xServer == XServer::None)
        arguments << QStringLiteral("--no-x11");
    const QString complaints = home().path() + QStringLiteral("/gnome-shell.log");
    compositor = std::make_unique<Program>(QStringLiteral("gnome-shell"), arguments, own,
                                           Program::Output::Discarded, complaints);
    const QDBusConnection connection = connectTo(bus());
    const auto isReady = [&] { return connection.interface()->isServiceRegistered(kDriverService).value(); };
    QElapsedTimer sinceStart;
    sinceStart.start();
    const auto isLate = [&] {
        return double(sinceStart.elapsed()) / 1000 >
               kSecondsToStart + secondsKeptWaiting(compositor->processIdentifier());
    };
    waitFor([&] { return isReady() || !compositor->isRunning() || isLate(); }, kUtmostToStart);
    if (!compositor->isRunning() || !isReady())
        qFatal("GNOME Shell %s; is gnome-shell installed? It wrote:\n%s",
               compositor->isRunning() ? "does not get ready" : "has ended",
               contentOf(complaints).constData());
    if (m_xServer == XServer::Own)
        learnXDisplay();
    return home().runtimeFolder() + u'/' + name;
}

QDBusMessage GnomeDesk::call(const QString& service, const QString& path, const QString& interface,
                             const QString& method, const QVariantList& arguments) {
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(arguments);
    return connectTo(bus()).call(message);
}

QDBusMessage GnomeDesk::askDriver(const QString& method, const QString& argument) {
    return call(kDriverService, QStringLiteral("/org/ticklog/TestDriver"), kDriverService, method,
                {argument});
}

bool GnomeDesk::drive(const QString& method, const QString& argument) {
    return isDone(askDriver(method, argument));
}

void GnomeDesk::learnXDisplay() {
    for (const char* name : {"DISPLAY", "XAUTHORITY"}) {
        const QString variable = QLatin1String(name);
        m_xVariables.insert(variable,
                            askDriver(QStringLiteral("Variable"), variable).arguments().value(0).toString());
    }
    if (m_xVariables.first().isEmpty())
        qFatal("GNOME Shell has no X server: is Xwayland installed?");
}

bool GnomeDesk::activate(const QString& title) {
    // The extension reports a window a little before it is shown.
    return waitFor([&] { return drive(QStringLiteral("Activate"), title); });
}

bool GnomeDesk::putAway(const QString& title) {
    return drive(QStringLiteral("Minimise"), title);
}

bool GnomeDesk::touch() {
    return drive(QStringLiteral("Touch"), QStringLiteral("pointer"));
}

bool GnomeDesk::bringToFront(const QString& title) {
    return activate(title) && waitFor([&] { return drive(QStringLiteral("IsInFront"), title); });
}

bool GnomeDesk::plugInKeyboard() {
    return drive(QStringLiteral("PlugIn"), QStringLiteral("keyboard"));
}

bool GnomeDesk::set(const QString& service, const QString& path, const QString& interface,
                    const QString& property, bool value) {
    return isDone(call(service, path, QStringLiteral("org.freedesktop.DBus.Properties"),
                       QStringLiteral("Set"),
                       {interface, property, QVariant::fromValue(QDBusVariant(value))}));
}

bool GnomeDesk::letProgramsTell() {
    m_letsProgramsTell = true;
    return set(QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
               QStringLiteral("org.a11y.Status"), QStringLiteral("IsEnabled"), true);
}

bool GnomeDesk::switchAllExtensions(bool isOn) {
    return set(kShellService, QStringLiteral("/org/gnome/Shell"),
               QStringLiteral("org.gnome.Shell.Extensions"), QStringLiteral("UserExtensionsEnabled"), isOn);
}

bool GnomeDesk::enableExtension() {
    return isDone(call(kShellService, QStringLiteral("/org/gnome/Shell"),
                       QStringLiteral("org.gnome.Shell.Extensions"), QStringLiteral("EnableExtension"),
                       {kExtension}));
}

bool GnomeDesk::disableExtension() {
    return isDone(call(kShellService, QStringLiteral("/org/gnome/Shell"),
                       QStringLiteral("org.gnome.Shell.Extensions"), QStringLiteral("DisableExtension"),
                       {kExtension}));
}

bool GnomeDesk::coverScreen(bool isCovered) {
    return drive(isCovered ? QStringLiteral("Cover") : QStringLiteral("Uncover"), QStringLiteral("screen"));
}
