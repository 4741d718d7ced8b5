// SPDX-License-Identifier: MIT
#include "Classes/projects/TimersByProject.h"

#include "tests/fakes/Announcements.h"
#include "tests/fakes/TestEngine.h"

#include <gtest/gtest.h>

#include <random>

namespace {

struct TimersByProjectTest : testing::Test {
    std::shared_ptr<TimeStoreApp> application(const char* name, const std::vector<const char*>& titles = {}) {
        engine.tracker.addWindowWithName(QString::fromUtf8(name), 10.0);
        const auto app = engine.tracker.fullTimeSet().back();
        for (const char* title : titles)
            (void)app->windowStoreForName(QString::fromUtf8(title), std::nullopt);
        return app;
    }

    void project(const std::vector<const TimeStoreNode*>& members) {
        auto record = std::make_shared<ProjectRecord>();
        for (const TimeStoreNode* member : members)
            record->addMembers({*member->uuid()});
        projects.push_back(std::move(record));
    }

    TimersByProject find() const {
        return TimersByProject::find(engine.tracker.fullTimeSet(), projects,
                                     engine.tracker.isLeftOutOfTotal());
    }

    static Seconds sum(const TimeStoreItem::Children& timers) {
        Seconds sum = 0;
        for (const auto& timer : timers)
            sum += timer->activeTime();
        return sum;
    }

    static std::string names(const TimeStoreItem::Children& timers) {
        QStringList names;
        for (const auto& timer : timers)
            names << timer->name();
        return str(names.join(u", "));
    }

    TestEngine engine;
    TimersByProject::Projects projects;
};

} // namespace

TEST_F(TimersByProjectTest, whatIsInNoProject_isLeft) {
    const auto mail = application("Mail", {"Inbox", "Sent"});
    (void)application("Web", {"News", "Weather"});
    project({mail.get()});
    EXPECT_EQ(names(find().ofProjects.at(0)), "Mail");
    EXPECT_EQ(names(find().ofNone), "Web");
}

TEST_F(TimersByProjectTest, ofAnApplicationWithWindowsInProjects_theOthersAreLeft) {
    const auto mail = application("Mail", {"Inbox", "Sent", "Trash"});
    project({mail->windows().at(0).get()});
    project({mail->windows().at(0).get(), mail->windows().at(2).get()});
    const TimersByProject found = find();
    EXPECT_EQ(names(found.ofProjects.at(0)), "Inbox");
    EXPECT_EQ(names(found.ofProjects.at(1)), "Inbox, Trash");
    EXPECT_EQ(names(found.ofNone), "Sent, Mail") << "no window has Mail's ten seconds";
}

TEST_F(TimersByProjectTest, whatNoWindowHasOfADividedApplication_isLeft) {
    const auto mail = application("Mail", {"Inbox", "Sent"});
    mail->windows().at(0)->correctTime(3);
    mail->windows().at(1)->correctTime(4);
    project({mail->windows().at(0).get()});
    EXPECT_EQ(sum(find().ofProjects.at(0)), 3);
    EXPECT_EQ(sum(find().ofNone), 7);
    EXPECT_TRUE(find().titled.empty());
    mail->windows().at(1)->correctTime(3);
    EXPECT_EQ(names(find().ofNone), "Sent") << "nothing more is left";
    EXPECT_EQ(find().titled, TimerTree::AppSet{mail});
    mail->windows().at(1)->correctTime(90);
    EXPECT_EQ(sum(find().ofNone), 97) << "never less than nothing";
}

TEST_F(TimersByProjectTest, aWindowBesideItsApplication_isNotCountedTwice) {
    const auto mail = application("Mail", {"Inbox", "Sent"});
    project({mail.get(), mail->windows().at(0).get()});
    project({mail->windows().at(0).get()});
    const TimersByProject found = find();
    EXPECT_EQ(names(found.ofProjects.at(0)), "Mail");
    EXPECT_EQ(names(found.ofProjects.at(1)), "Inbox");
    EXPECT_EQ(names(found.ofNone), "");
}

TEST_F(TimersByProjectTest, whatTheTotalLeavesOut_isNotLeft) {
    (void)application("Idle");
    const auto idle = engine.tracker.fullTimeSet().back();
    EXPECT_EQ(names(find().ofNone), "");
    project({idle.get()});
    EXPECT_EQ(names(find().ofProjects.at(0)), "Idle") << "a project may have it all the same";
}

TEST_F(TimersByProjectTest, whateverIsWhere_projectsHaveWhatTheTreeSays) {
    std::mt19937 random(7);
    std::vector<const TimeStoreNode*> all;
    for (const char* name : {"A", "B", "C", "D", "E"}) {
        const auto app = application(name, {"1", "2", "3"});
        all.push_back(app.get());
        for (const auto& window : app->windows())
            all.push_back(window.get());
    }
    for (int round = 0; round < 50; ++round) {
        projects.clear();
        for (int i = 0; i < 3; ++i) {
            std::vector<const TimeStoreNode*> members;
            std::ranges::sample(all, std::back_inserter(members), int(random() % 6), random);
            project(members);
        }
        const TimersByProject found = find();
        for (std::size_t i = 0; i < projects.size(); ++i) {
            const auto members = projects[i]->flattenedMembers();
            EXPECT_EQ(found.ofProjects[i],
                      engine.tracker.tree().timersOf({members.begin(), members.end()}, false))
                << "round " << round;
        }
        std::unordered_set<Identity> members;
        for (const auto& project : projects)
            for (const Identity& member : project->flattenedMembers())
                members.insert(member);
        EXPECT_EQ(sum(engine.tracker.tree().timersOf(members, true)) + sum(found.ofNone), 5 * 10)
            << "round " << round << ": all time is somewhere";
    }
}
