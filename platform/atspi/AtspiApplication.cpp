// SPDX-License-Identifier: MIT
#include "platform/atspi/AtspiApplication.h"

#include "platform/atspi/Atspi.h"
#include "platform/bus/BusService.h"
#include "platform/foundation/text/CleanText.h"

#include <QDBusArgument>
#include <QDBusError>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <algorithm>

namespace {

// Nobody works in more windows of one program, and each costs two questions.
constexpr std::size_t kMostWindows = 200;

// Bits of the state set.
constexpr int kActive = 1;
constexpr int kShowing = 25;

bool hasState(const QList<uint>& states, int bit) {
    return states.value(bit / 32) & (1U << (bit % 32));
}

bool isSilence(const QDBusMessage& reply) {
    const auto kind = QDBusError(reply).type();
    return kind == QDBusError::NoReply || kind == QDBusError::Timeout || kind == QDBusError::TimedOut ||
           kind == QDBusError::Disconnected;
}

} // namespace

AtspiApplication::AtspiApplication(Bus& bus, RunLoop& runLoop, QString name, QString root, Changed changed,
                                   std::chrono::milliseconds patience)
    : m_bus(bus)
    , m_runLoop(runLoop)
    , m_name(std::move(name))
    , m_root(std::move(root))
    , m_changed(std::move(changed))
    , m_patience(patience) {
    auto question = QDBusMessage::createMethodCall(kBusServiceName, kBusServicePath, kBusServiceName,
                                                   QStringLiteral("GetConnectionUnixProcessID"));
    question << m_name;
    m_bus.call(question, this, [this](const QDBusMessage& reply) {
        m_processIdentifier =
            reply.type() == QDBusMessage::ReplyMessage ? reply.arguments().value(0).toUInt() : 0;
        if (m_processIdentifier != 0)
            read();
    });
}

std::optional<QString> AtspiApplication::windowTitle(const QString& path) const {
    const auto window = std::ranges::find(m_windows, path, &Window::path);
    return window != m_windows.end() ? std::optional(window->title) : std::nullopt;
}

void AtspiApplication::touch() {
    m_hasSpoken = true;
    readSoon();
}

void AtspiApplication::readSoon() {
    // Not postponed by further events: a program that sends events all the time is read nevertheless, and
    // once more at the end.
    if (m_settling)
        m_isStale = true;
    else
        m_settling = m_runLoop.scheduleOnce(kSettling, [this] {
            m_settling.reset();
            read();
        });
}

void AtspiApplication::rename(const QString& path, const QString& name) {
    const auto titleBefore = windowTitle(m_mainWindow);
    if (path == m_root)
        m_title = cleanText(name);
    else if (const auto window = std::ranges::find(m_windows, path, &Window::path); window != m_windows.end())
        window->title = cleanText(name);
    tell(m_mainWindow, titleBefore);
}

void AtspiApplication::reread() {
    if (!m_hasSpoken)
        read();
    else if (!m_mainWindow.isEmpty() && !m_isTitleOwed)
        rereadTitle();
}

void AtspiApplication::rereadTitle() {
    m_isTitleOwed = true;
    askName(m_mainWindow, [this, path = m_mainWindow](const QDBusMessage& reply, const QString& name) {
        m_isTitleOwed = false;
        if (isSilence(reply))
            fallSilent();
        else if (reply.type() == QDBusMessage::ReplyMessage)
            rename(path, name);
        else
            readSoon();
    });
}

void AtspiApplication::read() {
    if (m_processIdentifier == 0)
        return;
    if (m_isReading) {
        m_isStale = true;
        return;
    }
    m_isReading = true;
    askName(m_root, [this](const QDBusMessage& reply, const QString& name) {
        if (reply.type() == QDBusMessage::ReplyMessage)
            m_title = cleanText(name);
    });
    ask(m_root, kAtspiAccessible, QStringLiteral("GetChildren"), {},
        [this](const QDBusMessage& children) { readWindows(children); });
}

void AtspiApplication::readWindows(const QDBusMessage& children) {
    const auto reading = std::make_shared<Reading>();
    // One answer counts for this function itself, so that an application without windows settles too.
    reading->owed = 1;
    reading->isRefused = !isListOfObjects(children);
    if (!reading->isRefused) {
        const auto list = qvariant_cast<QDBusArgument>(children.arguments().value(0));
        list.beginArray();
        while (!list.atEnd() && reading->windows.size() < kMostWindows) {
            QString name;
            QDBusObjectPath path;
            list.beginStructure();
            list >> name >> path;
            list.endStructure();
            if (name == m_name)
                reading->windows.push_back({path.path(), QString()});
        }
        list.endArray();
    }
    for (std::size_t i = 0; i < reading->windows.size(); ++i)
        readWindow(reading, i);
    settle(reading, children);
}

