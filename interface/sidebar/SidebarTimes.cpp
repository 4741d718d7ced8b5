// SPDX-License-Identifier: MIT
#include "interface/sidebar/SidebarTimes.h"

#include "Classes/store/UntitledTime.h"
#include "interface/mainwindow/TimeSum.h"
#include "interface/shell/ListOptions.h"
#include "interface/sidebar/ProjectListModel.h"

#include <algorithm>
#include <cmath>

namespace {

// A sum that is added to differs from one that is made anew by less than this.
constexpr Seconds kNear = 1e-6;

QString textOf(Seconds time) {
    return TimeTracker::timeStringForDouble(time);
}

// Whether an item's time grows by this stretch.
bool gets(const TimeStoreItem& item, const Stretch& stretch) {
    if (&item.node() == stretch.window.get())
        return true;
    return &item.node() == stretch.program.get() &&
           (!stretch.window || !dynamic_cast<const UntitledTime*>(&item));
}

} // namespace

SidebarTimes::SidebarTimes(Ground ground)
    : m_ground(std::move(ground)) {
    m_stretches = m_ground.tracker.listen(*this);
    m_projectChanges = m_ground.projects.observeChanges([this](const auto&) { forgetRows(); });
    m_timerChanges = m_ground.tracker.observe(kTimeSetKey, [this](const ObservedChange&) { forgetRows(); });
}

void SidebarTimes::credited(const Stretch& stretch) {
    if (!m_areRowsKnown)
        return;
    if (!m_getting || m_getting->program.lock() != stretch.program ||
        m_getting->window.lock() != stretch.window)
        m_getting = Getting{stretch.program, stretch.window, rowsGetting(stretch)};
    for (const std::size_t row : m_getting->rows)
        m_rows[row].time += secondsBetween(stretch.from, stretch.to);
    if (!stretch.window && std::ranges::count(m_titled, stretch.program) > 0)
        forgetRows();
}

void SidebarTimes::absent(Instant, Instant, Seconds) {
    forgetRows();
}

std::vector<std::size_t> SidebarTimes::rowsGetting(const Stretch& stretch) const {
    std::vector<std::size_t> rows;
    for (std::size_t place = 0; place < m_rows.size(); ++place) {
        const auto& timers = m_rows[place].timers;
        const bool isOne =
            timers ? std::ranges::any_of(*timers, [&](const auto& item) { return gets(*item, stretch); })
                   : !m_ground.tracker.isLeftOutOfTotal()(*stretch.program);
        if (isOne)
            rows.push_back(place);
    }
    return rows;
}

void SidebarTimes::refresh() {
    if (!m_ground.options.hasProjectTimes() || !m_ground.isSeen())
        return;
    const std::uint64_t changes = m_ground.tracker.narrowing().changes();
    if (std::exchange(m_changes, changes) != changes)
        forgetRows();
    const bool areOthers = !m_areRowsKnown;
    if (areOthers)
        findRows();
    bool isLater = false;
    for (Row& row : m_rows)
        isLater = (std::floor(row.time + kNear) != row.second && sumUp(row)) || isLater;
    if (!areOthers && !isLater)
        return;
    std::vector<QString> times;
    for (const Row& row : m_rows)
        times.push_back(textOf(row.time));
    m_ground.rows.showTimes(std::move(times));
}

bool SidebarTimes::sumUp(Row& row) const {
    row.time = row.timers ? summedTime(*row.timers) : m_ground.tracker.totalTime();
    const double second = std::floor(row.time);
    return std::exchange(row.second, second) != second;
}

TimersByProject SidebarTimes::timers() const {
    const auto projects = m_ground.projects.projects();
    return TimersByProject::find(m_ground.tracker.fullTimeSet(), {projects.begin(), projects.end()},
                                 m_ground.tracker.isLeftOutOfTotal());
}

void SidebarTimes::findRest() {
    (void)m_ground.projects.setRest(timers().ofNone);
}

void SidebarTimes::findRows() {
    TimersByProject timers;
    // Without projects there is no row for the rest.
    if (m_ground.projects.count() > 0)
        timers = this->timers();
    const bool isOther = m_ground.projects.setRest(timers.ofNone);
    const QString search = m_ground.search();
    m_rows.assign(1, Row());
    m_getting.reset();
    for (auto& ofProject : timers.ofProjects)
        m_rows.push_back({.timers = countedRows(std::move(ofProject), search)});
    m_rows.push_back({.timers = countedRows(std::move(timers.ofNone), search)});
    m_titled = std::move(timers.titled);
    if (!search.isEmpty()) {
        TimeStoreItem::Children left;
        for (const auto& app : m_ground.tracker.fullTimeSet())
            if (auto item = app->prunedObjectForSearchString(search, m_ground.cutoff()))
                left.push_back(std::move(item));
        m_rows.front().timers = countedRows(std::move(left), search);
    }
    m_areRowsKnown = true;
    if (isOther)
        m_ground.restChanged();
}

void SidebarTimes::showRange(const RangeAnswer& answer) {
    forgetRows();
    if (!m_ground.options.hasProjectTimes())
        return;
    // The projects have changed since the history read them: another answer is under way.
    if (answer.ofProjects.size() != m_ground.projects.count())
        return m_ground.rows.showTimes({});
    const auto text = [](qint64 milliseconds) { return textOf(double(milliseconds) / 1000); };
    std::vector<QString> times{text(answer.work)};
    for (const qint64 length : answer.ofProjects)
        times.push_back(text(length));
    times.push_back(text(answer.ofNoProject));
    m_ground.rows.showTimes(std::move(times));
}

void SidebarTimes::clear() {
    forgetRows();
    m_ground.rows.showTimes({});
}
