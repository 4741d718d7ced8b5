// SPDX-License-Identifier: MIT
#include "interface/outline/ProgramCell.h"

#include "Classes/common/ShownNames.h"
#include "Classes/store/TimeStoreApp.h"
#include "Classes/store/TimeStoreAppProxy.h"
#include "Classes/store/TimeStoreWindow.h"
#include "interface/labels/TKLabelColorList.h"
#include "interface/outline/TKAppDisplayFormatter.h"
#include "platform/foundation/text/LocalizedStrings.h"
#include "platform/foundation/text/ShownTitle.h"

#include <algorithm>

namespace {

bool isWindow(const TimeStoreItem& item) {
    return dynamic_cast<const TimeStoreWindow*>(&item) != nullptr;
}

bool holds(const TimeStoreItem& application, const TimeStoreNode& node) {
    const auto children = application.children();
    return children &&
           std::ranges::any_of(*children, [&](const auto& child) { return &child->node() == &node; });
}

} // namespace

QString programOf(const TimeStoreItem& application) {
    return application.branched() ? application.renamedName() : application.name();
}

TKTableLabelCell ProgramCell::cell(TimeStoreItem& item, bool isTopLevel) const {
    TKTableLabelCell cell;
    if (!m_sources.isProjectShown())
        if (const auto uuid = item.uuid())
            if (ColorTags tags = m_sources.tags(*uuid); !tags.isEmpty())
                cell.selectedTags = std::move(tags);
    cell.showWindowIcon = isWindow(item);
    if (!cell.showWindowIcon)
        cell.program = programOf(item);
    cell.isFrozen = isFrozen(item, isTopLevel);
    // Proxies for timers cannot be frozen.
    cell.supportsFreeze = dynamic_cast<const TimeStoreNode*>(&item) != nullptr &&
                          dynamic_cast<const TimeStoreAppProxy*>(&item) == nullptr;
    return cell;
}

QStringList ProgramCell::spokenMarks(TimeStoreItem& item, bool isTopLevel) const {
    const TKTableLabelCell shown = cell(item, isTopLevel);
    QStringList marks;
    if (shown.isFrozen)
        marks << localized("frozen");
    if (shown.selectedTags)
        for (const int tag : *shown.selectedTags)
            marks << TKLabelColorList::nameForTag(tag);
    return marks;
}

QString ProgramCell::shownName(TimeStoreItem& item, TimeStoreItem* above) const {
    const PropertyListDictionary record = item.renamedNameFormatted();
    const QString whole = TKAppDisplayFormatter::stringForObjectValue(record);
    const bool isRenamed = TKAppDisplayFormatter::dimmedLength(record) > 0;
    if (!isRenamed && item.isApp())
        return ShownNames::of(whole);
    if (isRenamed || !isWindow(item) || !m_sources.hasShortTitles || !m_sources.hasShortTitles())
        return whole;
    const auto program = above ? above->shared_from_this() : m_sources.programOf(item.node());
    if (!program)
        return whole;
    // Its own name, or else the user's: one of them is in the title.
    const QString title = shownTitle(whole, program->name());
    return title == whole ? shownTitle(whole, program->renamedName()) : title;
}

bool ProgramCell::isFrozen(TimeStoreItem& item, bool isTopLevel) const {
    if (item.branched() || !m_sources.isProjectShown() || !isTopLevel || !isWindow(item))
        return item.branched();
    // In a project, a window without its application counts as frozen when the application is.
    const TimeStoreItem::Children applications = m_sources.applications();
    const auto found = std::ranges::find_if(applications, [&](const auto& application) {
        return application->isApp() && holds(*application, item.node());
    });
    return found != applications.end() && (*found)->branched();
}
