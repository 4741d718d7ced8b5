// SPDX-License-Identifier: MIT
#include "Classes/record/FileReading.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <QDeadlineTimer>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

class FileReadingTest : public testing::Test {
protected:
    FileReadingTest() { EXPECT_TRUE(PropertyList::writeXmlFile(QString(5'000'000, u'x'), m_path)); }

    QTemporaryDir m_home;
    QString m_path = m_home.filePath(u"large"_s);
    std::function<void()> m_work;
    BackgroundMove::Background m_later = [this](auto work) { m_work = std::move(work); };
};

TEST_F(FileReadingTest, onAThreadOfItsOwn_comesToItsEndWithWhatWasRead) {
    FileReading reading(m_path);
    const QDeadlineTimer limit(20'000);
    double last = 0;
    while (reading.done() < 1 && !limit.hasExpired()) {
        EXPECT_GE(reading.done(), last);
        last = reading.done();
        std::this_thread::yield();
    }
    ASSERT_EQ(reading.done(), 1);
    const auto read = reading.take();
    ASSERT_TRUE(read);
    EXPECT_EQ(read->toString().size(), 5'000'000);
}

TEST_F(FileReadingTest, aFileThatIsNotThere_isDoneWithThat) {
    FileReading reading(m_path + u".none"_s, m_later);
    EXPECT_EQ(reading.done(), 0);
    m_work();
    ASSERT_EQ(reading.done(), 1);
    EXPECT_EQ(reading.take().failure().kind, Failure::Kind::NotFound);
}

TEST_F(FileReadingTest, onceNobodyWantsIt_readsNoFurther) {
    int told = 0;
    const auto givenUp = PropertyList::readFile(m_path, [&](double) { return ++told < 2; });
    EXPECT_EQ(told, 2);
    EXPECT_EQ(givenUp.failure().kind, Failure::Kind::Unreadable);
    std::make_unique<FileReading>(m_path, m_later).reset();
    m_work();
}

} // namespace
