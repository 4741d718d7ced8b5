// SPDX-License-Identifier: MIT
#include "platform/atspi/AtspiAccessibility.h"

#include "platform/bus/BusMap.h"

#include <QDBusVariant>

#include <algorithm>

namespace {

const QString kStatus = QStringLiteral("org.a11y.Status");
const QString kIsEnabled = QStringLiteral("IsEnabled");
// Elements of applications name the process, because it may come to the bus only after it was asked for.
const QString kProcessPrefix = QStringLiteral("/process/");

std::optional<std::int64_t> processOf(const WindowElement& application) {
    if (!application.bus().isEmpty() || !application.path().startsWith(kProcessPrefix))
        return std::nullopt;
    return application.path().mid(kProcessPrefix.size()).toLongLong();
}

} // namespace

class AtspiAccessibility::Observer : public AccessibilityObserver {
public:
    Observer(std::shared_ptr<AtspiAccessibility*> accessibility, std::int64_t processIdentifier,
             std::function<void()> callback)
        : m_accessibility(std::move(accessibility))
        , m_processIdentifier(processIdentifier)
        , m_callback(std::make_shared<const std::function<void()>>(std::move(callback))) {}

    bool addNotification(const WindowElement& element, const QString& notification) override {
        if (element.isNull() || (notification != kAXMainWindowChanged &&
                                 notification != kAXFocusedWindowChanged && notification != kAXTitleChanged))
            return false;
        m_notifications.emplace_back(element, notification);
        return true;
    }

    bool removeNotification(const WindowElement& element, const QString& notification) override {
        return std::erase(m_notifications, std::pair(element, notification)) > 0;
    }

    void begin() override {
        if (!*m_accessibility)
            return;
        m_watching =
            (*m_accessibility)->m_watchers->add({m_processIdentifier, [this](auto change) { told(change); }});
        (*m_accessibility)->startRereading();
    }

    void end() override { m_watching.cancel(); }

private:
    bool isWanted(const QString& notification) const {
        return std::ranges::any_of(m_notifications,
                                   [&](const auto& wanted) { return wanted.second == notification; });
    }

    void told(AtspiApplication::Change change) {
        const bool isWindow = isWanted(kAXMainWindowChanged) || isWanted(kAXFocusedWindowChanged);
        if (!(change.isMainWindow && isWindow) && !(change.isTitle && isWanted(kAXTitleChanged)))
            return;
        // A copy, because the callback may destroy this observer.
        const auto callback = m_callback;
        (*callback)();
    }

    std::shared_ptr<AtspiAccessibility*> m_accessibility;
    std::int64_t m_processIdentifier;
    std::shared_ptr<const std::function<void()>> m_callback;
    std::vector<std::pair<WindowElement, QString>> m_notifications;
    Subscription m_watching;
};

AtspiAccessibility::AtspiAccessibility(Bus& sessionBus, RunLoop& runLoop, SystemLog& log,
                                       std::chrono::milliseconds patience)
    : m_sessionBus(sessionBus)
    , m_runLoop(runLoop)
    , m_log(log)
    , m_patience(patience)
    , m_launcher(sessionBus, kAtspiLauncher)
    , m_notice(sessionBus, log, [this] { openPreferences(); })
    , m_watchers(new Watchers)
    , m_presence(m_launcher.observe([this] { followPresence(); }))
    , m_self(std::make_shared<AtspiAccessibility*>(this)) {
    m_statusChanged = m_launcher.listen(
        {kAtspiLauncherPath, kPropertiesInterface, QStringLiteral("PropertiesChanged"), kStatus},
        [this](const QDBusMessage& signal) { setEnabled(mapIn(signal, "sa{sv}as", 1).value(kIsEnabled)); });
}

AtspiAccessibility::~AtspiAccessibility() {
    *m_self = nullptr;
}

WindowElement AtspiAccessibility::applicationElement(std::int64_t processIdentifier) {
    begin();
    return WindowElement(QString(), kProcessPrefix + QString::number(processIdentifier));
}

std::optional<WindowElement> AtspiAccessibility::mainWindow(const WindowElement& application) {
    const auto process = processOf(application);
    const auto* known = process ? this->application(*process) : nullptr;
    if (!known || known->mainWindow().isEmpty())
        return std::nullopt;
    return WindowElement(known->connectionName(), known->mainWindow());
}

std::optional<QString> AtspiAccessibility::title(const WindowElement& element) {
    if (!m_link || !m_link->desktop())
        return std::nullopt;
    const auto process = processOf(element);
    const auto* known = process ? application(*process) : m_link->desktop()->named(element.bus());
    if (!known)
        return std::nullopt;
    const QString title = process ? known->title() : known->windowTitle(element.path()).value_or(QString());
    return title.isEmpty() ? std::nullopt : std::optional(title);
}

std::unique_ptr<AccessibilityObserver> AtspiAccessibility::makeObserver(std::int64_t processIdentifier,
                                                                        std::function<void()> callback) {
    begin();
    if (!m_launcher.isServed())
        return nullptr;
    return std::make_unique<Observer>(m_self, processIdentifier, std::move(callback));
}

void AtspiAccessibility::openPreferences() {
    m_launcher.call(kAtspiLauncherPath, kPropertiesInterface, QStringLiteral("Set"),
                    {kStatus, kIsEnabled, QVariant::fromValue(QDBusVariant(true))});
}

void AtspiAccessibility::grantTrust() {
    m_isGranted = true;
    openPreferences();
}

void AtspiAccessibility::sendTrustWarning() {
    m_launcher.call(kAtspiLauncherPath, QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping"),
                    {});
}

QString AtspiAccessibility::describe() const {
    return m_launcher.isServed() ? QStringLiteral("AT-SPI") : QStringLiteral("AT-SPI (not there now)");
}

void AtspiAccessibility::followPresence() {
    if (!m_launcher.isServed()) {
        m_isEnabled = false;
        return;
    }
    m_launcher.getProperty(kAtspiLauncherPath, kStatus, kIsEnabled, [this](const QDBusMessage& reply) {
        setEnabled(reply.arguments().value(0).value<QDBusVariant>().variant());
    });
}

void AtspiAccessibility::setEnabled(const QVariant& value) {
    if (value.typeId() == QMetaType::Bool)
        m_isEnabled = value.toBool();
}

void AtspiAccessibility::begin() {
    if (m_link)
        return;
    m_link = std::make_unique<AtspiLink>(
        m_sessionBus, m_runLoop, m_log,
        [this](std::int64_t processIdentifier, AtspiApplication::Change change) {
            tell(processIdentifier, change);
        },
        m_patience);
}

AtspiApplication* AtspiAccessibility::application(std::int64_t processIdentifier) const {
    return m_link && m_link->desktop() ? m_link->desktop()->ofProcess(processIdentifier) : nullptr;
}

void AtspiAccessibility::tell(std::int64_t processIdentifier, AtspiApplication::Change change) {
    m_watchers->forEach([&](const Watcher& watcher) {
        if (watcher.processIdentifier == processIdentifier)
            watcher.told(change);
    });
}

void AtspiAccessibility::startRereading() {
    if (!m_rereading)
        m_rereading = m_runLoop.scheduleRepeating(kTitlePace, kTitlePace / 2, [this] { rereadObserved(); });
}

void AtspiAccessibility::rereadObserved() {
    if (m_watchers->isEmpty()) {
        m_rereading.reset();
        return;
    }
    m_watchers->forEach([this](const Watcher& watcher) {
        if (auto* observed = application(watcher.processIdentifier))
            observed->reread();
    });
}
