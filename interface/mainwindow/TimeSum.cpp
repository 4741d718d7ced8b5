// SPDX-License-Identifier: MIT
#include "interface/mainwindow/TimeSum.h"

#include "Classes/common/ShownNames.h"
#include "Classes/store/TimeStoreNode.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>

namespace {

QString totalCaption(const QStringList& leftOut) {
    if (leftOut.isEmpty())
        return localized("Total");
    QString text = leftOut.size() == 1 ? localized("Total without %@") : localized("Total without %@ and %@");
    qsizetype place = 0;
    for (const QString& name : leftOut.first(std::min<qsizetype>(leftOut.size(), 2))) {
        const QString shown = ShownNames::of(name);
        // A name may look like the next place.
        place = text.indexOf(QLatin1String("%@"), place);
        text.replace(place, 2, shown);
        place += shown.size();
    }
    return text;
}

} // namespace

TimeStoreItem::Children withoutDoubleCounting(TimeStoreItem::Children rows) {
    std::unordered_set<const TimeStoreNode*> counted;
    for (const auto& row : rows)
        if (!row->isLeaf())
            for (const auto& child : row->children().value_or(TimeStoreItem::Children()))
                counted.insert(&child->node());
    std::erase_if(rows, [&](const auto& row) { return counted.contains(&row->node()); });
    return rows;
}

TimeStoreItem::Children countedRows(TimeStoreItem::Children rows, const QString& searchString) {
    if (searchString.isEmpty())
        return rows;
    TimeStoreItem::Children counted;
    const auto matches = [&](const auto& row) { return row->node().matches(searchString); };
    for (auto& row : rows) {
        if (matches(row))
            counted.push_back(std::move(row));
        // Asks the node, because a proxy has only the children that pass the cut-off. What a leaf has is not shown
        // as rows, and so not found.
        else if (row->isLeaf())
            continue;
        else if (const auto children = row->node().children())
            std::ranges::copy_if(*children, std::back_inserter(counted), matches);
    }
    return counted;
}

Seconds summedTime(const TimeStoreItem::Children& rows) {
    Seconds sum = 0;
    for (const auto& row : rows)
        sum += row->activeTime();
    return sum;
}

QString sumImage(SumMode mode) {
    switch (mode) {
    case SumMode::Total:
        return QStringLiteral("sidebar-time-total");
    case SumMode::Project:
        return QStringLiteral("sidebar-time-project");
    case SumMode::Selected:
        return QStringLiteral("sidebar-time-selection");
    case SumMode::Found:
        return QStringLiteral("sidebar-time-found");
    case SumMode::FoundInSelection:
        return QStringLiteral("sidebar-time-foundselection");
    case SumMode::None:
        break;
    }
    return {};
}

QString sumCaption(SumMode mode, const QStringList& leftOut) {
    switch (mode) {
    case SumMode::Total:
        return totalCaption(leftOut);
    case SumMode::Project:
        return localized("Project");
    case SumMode::Selected:
        return localized("Selected");
    case SumMode::Found:
        return localized("Found");
    case SumMode::FoundInSelection:
        return localized("Found in selection");
    case SumMode::None:
        break;
    }
    return {};
}

QString sumTitle(SumMode mode, const QString& time) {
    const char* key = mode == SumMode::Total      ? QT_TRANSLATE_NOOP("Ticklog", "total\n%@")
                      : mode == SumMode::Project  ? QT_TRANSLATE_NOOP("Ticklog", "project\n%@")
                      : mode == SumMode::Selected ? QT_TRANSLATE_NOOP("Ticklog", "selected\n%@")
                                                  : QT_TRANSLATE_NOOP("Ticklog", "found\n%@");
    return localized(key).replace(QLatin1String("%@"), time);
}
