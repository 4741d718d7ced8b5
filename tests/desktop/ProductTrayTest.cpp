// SPDX-License-Identifier: MIT
// The built program in the tray: its icon, its menu, and where else it appears.
#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/values/Identity.h"
#include "tests/Places.h"
#include "tests/desktop/harness/Packaged.h"
#include "tests/desktop/harness/Product.h"
#include "tests/desktop/services/ServiceScript.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

const QString kAppType = QStringLiteral("kTKPrefAppType");
const QString kWasRunning = QStringLiteral("kTKWasTimerRunning");
const QString kWithoutProjects =
    QStringLiteral("Today: 00:00:00 | - | Start | Pause For > | Show Ticklog | - | All Timers > | - | "
                   "Preferences… | About Ticklog | Quit");

PropertyListDictionary timer(const char* name, double seconds) {
    return {{QStringLiteral("Name"), QString::fromUtf8(name)},
            {QStringLiteral("ActiveTime"), seconds},
            {QStringLiteral("UUID"), QByteArray(name).leftJustified(8, '0', true)}};
}

class ProductTrayTest : public testing::Test {
protected:
    void writeAccount() {
        QDir().mkpath(QFileInfo(product.databasePath()).path());
        const PropertyListDictionary mail{{QStringLiteral("App"), timer("Mail", 60)},
                                          {QStringLiteral("Windows"), PropertyListArray{timer("Inbox", 20)}}};
        static_cast<void>(PropertyList::writeXmlFile(
            PropertyListDictionary{{QStringLiteral("Version"), QStringLiteral("1.5")},
                                   {QStringLiteral("Apps"), PropertyListArray{mail}}},
            product.databasePath()));
    }

    void writeProject(const char* label, const char* member) {
        const QString folder = desk.home().path() + QStringLiteral("/Documents");
        QDir().mkpath(folder);
        const PropertyListArray members{QByteArray(member).leftJustified(8, '0', true)};
        static_cast<void>(PropertyList::writeBinaryFile(
            PropertyListArray{PropertyListDictionary{{QStringLiteral("Label"), QString::fromLatin1(label)},
                                                     {QStringLiteral("Subtree"), members}}},
            folder + QStringLiteral("/Ticklog Projects")));
    }

    void startWithPanel() {
        m_panel.emplace(desk.home(), QStringLiteral("tray.py"), QStringList{desk.bus().address()});
        ask("watch");
        ASSERT_TRUE(product.start());
        ASSERT_TRUE(waitForAnswer("item", QStringLiteral("ticklog")));
    }

    QString ask(const char* command) { return m_panel->ask(command); }

    // What stands below "All Timers" in the menu, which is closed again, with all its changes told.
    QString lookIntoMenu() {
        ask("open");
        const QString timers = ask("submenu All Timers");
        ask("close");
        // It has been answered after the close.
        ask("menu");
        ask("changes");
        return timers;
    }

    bool waitForAnswer(const char* command, const QString& answer) {
        // The icon's tip goes on with today's work.
        return waitFor([&] { return ask(command).section(QStringLiteral(" · "), 0, 0) == answer; });
    }

    void xdotool(const QStringList& arguments) {
        ASSERT_TRUE(desk.run(QStringLiteral("xdotool"), arguments));
    }

    void press(const char* keys) { xdotool({QStringLiteral("key"), QString::fromLatin1(keys)}); }

    // Whether the window manager has been told so.
    bool isInTaskBar() {
        return product.hasWindow() &&
               !desk.probe().hasState(product.window(), "_NET_WM_STATE_SKIP_TASKBAR") &&
               !desk.probe().hasState(product.window(), "_NET_WM_STATE_SKIP_PAGER");
    }

    bool isKeptOutOfTaskBar() {
        return product.hasWindow() && desk.probe().hasState(product.window(), "_NET_WM_STATE_SKIP_TASKBAR") &&
               desk.probe().hasState(product.window(), "_NET_WM_STATE_SKIP_PAGER");
    }

    // Whether the notice is shown that there is no tray.
    bool hasNotice() {
        return std::ranges::any_of(desk.probe().windows(), [this](xcb_window_t window) {
            return desk.probe().text(window, "_NET_WM_NAME").startsWith("There is no system tray");
        });
    }

    // Whether the notice is shown that closing minimises.
    bool hasMinimizingNotice() {
        return std::ranges::any_of(desk.probe().windows(), [this](xcb_window_t window) {
            return desk.probe().text(window, "_NET_WM_NAME").startsWith("Ticklog keeps running");
        });
    }

    bool isMinimized() {
        return product.hasWindow() && desk.probe().hasState(product.window(), "_NET_WM_STATE_HIDDEN");
    }

