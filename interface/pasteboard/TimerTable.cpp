// SPDX-License-Identifier: MIT
#include "interface/pasteboard/TimerTable.h"

#include "Classes/projects/ProjectList.h"
#include "Classes/report/ReportFormats.h"
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

QString identityOf(const TimeStoreItem& timer) {
    return timer.uuid() ? QString::fromLatin1(timer.uuid()->bytes().toHex()) : QString();
}

} // namespace

SpreadsheetTable timerTable(const TimeStoreItem::Children& timers, const ProjectList& projects) {
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
            add({}, timer->renamedName(), shownSeconds(*timer), names.of(*timer), *timer);
            continue;
        }
        qint64 left = shownSeconds(*timer);
        const auto windows = timer->children().value_or(TimeStoreItem::Children());
        for (const auto& window : windows) {
            add(timer->renamedName(), window->renamedName(), shownSeconds(*window),
                names.of(*window, timer.get()), *window);
            left -= shownSeconds(*window);
        }
        if (left > 0 || windows.empty())
            add(timer->renamedName(), {}, left, names.of(*timer), *timer);
    }
    return table;
}
