// SPDX-License-Identifier: MIT
#include "interface/pasteboard/TimePasteboard.h"

#include "Classes/engine/TimeTracker.h"
#include "Classes/projects/ProjectList.h"
#include "interface/outline/TKOutlineDisplayView.h"

#include <QClipboard>
#include <QGuiApplication>

TimePasteboard::TimePasteboard(const TimeTracker& tracker, const ProjectList& projects)
    : m_tracker(tracker)
    , m_projects(projects) {}

TimeMimeData::Provider TimePasteboard::provider() const {
    return {
        .timers =
            [this](const std::vector<Identity>& timers) {
                return m_tracker.timeChildrenForChildUUIDs({timers.begin(), timers.end()}, true);
            },
        .uuidsForProjectIndex = [this](int row) { return m_projects.uuidsForProjectIndex(std::size_t(row)); },
        .primaryUUIDs = [this] { return m_tracker.primaryUUIDs(); }};
}

std::unique_ptr<QMimeData> TimePasteboard::writeItems(const QModelIndexList& rows) const {
    std::vector<Identity> timers;
    for (const QModelIndex& row : rows)
        if (const auto item = TKOutlineDisplayView::itemAt(row); item && item->uuid())
            timers.push_back(*item->uuid());
    return std::make_unique<TimeMimeData>(provider(), timers);
}

std::unique_ptr<QMimeData> TimePasteboard::writeProject(int row) const {
    // What belongs to no project is below them.
    if (row > int(m_projects.count()))
        return std::make_unique<TimeMimeData>(provider(), m_projects.restItem()->members());
    return std::make_unique<TimeMimeData>(provider(), row);
}

void TimePasteboard::keepClipboard() {
    QClipboard& clipboard = *QGuiApplication::clipboard();
    // If another program has copied something meanwhile, this is not our data.
    if (const auto* rows = qobject_cast<const TimeMimeData*>(clipboard.mimeData()))
        clipboard.setMimeData(rows->settled());
}