void AtspiApplication::readWindow(const std::shared_ptr<Reading>& reading, std::size_t index) {
    reading->owed += 2;
    const QString path = reading->windows[index].path;
    ask(path, kAtspiAccessible, QStringLiteral("GetState"), {},
        [this, reading, index](const QDBusMessage& reply) {
            const bool isState = reply.signature() == QLatin1String("au");
            const auto states = isState ? qdbus_cast<QList<uint>>(reply.arguments().value(0)) : QList<uint>();
            Window& window = reading->windows[index];
            window.isActive = hasState(states, kActive);
            window.isShowing = hasState(states, kShowing);
            // A window that has gone since is dropped: its path is cleared.
            if (!isState)
                window.path.clear();
            settle(reading, reply);
        });
    askName(path, [this, reading, index](const QDBusMessage& reply, const QString& name) {
        reading->windows[index].title = cleanText(name);
        settle(reading, reply);
    });
}

void AtspiApplication::settle(const std::shared_ptr<Reading>& reading, const QDBusMessage& reply) {
    reading->isSilent |= isSilence(reply);
    if (--reading->owed > 0)
        return;
    m_isReading = false;
    if (std::exchange(m_isStale, false))
        readSoon();
    if (reading->isSilent)
        return fallSilent();
    if (reading->isRefused)
        return;
    std::erase_if(reading->windows, [](const Window& window) { return window.path.isEmpty(); });
    adopt(std::move(reading->windows));
}

void AtspiApplication::adopt(std::vector<Window> windows) {
    const QString mainWindowBefore = m_mainWindow;
    const auto titleBefore = windowTitle(m_mainWindow);
    const QString activeBefore = activeWindow();
    m_isSilent = false;
    m_windows = std::move(windows);
    auto main = std::ranges::find_if(m_windows, &Window::isActive);
    m_activeWindow = main != m_windows.end() ? main->path : QString();
    if (main == m_windows.end())
        main = std::ranges::find(m_windows, m_mainWindow, &Window::path);
    if (main == m_windows.end())
        main = std::ranges::find_if(m_windows, &Window::isShowing);
    m_mainWindow = main != m_windows.end() ? main->path : QString();
    tell(mainWindowBefore, titleBefore, activeWindow() != activeBefore);
}

void AtspiApplication::tell(const QString& mainWindowBefore, const std::optional<QString>& titleBefore,
                            bool isActivity) {
    const Change change{m_mainWindow != mainWindowBefore, windowTitle(m_mainWindow) != titleBefore,
                        isActivity};
    if (change.isMainWindow || change.isTitle || change.isActivity)
        m_changed(m_processIdentifier, change);
}

void AtspiApplication::fallSilent() {
    if (std::exchange(m_isSilent, true))
        return;
    // The answer ends the silence. Changes during the silence were not reported, so it is read again.
    askName(
        m_root,
        [this](const QDBusMessage& reply, const QString&) {
            if (!isSilence(reply))
                readSoon();
        },
        Bus::kHoweverLate);
    m_changed(m_processIdentifier, {false, false, true});
}

void AtspiApplication::ask(const QString& path, const QString& interface, const QString& member,
                           const QVariantList& arguments, Bus::Receiver receiver,
                           std::optional<int> timeoutMs) {
    auto question = QDBusMessage::createMethodCall(m_name, path, interface, member);
    question.setArguments(arguments);
    m_bus.call(question, this, std::move(receiver), timeoutMs.value_or(int(m_patience.count())));
}

void AtspiApplication::askName(const QString& path,
                               std::function<void(const QDBusMessage&, const QString&)> receiver,
                               std::optional<int> timeoutMs) {
    ask(
        path, kPropertiesInterface, QStringLiteral("Get"), {kAtspiAccessible, QStringLiteral("Name")},
        [receiver = std::move(receiver)](const QDBusMessage& reply) {
            receiver(reply, reply.arguments().value(0).value<QDBusVariant>().variant().toString());
        },
        timeoutMs);
}
