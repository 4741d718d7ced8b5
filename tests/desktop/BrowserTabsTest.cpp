// SPDX-License-Identifier: MIT
// Real browsers: each tab's time is under its own title, and a private window's under none.
#include "tests/desktop/harness/Lateness.h"
#include "tests/desktop/harness/Packaged.h"
#include "tests/desktop/harness/Product.h"
#include "tests/fakes/HistoryDiary.h"

#include <QElapsedTimer>
#include <QFileInfo>

#include <csignal>
#include <gtest/gtest.h>
#include <random>

namespace {

using namespace std::chrono_literals;

struct Browser {
    const char* program;
    QStringList arguments;
    // With the number of a tab behind it.
    const char* tabKey;
    const char* privateKey;
    // Whether the title of a private window says that it is one.
    bool tellsOfPrivacy;
};

const Browser kBrowsers[] = {
    {"chromium",
     {QStringLiteral("--no-sandbox"), QStringLiteral("--no-first-run"),
      QStringLiteral("--no-default-browser-check"), QStringLiteral("--disable-gpu"),
      QStringLiteral("--password-store=basic"), QStringLiteral("--user-data-dir=%1/chromium")},
     "ctrl+",
     "ctrl+shift+n",
     false},
    {"firefox-esr",
     {QStringLiteral("--no-remote"), QStringLiteral("--profile"), QStringLiteral("%1/firefox")},
     "alt+",
     "ctrl+shift+p",
     true},
};

// In front before Ticklog runs, so nobody has a watch on it.
const QString kFirst = QStringLiteral("First");
const QStringList kPages{QStringLiteral("Alpha"), QStringLiteral("Beta"), QStringLiteral("Gamma")};

class BrowserTabsTest : public testing::TestWithParam<int> {
protected:
    const Browser& browser() const { return kBrowsers[GetParam()]; }

    QString page(const QString& name) const {
        return QStringLiteral("file://%1/%2.html").arg(desk.home().path(), name);
    }

    void startBrowser() {
        QStringList arguments;
        for (const QString& argument : browser().arguments)
            arguments << QString(argument).replace(QLatin1String("%1"), desk.home().path());
        desk.home().write(QStringLiteral("firefox/user.js"),
                          "user_pref('browser.aboutwelcome.enabled', false);\n"
                          "user_pref('datareporting.policy.dataSubmissionEnabled', false);\n");
        for (const QString& name : QStringList{kFirst} + kPages + QStringList{QStringLiteral("Hidden")}) {
            desk.home().write(name + QStringLiteral(".html"),
                              "<!doctype html><meta charset=utf-8><title>" + name.toUtf8() + " page</title>");
            if (name != QLatin1String("Hidden"))
                arguments << page(name);
        }
        program = desk.start(QLatin1String(browser().program), arguments);
    }

    QString titleInFront() const {
        const xcb_window_t window = desk.probe().activeWindow();
        return window ? QString::fromUtf8(desk.probe().text(window, "_NET_WM_NAME")) : QString();
    }

    bool waitForTitle(const QString& begin) {
        return waitFor([&] { return titleInFront().startsWith(begin); });
    }

    // What has passed since the last look is the title's that is seen now.
    void look() {
        const double passed = double(sinceLook.nsecsElapsed()) / 1e9;
        sinceLook.start();
        seen[titleInFront()] += passed;
    }

    // The watch goes on meanwhile.
    void type(const QStringList& words) {
        const auto typing = desk.start(QStringLiteral("xdotool"), words);
        EXPECT_TRUE(waitFor([&] {
            look();
            return !typing->isRunning();
        }));
    }

    void watch(std::chrono::milliseconds duration) {
        QElapsedTimer all;
        all.start();
        EXPECT_TRUE(waitFor([&] {
            look();
            return all.hasExpired(duration.count());
        }));
    }

