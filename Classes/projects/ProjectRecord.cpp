// SPDX-License-Identifier: MIT
#include "Classes/projects/ProjectRecord.h"

#include "platform/foundation/text/CleanText.h"

#include <algorithm>
#include <limits>

namespace {

const PropertyListArray& listOf(const PropertyListValue& value) {
    static const PropertyListArray kNone;
    const PropertyListArray* list = value.asArray();
    return list ? *list : kNone;
}

std::optional<Identity> identityOf(const PropertyListValue& value) {
    const QByteArray* bytes = value.asData();
    return bytes ? Identity::fromBytes(*bytes) : std::nullopt;
}

PropertyListValue entryOf(const Identity& identity) {
    return identity.bytes();
}

std::vector<Identity> identitiesIn(const PropertyListArray& list) {
    std::vector<Identity> identities;
    identities.reserve(list.size());
    for (const PropertyListValue& value : list)
        if (const auto identity = identityOf(value))
            identities.push_back(*identity);
    return identities;
}

// Calls `visit` for each identity, in order, also those in nested records. Each list is walked once, even if
// it occurs in several places: a few lists nested within each other would otherwise take for ever. Does not
// recurse.
template<class Visit>
void forEachFlattened(const PropertyListValue& subtree, Visit&& visit) {
    struct Level {
        const PropertyListArray* list;
        std::size_t next;
    };
    std::vector<Level> levels;
    std::unordered_set<const PropertyListArray*> walked;
    const auto enter = [&](const PropertyListArray& list) {
        if (walked.insert(&list).second)
            levels.push_back({&list, 0});
    };
    enter(listOf(subtree));
    while (!levels.empty()) {
        Level& level = levels.back();
        if (level.next == level.list->size()) {
            levels.pop_back();
            continue;
        }
        const PropertyListValue& value = (*level.list)[level.next++];
        if (const PropertyListDictionary* nested = value.asDictionary())
            enter(listOf(nested->value(kProjectSubtree)));
        else if (const auto identity = identityOf(value))
            visit(*identity);
    }
}

// Removes the elements that are unwanted identities. Answers whether there were any.
template<class IsUnwanted>
bool prune(PropertyListArray& list, IsUnwanted&& isUnwanted) {
    return std::erase_if(list, [&](const PropertyListValue& value) {
               const auto identity = identityOf(value);
               return identity && isUnwanted(*identity);
           }) > 0;
}

} // namespace

ProjectRecord::ProjectRecord(PropertyListDictionary entries)
    : m_entries(std::move(entries)) {
    if (const QString* label = m_entries.value(kProjectLabel).asString())
        if (const QString clean = cleanText(*label); clean != *label)
            m_entries.insert(kProjectLabel, clean);
}

void ProjectRecord::setLabel(const QString& label) {
    m_entries.insert(kProjectLabel, label);
}

