// SPDX-License-Identifier: MIT
// Who comes back is asked what the absence was: in the window, and by the desktop.
#include "interface/absences/ComingBack.h"
#include "interface/absences/AbsenceBar.h"
#include "tests/fakes/FakeNotices.h"
#include "tests/interface/PlainSpaces.h"
#include "tests/interface/ProjectDesk.h"

#include <QComboBox>
#include <QCompleter>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include <gtest/gtest.h>

namespace {

struct ComingBackTest : testing::Test, ProjectDesk {
    ComingBackTest() {
        fakes.defaults.setObject(kMinutesUntilIdle, 5);
        fakes.defaults.setObject(kAskAfterAbsence, true);
        front("Paint", "Plan");
        controller.timer().startTimer();
        seconds(600);
        addProject("Letters");
        addProject("Poster", {QStringLiteral("Paint")});
        show();
    }

    // Nobody is there for so many minutes; then somebody is back for some seconds.
    void away(int minutes) {
        fakes.idleTime.isBusy = false;
        fakes.idleTime.touch();
        seconds(60.0 * minutes);
        fakes.idleTime.isBusy = true;
        seconds(5);
        settle();
    }

    AbsenceBar& bar() { return controller.window().absenceBar(); }
    template<class Control>
    Control& part(const char* name) {
        auto* found = bar().findChild<Control*>(QLatin1String(name));
        return found ? *found : throw std::invalid_argument(name);
    }
    std::string asked() {
        return bar().isVisible() ? withPlainSpaces(part<QLabel>("absenceText").text()).toStdString()
                                 : "nothing";
    }
    QLineEdit& name() { return part<QLineEdit>("absenceName"); }
    void press(const char* button) {
        QTest::mouseClick(&part<QAbstractButton>(button), Qt::LeftButton);
        settle();
    }

    std::string booked() const { return bookings.join(QStringLiteral(", ")).toStdString(); }

    FakeNotices notices;
    bool hasHistory = true;
    // "20 min Call [Poster]"
    QStringList bookings;
    QStringList names{QStringLiteral("Call with Meier"), QStringLiteral("Lunch talk")};
    ComingBack comingBack{
        {.tracker = controller.tracker(),
         .projects = controller.projects(),
         .bar = [this]() -> AbsenceBar& { return controller.window().absenceBar(); },
         .notices = notices,
         .notifications = fakes.notifications,
         .defaults = fakes.defaults,
         .clock = fakes.clock,
         .runLoop = fakes.runLoop,
         .hasHistory = [this] { return hasHistory; },
         .showWindow = [this] { controller.displayMainWindow(); },
         .askForNames = [this](const auto& told) { told(names); },
         .book =
             [this](const ComingBack::Answer& answer) {
                 bookings << QStringLiteral("%1 min %2 [%3]")
                                 .arg(qRound(secondsBetween(answer.absence.from, answer.absence.to) / 60))
                                 .arg(answer.name, answer.project ? answer.project->label() : QString());
             }}};
};

TEST_F(ComingBackTest, inTheDark_theBarIsDarkAsWell) {
    QPalette dark = controller.window().palette();
    dark.setColor(QPalette::Window, QColor(0x2b, 0x2d, 0x30));
    dark.setColor(QPalette::WindowText, Qt::white);
    controller.window().setPalette(dark);
    away(10);
    EXPECT_LT(bar().grab().toImage().pixelColor(2, 2).lightness(), 90);
    EXPECT_EQ(part<QLabel>("absenceText").palette().color(part<QLabel>("absenceText").foregroundRole()),
              QColor(Qt::white));
}

} // namespace

TEST_F(ComingBackTest, whoComesBack_isAskedInTheWindowAndByTheDesktop) {
    away(20);
    EXPECT_EQ(asked(), "You were away: 9:10 AM – 9:30 AM (20 minutes)");
    EXPECT_EQ(notices.text(), QStringLiteral("You were away for 20 minutes | Poster, Break, Say…"));
    EXPECT_EQ(notices.count, 1);
}

TEST_F(ComingBackTest, theNotice_saysNoTitle) {
    away(20);
    ASSERT_TRUE(notices.shown);
    EXPECT_FALSE(QString(notices.shown->title + notices.shown->text).contains(QStringLiteral("Plan")));
}

