// SPDX-License-Identifier: MIT
#include "platform/atspi/AtspiDesktop.h"

#include "platform/atspi/Atspi.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>

namespace {

QString textOf(const QDBusMessage& signal) {
    return signal.arguments().value(3).value<QDBusVariant>().variant().toString();
}

} // namespace

AtspiDesktop::AtspiDesktop(Bus& accessibilityBus, RunLoop& runLoop, AtspiApplication::Changed changed,
                           std::chrono::milliseconds patience)
    : m_bus(accessibilityBus)
    , m_runLoop(runLoop)
    , m_changed(std::move(changed))
    , m_patience(patience)
    , m_registry(accessibilityBus, kAtspiRegistry)
    , m_presence(m_registry.observe([this] { follow(); })) {
    listenToEvents();
    // Starts the registry if it does not run yet.
    look();
}

AtspiApplication* AtspiDesktop::ofProcess(std::int64_t processIdentifier) const {
    AtspiApplication* found = nullptr;
    for (const auto& [name, application] : m_applications)
        // A process may have a second connection that shows nothing.
        if (application->processIdentifier() == processIdentifier &&
            (!found || found->mainWindow().isEmpty()))
            found = application.get();
    return found;
}

AtspiApplication* AtspiDesktop::find(const std::function<bool(const AtspiApplication&)>& isSo) const {
    for (const auto& [name, application] : m_applications) {
        if (isSo(*application))
            return application.get();
    }
    return nullptr;
}

AtspiApplication* AtspiDesktop::named(const QString& name) const {
    const auto application = m_applications.find(name);
    return application != m_applications.end() ? application->second.get() : nullptr;
}

void AtspiDesktop::follow() {
    if (m_registry.isServed()) {
        registerEvents();
        look();
    } else {
        m_applications.clear();
    }
    // Starts another registry if this one has crashed.
    m_secondLook = m_runLoop.scheduleOnce(kSecondLook, [this] { lookAgain(); });
    m_changed(0, {});
}

void AtspiDesktop::registerEvents() {
    // Programs send only the events that somebody has registered for. The registry would store an event twice
    // if it was registered twice.
    for (const QString& event : {QStringLiteral("window:activate"), QStringLiteral("window:deactivate"),
                                 QStringLiteral("window:create"), QStringLiteral("window:destroy"),
                                 QStringLiteral("object:state-changed:active"),
                                 QStringLiteral("object:property-change:accessible-name")}) {
        m_registry.call(kAtspiRegistryPath, kAtspiRegistry, QStringLiteral("DeregisterEvent"), {event});
        m_registry.call(kAtspiRegistryPath, kAtspiRegistry, QStringLiteral("RegisterEvent"),
                        {event, QStringList()});
    }
}

void AtspiDesktop::listenToEvents() {
    const auto touch = [this](const QDBusMessage& signal) {
        if (auto* application = sender(signal))
            application->touch();
    };
    const auto activate = [this](const QDBusMessage& signal) {
        auto* application = sender(signal);
        if (!application)
            return;
        // The signal carries the title, and some toolkits report a new title in no other way.
        if (const QString title = textOf(signal); !title.isEmpty())
            application->rename(signal.path(), title);
        application->touch();
    };
    const auto rename = [this](const QDBusMessage& signal) {
        if (auto* application = named(signal.service()))
            application->rename(signal.path(), textOf(signal));
    };
    const auto listen = [this](BusMatch match, Bus::Receiver receiver) {
        m_signals.push_back(std::make_unique<BusSignal>(m_bus, std::move(match), std::move(receiver)));
    };
    listen({QString(), kAtspiWindowEvent, QStringLiteral("Activate"), QString()}, activate);
    for (const char* member : {"Deactivate", "Create", "Destroy"})
        listen({QString(), kAtspiWindowEvent, QString::fromLatin1(member), QString()}, touch);
    listen({QString(), kAtspiObjectEvent, QStringLiteral("StateChanged"), QStringLiteral("active")}, touch);
    listen(
        {QString(), kAtspiObjectEvent, QStringLiteral("PropertyChange"), QStringLiteral("accessible-name")},
        rename);
    listen({kBusServicePath, kBusServiceName, QStringLiteral("NameOwnerChanged"), QString()},
           [this](const QDBusMessage& signal) { nameChanged(signal); });
    m_signals.push_back(
        m_registry.listen({kAtspiRootPath, kAtspiObjectEvent, QStringLiteral("ChildrenChanged"), QString()},
                          [this](const QDBusMessage&) { look(); }));
}

void AtspiDesktop::look() {
    m_registry.call(kAtspiRootPath, kAtspiAccessible, QStringLiteral("GetChildren"), {},
                    [this](const QDBusMessage& children) { learn(children); });
}

void AtspiDesktop::lookAgain() {
    look();
    bool isAnyDeaf = false;
    for (const auto& [name, application] : m_applications) {
        application->reread();
        isAnyDeaf |= application->isDeaf();
    }
    if (isAnyDeaf)
        registerEvents();
}

void AtspiDesktop::learn(const QDBusMessage& children) {
    if (!isListOfObjects(children))
        return;
    const auto list = qvariant_cast<QDBusArgument>(children.arguments().value(0));
    list.beginArray();
    while (!list.atEnd()) {
        QString name;
        QDBusObjectPath root;
        list.beginStructure();
        list >> name >> root;
        list.endStructure();
        if (!name.isEmpty() && !named(name))
            m_applications.emplace(name, std::make_unique<AtspiApplication>(
                                             m_bus, m_runLoop, name, root.path(), m_changed, m_patience));
    }
    list.endArray();
}

void AtspiDesktop::nameChanged(const QDBusMessage& signal) {
    const QString name = signal.arguments().value(0).toString();
    if (signal.service() != kBusServiceName || !name.startsWith(u':'))
        return;
    if (!signal.arguments().value(2).toString().isEmpty()) {
        m_firstLook = m_runLoop.scheduleOnce(kFirstLook, [this] { look(); });
        m_secondLook = m_runLoop.scheduleOnce(kSecondLook, [this] { lookAgain(); });
        return;
    }
    const auto gone = m_applications.extract(name);
    if (!gone.empty() && !gone.mapped()->mainWindow().isEmpty())
        m_changed(gone.mapped()->processIdentifier(), {true, true, true});
}

AtspiApplication* AtspiDesktop::sender(const QDBusMessage& signal) {
    auto* application = named(signal.service());
    if (!application)
        m_firstLook = m_runLoop.scheduleOnce(kFirstLook, [this] { look(); });
    return application;
}
