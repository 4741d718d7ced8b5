// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/Succession.h"
#include "platform/foundation/propertylists/PropertyListValue.h"

#include <unordered_set>
#include <vector>

// The entries of a project's record.
inline const QString kProjectLabel = QStringLiteral("Label");
inline const QString kProjectSubtree = QStringLiteral("Subtree");
inline const QString kProjectExpandedUUIDs = QStringLiteral("expandedUUIDs");
inline const QString kProjectColorTag = QStringLiteral("kTKColorTagKey");
inline const QString kProjectUUID = QStringLiteral("UUID");

// One project as the file has it. Two records are the same project only when they are the same object. Entries of
// unknown keys are kept as they came, and so are values of the wrong type until something is put in their place; when
// read, these count as absent. An element of the member list may be a record of this form itself, with members of its
// own. Copying one is cheap.
class ProjectRecord {
public:
    ProjectRecord() = default;
    // From a file, say: the label becomes what cleanText() leaves of it.
    explicit ProjectRecord(PropertyListDictionary entries);

    const PropertyListDictionary& entries() const { return m_entries; }

    // Empty when absent.
    QString label() const { return m_entries.value(kProjectLabel).toString(); }
    void setLabel(const QString& label);

    // 0 when absent: no label. Any number can stand in a file.
    int colorTag() const;
    void setColorTag(int tag);

    // Names the project's node; never made here.
    std::optional<Identity> uuid() const;

    // The members that stand in the list themselves, in its order.
    std::vector<Identity> members() const;
    // Those and the members of nested records, in order, each once.
    std::vector<Identity> flattenedMembers() const;
    // Enters every identity of a member list; a nested record gives its own members instead of itself.
    static void addObjectsToSet(std::unordered_set<Identity>& set, const PropertyListValue& subtree);

    // Each answers whether anything changed. Nested records stay as they are.
    bool addMembers(const std::vector<Identity>& identities);
    bool removeMembers(const std::unordered_set<Identity>& identities);
    // Each old identity that stands in a list leaves it, and the new one goes to its end; in the member list and in
    // the expanded list.
    bool replaceMember(const Identity& old, const Identity& replacement);
    // In both lists `kept` stands from now on where `gone` stood, unless it stands there already.
    bool joinMembers(const Identity& gone, const Identity& kept);
    // The lists that hold a former hold its successor as well from now on, one after the other. Adds to `followed` the formers
    // that brought one with them.
    void addSuccessors(const Successions& successions, std::unordered_set<Identity>& followed);

    // The rows shown expanded. Absent until one was first expanded; an identity may be in it twice.
    std::optional<std::vector<Identity>> expandedUUIDs() const;
    void expand(const Identity& uuid);
    void collapse(const Identity& uuid);
    // Forgets the identities, counted from the first, that are false here. What lies beyond stays.
    void keepExpanded(const std::vector<bool>& isKept);
    // Forgets all that are not in `kept`.
    void pruneExpanded(const std::unordered_set<Identity>& kept);
    // The entry itself, for the settings and for whoever restores it.
    const PropertyListValue& expandedEntry() const { return m_entries.value(kProjectExpandedUUIDs); }
    void setExpandedEntry(const PropertyListValue& entry);

    // How many elements of its lists are of no use: data of another length than an identity's, or of another type.
    int damagedElements() const;

private:
    PropertyListDictionary m_entries;
};
