// SPDX-License-Identifier: MIT
// The windows in every language: nothing is cut off, and each menu entry has its own accelerator.
#include "interface/history/BookingWindow.h"
#include "interface/history/HistoryPane.h"
#include "interface/history/NamingWindow.h"
#include "interface/history/RangeBar.h"
#include "interface/history/TimeSheetWindow.h"
#include "interface/mainwindow/FirstStart.h"
#include "interface/setup/SetupWindow.h"
#include "interface/setup/WelcomePage.h"
#include "interface/sidebar/ProjectPatternsWindow.h"
#include "platform/foundation/text/Translations.h"
#include "tests/interface/SetupDesk.h"

#include <QMenuBar>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QToolBar>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList kLanguages{u"en"_s, u"de"_s, u"es"_s, u"fr"_s, u"ja"_s, u"pl"_s};

// Made before the windows and destroyed after them.
struct Spoken {
    Spoken(const QString& language)
        : translations({language}) {
        QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
        QLocale::setDefault(QLocale(language));
    }

    const Translations translations;
};

struct LanguagesTest : testing::TestWithParam<int>, Spoken, SetupDesk {
    LanguagesTest()
        : Spoken(kLanguages[GetParam()]) {
        EXPECT_EQ(translations.language(), kLanguages[GetParam()]);
    }

    ProjectPatternsWindow patternsWindow{nullptr};
    ForgetWindow forgetWindow{std::make_unique<HistoryReader>(fakes.runLoop, QString(), [](const auto&) {}),
                              fakes.runLoop, alerts, [](const auto&...) {}, nullptr};
};

INSTANTIATE_TEST_SUITE_P(Each, LanguagesTest, testing::Range(0, int(kLanguages.size())),
                         [](const auto& row) { return kLanguages[row.param].toStdString(); });

// The letter after "&", or nothing.
QString acceleratorOf(const QString& text) {
    static const QRegularExpression letter(u"&(\\w)"_s);
    return letter.match(text).captured(1).toUpper();
}

// `accelerated`: at least this many must have an accelerator.
void expectDistinct(const QStringList& texts, qsizetype accelerated) {
    QStringList letters;
    for (const QString& text : texts) {
        const QString letter = acceleratorOf(text);
        if (letter.isEmpty())
            continue;
        EXPECT_FALSE(letters.contains(letter))
            << qPrintable(text) << " among " << qPrintable(texts.join(u", "_s));
        letters << letter;
    }
    EXPECT_GE(letters.size(), accelerated) << qPrintable(texts.join(u", "_s));
}

QStringList textsOf(const QList<QAction*>& actions) {
    QStringList texts;
    for (const QAction* action : actions)
        if (action && !action->isSeparator())
            texts << action->text();
    return texts;
}

TEST_P(LanguagesTest, entriesOfAMenu_haveKeysOfTheirOwn) {
    const QMenuBar& bar = *controller.window().menuBar();
    expectDistinct(textsOf(bar.actions()), 6);
    for (const QAction* menu : bar.actions())
        expectDistinct(textsOf(menu->menu()->actions()), 1);
    expectDistinct(textsOf(actions().forTimers()), 6);
    expectDistinct(textsOf(actions().forProjects()), 6);
}

QStringList textsIn(const QWidget& page) {
    QStringList texts;
    // A sheet over the page is another window.
    for (const auto* button : page.findChildren<QAbstractButton*>())
        if (button->window() == page.window())
            texts << button->text();
    for (const auto* label : page.findChildren<QLabel*>())
        if (label->buddy() && label->window() == page.window())
            texts << label->text();
    return texts;
}

TEST_P(LanguagesTest, controlsOfAPage_haveKeysOfTheirOwn) {
    const QTabWidget& tabs = setup.prefWindow().prefTabView();
    for (int page = 0; page < tabs.count(); ++page)
        expectDistinct(textsIn(*tabs.widget(page)), 3);
    expectDistinct(textsIn(sheet()), 5);
    expectDistinct(textsIn(forgetWindow), 4);
    expectDistinct(textsIn(setup.titlesTab().sheet()), 4);
    expectDistinct(textsIn(patternsWindow), 2);
    expectDistinct(textsIn(BookingWindow({}, nullptr)), 5);
    expectDistinct(textsIn(NamingWindow(nullptr)), 2);
    expectDistinct(textsIn(TimeSheetWindow(fakes.defaults, alerts, {}, nullptr)), 5);
}

// What a control needs for its text: less than its size hint, which includes margins.
QSize neededBy(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->wordWrap() ? QSize(0, label->heightForWidth(label->width())) : label->minimumSizeHint();
    return widget.sizeHint();
}

QString textOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text();
    if (const auto* box = qobject_cast<const QComboBox*>(&widget))
        return box->currentText();
    return {};
}

// How many texts there were.
int expectRoomForTexts(const QWidget& window) {
    int texts = 0;
    for (const auto* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&window) || textOf(*widget).isEmpty())
            continue;
        ++texts;
        const QSize needed = neededBy(*widget);
        EXPECT_GE(widget->width(), needed.width()) << qPrintable(textOf(*widget));
        EXPECT_GE(widget->height(), needed.height()) << qPrintable(textOf(*widget));
        EXPECT_EQ(widget->visibleRegion(), QRegion(widget->rect()))
            << "cut off: " << qPrintable(textOf(*widget));
    }
    return texts;
}

