// SPDX-License-Identifier: MIT
#include "Classes/common/Settings.h"
#include "Classes/rules/TitleRows.h"
#include "tests/interface/SetupDesk.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct RulesTest : testing::Test, SetupDesk {
    RulesTest() { showRules(); }

    void select(int row) { setup.rulesTab().select(row); }

    const PropertyListDictionary kBlocked{{kRuleBlock, true}, {kRuleCategories, u"work"_s}};
};

} // namespace

TEST_F(RulesTest, aRuleThatIsAdded_isStoredAndSelected) {
    addRule("notes");
    addRule("Mail", "work,home");
    EXPECT_EQ(rulesText(), "Mail (work,home), notes");
    EXPECT_EQ(setup.rulesTab().selectedRow(), 0);
    EXPECT_EQ(ruleset().value(u"Mail"_s),
              PropertyListValue(PropertyListDictionary{{u"Block"_s, false},
                                                       {u"Rename"_s, QString(u""_s)},
                                                       {u"EnableRename"_s, false},
                                                       {u"Categories"_s, u"work,home"_s}}));
    EXPECT_FALSE(sheet().isVisible());
}

TEST_F(RulesTest, onePlainLine_saysWhatRulesDoAndWhatTheyDoNot) {
    const auto& line = control<QLabel>("whatRulesDo");
    EXPECT_TRUE(line.isVisible());
    for (const char* said : {"leave out", "rename", "categorize", "reports"})
        EXPECT_TRUE(line.text().contains(QLatin1String(said))) << said;
    EXPECT_EQ(line.foregroundRole(), QPalette::WindowText);
    // One line, or two if letters are wide.
    EXPECT_FALSE(line.text().contains(u'\n'));
    EXPECT_LE(line.height(), line.heightForWidth(line.width()));
    EXPECT_LT(line.mapTo(&setup.rulesTab(), QPoint()).y(), rules().mapTo(&setup.rulesTab(), QPoint()).y());
}

TEST_F(RulesTest, theTracker_learnsOfTheCategoriesAfterTheyAreWritten) {
    addRule("Mail", "work");
    EXPECT_EQ(controller.tracker().categories().all().at(u"work"_s), std::set<QString>{u"Mail"_s});
}

TEST_F(RulesTest, aRowForEachTitle_isWantedByRuleOrForAll) {
    press("addRule");
    sheet().ruleAppName().setText(u"Browser"_s);
    EXPECT_FALSE(sheet().ruleRowForEachTitle().isChecked());
    sheet().ruleRowForEachTitle().setChecked(true);
    press("saveRule");
    EXPECT_TRUE(ruleset().value(u"Browser"_s).asDictionary()->value(kRuleRowForEachTitle).toBool());
    EXPECT_EQ(rulesText(), "Browser: a row for each title");
    press("addRule");
    EXPECT_FALSE(sheet().ruleRowForEachTitle().isChecked()) << "it is asked for each application anew";
    press("cancelEditingRule");
    select(0);
    press("editRule");
    EXPECT_TRUE(sheet().ruleRowForEachTitle().isChecked());
    sheet().ruleRowForEachTitle().setChecked(false);
    press("saveRule");
    EXPECT_TRUE(ruleset().value(u"Browser"_s).asDictionary()->value(kRuleRowForEachTitle).isAbsent());
    auto& forAll = setup.rulesTab().rowForEachTitle();
    EXPECT_TRUE(forAll.isVisible());
    EXPECT_FALSE(forAll.isChecked());
    forAll.click();
    EXPECT_TRUE(defaults().boolForKey(kRowForEachTitle));
    EXPECT_FALSE(forAll.accessibleDescription().isEmpty());
}

