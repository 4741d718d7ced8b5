// SPDX-License-Identifier: MIT
// The window that takes the main window's place while trust is missing.
#include "interface/setup/SetupWindow.h"
#include "interface/setup/ImageView.h"
#include "interface/setup/TKInstructionStepView.h"
#include "tests/interface/Desk.h"

#include <QAccessible>
#include <QScreen>
#include <QTest>
#include <QTranslator>

#include <gtest/gtest.h>

namespace {

// A language that needs more words for everything.
class Wordy : public QTranslator {
public:
    QString translate(const char*, const char* text, const char*, int) const override {
        const QString words = QString::fromUtf8(text);
        return words + u' ' + words.left(words.size() * 2 / 5);
    }

    bool isEmpty() const override { return false; }
};

struct SetupWindowTest : testing::Test {
    ~SetupWindowTest() override {
        window.reset();
        QApplication::setFont(font);
    }

    void show() {
        window = std::make_unique<SetupWindow>(
            SetupWindow::Commands{[this] { ++relaunches; }, [this] { ++quits; }});
        const QSize wanted = window->size();
        window->makeKeyAndOrderFront();
        // The test screen is small.
        window->resize(wanted);
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    TKInstructionView& view() { return window->instructionView(); }
    TKInstructionStepView& row(int step) { return *view().stepViews()[std::size_t(step - 1)]; }

    static QAccessibleInterface& described(QWidget& widget) {
        return *QAccessible::queryAccessibleInterface(&widget);
    }

    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    // No text of a row is cut off.
    void expectRowsRoomy() {
        for (int step = 1; step <= 4; ++step) {
            const QLabel& text = row(step).textField();
            EXPECT_GE(text.height(), text.heightForWidth(text.width())) << step;
            EXPECT_TRUE(row(step).rect().contains(text.geometry())) << step;
            EXPECT_TRUE(window->rect().contains(row(step).geometry())) << step;
            EXPECT_GT(row(step).y(), step > 1 ? row(step - 1).geometry().bottom() : 0) << step;
        }
        const QPushButton& restart = window->restartButton();
        EXPECT_GT(restart.y(), row(4).geometry().bottom());
        EXPECT_TRUE(window->rect().contains(restart.geometry()));
        EXPECT_GE(restart.width(), restart.sizeHint().width());
        EXPECT_GE(restart.height(), restart.sizeHint().height());
    }

    const QFont font = QApplication::font();
    int relaunches = 0;
    int quits = 0;
    std::unique_ptr<SetupWindow> window;
};

} // namespace

TEST_F(SetupWindowTest, theWindow_isAsLargeAndIsCalledAsItShould) {
    show();
    EXPECT_EQ(window->size(), QSize(640, 628));
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Ticklog"));
    EXPECT_EQ(view().geometry(), QRect(0, 0, 640, 628));
    EXPECT_EQ(window->restartButton().text(), QStringLiteral("Restart"));
    EXPECT_EQ(window->restartButton().geometry(), QRect(640 - 96 - 12, 628 - 8 - 25, 96, 25));
    EXPECT_EQ(row(1).y(), 400);
}

TEST_F(SetupWindowTest, shown_itIsInTheMiddleOfTheScreen) {
    show();
    EXPECT_TRUE(window->isVisible());
    const QRect screen = window->screen()->availableGeometry();
    EXPECT_LE((window->geometry().center() - screen.center()).manhattanLength(), 8);
    EXPECT_TRUE(screen.contains(window->geometry()));
}

TEST_F(SetupWindowTest, restart_starts_anew) {
    show();
    QTest::mouseClick(&window->restartButton(), Qt::LeftButton);
    EXPECT_EQ(relaunches, 1);
    window->restartButton().setFocus();
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
        press(key);
    EXPECT_EQ(relaunches, 4);
    EXPECT_EQ(view().currentStep(), 0);
}

TEST_F(SetupWindowTest, quittingAndClosing_haveTheirShortcuts) {
    show();
    press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(quits, 1);
    EXPECT_TRUE(window->isVisible()) << "whoever was asked decides";
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window->isVisible());
    window->makeKeyAndOrderFront();
    EXPECT_TRUE(window->isVisible());
}

