// SPDX-License-Identifier: MIT
#include "platform/foundation/programs/MadeUpProcesses.h"

#include <QStringList>

#include <gtest/gtest.h>
#include <set>

namespace {

class MadeUpProcessesTest : public testing::Test {
protected:
    void settle() {
        processes.settle(windows, [](const QString& name) -> QString { return name; });
    }

    MadeUpProcesses processes;
    QStringList windows;
};

TEST_F(MadeUpProcessesTest, eachName_hasANumberOfItsOwnThatNoProcessHas) {
    const auto mail = processes.of(QStringLiteral("mail"));
    EXPECT_LT(mail, 0);
    EXPECT_NE(processes.of(QStringLiteral("notes")), mail);
    EXPECT_EQ(processes.of(QStringLiteral("mail")), mail);
}

TEST_F(MadeUpProcessesTest, namesWithoutEnd_fillNoMemoryAndTakeNobodysNumber) {
    windows = {QStringLiteral("mail"), QStringLiteral("notes"), QStringLiteral("0")};
    const auto mail = processes.of(QStringLiteral("mail"));
    const auto notes = processes.of(QStringLiteral("notes"));
    std::set<std::int64_t> given = {mail, notes};
    for (int i = 0; i < 10'000; ++i) {
        windows.back() = QString::number(i);
        EXPECT_TRUE(given.insert(processes.of(windows.back())).second) << i;
        settle();
        ASSERT_LE(processes.count(), MadeUpProcesses::kSpare + 2 * std::size_t(windows.size()));
    }
    EXPECT_EQ(processes.of(QStringLiteral("mail")), mail);
    EXPECT_EQ(processes.of(QStringLiteral("notes")), notes);
}

TEST_F(MadeUpProcessesTest, someNamesThatGo_areRememberedForWhenTheyComeBack) {
    const auto mail = processes.of(QStringLiteral("mail"));
    for (std::size_t i = 1; i < MadeUpProcesses::kSpare; ++i)
        processes.of(QString::number(i));
    settle();
    EXPECT_EQ(processes.of(QStringLiteral("mail")), mail);
    processes.of(QStringLiteral("one more"));
    settle();
    EXPECT_EQ(processes.count(), 0U);
}

} // namespace
