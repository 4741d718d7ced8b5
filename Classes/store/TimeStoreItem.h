// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListValue.h"
#include "platform/foundation/time/Date.h"
#include "platform/foundation/values/Identity.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

class TimeStoreNode;

// One row of the tree of timers as it is shown: a node, or a proxy that stands for one. Shared by the tree
// and its views. Main thread only.
class TimeStoreItem : public std::enable_shared_from_this<TimeStoreItem> {
public:
    using Children = std::vector<std::shared_ptr<TimeStoreItem>>;

    virtual ~TimeStoreItem() = default;

    // The node that this is or stands for. Observers register with it.
    virtual TimeStoreNode& node() = 0;
    const TimeStoreNode& node() const { return const_cast<TimeStoreItem*>(this)->node(); }

    // The name under which the timer was found; never absent.
    virtual QString name() const = 0;
    // The name shown: the user's own name if there is one, else `name`.
    virtual QString renamedName() const = 0;
    // "Name" as shown and, when the user renamed it, "Original": what an editing cell needs.
    virtual PropertyListDictionary renamedNameFormatted() const = 0;
    // Takes the "Name" entry as the user's own name. Setting the timer's `name` itself ends the renaming.
    virtual void setRenamedNameFormatted(const PropertyListDictionary& record) = 0;
    // Whether setRenamedNameFormatted() does anything.
    virtual bool renamedNameEditable() const = 0;
    // Lists are sorted by this name.
    virtual QString sortName() const = 0;
    // Seconds. Not the sum of the children.
    virtual Seconds activeTime() const = 0;
    // The same as a clock text, "01:02:03".
    virtual QString activeTimeString() const = 0;
    virtual std::optional<Identity> uuid() const = 0;
    // Frozen: separated from its name, so that its identity no longer follows the name.
    virtual bool branched() const = 0;

    // Absent for a row that can have no children.
    virtual std::optional<Children> children() const = 0;
    virtual bool isLeaf() const = 0;
    virtual bool isApp() const = 0;

    // What a filter leaves of this row. Wanted are rows that contain `searchString` (absent: all) and have at
    // least `cutoffTime` seconds (0 or less: all). Answers the row itself, a proxy that shows only the
    // children that are left, or null.
    virtual std::shared_ptr<TimeStoreItem>
    prunedObjectForSearchString(const std::optional<QString>& searchString, float cutoffTime) = 0;
    // The seconds that match `searchString`: all if this row matches, else those of its matching children.
    virtual Seconds activeTimeForSearchString(const QString& searchString) const = 0;
};
