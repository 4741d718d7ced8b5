// SPDX-License-Identifier: MIT
#pragma once

#include "interface/pasteboard/TimeMimeData.h"

#include <QModelIndex>

#include <memory>

class ProjectList;
class TimeTracker;

// What leaves the program by copying or dragging, and the clipboard it leaves it on.
class TimePasteboard {
public:
    // Both outlive this, and what it has written too, unless that is settled before.
    TimePasteboard(const TimeTracker& tracker, const ProjectList& projects);

    // What a copy or a drag of rows of the outline carries.
    std::unique_ptr<QMimeData> writeItems(const QModelIndexList& rows) const;
    // What a drag of a row of the sidebar carries.
    std::unique_ptr<QMimeData> writeProject(int row) const;
    // Before the timers go: a clipboard that still holds rows could no longer say how they read, so it is made whole.
    static void keepClipboard();

private:
    TimeMimeData::Provider provider() const;

    const TimeTracker& m_tracker;
    const ProjectList& m_projects;
};