    // As the window manager closes a window.
    void closeByWindowManager() {
        xdotool(
            {QStringLiteral("windowactivate"), QStringLiteral("--sync"), QString::number(product.window())});
        press("alt+F4");
    }

    void closeWindow() {
        press("ctrl+w");
        ASSERT_TRUE(waitFor([this] { return !product.hasWindow(); }));
    }

    Desk desk{QStringLiteral("openbox"), Desk::Bus::Own};
    Product product{desk};
    std::optional<ServiceScript> m_panel;
};

TEST_F(ProductTrayTest, aPanelOnTheBus_startsAndPausesTheTimerThroughTheMenu) {
    startWithPanel();
    EXPECT_TRUE(waitForAnswer("tooltip", QStringLiteral("Ticklog is paused")));
    ask("open");
    EXPECT_EQ(ask("menu"), kWithoutProjects);
    ask("click Start");
    EXPECT_TRUE(waitForAnswer("tooltip", QStringLiteral("Ticklog is counting")));
    ask("open");
    EXPECT_TRUE(ask("menu").contains(QLatin1String(" | Pause | ")));
    ask("click Pause");
    EXPECT_TRUE(waitForAnswer("tooltip", QStringLiteral("Ticklog is paused")));
    EXPECT_EQ(product.end(SIGTERM), 0);
}

TEST_F(ProductTrayTest, timesInAPanelsMenu_moveUntilItIsClosed) {
    product.writeSettings(Product::runningSettings());
    startWithPanel();
    ask("open");
    ask("submenu All Timers");
    ask("changes");
    int changes = 0;
    // The entry of the program in front, and the sum.
    EXPECT_TRUE(waitFor([&] { return (changes += ask("changes").toInt()) >= 6; }));
    // The sum goes on, as each look into the menu shows, but between the looks no text is changed.
    QString sum = lookIntoMenu();
    int changesOfSum = 0;
    changes = 0;
    EXPECT_TRUE(waitFor([&] {
        changes += ask("changes").toInt();
        const QString before = std::exchange(sum, lookIntoMenu());
        changesOfSum += sum != before;
        return changesOfSum >= 3;
    }));
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(product.end(SIGTERM), 0);
}

TEST_F(ProductTrayTest, aPanelsMenu_listsTimersWindowsAndMembers) {
    writeAccount();
    writeProject("Post", "Inbox");
    startWithPanel();
    ask("open");
    EXPECT_EQ(ask("menu"),
              QString(kWithoutProjects)
                  .replace(QLatin1String("All Timers >"), QLatin1String("All Timers > |   Post >")));
    EXPECT_EQ(ask("submenu   Post"), QStringLiteral("Inbox\u2003/00:00:20"));
    ask("open");
    EXPECT_EQ(ask("submenu All Timers"), QStringLiteral("Mail\u2003/00:01:00 > | - | total\u2003/00:01:00"));
    EXPECT_EQ(ask("submenu Mail"), QStringLiteral("Inbox\u2003/00:00:20"));
    EXPECT_EQ(product.end(SIGTERM), 0);
}

TEST_F(ProductTrayTest, quitInThePanelsMenu_endsTheProgram) {
    startWithPanel();
    ask("open");
    ask("click Quit");
    ASSERT_TRUE(product.program().waitUntilEnded());
    EXPECT_EQ(product.program().exitStatus(), 0);
}

TEST_F(ProductTrayTest, aClickOnTheIcon_bringsTheClosedWindowBack) {
    startWithPanel();
    closeWindow();
    ask("activate");
    EXPECT_TRUE(waitFor([this] { return product.hasWindow(); }));
    EXPECT_EQ(product.end(SIGTERM), 0);
}

TEST_F(ProductTrayTest, aPanelThatComesLate_getsTheIconToo) {
    m_panel.emplace(desk.home(), QStringLiteral("tray.py"), QStringList{desk.bus().address()});
    product.writeSettings({{kAppType, 0}});
    ASSERT_TRUE(product.start());
    // By then Ticklog has stopped waiting for a tray, and keeps the task bar.
    ASSERT_TRUE(waitFor([this] { return hasNotice(); }));
    EXPECT_TRUE(isInTaskBar());
    ask("watch");
    EXPECT_TRUE(waitForAnswer("item", QStringLiteral("ticklog")));
    EXPECT_TRUE(waitFor([this] { return isKeptOutOfTaskBar(); }));
    ask("unwatch");
    EXPECT_TRUE(waitFor([this] { return isInTaskBar(); })) << "or nobody could reach it";
    EXPECT_EQ(product.end(SIGTERM), 0);
}