int ProjectRecord::colorTag() const {
    return int(std::clamp<std::int64_t>(m_entries.value(kProjectColorTag).toInteger(),
                                        std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

void ProjectRecord::setColorTag(int tag) {
    m_entries.insert(kProjectColorTag, tag);
}

PropertyListArray ProjectRecord::patterns() const {
    return listOf(m_entries.value(kProjectPatterns));
}

void ProjectRecord::setPatterns(const PropertyListArray& patterns) {
    if (patterns.empty())
        m_entries.remove(kProjectPatterns);
    else
        m_entries.insert(kProjectPatterns, patterns);
}

std::optional<Identity> ProjectRecord::historyIdentity() const {
    return identityOf(m_entries.value(kProjectHistoryIdentity));
}

void ProjectRecord::setHistoryIdentity(const std::optional<Identity>& identity) {
    if (identity)
        m_entries.insert(kProjectHistoryIdentity, identity->bytes());
    else
        m_entries.remove(kProjectHistoryIdentity);
}

std::optional<Identity> ProjectRecord::uuid() const {
    return identityOf(m_entries.value(kProjectUUID));
}

std::vector<Identity> ProjectRecord::members() const {
    return identitiesIn(listOf(m_entries.value(kProjectSubtree)));
}

std::vector<Identity> ProjectRecord::flattenedMembers() const {
    std::vector<Identity> members;
    std::unordered_set<Identity> seen;
    forEachFlattened(m_entries.value(kProjectSubtree), [&](const Identity& identity) {
        if (seen.insert(identity).second)
            members.push_back(identity);
    });
    return members;
}

void ProjectRecord::forEachMember(const std::function<void(const Identity&)>& visit) const {
    forEachFlattened(m_entries.value(kProjectSubtree), visit);
}

void ProjectRecord::addObjectsToSet(std::unordered_set<Identity>& set, const PropertyListValue& subtree) {
    forEachFlattened(subtree, [&](const Identity& identity) { set.insert(identity); });
}

bool ProjectRecord::addMembers(const std::vector<Identity>& identities) {
    PropertyListArray list = listOf(m_entries.value(kProjectSubtree));
    const std::vector<Identity> present = identitiesIn(list);
    std::unordered_set<Identity> held(present.begin(), present.end());
    const std::size_t before = list.size();
    for (const Identity& identity : identities)
        if (held.insert(identity).second)
            list.push_back(entryOf(identity));
    if (list.size() == before)
        return false;
    m_entries.insert(kProjectSubtree, std::move(list));
    return true;
}

bool ProjectRecord::removeMembers(const std::unordered_set<Identity>& identities) {
    PropertyListArray list = listOf(m_entries.value(kProjectSubtree));
    if (!prune(list, [&](const Identity& identity) { return identities.contains(identity); }))
        return false;
    m_entries.insert(kProjectSubtree, std::move(list));
    return true;
}

bool ProjectRecord::replaceMember(const Identity& old, const Identity& replacement) {
    const auto isOld = [&](const PropertyListValue& value) { return identityOf(value) == old; };
    bool hasChanged = false;
    for (const QString& key : {kProjectSubtree, kProjectExpandedUUIDs}) {
        const PropertyListArray& present = listOf(m_entries.value(key));
        // Usually there is none, and nothing is copied.
        if (std::ranges::none_of(present, isOld))
            continue;
        PropertyListArray list = present;
        std::erase_if(list, isOld);
        list.push_back(entryOf(replacement));
        m_entries.insert(key, std::move(list));
        hasChanged = true;
    }
    return hasChanged;
}

bool ProjectRecord::joinMembers(const Identity& gone, const Identity& kept) {
    bool hasChanged = false;
    for (const QString& key : {kProjectSubtree, kProjectExpandedUUIDs}) {
        const PropertyListArray& present = listOf(m_entries.value(key));
        const auto is = [](const Identity& wanted) {
            return [&wanted](const PropertyListValue& value) { return identityOf(value) == wanted; };
        };
        const auto place = std::ranges::find_if(present, is(gone));
        if (place == present.end())
            continue;
        PropertyListArray list = present;
        if (std::ranges::none_of(present, is(kept)))
            list[std::size_t(place - present.begin())] = entryOf(kept);
        std::erase_if(list, is(gone));
        m_entries.insert(key, std::move(list));
        hasChanged = true;
    }
    return hasChanged;
}

void ProjectRecord::addSuccessors(const Successions& successions, std::unordered_set<Identity>& followed) {
    for (const QString& key : {kProjectSubtree, kProjectExpandedUUIDs}) {
        const PropertyListArray& before = listOf(m_entries.value(key));
        std::unordered_set<Identity> present;
        for (const PropertyListValue& value : before)
            if (const auto identity = identityOf(value))
                present.insert(*identity);
        PropertyListArray added;
        for (const auto& [former, successor, application] : successions) {
            if (!present.contains(former) || !present.insert(successor).second)
                continue;
            added.emplace_back(entryOf(successor));
            followed.insert(former);
        }
        if (added.empty())
            continue;
        PropertyListArray list = before;
        list.insert(list.end(), added.begin(), added.end());
        m_entries.insert(key, std::move(list));
    }
}

std::optional<std::vector<Identity>> ProjectRecord::expandedUUIDs() const {
    const PropertyListArray* list = expandedEntry().asArray();
    return list ? std::optional(identitiesIn(*list)) : std::nullopt;
}

void ProjectRecord::expand(const Identity& uuid) {
    PropertyListArray list = listOf(expandedEntry());
    list.push_back(entryOf(uuid));
    setExpandedEntry(std::move(list));
}

void ProjectRecord::collapse(const Identity& uuid) {
    PropertyListArray list = listOf(expandedEntry());
    if (prune(list, [&](const Identity& identity) { return identity == uuid; }))
        setExpandedEntry(std::move(list));
}

void ProjectRecord::keepExpanded(const std::vector<bool>& isKept) {
    const auto expanded = expandedUUIDs();
    if (!expanded || std::ranges::find(isKept, false) == isKept.end())
        return;
    PropertyListArray kept;
    for (std::size_t i = 0; i < expanded->size(); ++i)
        if (i >= isKept.size() || isKept[i])
            kept.emplace_back((*expanded)[i].bytes());
    m_entries.insert(kProjectExpandedUUIDs, std::move(kept));
}

void ProjectRecord::pruneExpanded(const std::unordered_set<Identity>& kept) {
    PropertyListArray list = listOf(expandedEntry());
    if (prune(list, [&](const Identity& identity) { return !kept.contains(identity); }))
        setExpandedEntry(std::move(list));
}

void ProjectRecord::setExpandedEntry(const PropertyListValue& entry) {
    if (entry.isAbsent())
        m_entries.remove(kProjectExpandedUUIDs);
    else
        m_entries.insert(kProjectExpandedUUIDs, entry);
}

int ProjectRecord::damagedElements() const {
    const auto isDamaged = [](const PropertyListValue& value) {
        return !identityOf(value) && !value.asDictionary();
    };
    return int(std::ranges::count_if(listOf(m_entries.value(kProjectSubtree)), isDamaged) +
               std::ranges::count_if(listOf(expandedEntry()), isDamaged));
}
