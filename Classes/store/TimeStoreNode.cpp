// SPDX-License-Identifier: MIT
#include "Classes/store/TimeStoreNode.h"

#include "Classes/common/ShownNames.h"
#include "Classes/store/TKUUIDManager.h"
#include "Classes/store/TimeStorePruneProxy.h"
#include "platform/foundation/text/CleanText.h"
#include "platform/foundation/text/DurationText.h"
#include "platform/foundation/values/Assertions.h"

#include <algorithm>

namespace {

// A null text becomes "", which is a name; null would mean that there is none.
QString nonNull(const QString& text) {
    return text.isNull() ? QLatin1String("") : text;
}

PropertyListValue textOrEmpty(const PropertyListValue& name) {
    return name.asString() ? name : PropertyListValue(QString());
}

// The record's own identity, which is entered in the registry; else the one that the registry has for the
// key.
Identity identityOf(const PropertyListDictionary& record, const QString& key, TimeStoreServices& services) {
    const QByteArray* bytes = record.value(kRecordUUID).asData();
    const auto identity = bytes ? Identity::fromBytes(*bytes) : std::nullopt;
    if (bytes && !identity)
        services.log.log(
            QStringLiteral("An identity of %1 bytes was left out of a timer's record.").arg(bytes->size()));
    return identity ? services.registry.setUUID(*identity, key) : services.registry.uuidForName(key);
}

} // namespace

TimeStoreNode::TimeStoreNode(TimeStoreServices& services, const PropertyListValue& name,
                             const PropertyListValue& timeSpent)
    : TimeStoreNode(services, Kind::Node, name, timeSpent) {}

TimeStoreNode::TimeStoreNode(TimeStoreServices& services, const PropertyListDictionary& record)
    : TimeStoreNode(services, Kind::Node, record) {}

TimeStoreNode::TimeStoreNode(TimeStoreServices& services, Kind kind, const PropertyListValue& name,
                             const PropertyListValue& timeSpent)
    : TimeStoreNode(services, kind, name, timeSpent,
                    services.registry.uuidForName(classNameOf(kind) + name.toString())) {}

TimeStoreNode::TimeStoreNode(TimeStoreServices& services, Kind kind, const PropertyListDictionary& record)
    : TimeStoreNode(services, kind, record,
                    classNameOf(kind) + cleanText(record.value(kRecordName).toString())) {}

// Files come from anywhere, so their names are cleaned like window titles.
TimeStoreNode::TimeStoreNode(TimeStoreServices& services, Kind kind, const PropertyListDictionary& record,
                             const QString& key)
    : TimeStoreNode(services, kind, cleanText(record.value(kRecordName).toString()),
                    record.value(kRecordActiveTime), identityOf(record, key, services)) {
    if (const QString* renamed = record.value(kRecordRenamedName).asString())
        m_renamedNameStorage = nonNull(cleanText(*renamed));
    m_branched = record.value(kRecordBranched).toBool();
}

TimeStoreNode::TimeStoreNode(TimeStoreServices& services, Kind kind, const PropertyListValue& name,
                             const PropertyListValue& timeSpent, const Identity& uuid)
    : m_services(services)
    , m_activeTime(std::clamp(timeSpent.number().value_or(0), 0.0, kLongestTime))
    , m_uuid(uuid)
    , m_kind(kind) {
    // During construction, the subclasses that react to a new name do not exist yet.
    TimeStoreNode::setName(textOrEmpty(name));
}

QString TimeStoreNode::className() const {
    return classNameOf(m_kind);
}

QString TimeStoreNode::classNameOf(Kind kind) {
    switch (kind) {
    case Kind::App:
        return QStringLiteral("TimeStoreApp");
    case Kind::Window:
        return QStringLiteral("TimeStoreWindow");
    case Kind::Category:
        return QStringLiteral("TimeStoreCategory");
    case Kind::AppProxy:
        return QStringLiteral("TimeStoreAppProxy");
    case Kind::Node:
        break;
    }
    return QStringLiteral("TimeStoreNode");
}

PropertyListDictionary TimeStoreNode::renamedNameFormatted() const {
    if (m_renamedNameStorage.isNull())
        return {{kRecordName, name()}};
    return {{kRecordName, m_renamedNameStorage}, {kFormattedOriginal, name()}};
}

