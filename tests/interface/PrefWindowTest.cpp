// SPDX-License-Identifier: MIT
#include "tests/interface/SetupDesk.h"

#include <QAccessible>
#include <QDateTime>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct PrefWindowTest : testing::Test, SetupDesk {
    PrefWindow& window() { return setup.prefWindow(); }

    void showWindow() {
        setup.showPrefWindow();
        settle();
    }

    void archiveBySchedule(bool isOn) {
        defaults().setObject(kSaveTimerPeriodically, isOn);
        settle();
    }

    int segments() {
        int text = 0;
        for (const bool isSelected : setup.archiveTab().periodicDaysOfWeek().segments())
            text = text * 10 + int(isSelected);
        return text;
    }
};

} // namespace

TEST_F(PrefWindowTest, shown_beginsAtTheGeneralSettingsAndEscapeClosesIt) {
    window().selectTab(u"Archive"_s);
    showWindow();
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(window().prefTabView().currentWidget()->objectName(), u"General"_s);
    QTest::keyClick(&window(), Qt::Key_Escape);
    EXPECT_FALSE(window().isVisible());
}

TEST_F(PrefWindowTest, withoutScheduledArchives_opensFoldedInItsPlace) {
    const QPoint place(40, 50);
    window().move(place);
    showWindow();
    EXPECT_LT(window().height(), window().bigHeight());
    EXPECT_TRUE(setup.archiveTab().bottomView().isHidden());
    EXPECT_EQ(window().pos(), place);
}

TEST_F(PrefWindowTest, switchedOnAndOff_unfoldsAndFoldsWithItsUpperEdgeInPlace) {
    showWindow();
    window().move(40, 50);
    settle();
    const QRect folded = window().geometry();
    archiveBySchedule(true);
    EXPECT_EQ(window().height(), window().bigHeight());
    EXPECT_EQ(window().geometry().topLeft(), folded.topLeft());
    EXPECT_FALSE(setup.archiveTab().bottomView().isHidden());
    const QRect unfolded = window().geometry();
    archiveBySchedule(false);
    EXPECT_EQ(window().geometry(), folded);
    archiveBySchedule(true);
    EXPECT_EQ(window().geometry(), unfolded);
}

TEST_F(PrefWindowTest, folded_endsWhereTheLowerPartBegan) {
    archiveBySchedule(true);
    showWindow();
    window().selectTab(u"Archive"_s);
    settle();
    const int edge = setup.archiveTab().bottomView().mapTo(&window(), QPoint(0, 0)).y();
    archiveBySchedule(false);
    EXPECT_EQ(window().height(), edge);
}

TEST_F(PrefWindowTest, folded_showsTheGeneralSettingsWhole) {
    showWindow();
    const QWidget& page = *window().prefTabView().currentWidget();
    EXPECT_GE(page.height(), page.sizeHint().height());
    EXPECT_LE(page.height(), page.sizeHint().height() + 12) << "and no emptier than that";
}

TEST_F(PrefWindowTest, aLargerFontWhileItIsShown_clipsNoPage) {
    const QFont before = QApplication::font();
    for (const bool isOpen : {true, false}) {
        setup.showPrefWindow();
        settle();
        if (!isOpen)
            window().close();
        QFont large = before;
        large.setPixelSize(26);
        QApplication::setFont(large);
        settle();
        setup.showPrefWindow();
        settle();
        for (int i = 0; i < window().prefTabView().count(); ++i) {
            window().prefTabView().setCurrentIndex(i);
            settle();
            const QWidget& page = *window().prefTabView().currentWidget();
            if (page.objectName() == u"Archive"_s)
                continue;
            EXPECT_GE(page.height(), page.minimumSizeHint().height())
                << str(page.objectName()) << (isOpen ? ", open" : ", closed");
            EXPECT_GE(page.width(), page.minimumSizeHint().width()) << str(page.objectName());
        }
        window().selectTab(u"General"_s);
        EXPECT_GE(window().prefTabView().currentWidget()->height(),
                  window().prefTabView().currentWidget()->sizeHint().height())
            << (isOpen ? "open" : "closed");
        QApplication::setFont(before);
        settle();
    }
}

