// SPDX-License-Identifier: MIT
#include "interface/outline/TimeTreeModel.h"
#include "interface/outline/OutlineRole.h"
#include "tests/fakes/TestEngine.h"
#include "tests/interface/Desk.h"

#include <QAbstractItemModelTester>
#include <QCollator>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <random>

namespace {

class TimeTreeModelTest : public testing::Test {
protected:
    std::shared_ptr<TimeStoreApp> application(const char* name, double seconds = 0) {
        engine.tracker.addWindowWithName(QString::fromUtf8(name), seconds);
        settle();
        return engine.tracker.fullTimeSet().back();
    }

    std::shared_ptr<TimeStoreWindow> window(TimeStoreApp& app, const char* title) {
        auto made = app.windowStoreForName(QString::fromUtf8(title), std::nullopt);
        settle();
        return made;
    }

    void settle() { engine.fakes.runLoop.runPending(); }

    void fetchAll() {
        for (int row = 0; row < model.rowCount(); ++row)
            model.fetchMore(model.index(row, 0));
    }

    TestEngine engine;
    TimeTreeModel model{TimeTreeModel::sourceOf(engine.tracker), engine.fakes.runLoop,
                        [](const auto& item, const QString& name) {
                            item->setRenamedNameFormatted({{kRecordName, name}});
                        }};
};

} // namespace

TEST_F(TimeTreeModelTest, names_areSortedWhateverTheirCase) {
    application("mail");
    application("Notes");
    application("Éditeur");
    application("browser");
    EXPECT_EQ(textOf(model),
              QStringLiteral("browser 00:00:00, Éditeur 00:00:00, mail 00:00:00, Notes 00:00:00"));
}

TEST_F(TimeTreeModelTest, equalNames_areSortedByTimeAsText) {
    application("Mail", 99 * 3600);
    application("Mail", 100 * 3600);
    EXPECT_EQ(textOf(model), QStringLiteral("Mail 100:00:00, Mail 99:00:00"));
}

TEST_F(TimeTreeModelTest, sortedByTime_aHundredHoursComeBeforeNinetyNine) {
    application("A", 99 * 3600);
    application("B", 100 * 3600);
    application("C", 5);
    model.sort(TimeTreeModel::TimeSpentColumn, Qt::AscendingOrder);
    EXPECT_EQ(textOf(model), QStringLiteral("C 00:00:05, B 100:00:00, A 99:00:00"));
    model.sort(TimeTreeModel::TimeSpentColumn, Qt::DescendingOrder);
    EXPECT_EQ(textOf(model), QStringLiteral("A 99:00:00, B 100:00:00, C 00:00:05"));
}

TEST_F(TimeTreeModelTest, noSortOrder_keepsTheOneBefore) {
    application("A", 1);
    application("B", 3);
    application("C", 2);
    model.sort(TimeTreeModel::TimeSpentColumn, Qt::AscendingOrder);
    model.sort(-1, Qt::AscendingOrder);
    EXPECT_EQ(textOf(model), QStringLiteral("A 00:00:01, C 00:00:02, B 00:00:03"));
    application("D", 0);
    EXPECT_EQ(textOf(model), QStringLiteral("D 00:00:00, A 00:00:01, C 00:00:02, B 00:00:03"));
}

TEST_F(TimeTreeModelTest, anApplicationWithOneWindow_isALeaf) {
    const auto mail = application("Mail");
    window(*mail, "Inbox");
    EXPECT_FALSE(model.hasChildren(model.index(0, 0)));
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    window(*mail, "Sent");
    EXPECT_TRUE(model.hasChildren(model.index(0, 0)));
    EXPECT_EQ(inserted.count(), 1) << "both windows in one range";
    EXPECT_EQ(textOf(model), QStringLiteral("Mail 00:00:00 [Inbox 00:00:00, Sent 00:00:00]"));
    engine.tracker.removeUUIDs({mail->windows().front()->uuid().value()});
    settle();
    EXPECT_EQ(textOf(model), QStringLiteral("Mail 00:00:00"));
}

TEST_F(TimeTreeModelTest, aTime_isToldOnceASecondForItsCellAlone) {
    const auto mail = application("Mail");
    application("Notes");
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    for (int tick = 0; tick < 30; ++tick)
        mail->addTimeInterval(0.125);
    EXPECT_EQ(changed.count(), 3);
    const auto told = changed.takeLast();
    EXPECT_EQ(told[0].toModelIndex(), model.index(0, TimeTreeModel::TimeSpentColumn));
    EXPECT_EQ(told[1].toModelIndex(), told[0].toModelIndex());
}

TEST_F(TimeTreeModelTest, aRowThatNoLongerFits_moves) {
    const auto mail = application("Mail", 10);
    application("Notes", 20);
    model.sort(TimeTreeModel::TimeSpentColumn, Qt::AscendingOrder);
    QSignalSpy moved(&model, &QAbstractItemModel::rowsMoved);
    QSignalSpy layouts(&model, &QAbstractItemModel::layoutChanged);
    const QPersistentModelIndex row = model.index(0, 0);
    mail->addTimeInterval(15);
    settle();
    EXPECT_EQ(textOf(model), QStringLiteral("Notes 00:00:20, Mail 00:00:25"));
    EXPECT_EQ(moved.count(), 1);
    EXPECT_EQ(layouts.count(), 0);
    EXPECT_EQ(row.row(), 1);
}