TEST_F(RulesTest, cancelling_changesNothing) {
    press("addRule");
    sheet().ruleAppName().setText(u"Mail"_s);
    press("cancelEditingRule");
    EXPECT_EQ(rulesText(), "");
    EXPECT_FALSE(sheet().isVisible());
    press("addRule");
    EXPECT_EQ(sheet().ruleAppName().text(), QString());
    QTest::keyClick(&sheet(), Qt::Key_Escape);
    EXPECT_FALSE(sheet().isVisible());
    EXPECT_TRUE(ruleset().isEmpty());
}

TEST_F(RulesTest, renamedFromMailToMailInSmallLetters_leavesOneRule) {
    addRule("notes");
    addRule("Mail");
    press("editRule");
    EXPECT_EQ(sheet().ruleAppName().text(), u"Mail"_s);
    fillIn("mail");
    EXPECT_EQ(rulesText(), "mail, notes");
}

TEST_F(RulesTest, anEmptyName_isARuleThatSortsFirst) {
    addRule("Mail");
    addRule("", "work");
    EXPECT_EQ(rulesText(), " (work), Mail");
    select(0);
    press("editRule");
    fillIn("Notes");
    EXPECT_EQ(rulesText(), "Mail, Notes");
}

TEST_F(RulesTest, editing_withoutASelectionDoesNothing) {
    setup.editRule();
    EXPECT_FALSE(sheet().isVisible());
    EXPECT_FALSE(control<QPushButton>("editRule").isEnabled());
    EXPECT_FALSE(control<QPushButton>("duplicateRule").isEnabled());
    EXPECT_THROW(setup.duplicateRule(), std::out_of_range);
    EXPECT_FALSE(sheet().isVisible());
}

TEST_F(RulesTest, aDuplicate_isAnotherRuleUnderAnotherName) {
    giveRule(u"Mail"_s, {{kRuleEnableRename, true}, {kRuleRename, u"Post"_s}, {kRuleCategories, u"work"_s}});
    select(0);
    press("duplicateRule");
    EXPECT_EQ(sheet().ruleAppName().text(), QString());
    EXPECT_EQ(sheet().ruleRenameName().text(), u"Post"_s);
    EXPECT_EQ(sheet().ruleCategories().tokens(), QStringList{u"work"_s});
    sheet().ruleAppName().setText(u"Letters"_s);
    press("saveRule");
    EXPECT_EQ(rulesText(), "Letters ⇒ Post (work), Mail ⇒ Post (work)");
}

TEST_F(RulesTest, loadingARule_enablesTheBlockBoxButNeverChecksIt) {
    QCheckBox& block = sheet().ruleBlockFromList();
    setup.loadRuleWithDict(kBlocked);
    EXPECT_TRUE(block.isEnabled());
    EXPECT_FALSE(block.isChecked());
    block.setChecked(true);
    setup.loadRuleWithDict({});
    EXPECT_FALSE(block.isEnabled());
    EXPECT_TRUE(block.isChecked());
}

TEST_F(RulesTest, addingRightAfterEditingABlockedRule_leavesTheBlockBoxAsItWas) {
    giveRule(u"Mail"_s, kBlocked);
    select(0);
    press("editRule");
    sheet().ruleBlockFromList().click();
    press("saveRule");
    press("addRule");
    EXPECT_TRUE(sheet().ruleBlockFromList().isChecked());
    EXPECT_FALSE(sheet().ruleCategories().isEnabled());
    EXPECT_EQ(sheet().ruleCategories().text(), QString());
}

TEST_F(RulesTest, theBoxes_keepInStepWhatDependsOnThem) {
    press("addRule");
    EXPECT_FALSE(sheet().ruleRenameName().isEnabled());
    sheet().ruleRenameCheckbox().click();
    EXPECT_TRUE(sheet().ruleRenameName().isEnabled());
    const QColor plain = sheet().ruleCategoriesLabel().palette().color(QPalette::WindowText);
    sheet().ruleBlockFromList().click();
    EXPECT_FALSE(sheet().ruleCategories().isEnabled());
    EXPECT_FALSE(sheet().ruleRenameLabel().isEnabled());
    EXPECT_TRUE(sheet().ruleRenameName().isEnabled()) << "the new name depends on its own box alone";
    EXPECT_EQ(sheet().ruleCategoriesLabel().palette().color(QPalette::WindowText),
              sheet().palette().color(QPalette::Disabled, QPalette::WindowText));
    sheet().ruleBlockFromList().click();
    EXPECT_TRUE(sheet().ruleCategories().isEnabled());
    EXPECT_TRUE(sheet().ruleRenameLabel().isEnabled());
    EXPECT_EQ(sheet().ruleCategoriesLabel().palette().color(QPalette::WindowText), plain);
}