TEST_F(ProductTrayTest, withoutTheTaskBar_theWindowIsKeptOutOfItWheneverItComes) {
    product.writeSettings({{kAppType, 0}});
    startWithPanel();
    EXPECT_TRUE(waitFor([this] { return isKeptOutOfTaskBar(); }));
    closeWindow();
    const auto second = desk.start(QStringLiteral(TICKLOG_BINARY_DIR "/ticklog"));
    ASSERT_TRUE(second->waitUntilEnded());
    EXPECT_EQ(second->exitStatus(), 0);
    EXPECT_TRUE(waitFor([this] { return isKeptOutOfTaskBar(); })) << "the window manager forgets";
    EXPECT_EQ(product.end(SIGTERM), 0);
}

TEST_F(ProductTrayTest, theMainMenusKeys_workWithoutTheMainMenu) {
    product.writeSettings({{kAppType, 0}});
    startWithPanel();
    press("ctrl+t");
    EXPECT_TRUE(waitForAnswer("tooltip", QStringLiteral("Ticklog is counting")));
    press("ctrl+t");
    EXPECT_TRUE(waitForAnswer("tooltip", QStringLiteral("Ticklog is paused")));
    closeWindow();
    EXPECT_EQ(product.end(SIGTERM), 0);
}

TEST_F(ProductTrayTest, quittingByKeyWhileTheTimerRuns_asksFirst) {
    product.writeSettings(Product::runningSettings());
    ASSERT_TRUE(product.start());
    const std::size_t windows = desk.probe().windows().size();
    press("ctrl+q");
    ASSERT_TRUE(waitFor([&] { return desk.probe().windows().size() > windows; }));
    // Return means "stay".
    press("Return");
    ASSERT_TRUE(waitFor([&] { return desk.probe().windows().size() == windows; }));
    EXPECT_TRUE(product.program().isRunning());
    press("ctrl+q");
    ASSERT_TRUE(waitFor([&] { return desk.probe().windows().size() > windows; }));
    press("alt+q");
    press("Tab");
    press("space");
    ASSERT_TRUE(product.program().waitUntilEnded());
    EXPECT_EQ(product.program().exitStatus(), 0);
    EXPECT_TRUE(product.settings().value(QStringLiteral("startTicklogOnNextLaunch")).toBool());
}

TEST_F(ProductTrayTest, closedWithoutATray_theWindowIsMinimisedAndThatIsSaidOnce) {
    product.writeSettings(Product::runningSettings());
    ASSERT_TRUE(product.start());
    closeByWindowManager();
    ASSERT_TRUE(waitFor([this] { return isMinimized(); }));
    EXPECT_TRUE(waitFor([this] { return hasMinimizingNotice(); }));
    EXPECT_TRUE(isInTaskBar());
    press("Return");
    ASSERT_TRUE(waitFor([this] { return !hasMinimizingNotice(); }));
    xdotool({QStringLiteral("windowactivate"), QStringLiteral("--sync"), QString::number(product.window())});
    ASSERT_TRUE(waitFor([this] { return !isMinimized(); }));
    press("ctrl+w");
    ASSERT_TRUE(waitFor([this] { return isMinimized(); }));
    // Another close, so that whatever the first has brought about is there.
    xdotool({QStringLiteral("windowactivate"), QStringLiteral("--sync"), QString::number(product.window())});
    ASSERT_TRUE(waitFor([this] { return !isMinimized(); }));
    EXPECT_FALSE(hasMinimizingNotice());
    press("ctrl+w");
    ASSERT_TRUE(waitFor([this] { return isMinimized(); }));
    EXPECT_FALSE(hasMinimizingNotice());
    EXPECT_EQ(product.end(SIGTERM), 0);
}

TEST_F(ProductTrayTest, theTrayGoing_bringsTheClosedWindowsEntryBack) {
    product.writeSettings({{kAppType, 0}});
    startWithPanel();
    closeWindow();
    ask("unwatch");
    ASSERT_TRUE(waitFor([this] { return isMinimized(); })) << "or nobody could reach it";
    EXPECT_TRUE(isInTaskBar());
    xdotool({QStringLiteral("windowactivate"), QStringLiteral("--sync"), QString::number(product.window())});
    EXPECT_TRUE(waitFor([this] { return !isMinimized(); }));
    EXPECT_EQ(product.end(SIGTERM), 0);
}