TEST_F(ComingBackTest, aTypedName_isBookedWithItsProjectByTheKeyboardAlone) {
    away(20);
    name().setFocus();
    QTest::keyClicks(&name(), QStringLiteral("Visit"));
    QTest::keyClick(&part<QComboBox>("absenceProject"), Qt::Key_Down);
    QTest::keyClick(&name(), Qt::Key_Return);
    settle();
    EXPECT_EQ(booked(), "20 min Visit [Letters]");
    EXPECT_EQ(asked(), "nothing");
    EXPECT_EQ(notices.text(), QString()) << "the question is settled";
}

TEST_F(ComingBackTest, withoutNameAndProject_nothingCanBeBooked) {
    away(20);
    auto& book = part<QPushButton>("bookAbsence");
    EXPECT_FALSE(book.isEnabled());
    name().setText(QStringLiteral("  "));
    EXPECT_FALSE(book.isEnabled());
    QTest::keyClick(&name(), Qt::Key_Return);
    EXPECT_EQ(booked(), "");
    part<QComboBox>("absenceProject").setCurrentIndex(2);
    press("bookAbsence");
    EXPECT_EQ(booked(), "20 min  [Poster]");
}

TEST_F(ComingBackTest, aBreak_isNoWorkAndTheQuestionIsGone) {
    away(20);
    press("absenceWasBreak");
    EXPECT_EQ(asked(), "nothing");
    EXPECT_EQ(notices.text(), QString());
    EXPECT_EQ(booked(), "");
}

TEST_F(ComingBackTest, theNoticesButtons_answerToo) {
    away(20);
    notices.press("project");
    EXPECT_EQ(booked(), "20 min  [Poster]");
    EXPECT_EQ(asked(), "nothing");
    away(30);
    notices.press("break");
    EXPECT_EQ(asked(), "nothing");
    away(40);
    controller.window().showMinimized();
    notices.press("say");
    EXPECT_FALSE(controller.window().isMinimized());
    EXPECT_EQ(controller.window().focusWidget(), &name());
    EXPECT_EQ(booked(), "20 min  [Poster]");
}

TEST_F(ComingBackTest, severalAbsences_waitTheNewestFirstAndEachIsAnsweredByItself) {
    away(20);
    away(30);
    away(40);
    auto& list = part<QListWidget>("absences");
    ASSERT_TRUE(list.isVisible());
    EXPECT_EQ(list.count(), 3);
    EXPECT_EQ(asked(), "You were away: 10:00 AM – 10:40 AM (40 minutes)");
    list.setCurrentRow(1);
    EXPECT_EQ(asked(), "You were away: 9:30 AM – 10:00 AM (30 minutes)");
    name().setText(QStringLiteral("Call"));
    press("bookAbsence");
    EXPECT_EQ(booked(), "30 min Call []");
    EXPECT_EQ(list.count(), 2);
    EXPECT_EQ(name().text(), QString()) << "the next answer begins anew";
    EXPECT_EQ(notices.text(), QStringLiteral("You were away for 40 minutes | Poster, Break, Say…"))
        << "the notice is about the newest, which still waits";
    press("dismissAbsences");
    EXPECT_EQ(asked(), "nothing");
    EXPECT_EQ(booked(), "30 min Call []");
}

TEST_F(ComingBackTest, whatIsBeingTyped_staysWhenAnotherQuestionComes) {
    away(20);
    name().setText(QStringLiteral("Half a na"));
    away(30);
    EXPECT_EQ(name().text(), QStringLiteral("Half a na"));
    EXPECT_EQ(asked(), "You were away: 9:10 AM – 9:30 AM (20 minutes)");
}

TEST_F(ComingBackTest, theBar_takesNoFocusFromWhoTypesElsewhere) {
    controller.find();
    QWidget* before = controller.window().focusWidget();
    away(20);
    EXPECT_EQ(controller.window().focusWidget(), before);
}

TEST_F(ComingBackTest, earlierNames_areOffered) {
    away(20);
    QCompleter& completer = *name().completer();
    completer.setCompletionPrefix(QStringLiteral("meier"));
    EXPECT_EQ(completer.completionCount(), 1);
    EXPECT_EQ(completer.currentCompletion(), QStringLiteral("Call with Meier"));
}

TEST_F(ComingBackTest, projectsThatChange_changeInTheBar) {
    away(20);
    auto& project = part<QComboBox>("absenceProject");
    EXPECT_EQ(project.count(), 3);
    addProject("Garden & Fence");
    EXPECT_EQ(project.itemText(3), QStringLiteral("Garden & Fence"));
    projects().deleteProject(*projects().projects()[1]);
    notices.press("project");
    EXPECT_EQ(booked(), "") << "that project is gone";
    EXPECT_EQ(controller.window().focusWidget(), &name());
}