TEST_F(SetupWindowTest, theTabKey_reachesPagesRowsAndRestart) {
    show();
    EXPECT_EQ(QApplication::focusWidget(), &view());
    for (int step = 1; step <= 4; ++step) {
        press(Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), &row(step));
    }
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &window->restartButton());
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &view());
    press(Qt::Key_Backtab);
    EXPECT_EQ(QApplication::focusWidget(), &window->restartButton());
}

TEST_F(SetupWindowTest, arrows_turnPagesWhereverTheFocusIs) {
    show();
    for (QWidget* focused : {static_cast<QWidget*>(&view()), static_cast<QWidget*>(&row(2)),
                             static_cast<QWidget*>(&window->restartButton())}) {
        focused->setFocus();
        const int before = view().currentStep();
        press(Qt::Key_Right);
        EXPECT_EQ(view().currentStep(), before + 1);
        EXPECT_EQ(QApplication::focusWidget(), focused);
    }
    press(Qt::Key_Up);
    EXPECT_EQ(view().currentStep(), 2);
}

TEST_F(SetupWindowTest, aRow_isChosenByKey) {
    show();
    row(2).setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(view().currentStep(), 2);
    row(4).setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(view().currentStep(), 4);
    row(1).setFocus();
    press(Qt::Key_Enter);
    EXPECT_EQ(view().currentStep(), 1);
    press(Qt::Key_A);
    EXPECT_EQ(view().currentStep(), 1);
}

TEST_F(SetupWindowTest, theFocus_isSeen) {
    show();
    for (QWidget* widget : {static_cast<QWidget*>(&view()), static_cast<QWidget*>(&row(3))}) {
        window->restartButton().setFocus();
        const QImage without = window->grab().toImage();
        widget->setFocus(Qt::TabFocusReason);
        EXPECT_NE(window->grab().toImage(), without) << qPrintable(widget->objectName());
    }
}