TEST_F(PrefWindowTest, otherSettings_leaveTheWindowAlone) {
    showWindow();
    const QRect before = window().geometry();
    defaults().setObject(kMinutesUntilIdle, 3);
    defaults().setObject(kSaveTimerPeriodically, u"yes"_s);
    defaults().setObject(kSaveTimerPeriodically, false);
    EXPECT_EQ(window().geometry(), before);
}

TEST_F(PrefWindowTest, whatTheUserDoes_isStoredAtOnce) {
    showWindow();
    press("enableIdleDetection");
    press("includeIdleInSumofTimes");
    press("includeSelfInSumofTimes");
    press("includeSecondsWhenCopyingTime");
    EXPECT_FALSE(defaults().boolForKey(kEnableIdleDetection));
    EXPECT_TRUE(defaults().boolForKey(kIncludeIdleInSumofTimes));
    EXPECT_FALSE(defaults().boolForKey(kIncludeSelfInSumofTimes));
    EXPECT_TRUE(defaults().boolForKey(kIncludeSecondsWhenCopyingTime));
    EXPECT_FALSE(control<QSpinBox>("minutesUntilIdle").isEnabled());
    press("enableIdleDetection");
    control<QSpinBox>("minutesUntilIdle").setValue(5);
    EXPECT_EQ(defaults().object(kMinutesUntilIdle), PropertyListValue(5));
}

TEST_F(PrefWindowTest, theSum_followsItsSettingsAtOnce) {
    show();
    account("Idle", 60);
    EXPECT_EQ(sumShown(), u"00:00:00"_s);
    showWindow();
    press("includeIdleInSumofTimes");
    EXPECT_EQ(sumShown(), u"00:01:00"_s);
}

TEST_F(PrefWindowTest, whatChangesElsewhere_isShownAtOnce) {
    showWindow();
    defaults().setObject(kMinutesUntilIdle, 42);
    defaults().setObject(kIncludeIdleInSumofTimes, true);
    defaults().setObject(kPeriodicFormatType, 0);
    defaults().setObject(kPeriodicSaveDirectory, u"/archive"_s);
    EXPECT_EQ(control<QSpinBox>("minutesUntilIdle").value(), 42);
    EXPECT_TRUE(control<QCheckBox>("includeIdleInSumofTimes").isChecked());
    EXPECT_EQ(control<QComboBox>("periodicFormatType").currentText(), u"CSV table"_s);
    EXPECT_EQ(control<QLineEdit>("periodicSaveDirectory").text(), u"/archive"_s);
    defaults().removeObject(kMinutesUntilIdle);
    EXPECT_EQ(control<QSpinBox>("minutesUntilIdle").value(), 15);
}

TEST_F(PrefWindowTest, wrongTypes_showAsSomethingSensibleAndAreNotReplaced) {
    showWindow();
    const PropertyListValue strange[] = {PropertyListValue(u"text"_s),
                                         PropertyListValue(std::int64_t(-9000000000)),
                                         PropertyListValue(std::numeric_limits<std::int64_t>::max()),
                                         PropertyListValue(1e300),
                                         PropertyListValue(true),
                                         PropertyListValue(QByteArray("x")),
                                         PropertyListValue(Date::max()),
                                         PropertyListArray{7},
                                         PropertyListDictionary{{u"a"_s, 7}}};
    QStringList keys{kTKPrefAppType, kTKPrefShowMenuItem, kIncludeSecondsWhenCopyingTime, kRulesetKey};
    for (const auto& [key, value] : registeredDefaults(u"/data"_s))
        keys << key;
    for (const PropertyListValue& value : strange) {
        for (const QString& key : keys) {
            defaults().setObject(key, value);
            EXPECT_EQ(defaults().object(key), value) << str(key);
        }
        setup.showPrefWindow();
        settle();
        const int minutes = control<QSpinBox>("minutesUntilIdle").value();
        EXPECT_TRUE(minutes >= 1 && minutes <= 1440) << minutes;
        EXPECT_TRUE(control<QTimeEdit>("periodicSaveTime").time().isValid());
        (void)window().grab();
    }
    for (const QString& key : keys)
        defaults().removeObject(key);
    EXPECT_EQ(control<QSpinBox>("minutesUntilIdle").value(), 15);
    EXPECT_EQ(control<QTimeEdit>("periodicSaveTime").time(), QTime(19, 0));
}

