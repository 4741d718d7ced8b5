// SPDX-License-Identifier: MIT
#pragma once

#include "interface/pasteboard/TimeMimeData.h"

#include <QModelIndex>

#include <memory>

class ProjectList;
class TimeTracker;

// Makes the data for copying and dragging, and puts it on the clipboard.
class TimePasteboard {
public:
    // Both must outlive this object and the data it has made, unless the data is settled before.
    TimePasteboard(const TimeTracker& tracker, const ProjectList& projects);

    // The data of a copy or a drag of rows in the outline.
    std::unique_ptr<QMimeData> writeItems(const QModelIndexList& rows) const;
    // The data of a drag of a sidebar row.
    std::unique_ptr<QMimeData> writeProject(int row) const;
    // Call it before the timers end: makes all forms of what is still on the clipboard, because they could
    // not be made afterwards.
    static void keepClipboard();

private:
    TimeMimeData::Provider provider() const;

    const TimeTracker& m_tracker;
    const ProjectList& m_projects;
};
