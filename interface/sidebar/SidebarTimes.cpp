// SPDX-License-Identifier: MIT
#include "interface/sidebar/SidebarTimes.h"

#include "Classes/projects/TimersByProject.h"
#include "Classes/report/ReportNames.h"
#include "interface/mainwindow/TimeSum.h"
#include "interface/shell/ListOptions.h"
#include "interface/sidebar/ProjectListModel.h"

#include <QHash>

#include <cmath>

namespace {

std::vector<Identity> identitiesOf(const TimeStoreItem::Children& timers) {
    std::vector<Identity> identities;
    for (const auto& timer : timers)
        if (const auto identity = timer->uuid())
            identities.push_back(*identity);
    return identities;
}

QString textOf(Seconds time) {
    return TimeTracker::timeStringForDouble(time);
}

} // namespace

SidebarTimes::SidebarTimes(Ground ground)
    : m_ground(std::move(ground)) {
    m_projectChanges = m_ground.projects.observeChanges([this](const auto&) { forgetRows(); });
    m_timerChanges = m_ground.tracker.observe(kTimeSetKey, [this](const ObservedChange&) { forgetRows(); });
}

void SidebarTimes::refresh() {
    if (!m_ground.options.hasProjectTimes() || !m_ground.isSeen())
        return;
    const std::uint64_t changes = m_ground.tracker.narrowing().changes();
    if (std::exchange(m_changes, changes) != changes)
        forgetRows();
    Seconds everything = 0;
    for (const auto& app : m_ground.tracker.fullTimeSet())
        everything += app->activeTime();
    const double second = std::floor(everything);
    if (m_areRowsKnown && second == m_second)
        return;
    m_second = second;
    if (!m_areRowsKnown)
        findRows();
    std::vector<QString> times{textOf(ofAll())};
    for (const auto& timers : m_ofProjects)
        times.push_back(textOf(summedTime(timers)));
    times.push_back(textOf(summedTime(m_ofNone)));
    m_ground.rows.showTimes(std::move(times));
}

Seconds SidebarTimes::ofAll() const {
    return m_found ? summedTime(*m_found) : m_ground.tracker.totalTime();
}

void SidebarTimes::findRest() {
    const auto projects = m_ground.projects.projects();
    (void)m_ground.projects.setRest(
        identitiesOf(TimersByProject::find(m_ground.tracker.fullTimeSet(), {projects.begin(), projects.end()},
                                           m_ground.tracker.isLeftOutOfTotal())
                         .ofNone));
}

void SidebarTimes::findRows() {
    const auto projects = m_ground.projects.projects();
    TimersByProject timers;
    // Without projects there is no row for the rest.
    if (!projects.empty())
        timers = TimersByProject::find(m_ground.tracker.fullTimeSet(), {projects.begin(), projects.end()},
                                       m_ground.tracker.isLeftOutOfTotal());
    const bool isOther = m_ground.projects.setRest(identitiesOf(timers.ofNone));
    const QString search = m_ground.search();
    for (auto& ofProject : timers.ofProjects)
        ofProject = countedRows(std::move(ofProject), search);
    m_ofProjects = std::move(timers.ofProjects);
    m_ofNone = countedRows(std::move(timers.ofNone), search);
    m_found.reset();
    if (!search.isEmpty()) {
        TimeStoreItem::Children left;
        for (const auto& app : m_ground.tracker.fullTimeSet())
            if (auto item = app->prunedObjectForSearchString(search, m_ground.cutoff()))
                left.push_back(std::move(item));
        m_found = countedRows(std::move(left), search);
    }
    m_areRowsKnown = true;
    if (isOther)
        m_ground.restChanged();
}

void SidebarTimes::showRange(const RangeAnswer& answer) {
    forgetRows();
    if (!m_ground.options.hasProjectTimes())
        return;
    QHash<QString, qint64> byProject;
    for (const auto& project : answer.projects)
        byProject.insert(project.name, project.length);
    const auto text = [](qint64 milliseconds) { return textOf(double(milliseconds) / 1000); };
    std::vector<QString> times{text(answer.work)};
    for (const auto& project : m_ground.projects.projects())
        times.push_back(text(byProject.value(project->label())));
    times.push_back(text(byProject.value(kNoProject)));
    m_ground.rows.showTimes(std::move(times));
}

void SidebarTimes::clear() {
    forgetRows();
    m_ground.rows.showTimes({});
}
