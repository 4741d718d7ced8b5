// SPDX-License-Identifier: MIT
// Random edits, compared with a plain list that is edited alike, and with a view that knows only what it is
// told.
#include "Classes/projects/ProjectDrops.h"
#include "tests/fakes/Projects.h"
#include "tests/fakes/Store.h"

#include <random>

using namespace Qt::StringLiterals;

namespace {

struct PlainProject {
    std::string label;
    std::vector<unsigned> members;
};

class ProjectListRandomTest : public StoreTest {
protected:
    using Change = ProjectListChange;

    // Keeps its own list up to date, as a sidebar does.
    void follow(const Change& change) {
        if (change.phase == ChangePhase::Will)
            return;
        const auto place = m_view.begin() + std::ptrdiff_t(change.position.value_or(0));
        if (change.kind == Change::Kind::Insert)
            m_view.insert(place, m_list.projects().at(*change.position));
        else if (change.kind == Change::Kind::Remove)
            m_view.erase(place);
        else if (change.kind == Change::Kind::Replace)
            m_view = m_list.projects();
    }

    std::size_t below(std::size_t limit) { return m_random() % limit; }

    void edit() {
        const std::size_t count = m_plain.size();
        const std::size_t at = count ? below(count) : 0;
        const auto member = unsigned(1 + below(30));
        switch (count ? below(8) : 0) {
        case 0: {
            const std::size_t to = below(count + 1);
            m_list.addNewProjectWithItems({ProjectSamples::identity(member)}, to);
            m_plain.insert(m_plain.begin() + std::ptrdiff_t(to), {"New Project", {member}});
            break;
        }
        case 1:
            m_list.removeProject(at);
            m_plain.erase(m_plain.begin() + std::ptrdiff_t(at));
            break;
        case 2:
            m_list.setLabel(*m_list.projects()[at], QString::number(member));
            m_plain[at].label = std::to_string(member);
            break;
        case 3:
            m_list.addMembers(*m_list.projects()[at], {ProjectSamples::identity(member)});
            if (std::ranges::find(m_plain[at].members, member) == m_plain[at].members.end())
                m_plain[at].members.push_back(member);
            break;
        case 4:
            m_list.removeMembers(*m_list.projects()[at], {ProjectSamples::identity(member)});
            std::erase(m_plain[at].members, member);
            break;
        case 5:
            freeze(member);
            break;
        default:
            drop(below(count + 2), std::ptrdiff_t(below(count + 1)));
        }
    }

    // Identities of frozen timers have numbers above all others.
    void freeze(unsigned member) {
        const unsigned frozen = ++m_lastFrozen;
        m_list.projectDupeNode({{ProjectSamples::identity(member), ProjectSamples::identity(frozen)}});
        for (PlainProject& project : m_plain)
            if (std::erase(project.members, member) > 0)
                project.members.push_back(frozen);
    }

    void drop(std::size_t row, std::ptrdiff_t position) {
        const bool isCopy = below(2) == 0;
        m_drops.acceptProjectRow(row, position, isCopy ? DropOperation::Copy : DropOperation::Move);
        if (row >= m_plain.size())
            return;
        const PlainProject copy = m_plain[row];
        // Dropped on its own place it moves one up, by the same offset as the one that picks the wrong
        // project.
        if (!isCopy && std::ptrdiff_t(row) == position && position > 0)
            --position;
        // The place is determined before anything is removed.
        m_plain.insert(m_plain.begin() + position, copy);
        if (!isCopy)
            m_plain.erase(m_plain.begin() + std::ptrdiff_t(row) + (std::ptrdiff_t(row) >= position ? 1 : 0));
    }

    static std::string text(const ProjectList::Projects& projects) {
        std::string text;
        for (const auto& project : projects)
            text += str(project->label()) + " " + ProjectSamples::members(*project) + "; ";
        return text;
    }

    std::string plainText() const {
        std::string text;
        for (const PlainProject& project : m_plain)
            text += project.label + " " +
                    ProjectSamples::numbers(ProjectSamples::identities(project.members)) + "; ";
        return text;
    }

    std::mt19937 m_random;
    ProjectList m_list{store, fakes.defaults, fakes.folders.documents};
    ProjectDrops m_drops{m_list};
    std::vector<PlainProject> m_plain;
    ProjectList::Projects m_view;
    unsigned m_lastFrozen = 1'000;
    Subscription m_following = m_list.observeChanges([this](const Change& change) { follow(change); });
};

TEST_F(ProjectListRandomTest, manyEdits_leaveListViewAndFileAlike) {
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    m_random.seed(seed);
    std::vector<std::pair<ProjectList::Snapshot, std::vector<PlainProject>>> past;
    for (int i = 0; i < 400; ++i) {
        edit();
        ASSERT_EQ(text(m_list.projects()), plainText()) << i;
        ASSERT_EQ(m_view, m_list.projects()) << i;
    }
    for (int i = 0; i < 30; ++i) {
        past.emplace_back(m_list.snapshot(), m_plain);
        const unsigned frozenBefore = m_lastFrozen;
        edit();
        // What was frozen stays frozen; the plain list cannot follow that, so it leaves undoing out.
        if (m_lastFrozen != frozenBefore)
            past.clear();
    }
    while (!past.empty()) {
        m_list.restore(past.back().first);
        m_plain = past.back().second;
        ASSERT_EQ(text(m_list.projects()), plainText());
        ASSERT_EQ(m_view, m_list.projects());
        past.pop_back();
    }
    m_list.saveData();
    const ProjectList later(store, fakes.defaults, fakes.folders.documents);
    EXPECT_EQ(text(later.projects()), plainText());
}

} // namespace
