// SPDX-License-Identifier: MIT
#include "Classes/record/BackgroundMove.h"
#include "tests/fakes/CrashingDisk.h"
#include "tests/fakes/ManualRunLoop.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

// Background work waits in `work` until a test runs it.
class BackgroundMoveTest : public testing::Test {
protected:
    QString path(const QString& name) const { return m_home.filePath(name); }

    QString put(const QString& name, const QByteArray& content) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(content);
        return path(name);
    }

    QByteArray content(const QString& name) const {
        QFile file(path(name));
        return file.open(QFile::ReadOnly) ? file.readAll() : "(none)";
    }

    void add(const QString& from, const QString& to) {
        moves->add({.from = path(from), .to = path(to), .done = [this](const Outcome& outcome) {
                        told.push_back(outcome ? "done" : "failed");
                    }});
    }

    void doWork() {
        for (std::size_t i = 0; i < work.size(); ++i) {
            work[i]();
            loop.runPending();
        }
        work.clear();
    }

    QTemporaryDir m_home;
    HandClock m_clock;
    ManualRunLoop loop{m_clock};
    CrashingDisk disk{m_home.path()};
    std::vector<std::function<void()>> work;
    std::vector<std::string> told;
    std::optional<BackgroundMove> moves{std::in_place, loop,
                                        [this](auto task) { work.push_back(std::move(task)); }, disk};
};

TEST_F(BackgroundMoveTest, aFile_isThereWholeBeforeItGoesHere) {
    put(u"a"_s, "archive");
    add(u"a"_s, u"b"_s);
    EXPECT_EQ(content(u"a"_s), "archive");
    doWork();
    EXPECT_EQ(content(u"a"_s), "(none)");
    EXPECT_EQ(content(u"b"_s), "archive");
    EXPECT_EQ(told, (std::vector<std::string>{"done"}));
}

TEST_F(BackgroundMoveTest, ofSeveral_oneIsDoneAfterTheOther) {
    put(u"a"_s, "1");
    put(u"b"_s, "2");
    add(u"a"_s, u"c"_s);
    add(u"b"_s, u"d"_s);
    EXPECT_EQ(work.size(), 1U);
    EXPECT_EQ(moves->waiting().size(), 2U);
    doWork();
    EXPECT_EQ(content(u"c"_s) + content(u"d"_s), "12");
    EXPECT_TRUE(moves->waiting().empty());
}

TEST_F(BackgroundMoveTest, whateverFails_theFileStaysAndIsNotHalfThere) {
    int failures = 0;
    for (int call = 1;; ++call) {
        put(u"a"_s, "archive");
        disk.arm(CrashingDisk::Fault::Fails, call, ENOSPC);
        told.clear();
        add(u"a"_s, u"b"_s);
        doWork();
        if (!disk.happened)
            break;
        const bool isDone = told.at(0) == "done";
        EXPECT_EQ(content(u"a"_s), isDone ? "(none)" : "archive") << call;
        EXPECT_EQ(content(u"b"_s), isDone ? "archive" : "(none)") << call;
        QFile::remove(path(u"b"_s));
        ++failures;
    }
    EXPECT_EQ(failures, 5);
}

TEST_F(BackgroundMoveTest, aFileThatHasGone_isAFailure) {
    add(u"a"_s, u"b"_s);
    doWork();
    EXPECT_EQ(told, (std::vector<std::string>{"failed"}));
    EXPECT_EQ(content(u"b"_s), "(none)");
}

TEST_F(BackgroundMoveTest, aNameThatIsTaken_isLeftAloneAndTheFirstFreeOneIsUsed) {
    put(u"b.csv"_s, "an older one");
    QFile::link(u"nowhere"_s, path(u"b 2.csv"_s));
    put(u"a"_s, "archive");
    add(u"a"_s, u"b.csv"_s);
    doWork();
    EXPECT_EQ(told, (std::vector<std::string>{"done"}));
    EXPECT_EQ(content(u"b.csv"_s), "an older one");
    EXPECT_EQ(content(u"nowhere"_s), "(none)");
    EXPECT_EQ(content(u"b 3.csv"_s), "archive");
}

TEST_F(BackgroundMoveTest, aFileThatLiesThereAlreadyByASecondName_isLeftWhereItIs) {
    put(u"a.csv"_s, "an older one");
    put(u"a 2.csv"_s, "archive");
    QFile::link(m_home.path(), path(u"here"_s));
    add(u"a 2.csv"_s, u"here/a.csv"_s);
    doWork();
    EXPECT_EQ(told, (std::vector<std::string>{"done"}));
    EXPECT_EQ(content(u"a 2.csv"_s), "archive");
    EXPECT_EQ(content(u"a 3.csv"_s), "(none)");
}

TEST_F(BackgroundMoveTest, aFolderThatIsTheSameByAnotherName_keepsTheFile) {
    put(u"a"_s, "archive");
    QFile::link(m_home.path(), path(u"here"_s));
    add(u"a"_s, u"here/a"_s);
    doWork();
    EXPECT_EQ(told, (std::vector<std::string>{"done"}));
    EXPECT_EQ(content(u"a"_s), "archive");
}

TEST_F(BackgroundMoveTest, whoeverIsGoneMeanwhile_isNotTold) {
    put(u"a"_s, "archive");
    add(u"a"_s, u"b"_s);
    moves.reset();
    doWork();
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(content(u"b"_s), "archive");
}

TEST_F(BackgroundMoveTest, aThreadOfItsOwn_doesTheWorkAndTheMainThreadHearsOfIt) {
    put(u"a"_s, "archive");
    std::thread::id hearer;
    BackgroundMove real(loop);
    real.add({.from = path(u"a"_s), .to = path(u"b"_s), .done = [&](const Outcome& outcome) {
                  EXPECT_TRUE(outcome);
                  hearer = std::this_thread::get_id();
              }});
    for (const QDeadlineTimer limit(30'000); !real.waiting().empty() && !limit.hasExpired();) {
        loop.runPending();
        std::this_thread::yield();
    }
    EXPECT_EQ(hearer, std::this_thread::get_id());
    EXPECT_EQ(content(u"b"_s), "archive");
}

} // namespace
