// SPDX-License-Identifier: MIT
#include "Classes/projects/TimersByProject.h"

#include <algorithm>
#include <unordered_map>

namespace {

using Places = std::vector<std::size_t>;

// Of each member, the projects that it is in, in ascending order.
class Memberships {
public:
    explicit Memberships(const TimersByProject::Projects& projects) {
        for (std::size_t place = 0; place < projects.size(); ++place)
            for (const Identity& member : projects[place]->flattenedMembers())
                m_places[member].push_back(place);
    }

    const Places& of(const TimeStoreNode& timer) const {
        static const Places kNone;
        const auto identity = timer.uuid();
        const auto found = identity ? m_places.find(*identity) : m_places.end();
        return found == m_places.end() ? kNone : found->second;
    }

private:
    std::unordered_map<Identity, Places> m_places;
};

} // namespace

TimersByProject TimersByProject::find(const TimerTree::AppSet& applications, const Projects& projects,
                                      const IsLeftOut& isLeftOut) {
    const Memberships memberships(projects);
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
        if (!hasMembers)
            timers.ofNone.push_back(app);
        else
            timers.ofNone.insert(timers.ofNone.end(), others.begin(), others.end());
    }
    return timers;
}