TEST_F(RulesTest, theSheet_bringsItsControlsInStepWhenItBecomesActive) {
    press("addRule");
    sheet().ruleCategories().setEnabled(false);
    QEvent activation(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&sheet(), &activation);
    EXPECT_TRUE(sheet().ruleCategories().isEnabled());
}

TEST_F(RulesTest, active_isRememberedUntilTheTableIsReadAgain) {
    addRule("Mail");
    addRule("Notes");
    const PropertyListDictionary before = ruleset();
    const QModelIndex mail = rules().model()->index(0, 0);
    ASSERT_TRUE(rules().model()->setData(mail, Qt::Unchecked, Qt::CheckStateRole));
    EXPECT_EQ(rulesText(), "(off) Mail, Notes");
    EXPECT_EQ(ruleset(), before);
    EXPECT_FALSE(rules().model()->setData(mail.siblingAtColumn(1), u"x"_s, Qt::EditRole));
    setup.removeRule();
    EXPECT_EQ(rulesText(), "Mail, Notes");
}

TEST_F(RulesTest, space_switchesActive) {
    addRule("Mail");
    rules().setCurrentIndex(rules().model()->index(0, 0));
    QTest::keyClick(&rules(), Qt::Key_Space);
    EXPECT_EQ(rulesText(), "(off) Mail");
}

TEST_F(RulesTest, removing_onlyReadsTheTableAgain) {
    addRule("Mail");
    setup.removeRule();
    EXPECT_EQ(rulesText(), "Mail");
    EXPECT_EQ(setup.rulesTab().selectedRow(), 0);
}

TEST_F(RulesTest, deleting_asksFirst) {
    addRule("Mail");
    press("deleteRule");
    EXPECT_EQ(alerts.last.message, u"Delete the rule?"_s);
    EXPECT_EQ(rulesText(), "Mail");
    alerts.answer = Alerts::Alternate;
    QTest::keyClick(&rules(), Qt::Key_Delete);
    EXPECT_EQ(rulesText(), "");
    EXPECT_EQ(alerts.questions.size(), 2);
    setup.deleteRule();
    EXPECT_EQ(alerts.questions.size(), 2) << "nothing is selected";
}

TEST_F(RulesTest, deleting_goesOnFromWhereTheRuleWas) {
    for (const char* name : {"A", "B", "C"})
        addRule(name);
    alerts.answer = Alerts::Alternate;
    select(1);
    press("deleteRule");
    EXPECT_EQ(rulesText(), "A, C");
    EXPECT_EQ(setup.rulesTab().selectedRow(), 1);
    press("deleteRule");
    EXPECT_EQ(setup.rulesTab().selectedRow(), 0);
}

