// SPDX-License-Identifier: MIT
#include "Classes/projects/ProjectDrops.h"
#include "tests/fakes/Projects.h"
#include "tests/fakes/Store.h"

using namespace Qt::StringLiterals;

namespace {

using ProjectSamples::identities;
using ProjectSamples::record;

// The projects A, B, C and D.
class ProjectDropsTest : public StoreTest {
protected:
    ProjectDropsTest() { reset(); }

    void reset() {
        PropertyListArray records;
        unsigned member = 0;
        for (const char* label : {"A", "B", "C", "D"})
            records.push_back(record(label, {++member}).entries());
        m_list.setProjects(records);
    }

    std::string order() const {
        QString labels;
        for (const auto& project : m_list.projects())
            labels += project->label();
        return str(labels);
    }

    // "BACD, row 2": the order after the drop and the row selected.
    std::string drop(std::size_t row, std::ptrdiff_t position, DropOperation operation) {
        reset();
        const auto accepted = m_drops.acceptProjectRow(row, position, operation);
        if (!accepted.isAccepted)
            return order() + ", refused";
        return order() + (accepted.selectedRow ? ", row " + std::to_string(*accepted.selectedRow) : "");
    }

    ProjectList m_list{store, fakes.defaults, fakes.folders.documents};
    ProjectDrops m_drops{m_list};
};

TEST_F(ProjectDropsTest, aRowHeldOverAProject_goesBeforeIt) {
    EXPECT_EQ(m_drops.targetPosition(m_list.projects()[2].get()), 2U);
    EXPECT_EQ(m_drops.targetPosition(m_list.mainItem().get()), 4U);
    EXPECT_EQ(m_drops.targetPosition(nullptr), 4U);
}

TEST_F(ProjectDropsTest, aRowMoved_meansTheProjectBelowIt) {
    // Row 1 shows A.
    EXPECT_EQ(drop(1, 3, DropOperation::Move), "ACBD, row 3");
    EXPECT_EQ(drop(1, 4, DropOperation::Move), "ACDB, row 4");
    EXPECT_EQ(drop(3, 0, DropOperation::Move), "DABC, row 1");
    EXPECT_EQ(drop(3, 1, DropOperation::Move), "ADBC, row 2");
}

TEST_F(ProjectDropsTest, aProjectDroppedOnItsOwnPlace_goesOneUpAndBelowItStays) {
    EXPECT_EQ(drop(2, 2, DropOperation::Move), "ACBD, row 2");
    EXPECT_EQ(drop(2, 3, DropOperation::Move), "ABCD, row 3");
}

TEST_F(ProjectDropsTest, theLastRow_meansNoProject) {
    EXPECT_EQ(drop(4, 0, DropOperation::Move), "ABCD, refused");
    EXPECT_EQ(drop(4, 0, DropOperation::Copy), "ABCD, refused");
    EXPECT_EQ(drop(ProjectList::kAtEnd, 0, DropOperation::Move), "ABCD, refused");
}

TEST_F(ProjectDropsTest, theRowOfAllTimers_meansTheFirstProject) {
    EXPECT_EQ(drop(0, 2, DropOperation::Move), "BACD, row 2");
    EXPECT_EQ(drop(0, 0, DropOperation::Move), "ABCD, row 1");
}

TEST_F(ProjectDropsTest, aRowCopied_isThereTwiceAndSelectsNothing) {
    EXPECT_EQ(drop(1, 0, DropOperation::Copy), "BABCD");
    EXPECT_EQ(drop(1, 4, DropOperation::Copy), "ABCDB");
}

TEST_F(ProjectDropsTest, aPositionThatThereIsNot_isTheNearest) {
    EXPECT_EQ(drop(1, 99, DropOperation::Copy), "ABCDB");
    EXPECT_EQ(drop(1, 99, DropOperation::Move), "ACDB, row 4");
    EXPECT_EQ(drop(1, -1, DropOperation::Copy), "BABCD");
    EXPECT_EQ(drop(1, -1, DropOperation::Move), "BACD, row 1");
}

TEST_F(ProjectDropsTest, theLineWhereARowWillLand_isWhereItLands) {
    for (const auto operation : {DropOperation::Move, DropOperation::Copy})
        for (std::size_t row = 0; row < 5; ++row)
            for (std::size_t position = 0; position < 6; ++position) {
                reset();
                const auto line = m_drops.landingBefore(row, position, operation);
                ASSERT_EQ(line.has_value(), row < 4);
                if (!line)
                    continue;
                std::string expected = order();
                const char moved = expected[row];
                if (operation == DropOperation::Move)
                    expected[row] = ' ';
                expected.insert(*line, 1, moved);
                std::erase(expected, ' ');
                m_drops.acceptProjectRow(row, std::ptrdiff_t(position), operation);
                EXPECT_EQ(order(), expected) << "row " << row << ", position " << position;
            }
}

TEST_F(ProjectDropsTest, everyMove_takesOneProjectAndLosesNone) {
    for (std::size_t row = 0; row < 4; ++row)
        for (std::ptrdiff_t position = -2; position < 7; ++position) {
            reset();
            const QString moved = m_list.projects()[row]->label();
            const auto accepted = m_drops.acceptProjectRow(row, position, DropOperation::Move);
            ASSERT_TRUE(accepted.isAccepted);
            EXPECT_EQ(m_list.count(), 4U);
            EXPECT_EQ(m_list.projectForRow(std::ptrdiff_t(*accepted.selectedRow))->label(), moved);
        }
}

TEST_F(ProjectDropsTest, aCopy_isAProjectOfItsOwn) {
    m_list.setSelectedColorTag(*m_list.projects()[1], 3);
    m_drops.acceptProjectRow(1, 4, DropOperation::Copy);
    const auto copy = m_list.projects()[4];
    EXPECT_EQ(copy->colorTag(), 3);
    m_list.addMembers(*copy, identities({9}));
    EXPECT_EQ(ProjectSamples::members(*copy), "2 9");
    EXPECT_EQ(ProjectSamples::members(*m_list.projects()[1]), "2");
}

TEST_F(ProjectDropsTest, whatIsDropped_isWrittenAtOnce) {
    m_drops.acceptProjectRow(0, 4, DropOperation::Move);
    const ProjectList later(store, fakes.defaults, fakes.folders.documents);
    EXPECT_EQ(later.projects().back()->label(), u"A"_s);
}

TEST_F(ProjectDropsTest, timersDroppedOntoAProject_becomeItsMembersOnce) {
    const auto project = m_list.projects()[0];
    m_drops.acceptItems(identities({7, 1}), *project);
    m_drops.acceptItems(identities({7, 1}), *project);
    EXPECT_EQ(ProjectSamples::members(*project), "1 7");
}

TEST_F(ProjectDropsTest, timersDroppedBetweenRows_becomeANewProjectThere) {
    const auto made = m_drops.acceptItems(identities({7, 8}), 2);
    EXPECT_EQ(made->label(), u"New Project"_s);
    EXPECT_EQ(m_list.positionOf(*made), 1U);
    EXPECT_EQ(ProjectSamples::members(*made), "7 8");
}

TEST_F(ProjectDropsTest, timersDroppedBetweenRows_clearTheColoursThatADeletedProjectLeft) {
    const auto project = m_list.projects()[0];
    m_list.setSelectedColorTag(*project, 3);
    m_list.deleteProject(*project);
    EXPECT_FALSE(m_list.reverseProjectCache()->isEmpty());
    m_drops.acceptItems(identities({7}), 2);
    EXPECT_TRUE(m_list.reverseProjectCache()->isEmpty());
}

TEST_F(ProjectDropsTest, timersDroppedAboveOrBelowAllRows_becomeTheLastProject) {
    EXPECT_EQ(m_list.positionOf(*m_drops.acceptItems({}, 0)), 4U);
    EXPECT_EQ(m_list.positionOf(*m_drops.acceptItems({}, -1)), 5U);
    EXPECT_EQ(m_list.positionOf(*m_drops.acceptItems({}, 7)), 6U);
    EXPECT_EQ(m_list.positionOf(*m_drops.acceptItems({}, 7)), 6U);
    EXPECT_EQ(m_list.positionOf(*m_drops.acceptItems({}, 1)), 0U);
}

} // namespace
