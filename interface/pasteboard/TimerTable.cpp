// SPDX-License-Identifier: MIT
#include "interface/pasteboard/TimerTable.h"

#include "Classes/projects/ProjectList.h"
#include "Classes/report/ReportFormats.h"
#include "Classes/store/TimeStoreApp.h"
#include "Classes/store/TimerTree.h"
#include "Classes/store/UntitledTime.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <cmath>
#include <unordered_map>

namespace {

// By member; a member of several projects has all of them.
class ProjectNames {
public:
    explicit ProjectNames(const ProjectList& projects) {
        for (const auto& project : projects.projects())
            for (const Identity& member : project->flattenedMembers())
                m_names[member] << project->label();
    }

    // The projects of a window are its own and those of its program.
    QString of(const TimeStoreItem& timer, const TimeStoreItem* application = nullptr) const {
        QStringList names;
        for (const TimeStoreItem* item : {application, &timer})
            if (item && item->uuid())
                if (const auto found = m_names.find(*item->uuid()); found != m_names.end())
                    names += found->second;
        names.removeDuplicates();
        return names.join(QStringLiteral(", "));
    }

private:
    std::unordered_map<Identity, QStringList> m_names;
};

// Whole seconds, as they are shown.
qint64 shownSeconds(const TimeStoreItem& timer) {
    return qint64(std::floor(timer.activeTime()));
}

// As the sum counts what was found.
qint64 foundSeconds(const TimeStoreItem& program, const QString& search) {
    if (search.isEmpty() || program.node().matches(search))
        return shownSeconds(program);
    qint64 seconds = 0;
    for (const auto& window : program.node().children().value_or(TimeStoreItem::Children()))
        if (window->node().matches(search))
            seconds += shownSeconds(*window);
    return seconds;
}

Seconds untitledTime(TimeStoreNode& program) {
    const auto application = std::dynamic_pointer_cast<TimeStoreApp>(program.shared_from_this());
    return application ? UntitledTime(application).activeTime() : 0;
}

// Parted, so that no spreadsheet takes one of digits alone for a number.
QString identityOf(const TimeStoreItem& timer) {
    return timer.uuid() ? QString::fromLatin1(timer.uuid()->bytes().toHex('-')) : QString();
}

} // namespace

SpreadsheetTable timerTable(const TimeStoreItem::Children& timers, const TimerTree& tree,
                            const ProjectList& projects, const QString& search) {
    const ProjectNames names(projects);
    SpreadsheetTable table{.heads = {localized("Program"), localized("Window"), localized("Time Spent"),
                                     localized("Projects"), localized("Identity")},
                           .rows = {}};
    const auto add = [&](const QString& program, const QString& window, qint64 seconds,
                         const QString& project, const TimeStoreItem& timer) {
        table.rows.push_back(
            {program, window, ReportFormats::durationText(seconds * 1000), project, identityOf(timer)});
    };
    for (const auto& timer : timers) {
        if (!timer->isApp()) {
            const auto program = tree.applicationHolding(timer->node());
            add(program ? program->renamedName() : QString(), timer->renamedName(), shownSeconds(*timer),
                names.of(*timer, program.get()), *timer);
            continue;
        }
        qint64 left = foundSeconds(*timer, search);
        const auto windows = timer->children().value_or(TimeStoreItem::Children());
        for (const auto& window : windows) {
            add(timer->renamedName(), window->renamedName(), shownSeconds(*window),
                names.of(*window, timer.get()), *window);
            left -= shownSeconds(*window);
        }
        // What only rounding leaves is no time of its own.
        if (windows.empty() || (left > 0 && untitledTime(timer->node()) >= 1))
            add(timer->renamedName(), {}, left, names.of(*timer), *timer);
    }
    return table;
}