TEST_F(RulesTest, aDoubleClickAndReturn_editTheRule) {
    addRule("Mail");
    rules().setFocus();
    QTest::keyClick(&rules(), Qt::Key_Return);
    EXPECT_TRUE(sheet().isVisible());
    press("cancelEditingRule");
    const QPoint place = rules().visualRect(rules().model()->index(0, 1)).center();
    QTest::mouseClick(rules().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(rules().viewport(), Qt::LeftButton, {}, place);
    EXPECT_TRUE(sheet().isVisible());
}

TEST_F(RulesTest, rulesThatChangeElsewhere_areShownAtOnce) {
    addRule("Mail");
    giveRule(u"Atlas"_s, {});
    EXPECT_EQ(rulesText(), "Atlas, Mail");
    EXPECT_EQ(setup.rulesTab().selectedRow(), 1) << "the same rule stays selected";
    defaults().setObject(kRulesetKey, u"damaged"_s);
    EXPECT_EQ(rulesText(), "");
    EXPECT_FALSE(control<QPushButton>("deleteRule").isEnabled());
}

TEST_F(RulesTest, recordsOfWrongTypes_areRulesThatSayNothing) {
    defaults().setObject(kRulesetKey,
                         PropertyListDictionary{{u"A"_s, 7},
                                                {u"B"_s, PropertyListArray{}},
                                                {u"C"_s, PropertyListDictionary{{kRuleRename, 7},
                                                                                {kRuleActive, u"no"_s},
                                                                                {kRuleBlock, u"yes"_s}}}});
    EXPECT_EQ(rulesText(), "A, B, C");
    for (int row = 0; row < 3; ++row) {
        select(row);
        press("editRule");
        EXPECT_EQ(sheet().ruleRenameName().text(), QString());
        press("saveRule");
    }
    EXPECT_EQ(rulesText(), "A, B, C");
    EXPECT_TRUE(ruleset().value(u"B"_s).asDictionary());
}

TEST_F(RulesTest, fiveThousandRules_areShownAndWalkedThroughQuickly) {
    PropertyListDictionary many;
    for (int i = 0; i < 5000; ++i)
        many.insert(u"Application %1"_s.arg(i), PropertyListDictionary{{kRuleCategories, u"work,home"_s}});
    QElapsedTimer watch;
    watch.start();
    defaults().setObject(kRulesetKey, many);
    settle();
    RecordProperty("reload_ms", int(watch.restart()));
    for (int step = 0; step < 200; ++step)
        QTest::keyClick(&rules(), Qt::Key_Down);
    (void)rules().grab();
    const qint64 walked = watch.elapsed();
    RecordProperty("walk_ms", int(walked));
    EXPECT_EQ(rules().model()->rowCount(), 5000);
    EXPECT_LT(walked, 5000);
}

TEST(RulesTable, everyChange_keepsTheModelsPromises) {
    FakePlatform fakes;
    RulesTable table(fakes.defaults);
    const QAbstractItemModelTester tester(&table, QAbstractItemModelTester::FailureReportingMode::Fatal);
    fakes.defaults.setObject(kRulesetKey, PropertyListDictionary{{u"Mail"_s, PropertyListDictionary{}}});
    EXPECT_TRUE(table.isOutdated());
    table.reload();
    EXPECT_FALSE(table.isOutdated());
    EXPECT_TRUE(table.setData(table.index(0, 0), Qt::Unchecked, Qt::CheckStateRole));
    EXPECT_FALSE(table.index(0, 1).data(Qt::DecorationRole).isValid());
    fakes.defaults.removeObject(kRulesetKey);
    table.reload();
    EXPECT_EQ(table.rowCount(), 0);
}

TEST(RulesTable, aRule_hasTheIconOfItsProgramOnceItIsThere) {
    FakePlatform fakes;
    fakes.defaults.setObject(kRulesetKey, PropertyListDictionary{{u"Mail"_s, PropertyListDictionary{}}});
    RulesTable table(fakes.defaults);
    QPixmap icon;
    table.setIcons([&](const QString& rule) { return rule == u"Mail"_s ? icon : QPixmap(); });
    const auto hasIcon = [&] {
        return table.index(0, RulesTable::Description).data(Qt::DecorationRole).isValid();
    };
    EXPECT_FALSE(hasIcon());
    QSignalSpy told(&table, &QAbstractItemModel::dataChanged);
    icon = QPixmap(16, 16);
    table.iconsChanged();
    EXPECT_EQ(told.size(), 1);
    EXPECT_TRUE(hasIcon());
}