TEST_P(LanguagesTest, theMainWindow_hasRoomForItsTexts) {
    MainWindow& window = controller.window();
    window.resize(window.minimumSize());
    show();
    EXPECT_GT(expectRoomForTexts(window), 3);
    select({});
    account("Mail", 40);
    settle();
    EXPECT_GT(expectRoomForTexts(window), 3);
}

TEST_P(LanguagesTest, theFirstStart_hasRoomForItsTexts) {
    const FirstStart first(controller, fakes.defaults,
                           {.isEnabled = [] { return false; }, .setEnabled = [](bool) {}}, [] {});
    // In a smaller window it scrolls.
    controller.window().resize(760, 600);
    show();
    EXPECT_GT(expectRoomForTexts(*controller.window().findChild<WelcomePage*>()), 3);
}

TEST_P(LanguagesTest, theHistorysRanges_haveRoomForTheirTexts) {
    MainWindow& window = controller.window();
    show();
    window.setHistoryShown(true);
    RangeBar& bar = window.historyPane().rangeBar();
    bar.show(CalendarRange::around(CalendarRange::Kind::Day, QDate(2026, 9, 23), Qt::Monday), {});
    QStringList buttons{u"historyTitle"_s,           u"historyTodayButton"_s,    u"historyDayButton"_s,
                        u"historyWeekButton"_s,      u"historyMonthButton"_s,    u"historyYearButton"_s,
                        u"historyByProgramButton"_s, u"historyByProjectButton"_s};
    for (const int width : {640, 900}) {
        window.resize(width, 600);
        settle();
        expectRoomForTexts(bar);
        for (const QString& name : buttons)
            EXPECT_TRUE(bar.findChild<QWidget*>(name)->isVisible()) << qPrintable(name) << " at " << width;
        // In a narrow window, it may move into the menu at the bar's end.
        buttons << u"historySpanButton"_s;
    }
}

TEST_P(LanguagesTest, thePreferences_haveRoomForTheirTexts) {
    PrefWindow& window = setup.prefWindow();
    setup.showPrefWindow();
    const std::int64_t everyDay = 0b1111111;
    const std::int64_t longestNames = 0b0011100;
    for (const auto& [isUnfolded, days] :
         {std::pair(true, everyDay), std::pair(true, longestNames), std::pair(false, everyDay)})
        for (const char* page : {"General", "Match", "Titles", "History", "Archive"}) {
            defaults().setObject(kSaveTimerPeriodically, isUnfolded);
            defaults().setObject(kPeriodicDaysOfWeek, days);
            window.selectTab(QLatin1String(page));
            settle();
            EXPECT_EQ(window.prefTabView().currentWidget()->objectName(), QLatin1String(page));
            EXPECT_GT(expectRoomForTexts(window), 3) << page;
        }
}

TEST_P(LanguagesTest, aLargerFontWhileTheWindowsAreOpen_cutsNothingOff) {
    show();
    controller.window().resize(1100, 700);
    defaults().setObject(kSaveTimerPeriodically, true);
    setup.showPrefWindow();
    settle();
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPixelSize(QFontInfo(usual).pixelSize() * 3 / 2);
    QApplication::setFont(large);
    settle();
    for (const char* page : {"General", "Match", "Titles", "History", "Archive"}) {
        setup.prefWindow().selectTab(QLatin1String(page));
        settle();
        EXPECT_GT(expectRoomForTexts(setup.prefWindow()), 3) << page;
    }
    EXPECT_GT(expectRoomForTexts(controller.window()), 3);
    EXPECT_GE(table().columnWidth(1), table().fontMetrics().horizontalAdvance(u"1000:00:00"_s));
    QApplication::setFont(usual);
    settle();
}

TEST_P(LanguagesTest, theWindowToForget_hasRoomForItsTexts) {
    forgetWindow.openFor(QDate(2026, 11, 22), 0);
    forgetWindow.findChild<QComboBox*>(u"forgottenWhen"_s)->setCurrentIndex(2);
    settle();
    EXPECT_GT(expectRoomForTexts(forgetWindow), 6);
}

TEST_P(LanguagesTest, theSheetOfARuleForTitles_hasRoomForItsTexts) {
    setup.showPrefWindow();
    setup.prefWindow().selectTab(u"Titles"_s);
    setup.titlesTab().select(0);
    setup.titlesTab().edit();
    settle();
    EXPECT_GT(expectRoomForTexts(setup.titlesTab().sheet()), 6);
}

TEST_P(LanguagesTest, theWindowOfPatterns_hasRoomForItsTexts) {
    patternsWindow.openFor(u"Meier"_s, {}, {});
    settle();
    EXPECT_GT(expectRoomForTexts(patternsWindow), 4);
}

TEST_P(LanguagesTest, theRuleSheet_hasRoomForItsTexts) {
    showRules();
    setup.addRule();
    settle();
    EXPECT_TRUE(sheet().isVisible());
    EXPECT_GT(expectRoomForTexts(sheet()), 4);
}

} // namespace