TEST_F(ComingBackTest, afterWorkOfNoProject_theNoticeOffersTheOneAnsweredLast) {
    front("Mail", "Inbox");
    seconds(600);
    away(20);
    EXPECT_EQ(notices.text(), QStringLiteral("You were away for 20 minutes | Break, Say…"));
    part<QComboBox>("absenceProject").setCurrentIndex(1);
    press("bookAbsence");
    away(20);
    EXPECT_EQ(notices.text(), QStringLiteral("You were away for 20 minutes | Letters, Break, Say…"));
}

TEST_F(ComingBackTest, anAbsenceThatGoesOn_isAskedAboutOnce) {
    fakes.power.aboutToSleep();
    fakes.clock.sleepFor(std::chrono::minutes(30));
    fakes.idleTime.isBusy = false;
    fakes.idleTime.touch();
    fakes.power.wake();
    seconds(600);
    EXPECT_EQ(asked(), "nothing") << "the machine woke by itself";
    EXPECT_EQ(notices.text(), QString());
    fakes.idleTime.isBusy = true;
    seconds(5);
    EXPECT_EQ(asked(), "You were away: 9:10 AM – 9:50 AM (40 minutes)");
}

TEST_F(ComingBackTest, anAbsenceOverMidnight_isToldWithItsDays) {
    away(24 * 60);
    EXPECT_EQ(asked(), "You were away: 1/5/26 9:10 AM – 1/6/26 9:10 AM (24 hours)");
}

TEST_F(ComingBackTest, whoIsNeverAsked_hasNoBar) {
    EXPECT_EQ(controller.window().findChild<AbsenceBar*>(), nullptr);
    fakes.defaults.setObject(kAskAfterAbsence, false);
    away(20);
    EXPECT_EQ(controller.window().findChild<AbsenceBar*>(), nullptr);
    EXPECT_EQ(notices.count, 0);
}

TEST_F(ComingBackTest, withoutAHistory_nothingIsAsked) {
    hasHistory = false;
    away(20);
    EXPECT_EQ(asked(), "nothing");
    EXPECT_EQ(notices.count, 0);
}

TEST_F(ComingBackTest, switchedOff_whatWaitsIsGone) {
    away(20);
    fakes.defaults.setObject(kAskAfterAbsence, false);
    settle();
    EXPECT_EQ(asked(), "nothing");
    EXPECT_EQ(notices.text(), QString());
    away(20);
    EXPECT_EQ(notices.count, 1);
}

TEST_F(ComingBackTest, theFieldAndTheButtons_canBeHeard) {
    away(20);
    for (const QWidget* widget : bar().findChildren<QWidget*>()) {
        const bool isHeard =
            qobject_cast<const QLabel*>(widget) || qobject_cast<const QAbstractItemView*>(widget);
        EXPECT_TRUE(!isHeard || !widget->accessibleName().isEmpty()) << widget->metaObject()->className();
    }
    for (const char* control :
         {"absenceName", "absenceProject", "bookAbsence", "absenceWasBreak", "dismissAbsences"})
        EXPECT_FALSE(part<QWidget>(control).accessibleName().isEmpty()) << control;
}

TEST_F(ComingBackTest, tab_passesTheBarOnTheWayToTheTimers) {
    away(20);
    away(30);
    part<QListWidget>("absences").setFocus();
    QStringList visited;
    for (int steps = 0; steps < 6; ++steps) {
        visited << controller.window().focusWidget()->objectName();
        QTest::keyClick(controller.window().focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(visited.join(u' ').toStdString(),
              "absences absenceName absenceProject absenceWasBreak dismissAbsences sides")
        << "nothing can be booked yet";
}

TEST_F(ComingBackTest, aNarrowWindow_hasTheButtonsBelowTheField) {
    away(20);
    controller.window().resize(1000, 600);
    settle();
    EXPECT_NEAR(name().geometry().center().y(), part<QPushButton>("bookAbsence").geometry().center().y(), 4);
    controller.window().resize(480, 600);
    settle();
    EXPECT_EQ(controller.window().width(), 480);
    EXPECT_LT(name().geometry().bottom(), part<QPushButton>("bookAbsence").geometry().top());
}