TEST_F(SetupWindowTest, assistivePrograms_findButtonsCalledAsTheirSteps) {
    show();
    view().moveToStep(2, false);
    EXPECT_EQ(described(view()).text(QAccessible::Name), row(2).text());
    for (int step = 1; step <= 4; ++step) {
        QAccessibleInterface& button = described(row(step));
        EXPECT_EQ(button.role(), QAccessible::Button);
        EXPECT_EQ(button.text(QAccessible::Name), row(step).text());
        EXPECT_EQ(button.childCount(), 0) << "its parts say nothing more";
        EXPECT_TRUE(button.state().focusable);
        EXPECT_EQ(bool(button.state().selected), step == 2);
        EXPECT_EQ(button.text(QAccessible::Description),
                  step == 2 ? QStringLiteral("Current step") : QString());
    }
    QAccessibleInterface& button = described(row(4));
    ASSERT_TRUE(button.actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    button.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(view().currentStep(), 4);
    EXPECT_EQ(described(window->restartButton()).text(QAccessible::Name), QStringLiteral("Restart"));
    EXPECT_EQ(described(*window).text(QAccessible::Name), QStringLiteral("Ticklog"));
}

TEST_F(SetupWindowTest, longerTexts_haveRoom) {
    Wordy language;
    QCoreApplication::installTranslator(&language);
    show();
    EXPECT_TRUE(window->restartButton().text().startsWith(QStringLiteral("Restart Re")));
    expectRowsRoomy();
}

TEST_F(SetupWindowTest, largeLetters_haveRoomInEveryLanguage) {
    QFont large = font;
    large.setPixelSize(24);
    QApplication::setFont(large);
    show();
    expectRowsRoomy();
    EXPECT_GT(window->height(), 628);
    Wordy language;
    QCoreApplication::installTranslator(&language);
    show();
    expectRowsRoomy();
}

TEST_F(SetupWindowTest, lettersThatGrowWhileItIsOpen_getRoom) {
    show();
    QFont large = font;
    large.setPixelSize(20);
    QApplication::setFont(large);
    QCoreApplication::processEvents();
    expectRowsRoomy();
}

TEST_F(SetupWindowTest, aSmallWindow_keepsEverythingInSight) {
    show();
    window->resize(1, 1);
    EXPECT_GE(window->width(), 440);
    QCoreApplication::processEvents();
    window->resize(window->minimumSize());
    expectRowsRoomy();
    EXPECT_LE(view().currentLayerFrame().bottom(), row(1).y());
}

TEST_F(SetupWindowTest, aLargeWindow_keepsRestartInItsCorner) {
    show();
    window->resize(1200, 900);
    EXPECT_EQ(window->restartButton().geometry(), QRect(1200 - 96 - 12, 900 - 8 - 25, 96, 25));
    EXPECT_EQ(row(4).width(), 1200);
    EXPECT_EQ(row(1).y(), 400);
}

TEST_F(SetupWindowTest, fromRightToLeft_restartIsOnTheLeft) {
    show();
    window->setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(window->restartButton().x(), 12);
    EXPECT_GT(row(1).badgeView().x(), 300);
    expectRowsRoomy();
}

namespace {

// A desktop that does not let Ticklog see windows.
struct Untrusted : testing::Test {
    Untrusted() {
        fakes.accessibility.trusted = false;
        fakes.defaults.setObject(kStartTicklogOnNextLaunch, true);
    }

    void settle() {
        fakes.runLoop.runPending();
        QCoreApplication::processEvents();
    }

    SetupWindow* setup() { return qobject_cast<SetupWindow*>(&controller.shownWindow()); }

    FakePlatform fakes;
    FakeAlerts alerts;
    TKController controller{fakes.platform, alerts, [](int) {},
                            [](TimeTracker& tracker, ActivityServices& services) {
                                return std::make_unique<TimeActivator>(tracker, services);
                            }};
};

} // namespace

TEST_F(Untrusted, withoutTrust_theSetupWindowTakesTheMainWindowsPlace) {
    controller.window().show();
    controller.awakeFromNib();
    settle();
    ASSERT_NE(setup(), nullptr);
    EXPECT_TRUE(setup()->isVisible());
    EXPECT_FALSE(controller.window().isVisible());
    EXPECT_FALSE(controller.timer().isRunning());
    EXPECT_TRUE(fakes.defaults.boolForKey(kStartTicklogOnNextLaunch)) << "the next launch may be trusted";
}

TEST_F(Untrusted, withTrust_thereIsNoSetupWindow) {
    fakes.accessibility.trusted = true;
    controller.awakeFromNib();
    EXPECT_EQ(setup(), nullptr);
    EXPECT_EQ(&controller.shownWindow(), &controller.window());
    EXPECT_TRUE(controller.timer().isRunning());
}

TEST_F(Untrusted, theClosedSetupWindow_comesBackWhenTicklogIsAskedFor) {
    controller.awakeFromNib();
    controller.appDelegate().applicationDidFinishLaunching();
    setup()->close();
    settle();
    EXPECT_FALSE(setup()->isVisible());
    controller.displayMainWindow();
    EXPECT_TRUE(setup()->isVisible());
    EXPECT_FALSE(controller.window().isVisible());
}

TEST_F(Untrusted, quittingFromTheSetupWindow_asksNobodyAndSaves) {
    controller.awakeFromNib();
    settle();
    setup()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(setup()));
    QTest::keyClick(setup(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(alerts.questions, QStringList());
    EXPECT_TRUE(QFileInfo::exists(controller.database().mainStoreURL()));
}

TEST_F(Untrusted, restart_startsTheProgramAnew) {
    controller.awakeFromNib();
    setup()->restartButton().click();
    EXPECT_EQ(fakes.ownProgram.relaunched, 1);
    EXPECT_FALSE(controller.window().isVisible());
}

TEST_F(Untrusted, trustThatIsGrantedMeanwhile_waitsForTheRestart) {
    controller.awakeFromNib();
    fakes.accessibility.trusted = true;
    fakes.runLoop.advance(std::chrono::seconds(60));
    EXPECT_TRUE(setup()->isVisible());
    EXPECT_FALSE(controller.window().isVisible());
}
