// SPDX-License-Identifier: MIT
#include "Classes/store/TimeStoreCategory.h"

#include "Classes/store/TKUUIDManager.h"
#include "platform/foundation/values/Assertions.h"

namespace {

const QString kSource = QStringLiteral("Classes/TimeStoreCategory");

} // namespace

TimeStoreCategory::TimeStoreCategory(TimeStoreServices& services, const PropertyListValue& name,
                                     const std::optional<Identity>& uuid)
    : TimeStoreCategory(services, Kind::Category, name) {
    if (uuid)
        setUuid(services.registry.setUUID(*uuid, registryKey(this->name())));
}

TimeStoreCategory::TimeStoreCategory(TimeStoreServices& services, Kind kind, const PropertyListValue& name)
    : TimeStoreNode(services, kind, name, 0.0) {}

void TimeStoreCategory::setName(const PropertyListValue& name) {
    if (!name.asString())
        throw InternalInconsistency(
            kSource, 54,
            QStringLiteral("Invalid parameter not satisfying: [aString isKindOfClass:[NSString class]]"));
    // Only the constructor may name it.
    throw InternalInconsistency(kSource, 58,
                                QStringLiteral("Setting name not supported on %1.").arg(className()));
}

void TimeStoreCategory::setChildren(List children) {
    if (children == m_children)
        return;
    m_memberTimes.clear();
    m_children = std::move(children);
    m_memberTimes.reserve(allChildren().size());
    // Observes without the values: nobody needs them, and they would be formatted at every tick.
    for (const auto& child : allChildren())
        m_memberTimes.push_back(child->node().observe(
            kActiveTimeStringKey, [this](const ObservedChange&) { memberTimeChanged(); }));
    refreshSearch();
}

std::optional<TimeStoreItem::Children> TimeStoreCategory::children() const {
    return shown();
}

void TimeStoreCategory::setSearchString(const std::optional<QString>& searchString) {
    if (m_searchString && m_searchString == searchString)
        return;
    m_searchString = searchString;
    refreshSearch();
}

void TimeStoreCategory::refreshSearch() {
    // An observer may let go of this node while its lock is still held.
    const auto alive = weak_from_this().lock();
    const std::lock_guard guard(m_lock);
    const ChangeAnnouncement announcement(*this, kChildrenKey);
    m_searchResult.reset();
    if (!m_searchString || m_searchString->isEmpty())
        return;
    auto found = std::make_shared<Children>();
    for (const auto& child : allChildren())
        if (auto pruned = child->prunedObjectForSearchString(m_searchString, 0))
            found->push_back(std::move(pruned));
    m_searchResult = std::move(found);
}

Seconds TimeStoreCategory::activeTime() const {
    float total = 0;
    for (const auto& child : shown())
        total = float(Seconds(total) + child->activeTime());
    return total;
}

bool TimeStoreCategory::isEqual(const TimeStoreItem& other) const {
    return this == &other || (dynamic_cast<const TimeStoreCategory*>(&other) && name() == other.name());
}

std::size_t TimeStoreCategory::hash() const {
    const std::optional<Identity> identity = uuid();
    return identity ? std::hash<Identity>()(*identity) : 0;
}

const TimeStoreItem::Children& TimeStoreCategory::allChildren() const {
    static const Children kNone;
    return m_children ? *m_children : kNone;
}

void TimeStoreCategory::memberTimeChanged() {
    const auto alive = weak_from_this().lock();
    willChange(kActiveTimeStringKey);
    didChange(kActiveTimeStringKey);
}