TEST_F(PrefWindowTest, thePresence_isOneOfThreeAndNeverNone) {
    showWindow();
    auto& presence = control<QComboBox>("presence");
    EXPECT_EQ(presence.currentText(), u"Task bar and system tray"_s);
    bool wasAnywhere = true;
    const auto changes =
        fakes.notifications.observe(kUserDefaultsDidChangeNotification, [&](const Notification&) {
            wasAnywhere = wasAnywhere && (defaults().integerForKey(kTKPrefAppType) == 1 ||
                                          defaults().boolForKey(kTKPrefShowMenuItem));
        });
    for (const int choice : {1, 2, 1, 0}) {
        presence.setFocus();
        presence.setCurrentIndex(choice);
        Q_EMIT presence.activated(choice);
        EXPECT_EQ(presence.currentIndex(), choice);
        EXPECT_EQ(defaults().integerForKey(kTKPrefAppType), choice == 2 ? 0 : 1);
        EXPECT_EQ(defaults().boolForKey(kTKPrefShowMenuItem), choice != 1);
    }
    EXPECT_TRUE(wasAnywhere);
}

TEST_F(PrefWindowTest, theTimeOfDay_keepsTheDayAndPlansAnew) {
    archiveBySchedule(true);
    const auto planned = nextArchive();
    ASSERT_TRUE(planned);
    showWindow();
    control<QTimeEdit>("periodicSaveTime").setTime(QTime(6, 30));
    EXPECT_NE(nextArchive(), planned);
    const auto stored = defaults().object(kPeriodicSaveTime).asDate();
    ASSERT_TRUE(stored);
    const auto time = QDateTime::fromMSecsSinceEpoch(
        std::chrono::duration_cast<std::chrono::milliseconds>(stored->time_since_epoch()).count());
    EXPECT_EQ(time, QDateTime(QDate(1, 1, 1), QTime(6, 30)));
    archiveBySchedule(false);
    EXPECT_FALSE(nextArchive());
}

TEST_F(PrefWindowTest, theLeftmostSegment_storesTheLastWeekdayAndShowsOnTheRight) {
    archiveBySchedule(true);
    showWindow();
    EXPECT_EQ(segments(), 100) << "16 is the fifth from the left";
    press("weekday4");
    press("weekday0");
    EXPECT_EQ(defaults().object(kPeriodicDaysOfWeek), PropertyListValue(64));
    EXPECT_EQ(segments(), 1000000) << "stays as the user left it";
    EXPECT_EQ(control<QLabel>("weekdaysOfTheArchive").text(), u"Archived on: Saturday"_s);
    setup.showPrefWindow();
    EXPECT_EQ(segments(), 1);
    defaults().setObject(kPeriodicDaysOfWeek, 3);
    EXPECT_EQ(segments(), 1100000) << "changed elsewhere, it is shown at once";
    defaults().setObject(kPeriodicDaysOfWeek, 0b0011011);
    EXPECT_EQ(control<QLabel>("weekdaysOfTheArchive").text(), u"Archived on: Sun, Mon, Wed, Thu"_s);
    defaults().setObject(kPeriodicDaysOfWeek, 0);
    EXPECT_EQ(control<QLabel>("weekdaysOfTheArchive").text(), u"No day is chosen: nothing is archived."_s);
}

TEST_F(PrefWindowTest, theDaysOfTheArchive_areToldRightUnderTheButtonsAndWithEachPress) {
    archiveBySchedule(true);
    window().selectTab(u"Archive"_s);
    setup.showPrefWindow();
    window().selectTab(u"Archive"_s);
    settle();
    const auto& line = control<QLabel>("weekdaysOfTheArchive");
    const WeekdaySelector& buttons = setup.archiveTab().periodicDaysOfWeek();
    const int gap =
        line.mapTo(&window(), QPoint()).y() - buttons.mapTo(&window(), QPoint(0, buttons.height())).y();
    EXPECT_GE(gap, 0);
    EXPECT_LE(gap, 4) << "they belong together";
    EXPECT_EQ(line.mapTo(&window(), QPoint()).x(), buttons.mapTo(&window(), QPoint()).x());
    EXPECT_EQ(line.foregroundRole(), QPalette::WindowText) << "a pale line is overlooked";
    QStringList told{line.text()};
    for (const char* day : {"weekday0", "weekday0", "weekday6", "weekday3", "weekday1"}) {
        press(day);
        EXPECT_NE(line.text(), told.last()) << day;
        told << line.text();
    }
    EXPECT_EQ(told.at(1), u"Archived on: Tuesday, Saturday"_s);
    EXPECT_EQ(told.at(3), u"Archived on: Sunday, Tuesday"_s);
}

