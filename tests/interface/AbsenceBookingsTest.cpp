// SPDX-License-Identifier: MIT
// From the answer to what the history says of that time.
#include "interface/absences/AbsenceBookings.h"
#include "Classes/report/RecordedNames.h"
#include "interface/absences/AbsenceBar.h"
#include "tests/fakes/FakeNotices.h"
#include "tests/fakes/HistoryDiary.h"
#include "tests/interface/HistoryDesk.h"

#include <QComboBox>
#include <QCompleter>
#include <QTest>

#include <gtest/gtest.h>

namespace {

struct AbsenceBookingsTest : testing::Test, HistoryDesk {
    AbsenceBookingsTest() {
        defaults().setObject(kMinutesUntilIdle, 5);
        defaults().setObject(kAskAfterAbsence, true);
        ProjectList& projects = controller.projects();
        projects.setLabel(*projects.addNewProjectWithItems({}), QStringLiteral("Meier"));
        show();
        front("Mail", "Inbox");
        controller.timer().startTimer();
        seconds(600);
        fakes.idleTime.isBusy = false;
        fakes.idleTime.touch();
        seconds(1200);
        fakes.idleTime.isBusy = true;
        seconds(60);
    }

    AbsenceBar& bar() { return controller.window().absenceBar(); }

    void answer(const char* name, int project) {
        bar().findChild<QLineEdit*>(QStringLiteral("absenceName"))->setText(QString::fromUtf8(name));
        bar().findChild<QComboBox*>(QStringLiteral("absenceProject"))->setCurrentIndex(project);
        QTest::mouseClick(bar().findChild<QPushButton*>(QStringLiteral("bookAbsence")), Qt::LeftButton);
        settle();
    }

    std::string diary() {
        history.finish();
        return HistoryDiary::of(history.path());
    }

    AbsenceBookings bookings{history, controller.projects(), controller.undoStack(), fakes.clock};
    FakeNotices notices;
    ComingBack comingBack{{.tracker = controller.tracker(),
                           .projects = controller.projects(),
                           .bar = [this]() -> AbsenceBar& { return controller.window().absenceBar(); },
                           .notices = notices,
                           .notifications = fakes.notifications,
                           .defaults = fakes.defaults,
                           .clock = fakes.clock,
                           .runLoop = fakes.runLoop,
                           .hasHistory = [this] { return history.isKept(); },
                           .showWindow = [this] { controller.displayMainWindow(); },
                           .askForNames = [this](auto told) { bookings.askForNames(std::move(told)); },
                           .book = [this](const ComingBack::Answer& answer) { bookings.book(answer); }}};
};

} // namespace

TEST_F(AbsenceBookingsTest, anAnswer_isWorkByHandInPlaceOfTheIdleTime) {
    EXPECT_EQ(diary(), "Mail [Inbox] 600, Idle 1200, Mail [Inbox] 60");
    answer("Visit", 1);
    EXPECT_EQ(diary(), "Mail [Inbox] 600, By Hand [Visit] by hand 1200, Mail [Inbox] 60");
    EXPECT_EQ(HistoryDiary::flaws(history.path()), QStringList());
}

TEST_F(AbsenceBookingsTest, anAnswer_canBeUndoneAndRedone) {
    const std::string before = diary();
    answer("Visit", 0);
    command(actions().undo);
    EXPECT_EQ(diary(), before);
    command(actions().redo);
    EXPECT_EQ(diary(), "Mail [Inbox] 600, By Hand [Visit] by hand 1200, Mail [Inbox] 60");
}

TEST_F(AbsenceBookingsTest, aProjectAlone_isAnAnswer) {
    answer("", 1);
    EXPECT_EQ(diary(), "Mail [Inbox] 600, By Hand by hand 1200, Mail [Inbox] 60");
    SqliteDatabase file(history.path(), SqliteDatabase::Mode::Read, 1000);
    const RecordedNames names(file, fakes.platform.folders);
    SqliteQuery row(file, "SELECT timer, program, title FROM stretches WHERE presence = 2");
    ASSERT_TRUE(row.next());
    EXPECT_EQ(names.projectsOf(row.integer(0), row.integer(1), row.integer(2)),
              QStringList{QStringLiteral("Meier")});
}

TEST_F(AbsenceBookingsTest, sleep_isBookedWhereNothingWasMeasured) {
    fakes.power.aboutToSleep();
    fakes.clock.sleepFor(std::chrono::hours(1));
    fakes.idleTime.touch();
    fakes.power.wake();
    seconds(60);
    answer("Night train", 0);
    EXPECT_EQ(diary(), "Mail [Inbox] 600, Idle 1200, Mail [Inbox] 60, By Hand [Night train] by hand 3600, "
                       "Mail [Inbox] 60");
    EXPECT_EQ(HistoryDiary::flaws(history.path()), QStringList());
}

TEST_F(AbsenceBookingsTest, whatWasBooked_isOfferedNextTime) {
    answer("Visit", 0);
    history.finish();
    fakes.idleTime.isBusy = false;
    fakes.idleTime.touch();
    seconds(1200);
    fakes.idleTime.isBusy = true;
    seconds(5);
    QCompleter& completer = *bar().findChild<QLineEdit*>(QStringLiteral("absenceName"))->completer();
    completer.setCompletionPrefix(QStringLiteral("vis"));
    EXPECT_EQ(completer.currentCompletion(), QStringLiteral("Visit"));
}

TEST_F(AbsenceBookingsTest, theTimers_stayWhatTheyAre) {
    const QString before = textOf(model());
    answer("Visit", 1);
    EXPECT_EQ(textOf(model()), before);
}

TEST_F(AbsenceBookingsTest, withoutAHistory_anAnswerCannotBeUndone) {
    defaults().setObject(kHistoryDays, -1);
    settle();
    answer("Visit", 0);
    EXPECT_FALSE(actions().undo->isEnabled());
}