TEST_F(TimeTreeModelTest, aRenamedRow_showsBothNamesAndMoves) {
    application("Mail");
    application("Notes");
    EXPECT_TRUE(model.setData(model.index(0, 0), QStringLiteral("Post"), Qt::EditRole));
    settle();
    EXPECT_EQ(textOf(model), QStringLiteral("Notes 00:00:00, Post – Mail 00:00:00"));
    EXPECT_EQ(model.index(1, 0).data(Qt::EditRole).toString(), QStringLiteral("Post"));
    EXPECT_EQ(model.index(1, 0).data(OutlineRole::DimmedLength).toInt(), 7);
}

TEST_F(TimeTreeModelTest, aWindowThatTakesAnothersName_displacesItsRow) {
    const auto mail = application("Mail");
    const auto inbox = window(*mail, "Inbox");
    window(*mail, "Sent");
    window(*mail, "Trash");
    inbox->setName(QStringLiteral("Sent"));
    settle();
    EXPECT_EQ(textOf(model), QStringLiteral("Mail 00:00:00 [Sent 00:00:00, Trash 00:00:00]"));
}

TEST_F(TimeTreeModelTest, whileNobodyLooks_nothingIsTold) {
    const auto mail = application("Mail");
    application("Notes");
    model.setLive(false);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    mail->addTimeInterval(61);
    application("Browser");
    EXPECT_EQ(changed.count() + inserted.count(), 0);
    model.setLive(true);
    EXPECT_EQ(changed.count(), 1) << "all times in one range";
    EXPECT_EQ(textOf(model), QStringLiteral("Browser 00:00:00, Mail 00:01:01, Notes 00:00:00"));
}

TEST_F(TimeTreeModelTest, clearing_removesAllRowsInOneRange) {
    application("Mail");
    application("Notes");
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    engine.tracker.reset();
    settle();
    EXPECT_EQ(removed.count(), 1);
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_FALSE(model.hasChildren());
}

TEST_F(TimeTreeModelTest, foldedRows_areNoLongerWatched) {
    const auto mail = application("Mail");
    const auto inbox = window(*mail, "Inbox");
    window(*mail, "Sent");
    model.releaseChildren(model.index(0, 0));
    EXPECT_EQ(model.rowCount(model.index(0, 0)), 0);
    EXPECT_TRUE(model.canFetchMore(model.index(0, 0)));
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    inbox->addTimeInterval(5);
    EXPECT_EQ(changed.count(), 0);
    model.fetchMore(model.index(0, 0));
    EXPECT_EQ(textOf(model), QStringLiteral("Mail 00:00:00 [Inbox 00:00:05, Sent 00:00:00]"));
}

namespace {

// Changes the tree in every possible way, over and over, and compares the rows with the tree in plain
// sorting.
class Shuffle {
public:
    Shuffle(TestEngine& engine, TimeTreeModel& model, unsigned seed)
        : m_engine(engine)
        , m_model(model)
        , m_random(seed) {
        m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    }

    void step() {
        const auto& apps = m_engine.tracker.fullTimeSet();
        const int choice = apps.empty() ? 0 : below(16);
        const auto app = apps.empty() ? nullptr : apps[std::size_t(below(int(apps.size())))];
        const auto windows = app ? app->windows() : std::vector<std::shared_ptr<TimeStoreWindow>>();
        const auto window = windows.empty() ? nullptr : windows[std::size_t(below(int(windows.size())))];
        if (choice <= 1)
            m_engine.tracker.addWindowWithName(name(), double(below(400000)));
        else if (choice <= 5)
            (void)app->windowStoreForName(name(), std::nullopt);
        else if (choice == 6)
            app->setRenamedNameFormatted({{kRecordName, name()}});
        else if (choice == 7 && window)
            window->setName(name());
        else if (choice == 8 && window)
            window->setRenamedNameFormatted({{kRecordName, name()}});
        else if (choice == 9)
            m_engine.tracker.branchNode(*app);
        else if (choice == 10 && window)
            m_engine.tracker.branchNode(*window);
        else if (choice == 11)
            remove(*app, window.get());
        else if (choice == 12)
            sort();
        else if (choice == 13)
            m_model.setLive(below(2) == 0);
        else if (choice == 14)
            foldOrUnfold();
        else
            pass(*app, window.get());
    }

    // What is wrong with the rows, empty if nothing is.
    QString complaint() const {
        QStringList shown;
        QStringList wanted;
        QString disorder = disorderBeneath({}, shown);
        for (const auto& app : m_engine.tracker.timeSet())
            wanted << textOfItem(*app);
        for (int row = 0; row < m_model.rowCount(); ++row) {
            const QModelIndex index = m_model.index(row, 0);
            if (m_model.rowCount(index) == 0)
                continue;
            disorder += disorderBeneath(index, shown);
            const auto windows = m_model.item(index)->children();
            for (const auto& window : windows.value())
                wanted << textOfItem(*window);
        }
        shown.sort();
        wanted.sort();
        if (shown != wanted)
            return QStringLiteral("shown:\n%1\nwanted:\n%2").arg(shown.join(u'\n'), wanted.join(u'\n'));
        return disorder;
    }

private:
    int below(int limit) { return int(m_random() % unsigned(limit)); }

