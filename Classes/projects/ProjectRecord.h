// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/Succession.h"
#include "platform/foundation/propertylists/PropertyListValue.h"

#include <functional>
#include <unordered_set>
#include <vector>

// The entries of a project's record.
inline const QString kProjectLabel = QStringLiteral("Label");
inline const QString kProjectSubtree = QStringLiteral("Subtree");
inline const QString kProjectExpandedUUIDs = QStringLiteral("expandedUUIDs");
inline const QString kProjectColorTag = QStringLiteral("kTKColorTagKey");
inline const QString kProjectUUID = QStringLiteral("UUID");
// Only where there are any: what the history has of it beside its members. Records, see ProjectPatterns.
inline const QString kProjectPatterns = QStringLiteral("kTKPatterns");
// Only where time was given to it by hand: by which the history knows it.
inline const QString kProjectHistoryIdentity = QStringLiteral("kTKHistoryIdentity");

// One project, as it is in the file. Two records are the same project only if they are the same object.
// Entries of unknown keys are kept; so are values of the wrong type, until they are replaced, but they count
// as absent. An element of the member list may itself be such a record, with members of its own. Cheap to
// copy.
class ProjectRecord {
public:
    ProjectRecord() = default;
    // From a file or another source: the label is passed through cleanText().
    explicit ProjectRecord(PropertyListDictionary entries);

    const PropertyListDictionary& entries() const { return m_entries; }

    // Empty when absent.
    QString label() const { return m_entries.value(kProjectLabel).toString(); }
    void setLabel(const QString& label);

    // 0 when absent: no colour. A file can hold any number.
    int colorTag() const;
    void setColorTag(int tag);

    // None if absent.
    PropertyListArray patterns() const;
    void setPatterns(const PropertyListArray& patterns);

    // By which the history knows it. Absent until time is given to it by hand.
    std::optional<Identity> historyIdentity() const;
    void setHistoryIdentity(const std::optional<Identity>& identity);

    // The identity of the project's node; this program never makes one.
    std::optional<Identity> uuid() const;

    // The members in the list itself, in its order.
    std::vector<Identity> members() const;
    // The same with the members of nested records, in order, each once.
    std::vector<Identity> flattenedMembers() const;
    // Visits the same without looking for those that are there several times: a project may have a million.
    void forEachMember(const std::function<void(const Identity&)>& visit) const;
    // Adds every identity of a member list to `set`; a nested record adds its own members, not itself.
    static void addObjectsToSet(std::unordered_set<Identity>& set, const PropertyListValue& subtree);

    // Each answers whether anything changed. Nested records are not changed.
    bool addMembers(const std::vector<Identity>& identities);
    bool removeMembers(const std::unordered_set<Identity>& identities);
    // Replaces an identity in the member list and in the expanded list. Each old one is removed and the new
    // one goes to the end.
    bool replaceMember(const Identity& old, const Identity& replacement);
    // In both lists, puts `kept` in the place of `gone`, unless `kept` is there already.
    bool joinMembers(const Identity& gone, const Identity& kept);
    // In each list that holds a former, adds its successor; applies the successions one after the other. Adds
    // to `followed` the formers for which a successor was added.
    void addSuccessors(const Successions& successions, std::unordered_set<Identity>& followed);

    // The rows shown expanded. Absent until a row was first expanded; an identity may occur twice.
    std::optional<std::vector<Identity>> expandedUUIDs() const;
    void expand(const Identity& uuid);
    void collapse(const Identity& uuid);
    // Forgets the identities that are false here, counted from the first. Those beyond the end of `isKept`
    // stay.
    void keepExpanded(const std::vector<bool>& isKept);
    // Forgets all that are not in `kept`.
    void pruneExpanded(const std::unordered_set<Identity>& kept);
    // The entry itself, for the settings and for undoing.
    const PropertyListValue& expandedEntry() const { return m_entries.value(kProjectExpandedUUIDs); }
    void setExpandedEntry(const PropertyListValue& entry);

    // How many elements of the lists are useless: data of the wrong length, or another type.
    int damagedElements() const;

private:
    PropertyListDictionary m_entries;
};