TEST_F(PrefWindowTest, theFolder_canBeTypedAndChosen) {
    archiveBySchedule(true);
    showWindow();
    window().selectTab(u"Archive"_s);
    auto& folder = control<QLineEdit>("periodicSaveDirectory");
    EXPECT_EQ(folder.text(), fakes.folders.applicationSupport);
    folder.setFocus();
    folder.selectAll();
    QTest::keyClicks(&folder, u"~/Archive"_s);
    defaults().setObject(kMinutesUntilIdle, 3);
    EXPECT_EQ(folder.text(), u"~/Archive"_s) << "what is being typed stays";
    QTest::keyClick(&folder, Qt::Key_Return);
    EXPECT_EQ(defaults().object(kPeriodicSaveDirectory), PropertyListValue(u"~/Archive"_s));
    alerts.location = u"/elsewhere"_s;
    press("setPeriodicSaveDirectory");
    EXPECT_EQ(folder.text(), u"/elsewhere"_s);
}

TEST_F(PrefWindowTest, theDatabase_isMovedRestoredAndRevealed) {
    showWindow();
    auto& path = control<QLineEdit>("pathDirectory");
    EXPECT_EQ(path.text(), controller.database().defaultMainStoreURL());
    EXPECT_FALSE(control<QPushButton>("restoreDefaultDatabaseLocation").isEnabled());
    alerts.location = fakes.home.filePath(u"elsewhere.tkd"_s);
    press("chooseDatabaseDirectory");
    EXPECT_EQ(path.text(), *alerts.location);
    press("revealDatabase");
    press("restoreDefaultDatabaseLocation");
    EXPECT_EQ(path.text(), controller.database().defaultMainStoreURL());
}

TEST_F(PrefWindowTest, theLoginItem_showsWhatTheDesktopSays) {
    showWindow();
    auto& login = control<QCheckBox>("loginItemCheckbox");
    EXPECT_FALSE(login.isChecked());
    press("loginItemCheckbox");
    EXPECT_TRUE(startsAtLogin);
    startsAtLogin = false;
    setup.showPrefWindow();
    EXPECT_FALSE(login.isChecked());
    refusesLogin = true;
    press("loginItemCheckbox");
    EXPECT_FALSE(login.isChecked()) << "the desktop refused";
}

TEST_F(PrefWindowTest, withoutALoginItem_thereIsNoBoxForIt) {
    TKSetupController other(controller, fakes.platform, alerts);
    EXPECT_FALSE(other.prefWindow().findChild<QCheckBox*>(u"loginItemCheckbox"_s));
}

TEST_F(PrefWindowTest, everyControl_canBeReachedByKeyboardAndHasAName) {
    archiveBySchedule(true);
    showWindow();
    int seen = 0;
    for (auto* widget : window().findChildren<QWidget*>()) {
        const bool isInner = qobject_cast<QLineEdit*>(widget) && !widget->objectName().startsWith(u"p"_s);
        if (widget->isWindow() || widget->window() != &window() || isInner ||
            !(qobject_cast<QAbstractButton*>(widget) || qobject_cast<QAbstractSpinBox*>(widget) ||
              qobject_cast<QComboBox*>(widget) || qobject_cast<QLineEdit*>(widget) ||
              qobject_cast<QTreeView*>(widget)))
            continue;
        if (widget->objectName().startsWith(u"qt_"_s) || widget->objectName().startsWith(u"Scroll"_s))
            continue;
        ++seen;
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
        ASSERT_TRUE(spoken);
        EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty()) << str(widget->objectName());
        EXPECT_NE(widget->focusPolicy(), Qt::NoFocus) << str(widget->objectName());
    }
    EXPECT_GT(seen, 20);
}
