// SPDX-License-Identifier: MIT
// The rows of a project, which may be windows.
#include "Classes/store/TimeStoreCategory.h"
#include "interface/outline/TimeTreeModel.h"
#include "tests/fakes/TestEngine.h"
#include "tests/interface/Desk.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <random>

namespace {

class ProjectRowsTest : public testing::Test {
protected:
    ProjectRowsTest() {
        // The tester would fetch more from within a signal.
        m_tester.setUseFetchMore(false);
        for (const char* name : {"Mail", "Notes", "Web"}) {
            engine.tracker.addWindowWithName(QString::fromUtf8(name), 10.0);
            apps.push_back(engine.tracker.fullTimeSet().back());
            for (const char* title : {"A", "B", "C"})
                windows.push_back(apps.back()->windowStoreForName(
                    QString::fromUtf8(name) + QString::fromUtf8(title), std::nullopt));
        }
    }

    std::shared_ptr<TimeStoreCategory> project(const TimeStoreItem::Children& members) {
        auto made = std::make_shared<TimeStoreCategory>(engine.store, QStringLiteral("Thesis"));
        show(*made, members);
        return made;
    }

    static void show(TimeStoreCategory& category, const TimeStoreItem::Children& members) {
        category.setChildren(std::make_shared<const TimeStoreItem::Children>(members));
    }

    void settle() { engine.fakes.runLoop.runPending(); }

    TestEngine engine;
    std::vector<std::shared_ptr<TimeStoreApp>> apps;
    std::vector<std::shared_ptr<TimeStoreWindow>> windows;
    TimeTreeModel model{std::nullopt, engine.fakes.runLoop, [](const auto& item, const QString& name) {
                            item->setRenamedNameFormatted({{kRecordName, name}});
                        }};

private:
    QAbstractItemModelTester m_tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(ProjectRowsTest, withoutASource_thereAreNoRows) {
    EXPECT_EQ(model.rowCount(), 0);
    model.setSource(TimeTreeModel::sourceOf(engine.tracker));
    EXPECT_EQ(model.rowCount(), 3);
    model.setSource(std::nullopt);
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(ProjectRowsTest, applicationsAndWindows_standSideBySide) {
    model.setSource(TimeTreeModel::sourceOf(project({windows[0], apps[1], windows[7]})));
    model.fetchMore(model.index(1, 0));
    EXPECT_EQ(textOf(model), QStringLiteral("MailA 00:00:00, Notes 00:00:10 [NotesA 00:00:00, NotesB "
                                            "00:00:00, NotesC 00:00:00], WebB 00:00:00"));
    EXPECT_FALSE(model.hasChildren(model.index(0, 0)));
}

TEST_F(ProjectRowsTest, aProjectThatGainsAndLosesMembers_keepsTheOtherRows) {
    const auto thesis = project({windows[0], apps[1]});
    model.setSource(TimeTreeModel::sourceOf(thesis));
    const QPersistentModelIndex notes = model.index(1, 0);
    show(*thesis, {apps[1], windows[1]});
    settle();
    EXPECT_EQ(textOf(model), QStringLiteral("MailB 00:00:00, Notes 00:00:10"));
    EXPECT_EQ(model.item(notes), apps[1]);
}

TEST_F(ProjectRowsTest, anotherProject_isShownInTwoRanges) {
    model.setSource(TimeTreeModel::sourceOf(project({windows[0], apps[1]})));
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    model.setSource(TimeTreeModel::sourceOf(project({apps[1], apps[2], windows[1]})));
    EXPECT_EQ(removed.count(), 1);
    EXPECT_EQ(inserted.count(), 1);
    EXPECT_EQ(reset.count(), 0);
    EXPECT_EQ(model.rowCount(), 3);
}

TEST_F(ProjectRowsTest, theProjectLeft_isNoLongerFollowed) {
    const auto left = project({windows[0]});
    model.setSource(TimeTreeModel::sourceOf(left));
    model.setSource(TimeTreeModel::sourceOf(project({apps[0]})));
    show(*left, {apps[1], apps[2]});
    settle();
    EXPECT_EQ(textOf(model), QStringLiteral("Mail 00:00:10"));
}

TEST_F(ProjectRowsTest, aProjectNobodyElseHolds_livesAsLongAsItIsShown) {
    std::weak_ptr<TimeStoreCategory> thesis;
    {
        const auto made = project({apps[0]});
        thesis = made;
        model.setSource(TimeTreeModel::sourceOf(made));
    }
    EXPECT_FALSE(thesis.expired());
    model.setSource(std::nullopt);
    EXPECT_TRUE(thesis.expired());
}

TEST_F(ProjectRowsTest, aSearchInAProject_narrowsItsRows) {
    const auto thesis = project({windows[0], apps[1], windows[7]});
    model.setSource(TimeTreeModel::sourceOf(thesis));
    thesis->setSearchString(QStringLiteral("NotesB"));
    settle();
    model.fetchMore(model.index(0, 0));
    EXPECT_EQ(textOf(model), QStringLiteral("Notes 00:00:10 [NotesB 00:00:00]"));
    thesis->setSearchString(std::nullopt);
    settle();
    EXPECT_EQ(model.rowCount(), 3);
}

TEST_F(ProjectRowsTest, anyMembers_areTheRowsShown) {
    const unsigned seed = std::random_device()();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    TimeStoreItem::Children everything(apps.begin(), apps.end());
    everything.insert(everything.end(), windows.begin(), windows.end());
    auto thesis = project({});
    model.setSource(TimeTreeModel::sourceOf(thesis));
    for (int step = 0; step < 600; ++step) {
        TimeStoreItem::Children members;
        for (const auto& item : everything)
            if (random() % 2)
                members.push_back(item);
        std::shuffle(members.begin(), members.end(), random);
        switch (random() % 5) {
        case 0:
            thesis = project(members);
            model.setSource(TimeTreeModel::sourceOf(thesis));
            break;
        case 1:
            model.sort(int(random() % 2), random() % 2 ? Qt::AscendingOrder : Qt::DescendingOrder);
            [[fallthrough]];
        case 2:
            if (model.rowCount() > 0)
                model.fetchMore(model.index(int(random() % unsigned(model.rowCount())), 0));
            [[fallthrough]];
        default:
            show(*thesis, members);
            windows[random() % windows.size()]->addTimeInterval(double(random() % 5000));
            settle();
        }
        QStringList shown;
        QStringList wanted;
        for (int row = 0; row < model.rowCount(); ++row)
            shown << model.index(row, 0).data().toString();
        for (const auto& item : members)
            wanted << item->renamedName();
        shown.sort();
        wanted.sort();
        ASSERT_EQ(shown, wanted) << "step " << step;
    }
}
