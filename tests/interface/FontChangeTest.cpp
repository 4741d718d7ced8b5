// SPDX-License-Identifier: MIT
// What a font that changes while the program runs does to the windows that are open.
#include "interface/history/TimeSheetWindow.h"
#include "interface/shell/RoomForTexts.h"
#include "tests/interface/HistoryViewDesk.h"

#include <QApplication>
#include <QLabel>

#include <QTest>
#include <gtest/gtest.h>

namespace {

struct FontChangeTest : testing::Test, HistoryViewDesk {
    FontChangeTest() {
        account("Mail", 60, {{QStringLiteral("Drafts"), 5}, {QStringLiteral("Inbox"), 20}});
        fakes.clock.advance(std::chrono::hours(9));
        past(today(0, 10), 900, "Mail", "Inbox");
        QFont usual = before;
        usual.setPixelSize(13);
        QApplication::setFont(usual);
    }
    ~FontChangeTest() override { QApplication::setFont(before); }

    // What has less room than its text or picture needs, a line each.
    static std::string clipped(const QWidget& window) {
        QStringList clipped;
        for (const auto* part : window.findChildren<QWidget*>()) {
            if (part->window() != &window || !part->isVisible())
                continue;
            const bool isText =
                qobject_cast<const QLabel*>(part) || qobject_cast<const QAbstractButton*>(part);
            const QSize needed = part->minimumSizeHint();
            const auto* label = qobject_cast<const QLabel*>(part);
            const int height =
                label && label->wordWrap() ? label->heightForWidth(label->width()) : needed.height();
            const bool isWide = label && label->wordWrap() ? false : part->width() < needed.width();
            if (isText && (isWide || part->height() < height))
                clipped << QStringLiteral("%1 %2x%3 for %4x%5")
                               .arg(part->objectName().isEmpty() && label ? label->text()
                                                                          : part->objectName())
                               .arg(part->width())
                               .arg(part->height())
                               .arg(needed.width())
                               .arg(height);
        }
        return clipped.join(QStringLiteral("; ")).toStdString();
    }

    // With a font half as large again, which is what people take who see badly.
    std::string clippedWhenLarger(QWidget& window) {
        settle();
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(clipped(window), "") << "from the beginning";
        QFont large = QApplication::font();
        large.setPixelSize(20);
        QApplication::setFont(large);
        settle();
        // Layouts take some turns of the event loop, from the inside out.
        (void)QTest::qWaitFor([&] { return clipped(window).empty(); }, 500);
        std::string found = clipped(window);
        large.setPixelSize(13);
        QApplication::setFont(large);
        settle();
        return found;
    }

    const QFont before = QApplication::font();
    const RoomForTexts room;
};

} // namespace

TEST_F(FontChangeTest, theTimers_clipNothing) {
    controller.window().resize(1000, 600);
    show();
    EXPECT_EQ(clippedWhenLarger(controller.window()), "");
}

TEST_F(FontChangeTest, theHistory_clipsNothing) {
    controller.window().resize(1200, 700);
    showHistory();
    EXPECT_EQ(clippedWhenLarger(controller.window()), "");
}

TEST_F(FontChangeTest, theTimeSheet_clipsNothing) {
    showHistory();
    command(historyActions().timeSheet);
    EXPECT_EQ(clippedWhenLarger(*view.timeSheet()), "");
    view.timeSheet()->close();
}

TEST_F(FontChangeTest, booking_clipsNothing) {
    showHistory();
    command(historyActions().today);
    view.showPiece(std::pair(today(2).toMSecsSinceEpoch(), today(4).toMSecsSinceEpoch()));
    settle();
    command(historyActions().amend.book);
    auto* booking = controller.window().findChild<QDialog*>(QStringLiteral("bookingWindow"));
    ASSERT_TRUE(booking);
    EXPECT_EQ(clippedWhenLarger(*booking), "");
    booking->reject();
}

TEST_F(FontChangeTest, forgettingAndARuleForTitles_clipNothing) {
    setup.showTitles();
    setup.titlesTab().add();
    EXPECT_EQ(clippedWhenLarger(setup.titlesTab().sheet()), "");
    setup.titlesTab().sheet().reject();
    setup.forgetHistory();
    seconds(1);
    EXPECT_EQ(clippedWhenLarger(*setup.forgetWindow()), "");
    setup.forgetWindow()->close();
}

TEST_F(FontChangeTest, thePreferences_clipNothing) {
    for (const char* tab : {"General", "Lists", "Match", "Titles", "History", "Archive"}) {
        setup.showPrefWindow();
        setup.prefWindow().selectTab(QLatin1String(tab));
        EXPECT_EQ(clippedWhenLarger(setup.prefWindow()), "") << tab;
        setup.prefWindow().close();
    }
}
