// SPDX-License-Identifier: MIT
// What the preferences say about the history, and what is forgotten by them.
#include "interface/preferences/ForgetWindow.h"
#include "platform/foundation/time/LocalTime.h"
#include "tests/fakes/HistoryDiary.h"
#include "tests/interface/HistoryDesk.h"
#include "tests/interface/InTimeZone.h"

#include <QDateTimeEdit>
#include <QStandardItemModel>

#include <gtest/gtest.h>

#include <array>

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
    EXPECT_EQ(control<QComboBox>("historyDays").currentText(), u"Forever"_s);
    keep("For a year");
    EXPECT_EQ(alerts.questions, QStringList(u"Forget what is older?"_s));
    EXPECT_EQ(defaults().integerForKey(kHistoryDays), 0) << "who only presses Return keeps it";
    EXPECT_EQ(control<QComboBox>("historyDays").currentText(), u"Forever"_s);
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
    EXPECT_EQ(alerts.questions, QStringList(u"Stop keeping a history?"_s));
    EXPECT_FALSE(QFileInfo::exists(history.path()));
    EXPECT_EQ(control<QLabel>("historyObstacle").text(), u"No history is kept."_s);
    EXPECT_FALSE(control<QPushButton>("forgetHistory").isEnabled());
    keep("Forever");
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

TEST_F(HistorySettingsTest, whileTheHistoryCannotBeWritten_nothingIsSaidToBeForgotten) {
    work("Browser", "Doctor Meier", 60);
    openForget();
    seconds(0.5);
    alerts.answer = Alerts::Alternate;
    {
        SqliteDatabase other(history.path(), SqliteDatabase::Mode::ReadWrite, 0);
        other.execute("BEGIN IMMEDIATE");
        choice<QPushButton>("forgetFound").click();
        settle();
        EXPECT_TRUE(found().startsWith(u"It is not forgotten yet"_s)) << qPrintable(found());
    }
    seconds(2);
    EXPECT_EQ(found(), u"It is forgotten."_s);
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
    auto& day = choice<QDateTimeEdit>("forgottenDay");
    day.setDate(day.date().addDays(-1));
    seconds(0.5);
    EXPECT_EQ(found(), u"Nothing was found."_s);
    EXPECT_FALSE(choice<QPushButton>("forgetFound").isEnabled());
    choice<QComboBox>("forgottenWhen").setCurrentIndex(0);
    seconds(0.5);
    EXPECT_EQ(found(), u"Titles: 1 · Time spent: 00:00:10"_s);
}

struct ForgetOnOddDays : testing::TestWithParam<std::array<const char*, 5>>, HistoryDesk {};

// The clock is set in this zone; it shows this time, and days begin at this hour.
INSTANTIATE_TEST_SUITE_P(
    WhereTheClockIsSet, ForgetOnOddDays,
    testing::Values(
        std::array{"America/Santiago", "2026-09-06T12:00", "0", "2026-09-06 01:00", "2026-09-07 00:00"},
        std::array{"Europe/Berlin", "2026-03-29T12:00", "2", "2026-03-29 03:00", "2026-03-30 02:00"},
        std::array{"Europe/Berlin", "2026-03-29T01:00", "2", "2026-03-28 02:00", "2026-03-29 03:00"},
        std::array{"Europe/Berlin", "2026-03-29T04:30", "4", "2026-03-29 04:00", "2026-03-30 04:00"},
        std::array{"Europe/Berlin", "2026-10-25T12:00", "2", "2026-10-25 02:00", "2026-10-26 02:00"}));

TEST_P(ForgetOnOddDays, theDayIsWholeAndNoOther) {
    const auto [zone, now, dayBegins, first, end] = GetParam();
    const InTimeZone there(zone);
    fakes.clock.setWall(dateOf(QDateTime::fromString(QLatin1String(now), Qt::ISODate)));
    defaults().setObject(kHistoryDayBegins, QByteArray(dayBegins).toInt());
    setup.showPrefWindow();
    setup.prefWindow().selectTab(u"History"_s);
    settle();
    press("forgetHistory");
    const auto chosen = [this] {
        const HistoryChange::Forgotten choice = setup.forgetWindow()->choice();
        const auto text = [](std::int64_t moment) {
            return QDateTime::fromMSecsSinceEpoch(moment).toString(u"yyyy-MM-dd HH:mm"_s).toStdString();
        };
        return text(*choice.from) + " to " + text(*choice.to);
    };
    EXPECT_EQ(chosen(), std::string(first) + " to " + end);
    const auto range = setup.forgetWindow()->choice();
    setup.forgetWindow()->findChild<QComboBox*>(u"forgottenWhen"_s)->setCurrentIndex(2);
    EXPECT_EQ(chosen(), std::string(first) + " to " + end) << "the same as a range";
    EXPECT_EQ(setup.forgetWindow()->choice().from, range.from);
    setup.forgetWindow()->findChild<QComboBox*>(u"forgottenWhen"_s)->setCurrentIndex(1);
    auto* day = setup.forgetWindow()->findChild<QDateTimeEdit*>(u"forgottenDay"_s);
    day->stepDown();
    day->stepUp();
    EXPECT_EQ(chosen(), std::string(first) + " to " + end) << "by the arrow keys";
}

} // namespace
