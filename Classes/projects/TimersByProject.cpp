// SPDX-License-Identifier: MIT
#include "Classes/projects/TimersByProject.h"

#include "Classes/store/UntitledTime.h"

#include <algorithm>
#include <unordered_map>

namespace {

using Places = std::vector<std::size_t>;

// Of each timer, the projects that it is in, in ascending order. Projects may have far more members than there are
// timers.
class Memberships {
public:
    Memberships(const TimerTree::AppSet& applications, const TimersByProject::Projects& projects) {
        for (const auto& app : applications) {
            expect(*app);
            for (const auto& window : app->windows())
                expect(*window);
        }
        for (std::size_t place = 0; place < projects.size(); ++place)
            projects[place]->forEachMember([&](const Identity& member) {
                const auto found = m_places.find(member);
                if (found != m_places.end() && (found->second.empty() || found->second.back() != place))
                    found->second.push_back(place);
            });
    }

    const Places& of(const TimeStoreNode& timer) const {
        static const Places kNone;
        const auto identity = timer.uuid();
        const auto found = identity ? m_places.find(*identity) : m_places.end();
        return found == m_places.end() ? kNone : found->second;
    }

private:
    void expect(const TimeStoreNode& timer) {
        if (const auto identity = timer.uuid())
            m_places.try_emplace(*identity);
    }

    std::unordered_map<Identity, Places> m_places;
};

} // namespace

TimersByProject TimersByProject::find(const TimerTree::AppSet& applications, const Projects& projects,
                                      const IsLeftOut& isLeftOut) {
    const Memberships memberships(applications, projects);
    TimersByProject timers;
    timers.ofProjects.resize(projects.size());
    for (const auto& app : applications) {
        const Places& whole = memberships.of(*app);
        for (const std::size_t place : whole)
            timers.ofProjects[place].push_back(app);
        TimeStoreItem::Children others;
        bool hasMembers = false;
        for (const auto& window : app->windows()) {
            const Places& places = memberships.of(*window);
            for (const std::size_t place : places)
                if (!std::ranges::binary_search(whole, place))
                    timers.ofProjects[place].push_back(window);
            hasMembers = hasMembers || !places.empty();
            if (places.empty())
                others.push_back(window);
        }
        if (!whole.empty() || isLeftOut(*app))
            continue;
        if (!hasMembers) {
            timers.ofNone.push_back(app);
            continue;
        }
        timers.ofNone.insert(timers.ofNone.end(), others.begin(), others.end());
        if (auto untitled = std::make_shared<UntitledTime>(app);
            untitled->activeTime() >= UntitledTime::kLeast)
            timers.ofNone.push_back(std::move(untitled));
        else
            timers.titled.push_back(app);
    }
    return timers;
}
