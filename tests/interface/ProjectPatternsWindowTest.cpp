// SPDX-License-Identifier: MIT
// The window in which a project's patterns are edited.
#include "interface/sidebar/ProjectPatternsWindow.h"
#include "Classes/rules/TitlePattern.h"
#include "tests/interface/Desk.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct ProjectPatternsWindowTest : testing::Test, Desk {
    ProjectPatternsWindowTest() {
        show();
        project = controller.projects().addNewProjectWithItems({});
        auto& outline = controller.window().projectOutline();
        outline.setCurrentIndex(outline.model()->index(1, 0));
        settle();
    }

    ProjectPatternsWindow& window() { return *controller.projectController().patternsWindow(); }

    template<class Control>
    Control& part(const char* name) {
        auto* found = window().findChild<Control*>(QLatin1String(name));
        return found ? *found : throw std::invalid_argument(name);
    }

    QAbstractItemModel& rows() { return *part<QTableView>("patternTable").model(); }

    void write(int row, int column, const char* text) {
        rows().setData(rows().index(row, column), QString::fromUtf8(text));
    }

    PropertyListArray patterns() { return controller.projects().projects().front()->patterns(); }

    ProjectList::Project project;
};

TEST_F(ProjectPatternsWindowTest, isOfferedForProjectsOnly) {
    EXPECT_TRUE(actions().editPatterns->isEnabled());
    EXPECT_TRUE(actions().forProjects().contains(actions().editPatterns));
    auto& outline = controller.window().projectOutline();
    outline.setCurrentIndex(outline.model()->index(0, 0));
    settle();
    EXPECT_FALSE(actions().editPatterns->isEnabled());
}

TEST_F(ProjectPatternsWindowTest, whatIsSaved_isTheProjects_andCanBeUndone) {
    command(actions().editPatterns);
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(rows().rowCount(), 1) << "a row to write into";
    write(0, 0, "Editor");
    part<QPushButton>("addPattern").click();
    write(1, 1, "meier|huber");
    rows().setData(rows().index(1, 2), Qt::Checked, Qt::CheckStateRole);
    part<QPushButton>("addPattern").click();
    part<QPushButton>("savePatterns").click();
    settle();
    ASSERT_EQ(patterns().size(), 2U) << "a row that says nothing is none";
    EXPECT_EQ(patterns()[0], PropertyListValue(PropertyListDictionary{{kTitleRuleProgram, u"Editor"_s}}));
    EXPECT_TRUE(patterns()[1].asDictionary()->value(kTitleRuleIsExpression).toBool());
    command(actions().undo);
    EXPECT_TRUE(patterns().empty());
    command(actions().redo);
    command(actions().editPatterns);
    EXPECT_EQ(rows().rowCount(), 2);
    EXPECT_EQ(rows().index(1, 1).data().toString(), u"meier|huber"_s);
    part<QTableView>("patternTable").setCurrentIndex(rows().index(0, 0));
    part<QPushButton>("removePattern").click();
    QTest::keyClick(&window(), Qt::Key_Escape);
    EXPECT_EQ(patterns().size(), 2U) << "not saved";
}

TEST_F(ProjectPatternsWindowTest, aWrongExpression_isSaidAndCannotBeSaved) {
    command(actions().editPatterns);
    write(0, 1, "(");
    EXPECT_TRUE(part<QPushButton>("savePatterns").isEnabled());
    rows().setData(rows().index(0, 2), Qt::Checked, Qt::CheckStateRole);
    EXPECT_FALSE(part<QPushButton>("savePatterns").isEnabled());
    EXPECT_TRUE(part<QLabel>("patternFault").text().startsWith(u"This expression cannot be read"_s));
    write(0, 1, "(a)");
    EXPECT_TRUE(part<QPushButton>("savePatterns").isEnabled());
}

TEST_F(ProjectPatternsWindowTest, withKeysAlone_allOfARowIsFilledIn) {
    command(actions().editPatterns);
    const auto type = [](const QByteArray& text) {
        for (const char each : text)
            QTest::keyClick(QApplication::focusWidget(), each);
    };
    const auto press = [](Qt::Key key, Qt::KeyboardModifiers with = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, with);
    };
    type("Editor");
    press(Qt::Key_Tab);
    type("a+");
    press(Qt::Key_Tab);
    press(Qt::Key_Space);
    press(Qt::Key_Left);
    press(Qt::Key_Escape);
    EXPECT_EQ(part<QTableView>("patternTable").currentIndex(), rows().index(0, 1));
    press(Qt::Key_Right);
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &part<QPushButton>("addPattern")) << "the way out";
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(part<QTableView>("patternTable").hasFocus());
    part<QPushButton>("savePatterns").click();
    settle();
    ASSERT_EQ(patterns().size(), 1U);
    const PropertyListDictionary& written = *patterns()[0].asDictionary();
    EXPECT_EQ(written.value(kTitleRuleProgram).toString().toStdString(), "Editor");
    EXPECT_EQ(written.value(kTitleRuleTitle).toString().toStdString(), "a+");
    EXPECT_TRUE(written.value(kTitleRuleIsExpression).toBool());
}

} // namespace
