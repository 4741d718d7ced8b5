// SPDX-License-Identifier: MIT
#include "tests/desktop/harness/WaylandDesk.h"
#include "tests/Places.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <QStandardPaths>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

const QString kTouch = QStringLiteral(TICKLOG_BINARY_DIR "/wayland-touch");
const QString kTaskBar = QStringLiteral(TICKLOG_BINARY_DIR "/task-bar");
// Nobody by name and by number.
constexpr uid_t kNobody = 65534;

bool isListening(const QString& path) {
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, QFile::encodeName(path).constData(), sizeof address.sun_path);
    const bool isThere =
        ::connect(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    ::close(descriptor);
    return isThere;
}

void waitForSocket(const QString& path, const Program& compositor) {
    waitFor([&] { return isListening(path) || !compositor.isRunning(); });
    if (!isListening(path))
        qFatal("no compositor listens at %s: are sway and kwin_wayland installed?", qPrintable(path));
}

void giveAway(const QString& path) {
    if (::chown(QFile::encodeName(path).constData(), kNobody, kNobody) != 0)
        qFatal("%s cannot be given away", qPrintable(path));
}

// Changing the user clears the signal that ends it with the test program, so it is set again.
QStringList asNobody() {
    // Becoming somebody else clears the signal that ends it with the test program.
    return {QStringLiteral("setpriv"), QStringLiteral("--reuid=%1").arg(kNobody),
            QStringLiteral("--regid=%1").arg(kNobody), QStringLiteral("--clear-groups"),
            QStringLiteral("--pdeathsig=KILL")};
}

// Uses no screens, keyboards or graphics of the machine. For compositors based on wlroots, and for Mir, which
// must also be asked to offer the list of windows.
void keepToMemory(QProcessEnvironment& environment) {
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    environment.insert(QStringLiteral("WLR_BACKENDS"), QStringLiteral("headless"));
    environment.insert(QStringLiteral("WLR_LIBINPUT_NO_DEVICES"), QStringLiteral("1"));
    environment.insert(QStringLiteral("WLR_RENDERER"), QStringLiteral("pixman"));
    environment.insert(QStringLiteral("MIR_SERVER_PLATFORM_DISPLAY_LIBS"), QStringLiteral("mir:virtual"));
    environment.insert(QStringLiteral("MIR_SERVER_PLATFORM_RENDERING_LIBS"),
                       QStringLiteral("mir:egl-generic"));
    environment.insert(QStringLiteral("MIR_SERVER_VIRTUAL_OUTPUT"), QStringLiteral("640x480"));
    environment.insert(QStringLiteral("MIR_SERVER_ADD_WAYLAND_EXTENSIONS"),
                       QStringLiteral("zwlr_foreign_toplevel_manager_v1"));
}

} // namespace

WaylandDesk::WaylandDesk()
    : m_bus(m_home.environment(), m_home.runtimeFolder()) {}

WaylandDesk::~WaylandDesk() = default;

QProcessEnvironment WaylandDesk::environment() const {
    QProcessEnvironment environment = m_home.environment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_bus.address());
    environment.insert(QStringLiteral("XDG_SESSION_TYPE"), QStringLiteral("wayland"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("wayland"));
    // The quick unwinder stops in libwayland; only the slow one shows whether a leak is Qt's or ours.
    const QString sanitizer = QStringLiteral("ASAN_OPTIONS");
    if (environment.contains(sanitizer))
        environment.insert(sanitizer,
                           environment.value(sanitizer) + QStringLiteral(":fast_unwind_on_malloc=0"));
    if (!m_display.isEmpty())
        environment.insert(QStringLiteral("WAYLAND_DISPLAY"), m_display);
    if (!m_xDisplay.isEmpty())
        environment.insert(QStringLiteral("DISPLAY"), m_xDisplay);
    return environment;
}

std::unique_ptr<Program> WaylandDesk::start(const QString& executable, const QStringList& arguments,
                                            Program::Output output) const {
    return std::make_unique<Program>(executable, arguments, environment(), output);
}

bool WaylandDesk::run(const QString& executable, const QStringList& arguments) const {
    const auto program = start(executable, arguments);
    return program->waitUntilEnded() && program->exitStatus() == 0;
}

void WaylandDesk::kill() {
    m_compositor.reset();
}

void WaylandDesk::restart() {
    m_display = startCompositor(m_compositor);
}