    QString name() { return QString(QChar(below(2) ? u'a' + below(12) : u'A' + below(12))); }

    void remove(TimeStoreApp& app, TimeStoreWindow* window) {
        std::unordered_set<Identity> gone;
        gone.insert((window && below(3) ? window->uuid() : app.uuid()).value());
        if (below(60) == 0)
            m_engine.tracker.reset();
        else
            m_engine.tracker.removeUUIDs(gone);
    }

    void sort() {
        m_byTime = below(2) == 0;
        m_order = below(2) == 0 ? Qt::AscendingOrder : Qt::DescendingOrder;
        m_model.sort(m_byTime ? TimeTreeModel::TimeSpentColumn : TimeTreeModel::ProgramColumn, m_order);
    }

    void foldOrUnfold() {
        if (m_model.rowCount() == 0)
            return;
        const QModelIndex row = m_model.index(below(m_model.rowCount()), 0);
        if (below(2))
            m_model.releaseChildren(row);
        else
            m_model.fetchMore(row);
    }

    void pass(TimeStoreApp& app, TimeStoreWindow* window) {
        const double seconds = below(8) == 0 ? below(400000) : below(30) / 10.0;
        app.addTimeInterval(seconds);
        if (window)
            window->addTimeInterval(seconds);
    }

    // Adds the texts of the rows to `shown`, and answers those that are out of order.
    QString disorderBeneath(const QModelIndex& parent, QStringList& shown) const {
        QString disorder;
        for (int row = 0; row < m_model.rowCount(parent); ++row) {
            const QModelIndex index = m_model.index(row, 0, parent);
            shown << index.data().toString() + u' ' + index.siblingAtColumn(1).data().toString();
            if (row > 0 && isBefore(*m_model.item(index), *m_model.item(index.siblingAtRow(row - 1))))
                disorder += shown.last() + QStringLiteral(" is too far down\n");
        }
        return disorder;
    }

    static QString textOfItem(const TimeStoreItem& item) {
        const auto renamed = item.node().renamedNameStorage();
        const QString name = renamed ? *renamed + QStringLiteral(" – ") + item.name() : item.name();
        return name + u' ' + item.activeTimeString();
    }

    bool isBefore(const TimeStoreItem& a, const TimeStoreItem& b) const {
        const int names = m_collator.compare(a.sortName(), b.sortName());
        const int times = a.activeTimeString().compare(b.activeTimeString());
        const int first = m_byTime ? times : names;
        if (first != 0)
            return m_order == Qt::AscendingOrder ? first < 0 : first > 0;
        return (m_byTime ? names : times) < 0;
    }

    TestEngine& m_engine;
    TimeTreeModel& m_model;
    std::mt19937 m_random;
    QCollator m_collator;
    bool m_byTime = false;
    Qt::SortOrder m_order = Qt::AscendingOrder;
};

} // namespace

TEST_F(TimeTreeModelTest, anyChanges_leaveTheRowsOfTheTree) {
    for (const bool isTested : {true, false}) {
        const unsigned seed = std::random_device()();
        SCOPED_TRACE(testing::Message() << "seed " << seed << (isTested ? ", under the model tester" : ""));
        std::unique_ptr<QAbstractItemModelTester> tester;
        if (isTested) {
            tester = std::make_unique<QAbstractItemModelTester>(
                &model, QAbstractItemModelTester::FailureReportingMode::Fatal);
            // The tester would fetch more from within a signal.
            tester->setUseFetchMore(false);
        }
        model.sort(TimeTreeModel::ProgramColumn, Qt::AscendingOrder);
        Shuffle shuffle(engine, model, seed);
        for (int step = 0; step < 1500; ++step) {
            shuffle.step();
            if (step % 7 != 0)
                continue;
            model.setLive(true);
            settle();
            ASSERT_EQ(shuffle.complaint(), QString()) << "step " << step;
        }
    }
}

TEST_F(TimeTreeModelTest, anyChanges_leaveWhatIsHeldOnToWhereItWas) {
    const unsigned seed = std::random_device()();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    Shuffle shuffle(engine, model, seed);
    std::vector<std::pair<QPersistentModelIndex, std::weak_ptr<TimeStoreItem>>> held;
    for (int step = 0; step < 800; ++step) {
        shuffle.step();
        settle();
        if (model.rowCount() > 0 && step % 5 == 0) {
            const QModelIndex row = model.index(step % model.rowCount(), 0);
            held.emplace_back(row, model.item(row));
        }
        for (const auto& [index, item] : held)
            if (index.isValid()) {
                ASSERT_EQ(model.item(index), item.lock()) << "step " << step;
            }
    }
}
