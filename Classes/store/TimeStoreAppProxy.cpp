// SPDX-License-Identifier: MIT
#include "Classes/store/TimeStoreAppProxy.h"

#include <algorithm>

TimeStoreAppProxy::TimeStoreAppProxy(TimeStoreServices& services, const PropertyListValue& name,
                                     const Children& children)
    : TimeStoreCategory(services, Kind::AppProxy, name) {
    TimeStoreAppProxy::setChildren(std::make_shared<const Children>(children));
}

QStringList TimeStoreAppProxy::keyPathsForValuesAffectingValueForKey(ObservedKey key) {
    if (key == kChildrenKey || key == kIsLeafKey)
        return {QLatin1String(kAppKey.name) + u'.' + QLatin1String(key.name)};
    return {};
}

std::shared_ptr<TimeStoreItem> TimeStoreAppProxy::app() const {
    return allChildren().empty() ? nullptr : allChildren().back();
}

void TimeStoreAppProxy::setChildren(List children) {
    const auto alive = weak_from_this().lock();
    const ChangeAnnouncement appAnnouncement(*this, kAppKey);
    const ChangeAnnouncement childrenAnnouncement(*this, kChildrenKey);
    const ChangeAnnouncement leafAnnouncement(*this, kIsLeafKey);
    auto real = std::make_shared<Children>();
    if (children)
        std::ranges::copy_if(*children, std::back_inserter(*real), [](const auto& child) {
            return !dynamic_cast<const TimeStoreAppProxy*>(child.get());
        });
    TimeStoreCategory::setChildren(std::move(real));
    followApp();
}

std::optional<TimeStoreItem::Children> TimeStoreAppProxy::children() const {
    return allChildren().size() == 1 ? app()->children() : allChildren();
}

bool TimeStoreAppProxy::isLeaf() const {
    return allChildren().empty() || (allChildren().size() == 1 && app()->isLeaf());
}

PropertyListDictionary TimeStoreAppProxy::renamedNameFormatted() const {
    return app() ? app()->renamedNameFormatted() : PropertyListDictionary();
}

void TimeStoreAppProxy::setRenamedNameFormatted(const PropertyListDictionary& record) {
    if (const auto renamed = app())
        renamed->setRenamedNameFormatted(record);
}

bool TimeStoreAppProxy::branched() const {
    return app() && app()->branched();
}

std::optional<Identity> TimeStoreAppProxy::uuid() const {
    return app() ? app()->uuid() : std::nullopt;
}

Seconds TimeStoreAppProxy::activeTime() const {
    Seconds total = 0;
    for (const auto& child : allChildren())
        total += child->activeTime();
    return total;
}

bool TimeStoreAppProxy::isEqual(const TimeStoreItem& other) const {
    if (this == &other)
        return true;
    return dynamic_cast<const TimeStoreAppProxy*>(&other) && app() && app()->name() == other.name();
}

QString TimeStoreAppProxy::description() const {
    QStringList children;
    for (const auto& child : allChildren())
        children << child->node().description();
    return QStringLiteral("AppProxy: (%1)").arg(children.join(QStringLiteral(", ")));
}

void TimeStoreAppProxy::followApp() {
    m_appChanges.clear();
    const auto followed = app();
    if (!followed)
        return;
    for (const ObservedKey key : {kChildrenKey, kIsLeafKey})
        m_appChanges.push_back(followed->node().observe(
            key, [this, key](const ObservedChange& change) { forward(key, change.phase); }, {.prior = true}));
}

void TimeStoreAppProxy::forward(ObservedKey key, ChangePhase phase) {
    const auto alive = weak_from_this().lock();
    if (phase == ChangePhase::Will)
        willChange(key);
    else
        didChange(key);
}