void TimeStoreNode::setRenamedNameFormatted(const PropertyListDictionary& record) {
    const ChangeAnnouncement announcement(*this, kSortNameKey);
    const QString* renamed = record.value(kRecordName).asString();
    m_renamedNameStorage = !renamed || *renamed == name() ? QString() : nonNull(*renamed);
}

QString TimeStoreNode::activeTimeString() const {
    return durationText(activeTime());
}

void TimeStoreNode::setName(const PropertyListValue& value) {
    if (!value.isAbsent() && !value.asString())
        throw InternalInconsistency(
            QStringLiteral("Classes/TimeStoreNode"), 68,
            QStringLiteral("Invalid parameter not satisfying: [aString isKindOfClass:[NSString class]]"));
    const QString newName = value.toString();
    if (newName == m_name)
        return;
    willChange(kNameKey);
    willChange(kRenamedNameFormattedKey);
    willChange(kRenamedNameKey);
    if (!m_name.isNull() && !isApp())
        m_services.registry.renameName(registryKey(m_name), registryKey(newName));
    m_name = nonNull(newName);
    didChange(kRenamedNameKey);
    didChange(kRenamedNameFormattedKey);
    didChange(kNameKey);
}

std::optional<QString> TimeStoreNode::renamedNameStorage() const {
    return m_renamedNameStorage.isNull() ? std::nullopt : std::optional(m_renamedNameStorage);
}

void TimeStoreNode::setRenamedNameStorage(const std::optional<QString>& name) {
    m_renamedNameStorage = name ? nonNull(*name) : QString();
}

void TimeStoreNode::addTimeInterval(Seconds seconds) {
    const ChangeAnnouncement announcement(*this, kActiveTimeStringKey);
    m_activeTime = std::min(m_activeTime + seconds, kLongestTime);
}

void TimeStoreNode::addChildFromDictionary(const PropertyListDictionary&) {}

PropertyListDictionary TimeStoreNode::dictionaryRepresentation() const {
    PropertyListBuilder builder;
    writeRecord(builder);
    const PropertyListValue record = builder.take();
    return *record.asDictionary();
}

void TimeStoreNode::writeRecord(PropertyListSink& sink) const {
    sink.beginDictionary();
    sink.key(kRecordName);
    sink.string(name());
    sink.key(kRecordActiveTime);
    sink.real(m_activeTime);
    // A record ends before the first value that is absent.
    if (m_uuid) {
        sink.key(kRecordUUID);
        sink.data(m_uuid->bytes());
        sink.key(kRecordBranched);
        sink.boolean(m_branched);
        if (!m_renamedNameStorage.isNull()) {
            sink.key(kRecordRenamedName);
            sink.string(m_renamedNameStorage);
        }
    }
    sink.endDictionary();
}

std::shared_ptr<TimeStoreItem>
TimeStoreNode::prunedObjectForSearchString(const std::optional<QString>& searchString, float cutoffTime) {
    const bool isWanted = !searchString || matches(*searchString);
    const bool isBelowCutoff = cutoffTime > 0 && Seconds(cutoffTime) > activeTime();
    if (isWanted && !isBelowCutoff)
        return shared_from_this();
    if (isLeaf())
        return nullptr;
    auto proxy = TimeStorePruneProxy::prunedProxyForObject(shared_from_this(), searchString, cutoffTime);
    const auto survivors = proxy->children();
    return survivors && !survivors->empty() ? proxy : nullptr;
}

Seconds TimeStoreNode::activeTimeForSearchString(const QString& searchString) const {
    if (matches(searchString))
        return activeTime();
    Seconds sum = 0;
    if (const auto list = children())
        for (const auto& child : *list)
            sum += child->activeTimeForSearchString(searchString);
    return sum;
}

QString TimeStoreNode::description() const {
    return QStringLiteral("<%1: %2>").arg(className(), name());
}

QVariant TimeStoreNode::valueForKey(ObservedKey key) const {
    if (key == kNameKey)
        return name();
    if (key == kRenamedNameKey)
        return renamedName();
    if (key == kSortNameKey)
        return sortName();
    if (key == kActiveTimeStringKey)
        return activeTimeString();
    if (key == kIsLeafKey)
        return isLeaf();
    return {};
}

bool TimeStoreNode::matches(const QString& searchString) const {
    if (!m_renamedNameStorage.isNull())
        return m_renamedNameStorage.contains(searchString, Qt::CaseInsensitive);
    return isApp() ? ShownNames::contains(m_name, searchString)
                   : m_name.contains(searchString, Qt::CaseInsensitive);
}
