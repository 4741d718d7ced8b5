// SPDX-License-Identifier: MIT
#include "Classes/store/TimeStoreApp.h"

#include <algorithm>

TimeStoreApp::TimeStoreApp(TimeStoreServices& services, const PropertyListValue& name,
                           const PropertyListValue& timeSpent)
    : TimeStoreNode(services, Kind::App, name, timeSpent) {}

TimeStoreApp::TimeStoreApp(TimeStoreServices& services, const PropertyListDictionary& record)
    : TimeStoreNode(services, Kind::App, record) {}

std::optional<TimeStoreItem::Children> TimeStoreApp::children() const {
    Children children;
    children.reserve(m_windows.size());
    for (const auto& [key, entry] : m_windows)
        children.push_back(entry.window);
    return children;
}

std::vector<std::shared_ptr<TimeStoreWindow>> TimeStoreApp::windows() const {
    std::vector<std::shared_ptr<TimeStoreWindow>> windows;
    windows.reserve(m_windows.size());
    for (const auto& [key, entry] : m_windows)
        windows.push_back(entry.window);
    return windows;
}

void TimeStoreApp::appendWindows(const std::unordered_set<Identity>& identities, Children& found) const {
    for (const auto& [key, entry] : m_windows)
        if (const auto uuid = entry.window->uuid(); uuid && identities.contains(*uuid))
            found.push_back(entry.window);
}

void TimeStoreApp::setRenamedNameFormatted(const PropertyListDictionary& record) {
    TimeStoreNode::setRenamedNameFormatted(record);
    if (!branched())
        return;
    services().runLoop.performSoon([weak = weak_from_this()] {
        if (const auto item = weak.lock())
            static_cast<TimeStoreApp&>(item->node()).refreshProject();
    });
}

void TimeStoreApp::refreshProject() {
    services().notifications.post(kTicklogRefreshProjectsNotification);
}

std::shared_ptr<TimeStoreWindow>
TimeStoreApp::windowStoreForName(const std::optional<QString>& name,
                                 const std::optional<WindowElement>& windowElement) {
    if (!name)
        return nullptr;
    if (windowElement)
        if (auto window = windowOfElement(*windowElement))
            return window;
    if (const auto known = m_windows.find(*name); known != m_windows.end()) {
        if (windowElement)
            giveElement(*known->second.window, *windowElement);
        return known->second.window;
    }
    willChange(kChildrenKey);
    willChange(kIsLeafKey);
    // An observer may have asked for the same window meanwhile.
    const auto known = m_windows.find(*name);
    auto window = known != m_windows.end()
                      ? known->second.window
                      : std::make_shared<TimeStoreWindow>(services(), *name, identityFor(*name));
    if (known == m_windows.end())
        store(*name, window);
    if (windowElement)
        giveElement(*window, *windowElement);
    didChange(kChildrenKey);
    didChange(kIsLeafKey);
    return window;
}

void TimeStoreApp::branchWindowForName(const QString& name) {
    auto taken = m_windows.extract(name);
    if (taken.empty())
        return;
    taken.key() = Identity::brandNew().text();
    m_windows.insert(std::move(taken));
}

void TimeStoreApp::removeUUIDs(const std::unordered_set<Identity>& identities) {
    removeWindows([&](const TimeStoreWindow& window) {
        const auto uuid = window.uuid();
        return uuid && identities.contains(*uuid);
    });
}

void TimeStoreApp::removeWindows(const std::function<bool(const TimeStoreWindow&)>& isUnwanted) {
    const auto isGoing = [&](const Table::value_type& entry) { return isUnwanted(*entry.second.window); };
    if (std::ranges::none_of(m_windows, isGoing))
        return;
    const ChangeAnnouncement announcement(*this, kChildrenKey);
    for (auto entry = m_windows.begin(); entry != m_windows.end();)
        entry = isGoing(*entry) ? drop(entry) : std::next(entry);
}

