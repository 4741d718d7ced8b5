// SPDX-License-Identifier: MIT
// The page of the rules for titles.
#include "tests/fakes/HistoryDiary.h"
#include "tests/interface/Complaints.h"
#include "tests/interface/HistoryDesk.h"

#include <QAbstractItemModelTester>
#include <QDirIterator>
#include <QLineEdit>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct TitlesTabTest : testing::Test, HistoryDesk {
    TitlesTabTest() {
        setup.showPrefWindow();
        setup.prefWindow().selectTab(u"Titles"_s);
        settle();
    }

    TitlesTab& tab() { return setup.titlesTab(); }

    QAbstractItemModel& rules() { return *tab().table().model(); }

    QString cell(int row, int column) { return rules().index(row, column).data().toString(); }

    // "Any | doctor | Leave the title out", one for each rule.
    QStringList list() {
        QStringList rows;
        for (int row = 0; row < rules().rowCount(); ++row)
            rows << QStringList{cell(row, 1), cell(row, 2), cell(row, 3)}.join(u" | "_s);
        return rows;
    }

    template<class Control>
    Control& field(const char* name) {
        auto* found = tab().sheet().findChild<Control*>(QLatin1String(name));
        return found ? *found : throw std::invalid_argument(name);
    }

    void fillIn(const char* program, const char* title, const char* effect) {
        field<QLineEdit>("titleRuleProgram").setText(QString::fromUtf8(program));
        field<QLineEdit>("titleRuleTitle").setText(QString::fromUtf8(title));
        auto& box = field<QComboBox>("titleRuleEffect");
        box.setCurrentIndex(box.findText(QString::fromUtf8(effect)));
    }

    void addRule(const char* program, const char* title, const char* effect) {
        press("addTitleRule");
        fillIn(program, title, effect);
        field<QPushButton>("saveTitleRule").click();
        settle();
    }

    // In which files under the home a text stands; of the settings only the rules themselves.
    QStringList filesWith(const QByteArray& text) {
        QStringList names;
        QDirIterator files(fakes.home.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            if (file.readAll().contains(text))
                names << QFileInfo(file).fileName();
        }
        return names;
    }

    QAbstractItemModelTester tester{&rules(), QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(TitlesTabTest, fromTheStart_privateWindowsAreLeftOut) {
    EXPECT_EQ(list(), QStringList(u"Any | Private windows of browsers | Leave the title out"_s));
    EXPECT_TRUE(defaults().object(kTitleRules).isAbsent()) << "looking changes nothing";
}

TEST_F(TitlesTabTest, rulesAreAdded_editedMovedAndDeleted_andHoldAtOnce) {
    addRule("Browser", "doctor", "Leave the title out");
    addRule("", "diary", "Count as “Private”");
    EXPECT_EQ(list(), (QStringList{u"Any | Private windows of browsers | Leave the title out"_s,
                                   u"Browser | doctor | Leave the title out"_s,
                                   u"Any | diary | Count as “Private”"_s}));
    EXPECT_EQ(tab().selectedRow(), 2);
    press("moveTitleRuleUp");
    EXPECT_EQ(tab().selectedRow(), 1);
    EXPECT_EQ(cell(1, 2), u"diary"_s);
    press("moveTitleRuleDown");
    press("editTitleRule");
    EXPECT_EQ(field<QLineEdit>("titleRuleTitle").text(), u"diary"_s);
    fillIn("Editor", "diary", "Replace the title");
    field<QLineEdit>("titleRuleReplacement").setText(u"Notes"_s);
    field<QPushButton>("saveTitleRule").click();
    EXPECT_EQ(list().last(), u"Editor | diary | Replace the title: Notes"_s);
    tab().select(0);
    press("deleteTitleRule");
    EXPECT_EQ(rules().rowCount(), 3) << "who only presses Return keeps it";
    alerts.answer = Alerts::Alternate;
    press("deleteTitleRule");
    EXPECT_EQ(rules().rowCount(), 2);
    work("Editor", "Dear diary", 10);
    work("Browser", "At the doctor", 10);
    EXPECT_EQ(HistoryDiary::sums(history.path()), "Browser 10, Editor [Notes] 10");
}

TEST_F(TitlesTabTest, aRuleThatIsSwitchedOff_isAsleep) {
    addRule("", "diary", "Leave the title out");
    const QModelIndex active = rules().index(1, 0);
    EXPECT_TRUE(rules().setData(active, Qt::Unchecked, Qt::CheckStateRole));
    settle();
    EXPECT_EQ(active.data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
    EXPECT_EQ(tab().selectedRow(), 1);
    work("Editor", "Dear diary", 10);
    EXPECT_EQ(HistoryDiary::sums(history.path()), "Editor [Dear diary] 10");
}

TEST_F(TitlesTabTest, theSpaceKey_switchesTheSelectedRule_whereverItWasMovedOrClicked) {
    addRule("", "diary", "Leave the title out");
    press("moveTitleRuleUp");
    const auto pressSpace = [this] {
        QTest::keyClick(&tab().table(), Qt::Key_Space);
        settle();
        return rules().index(0, 0).data(Qt::CheckStateRole).toInt();
    };
    EXPECT_EQ(tab().table().currentIndex(), rules().index(0, 0)) << "its text is that of the whole row";
    EXPECT_EQ(pressSpace(), Qt::Unchecked);
    tab().table().setCurrentIndex(rules().index(0, 2));
    EXPECT_EQ(pressSpace(), Qt::Checked);
    EXPECT_EQ(rules().index(1, 0).data(Qt::CheckStateRole).toInt(), Qt::Checked);
}

TEST_F(TitlesTabTest, aWrongExpression_isSaidAndCannotBeSaved) {
    press("addTitleRule");
    fillIn("", "(", "Leave the title out");
    EXPECT_TRUE(field<QPushButton>("saveTitleRule").isEnabled()) << "as a text it is right";
    field<QComboBox>("titleRuleMatch").setCurrentIndex(1);
    EXPECT_FALSE(field<QPushButton>("saveTitleRule").isEnabled());
    EXPECT_TRUE(field<QLabel>("titleRuleFault").text().startsWith(u"This expression cannot be read"_s));
    field<QLineEdit>("titleRuleTitle").setText(u"(a|b)"_s);
    EXPECT_TRUE(field<QPushButton>("saveTitleRule").isEnabled());
    field<QPushButton>("saveTitleRule").click();
    EXPECT_EQ(cell(1, 2), u"/(a|b)/"_s);
}

TEST_F(TitlesTabTest, aLongFault_isShownWhole) {
    press("addTitleRule");
    fillIn("", "[[:abcdefghijklmnopqrstuvwxyz:]]", "Leave the title out");
    field<QComboBox>("titleRuleMatch").setCurrentIndex(1);
    settle();
    auto& fault = field<QLabel>("titleRuleFault");
    field<QLineEdit>("titleRuleTitle").setText(u"(?<name>a)(?<name>b)"_s);
    settle();
    EXPECT_GE(fault.height(), fault.heightForWidth(fault.width()));
    EXPECT_GT(fault.height(), 2 * fault.fontMetrics().height() - 4) << "two lines";
    EXPECT_EQ(field<QLineEdit>("titleRuleTitle").width(), field<QLineEdit>("titleRuleProgram").width());
}

TEST_F(TitlesTabTest, aRuleWithoutAFault_givesQtNothingToComplainOf) {
    const Complaints complaints;
    press("addTitleRule");
    fillIn("", "(", "Leave the title out");
    field<QComboBox>("titleRuleMatch").setCurrentIndex(1);
    field<QLineEdit>("titleRuleTitle").clear();
    EXPECT_EQ(field<QLabel>("titleRuleFault").minimumHeight(), 0);
    EXPECT_EQ(complaints.all(), "");
}

TEST_F(TitlesTabTest, blanksAroundTheTextsOfARule_areNotMeant) {
    press("addTitleRule");
    fillIn(" Browser ", "  doctor ", "Replace the title");
    field<QLineEdit>("titleRuleReplacement").setText(u" Health "_s);
    field<QPushButton>("saveTitleRule").click();
    EXPECT_EQ(list().last(), u"Browser | doctor | Replace the title: Health"_s);
    press("addTitleRule");
    fillIn("", "   ", "Leave the title out");
    EXPECT_EQ(tab().sheet().rule().value(kTitleRuleTitle).toString(), QString());
}

TEST_F(TitlesTabTest, whatTheLastDaysHaveOfARule_isShown) {
    work("Browser", "Doctor Meier", 60);
    work("Browser", "Doctor Huber", 30);
    addRule("", "doctor", "Leave the title out");
    EXPECT_EQ(cell(0, 4), u"0"_s);
    EXPECT_EQ(cell(1, 4), u"2 · 00:01:30"_s);
    press("showMetTitles");
    EXPECT_EQ(tab().metWindow()->findChild<QTreeView*>()->model()->index(0, 1).data().toString(),
              u"Doctor Meier"_s);
    tab().metWindow()->close();
    tab().select(0);
    EXPECT_FALSE(control<QPushButton>("showMetTitles").isEnabled());
}

TEST_F(TitlesTabTest, aDeletedRow_isNotShownToMatch_butRuledAllTheSame) {
    show();
    work("Browser", "Doctor Meier", 60);
    work("Browser", "Doctor Huber", 30);
    addRule("", "doctor", "Leave the title out");
    table().expandAll();
    select({row("Doctor Meier", row("Browser"))});
    alerts.answer = Alerts::Alternate;
    command(actions().deleteRows);
    history.finish();
    tab().reload();
    settle();
    EXPECT_EQ(cell(1, 4), u"1 · 00:00:30"_s);
    press("applyTitleRules");
    EXPECT_TRUE(alerts.last.informativeText.startsWith(u"Titles: 2 · Time spent: 00:01:30"_s))
        << qPrintable(alerts.last.informativeText);
}

TEST_F(TitlesTabTest, heldOverThePast_whatTheyHideIsInNoFile_andCannotBeUndone) {
    work("Browser", "Doctor SECRETNAME - Results", 60);
    work("Browser", "Cats", 30);
    const auto windows = controller.tracker().fullTimeSet().front()->windows();
    controller.projects().addNewProjectWithItems({*windows[0]->uuid(), *windows[1]->uuid()});
    controller.saveSettingsToDisk();
    defaults().synchronize();
    EXPECT_GE(filesWith("SECRETNAME").size(), 3);
    command(actions().addProject);
    ASSERT_TRUE(actions().undo->isEnabled());
    addRule("", "doctor", "Leave the title out");
    press("applyTitleRules");
    EXPECT_TRUE(alerts.last.informativeText.startsWith(u"Titles: 1 · Time spent: 00:01:00 · Timers: 1"_s))
        << qPrintable(alerts.last.informativeText);
    EXPECT_GE(filesWith("SECRETNAME").size(), 3) << "who only presses Return keeps it";
    alerts.answer = Alerts::Alternate;
    press("applyTitleRules");
    history.finish();
    defaults().synchronize();
    EXPECT_EQ(filesWith("SECRETNAME"), QStringList());
    EXPECT_EQ(HistoryDiary::sums(history.path()), "Browser 60, Browser [Cats] 30");
    EXPECT_FALSE(actions().undo->isEnabled());
    EXPECT_EQ(controller.projects().projects().front()->members().size(), 1U);
    work("Browser", "Doctor SECRETNAME - Bill", 10);
    controller.saveSettingsToDisk();
    EXPECT_EQ(filesWith("SECRETNAME"), QStringList());
    press("applyTitleRules");
    EXPECT_EQ(alerts.notices, QStringList(u"The rules match nothing in the past."_s));
}

TEST_F(TitlesTabTest, withoutAHistory_thatIsSaid_andTheTimersAreRuledAllTheSame) {
    work("Browser", "Doctor SECRETNAME", 60);
    defaults().setObject(kHistoryDays, -1);
    settle();
    EXPECT_EQ(control<QLabel>("titleRulesState").text(), u"No history is kept."_s);
    addRule("", "doctor", "Leave the title out");
    EXPECT_EQ(cell(1, 4), QString());
    alerts.answer = Alerts::Alternate;
    press("applyTitleRules");
    EXPECT_EQ(filesWith("SECRETNAME"), QStringList());
}

TEST_F(TitlesTabTest, withKeysAlone_rulesAreEditedAndDeleted) {
    addRule("", "diary", "Leave the title out");
    tab().table().setFocus();
    QTest::keyClick(&tab().table(), Qt::Key_Return);
    EXPECT_TRUE(tab().sheet().isVisible());
    QTest::keyClick(&tab().sheet(), Qt::Key_Escape);
    alerts.answer = Alerts::Alternate;
    QTest::keyClick(&tab().table(), Qt::Key_Delete);
    EXPECT_EQ(rules().rowCount(), 1);
    EXPECT_EQ(rules().index(0, 0).data(Qt::AccessibleTextRole).toString(),
              u"Active: Any, Private windows of browsers, Leave the title out"_s);
}

} // namespace