void WaylandDesk::awaitXDisplay(const QString& path) {
    waitFor([&] {
        QFile file(path);
        m_xDisplay = file.open(QFile::ReadOnly) ? QString::fromLatin1(file.readAll().trimmed()) : QString();
        return !m_xDisplay.isEmpty();
    });
    if (m_xDisplay.isEmpty())
        qFatal("the compositor has no X server: are Xwayland and xhost installed?");
}

SwayDesk::SwayDesk(XServer xServer)
    : m_xServer(xServer) {
    restart();
}

SwayDesk::~SwayDesk() = default;

QString SwayDesk::socketPath() const {
    return m_place.filePath(QStringLiteral("sway.sock"));
}

QString SwayDesk::startCompositor(std::unique_ptr<Program>& compositor) {
    // What an earlier one has left behind.
    for (const char* name : {"sway.sock", "wayland-1", "wayland-1.lock", "x-display"})
        QFile::remove(m_place.filePath(QLatin1String(name)));
    QFile configuration(m_place.filePath(QStringLiteral("config")));
    const QString xDisplayFile = m_place.filePath(QStringLiteral("x-display"));
    // The X server accepts only its own user, who is another one when sway runs as nobody.
    const QString xServer =
        m_xServer == XServer::Own
            ? QStringLiteral("xwayland enable\nexec xhost +local: && echo $DISPLAY > ") + xDisplayFile
            : QStringLiteral("xwayland disable");
    if (!configuration.open(QFile::WriteOnly) ||
        configuration.write(xServer.toUtf8() + "\noutput HEADLESS-1 resolution 640x480\n") <= 0)
        qFatal("sway's configuration cannot be written");
    configuration.close();

    QProcessEnvironment own = environment();
    keepToMemory(own);
    own.insert(QStringLiteral("HOME"), m_place.path());
    own.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_place.path());
    own.insert(QStringLiteral("SWAYSOCK"), socketPath());
    QStringList command{QStringLiteral("sway"), QStringLiteral("-c"), configuration.fileName()};
    if (::geteuid() == 0) {
        giveAway(m_place.path());
        giveAway(configuration.fileName());
        command = asNobody() + command;
    }
    compositor = std::make_unique<Program>(command.takeFirst(), command, own);
    waitForSocket(m_place.filePath(QStringLiteral("wayland-1")), *compositor);
    waitForSocket(socketPath(), *compositor);
    if (m_xServer == XServer::Own)
        awaitXDisplay(xDisplayFile);
    return m_place.filePath(QStringLiteral("wayland-1"));
}

bool SwayDesk::tell(const QString& command) const {
    return run(QStringLiteral("swaymsg"), {QStringLiteral("-s"), socketPath(), command});
}

bool SwayDesk::activate(const QString& title) {
    // A program has opened its window a little before it is shown.
    return waitFor([&] { return tell(QStringLiteral("[title=\"^%1$\"] focus").arg(title)); });
}

bool SwayDesk::putAway(const QString& title) {
    return tell(QStringLiteral("[title=\"^%1$\"] move scratchpad").arg(title));
}

bool SwayDesk::touch() {
    return tell(QStringLiteral("seat seat0 cursor move 3 3"));
}

TaskBarDesk::TaskBarDesk(const QString& compositor, XServer xServer)
    : m_name(compositor)
    , m_xServer(xServer) {
    restart();
}

TaskBarDesk::~TaskBarDesk() = default;

QString TaskBarDesk::startCompositor(std::unique_ptr<Program>& compositor) {
    const QString display = home().runtimeFolder() + QStringLiteral("/wayland-0");
    // What an earlier one has left behind.
    QFile::remove(display);
    QFile::remove(display + QStringLiteral(".lock"));
    QProcessEnvironment own = environment();
    keepToMemory(own);
    own.remove(QStringLiteral("QT_QPA_PLATFORM"));
    QStringList arguments;
    const QString xDisplayFile = home().path() + QStringLiteral("/x-display");
    if (m_xServer == XServer::Own) {
        QFile::remove(xDisplayFile);
        home().write(QStringLiteral("tell-x-display"), "echo $DISPLAY > " + xDisplayFile.toUtf8());
        arguments << QStringLiteral("-s") << QStringLiteral("sh %1/tell-x-display").arg(home().path());
    }
    compositor = std::make_unique<Program>(m_name, arguments, own);
    waitForSocket(display, *compositor);
    if (m_xServer == XServer::Own)
        awaitXDisplay(xDisplayFile);
    return display;
}

bool TaskBarDesk::activate(const QString& title) {
    // A program has opened its window a little before it is shown.
    return waitFor([&] { return run(kTaskBar, {QStringLiteral("activate"), title}); });
}

