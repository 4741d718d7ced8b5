// SPDX-License-Identifier: MIT
#include "interface/mainwindow/ShownSum.h"

#include "Classes/engine/TimeTracker.h"
#include "Classes/store/TimeStoreCategory.h"
#include "interface/mainwindow/MainWindow.h"
#include "interface/mainwindow/SumBar.h"
#include "interface/outline/TKOutlineDisplayView.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QLineEdit>

#include <cmath>

namespace {

constexpr int kAllObjects = 1;
constexpr int kInWords = 2;

} // namespace

ShownSum::ShownSum(const TimeTracker& tracker, const MainWindow& window, Project project)
    : m_tracker(tracker)
    , m_window(window)
    , m_project(std::move(project)) {}

ShownSum::Rows ShownSum::rowsToSum(int kind) const {
    const QString search = m_window.searchAppField().text();
    TimeStoreCategory* project = m_project.node();
    TimeStoreItem::Children rows =
        kind == kAllObjects ? TimeStoreItem::Children() : m_window.mainTable().selectedItems();
    if (rows.empty() && !project && search.isEmpty())
        return {.isTotal = true, .mode = SumMode::Total, .rows = {}};
    // Top-level rows never count each other.
    if (!rows.empty())
        rows = withoutDoubleCounting(std::move(rows));
    else if (project)
        rows = project->children().value_or(TimeStoreItem::Children());
    else
        rows = m_tracker.timeSet();
    // The mode depends on the selection even if the sum does not.
    const bool hasSelection = m_window.mainTable().selectionModel()->hasSelection();
    const SumMode mode = search.isEmpty() ? (hasSelection ? SumMode::Selected : SumMode::Project)
                                          : (hasSelection ? SumMode::FoundInSelection : SumMode::Found);
    return {.isTotal = false, .mode = mode, .rows = countedRows(std::move(rows), search)};
}

Seconds ShownSum::timeOf(const Rows& rows) const {
    return rows.isTotal ? m_tracker.totalTime() : summedTime(rows.rows);
}

QString ShownSum::text(int kind, SumMode* outMode) const {
    const Rows rows = rowsToSum(kind);
    const Seconds time = timeOf(rows);
    if (!outMode)
        return sumTitle(rows.mode, TimeTracker::timeStringForDouble(time));
    *outMode = rows.mode;
    return kind == kInWords ? m_tracker.humanTimeStringForDouble(time)
                            : TimeTracker::timeStringForDouble(time);
}

void ShownSum::refresh() {
    if (!m_window.isSeen())
        return;
    const bool areOthers = !m_rows;
    if (areOthers)
        m_rows = rowsToSum(0);
    const Seconds time = timeOf(*m_rows);
    const TimeStoreApp* counted = m_tracker.activeStoreApp();
    if (const Seconds soFar = counted ? counted->activeTime() : 0; areOthers || soFar != m_lastCounted) {
        m_isGrowing = areOthers || counted != m_counted || m_lastTime < time;
        m_counted = counted;
        m_lastCounted = soFar;
    }
    m_lastTime = time;
    const double second = std::floor(time);
    const SumMode mode = m_rows->mode;
    if (!areOthers && second == m_lastSecond)
        return;
    m_lastSecond = second;
    m_window.sumBar().showSum(TimeTracker::timeStringForDouble(time));
    QString words = caption(mode);
    if (mode == m_lastMode && words == m_lastCaption)
        return;
    m_lastMode = mode;
    m_lastCaption = std::move(words);
    m_window.sumBar().showSumMode(sumImage(mode), m_lastCaption);
}

QString ShownSum::caption(SumMode mode) const {
    if (mode == SumMode::Project && m_project.isRest())
        return localized("No Project");
    return sumCaption(mode, m_rows->isTotal ? leftOutOfTotal() : QStringList());
}

std::optional<Seconds> ShownSum::untilTurn() const {
    return m_isGrowing ? std::optional(m_lastSecond + 1 - m_lastTime) : std::nullopt;
}

// As people know them; those of which no second is shown are not missed.
QStringList ShownSum::leftOutOfTotal() const {
    QStringList names;
    const auto isLeftOut = m_tracker.isLeftOutOfTotal();
    for (const auto& app : m_tracker.fullTimeSet())
        if (isLeftOut(*app) && app->activeTime() >= 1 && !names.contains(app->renamedName()))
            names << app->renamedName();
    return names;
}