    // Ticklog runs, and the browser is in front again.
    void startBeside() {
        product.writeSettings(Product::runningSettings());
        startBrowser();
        ASSERT_TRUE(waitForTitle(kFirst)) << qPrintable(titleInFront());
        ASSERT_TRUE(product.start());
        sinceLook.start();
        type({QStringLiteral("key"), QStringLiteral("alt+Tab")});
        ASSERT_TRUE(waitFor([&] {
            look();
            return titleInFront().startsWith(kFirst);
        })) << qPrintable(titleInFront());
    }

    QMap<QString, double> recorded() const {
        QMap<QString, double> times;
        SqliteDatabase file(history(), SqliteDatabase::Mode::Read, 1000);
        for (SqliteQuery row(
                 file,
                 "SELECT text, sum(length) FROM days JOIN titles ON titles.id = title WHERE presence = 0 "
                 "GROUP BY 1");
             row.next();)
            times[row.text(0)] = double(row.integer(1)) / 1000;
        return times;
    }

    QString history() const {
        return QFileInfo(product.databasePath()).path() + QStringLiteral("/History.sqlite");
    }

    Desk desk{QStringLiteral("openbox"), Desk::Bus::Own};
    Product product{desk};
    std::unique_ptr<Program> program;
    QMap<QString, double> seen;
    QElapsedTimer sinceLook;
    Lateness lateness;
};

TEST_P(BrowserTabsTest, eachTabsTime_isUnderItsOwnTitle) {
    SKIP_WHERE_NOT_PACKAGED(QLatin1String(browser().program));
    startBeside();
    std::mt19937 random(5);
    for (int change = 1; change <= 12; ++change) {
        type({QStringLiteral("key"),
              QLatin1String(browser().tabKey) + QString::number(2 + change % kPages.size())});
        watch(300ms + std::chrono::milliseconds(random() % 2500));
    }
    product.end(SIGTERM);
    const auto times = recorded();
    for (const QString& name : kPages) {
        double stopped = 0;
        double told = 0;
        for (const auto& [title, time] : seen.asKeyValueRange())
            if (title.startsWith(name))
                stopped += time, told += times.value(title);
        std::printf("%s, %s: %.2f s by the stopwatch, %.2f s in the history\n", browser().program,
                    qPrintable(name), stopped, told);
        EXPECT_GT(stopped, 1) << qPrintable(name);
        EXPECT_NEAR(told, stopped, 0.5 + lateness.seconds()) << qPrintable(name);
    }
}

TEST_P(BrowserTabsTest, aPrivateWindowThatSaysSo_leavesNoTitle) {
    SKIP_WHERE_NOT_PACKAGED(QLatin1String(browser().program));
    startBeside();
    const xcb_window_t before = desk.probe().activeWindow();
    type({QStringLiteral("key"), QLatin1String(browser().privateKey)});
    ASSERT_TRUE(waitFor([&] {
        return desk.probe().activeWindow() != before &&
               titleInFront().contains(QLatin1String("riva")) == browser().tellsOfPrivacy;
    })) << qPrintable(titleInFront());
    // It takes no keys before it has done what it does at first.
    ASSERT_TRUE(waitFor([&] {
        type({QStringLiteral("key"), QStringLiteral("ctrl+l")});
        type({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("10"),
              page(QStringLiteral("Hidden"))});
        watch(300ms);
        type({QStringLiteral("key"), QStringLiteral("Return")});
        return waitFor([&] { return titleInFront().startsWith(QLatin1String("Hidden page")); }, 3s);
    })) << qPrintable(titleInFront());
    watch(2s);
    product.end(SIGTERM);
    // Of windows that look like any other nobody can know; docs/security.md says so.
    EXPECT_EQ(HistoryDiary::holdsText(history(), QStringLiteral("Hidden page")), !browser().tellsOfPrivacy);
}

INSTANTIATE_TEST_SUITE_P(Browsers, BrowserTabsTest, testing::Range(0, int(std::size(kBrowsers))));

} // namespace