std::shared_ptr<TimeStoreWindow> TimeStoreApp::windowOfIdentity(const Identity& identity) const {
    for (const auto& [key, entry] : m_windows)
        if (entry.window->uuid() == identity)
            return entry.window;
    return nullptr;
}

std::shared_ptr<TimeStoreWindow> TimeStoreApp::takeWindow(const QString& name) {
    const auto found = m_windows.find(name);
    if (found == m_windows.end())
        return nullptr;
    auto window = found->second.window;
    drop(found);
    return window;
}

void TimeStoreApp::takeElement(TimeStoreWindow& window, const TimeStoreWindow& other) {
    if (other.windowElement())
        giveElement(window, *other.windowElement());
}

std::vector<std::pair<std::shared_ptr<TimeStoreWindow>, std::shared_ptr<TimeStoreWindow>>>
TimeStoreApp::takeOver(TimeStoreApp& other) {
    const ChangeAnnouncement children(*this, kChildrenKey);
    const ChangeAnnouncement leaf(*this, kIsLeafKey);
    std::vector<std::pair<std::shared_ptr<TimeStoreWindow>, std::shared_ptr<TimeStoreWindow>>> shared;
    while (!other.m_windows.empty()) {
        const auto entry = other.m_windows.begin();
        const auto window = entry->second.window;
        const QString key = window->branched() && window->uuid() ? window->uuid()->text() : entry->first;
        other.drop(entry);
        if (const auto own = m_windows.find(key); own != m_windows.end()) {
            takeElement(*own->second.window, *window);
            shared.emplace_back(own->second.window, window);
        } else {
            store(key, window);
            takeElement(*window, *window);
        }
    }
    return shared;
}

void TimeStoreApp::writeWindowRecords(PropertyListSink& sink) const {
    for (const auto& [key, entry] : m_windows)
        entry.window->writeRecord(sink);
}

QString TimeStoreApp::description() const {
    QStringList windows;
    for (const auto& [key, entry] : m_windows)
        windows << entry.window->description();
    return QStringLiteral("%1 (%2) [%3]")
        .arg(name(), QString::number(activeTime(), 'f', 6), windows.join(QStringLiteral(", ")));
}

void TimeStoreApp::store(const QString& key, std::shared_ptr<TimeStoreWindow> window) {
    TimeStoreWindow& followed = *window;
    Subscription naming = followed.observe(kNameKey,
                                           [this, &followed](const ObservedChange& change) {
                                               followRename(followed, change.oldValue.toString());
                                           },
                                           {.values = true});
    auto place = m_windows.lower_bound(key);
    if (place != m_windows.end() && place->first == key)
        place = drop(place);
    m_windows.emplace_hint(place, key, Entry{std::move(window), std::move(naming)});
}

TimeStoreApp::Table::iterator TimeStoreApp::drop(Table::iterator entry) {
    if (const WindowElement* element = entry->second.window->windowElement())
        m_byElement.erase(*element);
    return m_windows.erase(entry);
}

std::shared_ptr<TimeStoreWindow> TimeStoreApp::windowOfElement(const WindowElement& element) {
    const auto found = m_byElement.find(element);
    if (found == m_byElement.end())
        return nullptr;
    auto window = found->second.lock();
    if (window && window->windowElement() && *window->windowElement() == element)
        return window;
    m_byElement.erase(found);
    return nullptr;
}

void TimeStoreApp::forgetElement(const WindowElement& element) {
    if (const auto window = windowOfElement(element))
        window->forgetWindowElement();
    m_byElement.erase(element);
}

void TimeStoreApp::giveElement(TimeStoreWindow& window, const WindowElement& element) {
    if (window.windowElement())
        m_byElement.erase(*window.windowElement());
    window.setWindowElement(element);
    m_byElement.insert_or_assign(element,
                                 std::static_pointer_cast<TimeStoreWindow>(window.shared_from_this()));
}