TEST_F(ProductTrayTest, twoQuitsFromTheTray_askOnceAndTheSecondBringsTheQuestionToTheFront) {
    product.writeSettings(Product::runningSettings());
    XClient writer(desk);
    const xcb_window_t letter = writer.open({.title = "Letter", .className = "Writer"});
    startWithPanel();
    const std::size_t windows = desk.probe().windows().size();
    ask("open");
    ask("click Quit");
    ASSERT_TRUE(waitFor([&] { return desk.probe().windows().size() == windows + 1; }));
    const xcb_window_t question = desk.probe().windows().back();
    ASSERT_TRUE(waitFor([&] { return desk.probe().activeWindow() == question; }));
    ASSERT_TRUE(product.bringToFront(writer, letter));
    ask("click Quit");
    EXPECT_TRUE(waitFor([&] { return desk.probe().activeWindow() == question; }));
    // Answered after the second quit.
    ask("open");
    EXPECT_EQ(desk.probe().windows().size(), windows + 1);
    press("Return");
    EXPECT_TRUE(waitFor([&] { return desk.probe().windows().size() == windows; }));
    EXPECT_TRUE(product.program().isRunning());
    EXPECT_EQ(product.end(SIGTERM), 0);
}

// A tray of the older kind, which embeds windows.
class ProductEmbeddingTrayTest : public ProductTrayTest {
protected:
    void SetUp() override {
        SKIP_WHERE_NOT_PACKAGED(QStringLiteral("trayer"));
        m_trayer = desk.start(
            QStringLiteral("trayer"),
            QStringLiteral("--edge top --align right --widthtype request --height 28").split(u' '));
        ASSERT_TRUE(waitFor([this] { return findTray(); })) << "is trayer installed?";
    }

    bool findTray() {
        for (const xcb_window_t window : desk.probe().windows())
            if (desk.probe().text(window, "WM_NAME") == "panel")
                m_tray = window;
        return m_tray != 0;
    }

    std::optional<DisplayArea> icon() { return desk.probe().areaOf("ticklog", m_tray); }

    void clickIcon(const char* button) {
        const auto place = icon();
        ASSERT_TRUE(place);
        xdotool({QStringLiteral("mousemove"), QString::number(place->x + place->width / 2),
                 QString::number(place->y + place->height / 2), QStringLiteral("click"),
                 QString::fromLatin1(button)});
    }

    std::unique_ptr<Program> m_trayer;
    xcb_window_t m_tray = 0;
};

TEST_F(ProductEmbeddingTrayTest, theIcon_opensTheWindowAndTheMenu) {
    product.writeSettings({{kAppType, 0}});
    ASSERT_TRUE(product.start());
    ASSERT_TRUE(waitFor([this] { return icon() && isKeptOutOfTaskBar(); }));
    closeWindow();
    clickIcon("1");
    ASSERT_TRUE(waitFor([this] { return product.hasWindow(); }));
    clickIcon("3");
    // The menu's second entry. Keys that come before the menu is open go to the window, where they do nothing.
    ASSERT_TRUE(waitFor([this] {
        press("Down");
        press("Down");
        press("Return");
        return product.settings().value(kWasRunning).toBool();
    }));
    EXPECT_EQ(product.end(SIGTERM), 0);
}

TEST_F(ProductEmbeddingTrayTest, thePanelKilled_theClosedWindowIsInTheTaskBarUntilItIsBack) {
    ASSERT_TRUE(product.start());
    ASSERT_TRUE(waitFor([this] { return icon().has_value(); }));
    closeWindow();
    m_trayer->kill();
    ASSERT_TRUE(waitFor([this] { return isMinimized(); }));
    EXPECT_TRUE(isInTaskBar());
    m_tray = 0;
    SetUp();
    EXPECT_TRUE(waitFor([this] { return icon() && !product.hasWindow(); })) << "as it was before";
    EXPECT_EQ(product.end(SIGTERM), 0);
}

TEST_F(ProductEmbeddingTrayTest, timesInTheMenu_moveWhileItIsOpen) {
    product.writeSettings(Product::runningSettings());
    XClient writer(desk);
    const xcb_window_t letter = writer.open({.title = "Letter", .className = "Writer"});
    ASSERT_TRUE(product.start());
    ASSERT_TRUE(waitFor([this] { return icon().has_value(); }));
    closeWindow();
    ASSERT_TRUE(product.bringToFront(writer, letter));
    clickIcon("3");
    for (const char* key : {"Down", "Down", "Down", "Down", "Down", "Right"})
        press(key);
    // Below the tray, where nothing else changes.
    const DisplayArea menus{640, 40, 600, 300};
    QByteArray last = desk.probe().picture(menus);
    int changes = 0;
    EXPECT_TRUE(waitFor([&] {
        const QByteArray picture = desk.probe().picture(menus);
        changes += std::exchange(last, picture) != picture;
        return changes >= 4;
    }));
    press("Escape");
    press("Escape");
    EXPECT_EQ(product.end(SIGTERM), 0);
}

} // namespace