bool TaskBarDesk::putAway(const QString& title) {
    return run(kTaskBar, {QStringLiteral("minimise"), title});
}

bool TaskBarDesk::touch() {
    return run(QStringLiteral("wtype"), {QStringLiteral("-M"), QStringLiteral("shift")});
}

KWinDesk::KWinDesk(Windows windows, XServer xServer)
    : m_windows(windows)
    , m_xServer(xServer) {
    restart();
}

KWinDesk::~KWinDesk() {
    QDBusConnection::disconnectFromBus(bus().address());
}

QString KWinDesk::startCompositor(std::unique_ptr<Program>& compositor) {
    const QString name = QStringLiteral("wayland-kwin");
    QProcessEnvironment own = environment();
    own.remove(QStringLiteral("WAYLAND_DISPLAY"));
    own.remove(QStringLiteral("QT_QPA_PLATFORM"));
    if (m_windows == Windows::ForAll)
        own.insert(QStringLiteral("KWIN_WAYLAND_NO_PERMISSION_CHECKS"), QStringLiteral("1"));
    // The file has a capability that a container may lack, and then it cannot run; a copy has none.
    const QString copy = home().path() + QStringLiteral("/kwin_wayland");
    QFile::copy(QStandardPaths::findExecutable(QStringLiteral("kwin_wayland")), copy);
    QStringList arguments{QStringLiteral("--virtual"), QStringLiteral("--no-lockscreen"),
                          QStringLiteral("--width"),   QStringLiteral("640"),
                          QStringLiteral("--height"),  QStringLiteral("480"),
                          QStringLiteral("-s"),        name};
    const QString xDisplayFile = home().path() + QStringLiteral("/x-display");
    if (m_xServer == XServer::Own) {
        QFile::remove(xDisplayFile);
        home().write(QStringLiteral("tell-x-display"), "echo $DISPLAY > " + xDisplayFile.toUtf8());
        arguments << QStringLiteral("--xwayland")
                  << QStringLiteral("sh %1/tell-x-display").arg(home().path());
    }
    compositor = std::make_unique<Program>(copy, arguments, own);
    const QString path = home().runtimeFolder() + u'/' + name;
    waitForSocket(path, *compositor);
    // It listens before it can answer.
    own.insert(QStringLiteral("WAYLAND_DISPLAY"), path);
    Program(kTouch, {}, own).waitUntilEnded();
    if (m_xServer == XServer::Own)
        awaitXDisplay(xDisplayFile);
    return path;
}

bool KWinDesk::script(const QString& title, const QString& statements) {
    const QString name = QStringLiteral("script%1").arg(++m_scripts);
    home().write(name, QStringLiteral("const all = workspace.windowList ? workspace.windowList() : "
                                      "workspace.clientList();\n"
                                      "for (const window of all) if (window.caption == \"%1\") { %2 }\n")
                           .arg(title, statements)
                           .toUtf8());
    QDBusConnection connection = QDBusConnection::connectToBus(bus().address(), bus().address());
    const auto call = [&](const QString& path, const QString& interface, const QString& method,
                          const QVariantList& arguments) {
        QDBusMessage message =
            QDBusMessage::createMethodCall(QStringLiteral("org.kde.KWin"), path, interface, method);
        message.setArguments(arguments);
        return connection.call(message);
    };
    const QDBusMessage loaded =
        call(QStringLiteral("/Scripting"), QStringLiteral("org.kde.kwin.Scripting"),
             QStringLiteral("loadScript"), {QString(home().path() + u'/' + name), name});
    // The path of a script differs between releases. Returns when the script has run.
    for (const QString& path : {QStringLiteral("/Scripting/Script%1"), QStringLiteral("/%1")}) {
        const QDBusMessage ran = call(path.arg(loaded.arguments().value(0).toInt()),
                                      QStringLiteral("org.kde.kwin.Script"), QStringLiteral("run"), {});
        if (ran.type() == QDBusMessage::ReplyMessage)
            return true;
    }
    return false;
}

bool KWinDesk::activate(const QString& title) {
    return script(title, QStringLiteral("if (\"activeClient\" in workspace) workspace.activeClient = window;"
                                        " else workspace.activeWindow = window;"));
}

bool KWinDesk::putAway(const QString& title) {
    return script(title, QStringLiteral("window.minimized = true;"));
}

bool KWinDesk::touch() {
    return run(kTouch, {});
}
