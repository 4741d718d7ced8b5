// SPDX-License-Identifier: MIT
// What the preferences say about the history, and what is forgotten by them.
#include "interface/preferences/ForgetWindow.h"
#include "tests/fakes/HistoryDiary.h"
#include "tests/interface/HistoryDesk.h"

#include <QDateTimeEdit>
#include <QStandardItemModel>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct HistorySettingsTest : testing::Test, HistoryDesk {
    HistorySettingsTest() {
        setup.showPrefWindow();
        setup.prefWindow().selectTab(u"History"_s);
        settle();
    }

    void keep(const char* text) {
        auto& box = control<QComboBox>("historyDays");
        const int choice = box.findText(QString::fromUtf8(text));
        ASSERT_GE(choice, 0);
        box.setCurrentIndex(choice);
        Q_EMIT box.activated(choice);
        settle();
    }

    ForgetWindow& window() { return *setup.forgetWindow(); }

    template<class Control>
    Control& choice(const char* name) {
        auto* found = window().findChild<Control*>(QLatin1String(name));
        return found ? *found : throw std::invalid_argument(name);
    }

    void openForget() {
        press("forgetHistory");
        seconds(0.5);
    }

    QString found() { return choice<QLabel>("forgottenFound").text(); }
};

TEST_F(HistorySettingsTest, howLongItIsKept_isChosen_andLessOnlyAfterAQuestion) {
    EXPECT_EQ(control<QComboBox>("historyDays").currentText(), u"For ever"_s);
    keep("For a year");
    EXPECT_EQ(alerts.questions, QStringList(u"Forget what is older?"_s));
    EXPECT_EQ(defaults().integerForKey(kHistoryDays), 0) << "who only presses Return keeps it";
    EXPECT_EQ(control<QComboBox>("historyDays").currentText(), u"For ever"_s);
    alerts.answer = Alerts::Alternate;
    keep("For a year");
    EXPECT_EQ(defaults().integerForKey(kHistoryDays), 365);
    alerts.questions.clear();
    keep("For five years");
    EXPECT_EQ(defaults().integerForKey(kHistoryDays), 1826);
    EXPECT_EQ(alerts.questions, QStringList()) << "more costs nothing";
    defaults().setObject(kHistoryDays, 30);
    EXPECT_EQ(control<QComboBox>("historyDays").currentText(), u"For 30 days"_s);
}

TEST_F(HistorySettingsTest, notKept_isSaidAndNothingIsThereToForget) {
    work("Browser", "Cats", 20);
    alerts.answer = Alerts::Alternate;
    EXPECT_TRUE(control<QLabel>("historyObstacle").isHidden());
    keep("Not at all");
    EXPECT_EQ(alerts.questions, QStringList(u"Keep no history?"_s));
    EXPECT_FALSE(QFileInfo::exists(history.path()));
    EXPECT_EQ(control<QLabel>("historyObstacle").text(), u"No history is kept."_s);
    EXPECT_FALSE(control<QPushButton>("forgetHistory").isEnabled());
    keep("For ever");
    EXPECT_EQ(alerts.questions.size(), 1);
    EXPECT_TRUE(control<QPushButton>("forgetHistory").isEnabled());
}

TEST_F(HistorySettingsTest, theHourAtWhichADayBegins_isChosen) {
    auto& box = control<QComboBox>("historyDayBegins");
    EXPECT_EQ(box.currentData(), 0);
    box.setCurrentIndex(4);
    Q_EMIT box.activated(4);
    settle();
    EXPECT_EQ(defaults().integerForKey(kHistoryDayBegins), 4);
    EXPECT_EQ(history.dayBegins(), 4);
}

TEST_F(HistorySettingsTest, whatWouldBeForgotten_isShownBefore_andIsGoneAfterTheQuestion) {
    work("Browser", "Doctor Meier", 60);
    work("Browser", "Cats", 30);
    openForget();
    EXPECT_EQ(found(), u"Titles: 2 · Time spent: 00:01:30"_s);
    choice<QLineEdit>("forgottenTitle").setText(u"meier"_s);
    EXPECT_FALSE(choice<QPushButton>("forgetFound").isEnabled()) << "not before it was shown";
    seconds(0.5);
    EXPECT_EQ(found(), u"Titles: 1 · Time spent: 00:01:00"_s);
    choice<QPushButton>("forgetFound").click();
    settle();
    EXPECT_TRUE(HistoryDiary::holdsText(history.path(), u"Meier"_s)) << "who only presses Return keeps it";
    EXPECT_TRUE(alerts.last.informativeText.contains(u"00:01:00"_s));
    alerts.answer = Alerts::Alternate;
    choice<QPushButton>("forgetFound").click();
    settle();
    EXPECT_EQ(found(), u"It is forgotten."_s);
    EXPECT_EQ(HistoryDiary::sums(history.path()), "Browser [Cats] 30");
    EXPECT_FALSE(HistoryDiary::holdsText(history.path(), u"Meier"_s));
}

TEST_F(HistorySettingsTest, whatIsForgotten_costsTheTimersNothing) {
    // Stopping the timer would save the store.
    front("Browser", "Cats");
    controller.timer().startTimer();
    seconds(30);
    const auto storeHasIt = [this] {
        QFile store(controller.database().mainStoreURL());
        return store.open(QIODevice::ReadOnly) && store.readAll().contains("Cats");
    };
    EXPECT_FALSE(storeHasIt());
    openForget();
    alerts.answer = Alerts::Alternate;
    choice<QPushButton>("forgetFound").click();
    settle();
    SqliteDatabase file(history.path(), SqliteDatabase::Mode::Read, 0);
    EXPECT_EQ(file.number("SELECT count(*) FROM owed"), 0);
    EXPECT_TRUE(storeHasIt()) << "the store has what was owed";
}

TEST_F(HistorySettingsTest, aProgramAndADay_narrowWhatIsFound) {
    work("Browser", "Cats", 30);
    work("Mail", "Inbox", 10);
    openForget();
    auto& programs = choice<QComboBox>("forgottenProgram");
    programs.setCurrentIndex(programs.findText(u"Mail"_s));
    seconds(0.5);
    EXPECT_EQ(found(), u"Titles: 1 · Time spent: 00:00:10"_s);
    auto& from = choice<QDateTimeEdit>("forgottenFrom");
    from.setDate(from.date().addDays(-1));
    seconds(0.5);
    EXPECT_EQ(found(), u"Nothing was found."_s);
    EXPECT_FALSE(choice<QPushButton>("forgetFound").isEnabled());
    choice<QComboBox>("forgottenWhen").setCurrentIndex(0);
    seconds(0.5);
    EXPECT_EQ(found(), u"Titles: 1 · Time spent: 00:00:10"_s);
}

} // namespace
