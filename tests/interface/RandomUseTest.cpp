// SPDX-License-Identifier: MIT
// Somebody who presses anything and clicks anywhere in the history's view and windows: Qt has nothing to complain of,
// and the account stays what it is. TICKLOG_RANDOM_USE says for how many seconds; TICKLOG_RANDOM_SEED repeats such a run
// and says each step.
#include "interface/absences/AbsenceBar.h"
#include "tests/fakes/HistoryDiary.h"
#include "tests/interface/Complaints.h"
#include "tests/interface/HistoryViewDesk.h"

#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QPointer>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <QUndoStack>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <random>

namespace {

// In the suite. A number, so that a busy machine does the same as an idle one.
constexpr int kSteps = 1000;

using Qt::ALT, Qt::CTRL, Qt::SHIFT;
const QKeyCombination kKeys[] = {Qt::Key_Tab,
                                 Qt::Key_Tab,
                                 SHIFT | Qt::Key_Backtab,
                                 Qt::Key_Left,
                                 Qt::Key_Right,
                                 Qt::Key_Up,
                                 Qt::Key_Down,
                                 Qt::Key_Home,
                                 Qt::Key_End,
                                 Qt::Key_PageUp,
                                 Qt::Key_PageDown,
                                 Qt::Key_Space,
                                 Qt::Key_Return,
                                 Qt::Key_Escape,
                                 Qt::Key_Plus,
                                 Qt::Key_Minus,
                                 Qt::Key_0,
                                 Qt::Key_M,
                                 Qt::Key_Ampersand,
                                 Qt::Key_Backspace,
                                 ALT | Qt::Key_Left,
                                 ALT | Qt::Key_Right,
                                 ALT | Qt::Key_Home,
                                 ALT | Qt::Key_1,
                                 ALT | Qt::Key_2,
                                 ALT | Qt::Key_3,
                                 ALT | Qt::Key_4,
                                 ALT | Qt::Key_5,
                                 ALT | Qt::Key_6,
                                 ALT | Qt::Key_7,
                                 CTRL | Qt::Key_1,
                                 CTRL | Qt::Key_2,
                                 CTRL | Qt::Key_2,
                                 CTRL | SHIFT | Qt::Key_T,
                                 CTRL | SHIFT | Qt::Key_N,
                                 CTRL | SHIFT | Qt::Key_B,
                                 CTRL | SHIFT | Qt::Key_Delete,
                                 Qt::Key_F1,
                                 CTRL | Qt::Key_A,
                                 CTRL | Qt::Key_C,
                                 CTRL | Qt::Key_F,
                                 CTRL | Qt::Key_Z,
                                 CTRL | SHIFT | Qt::Key_Z,
                                 SHIFT | Qt::Key_Right};

class RandomUse : public HistoryViewDesk {
public:
    explicit RandomUse(unsigned seed)
        : m_random(seed) {
        for (int day = -8; day < 0; ++day)
            for (int piece = 0; piece < 3; ++piece)
                past(today(8 + 2 * piece).addDays(day), 60 * (5 + pick(110)), piece ? "Mail" : "Draw",
                     piece == 1 ? "Inbox" : "A letter to Anna & <b>Meier</b>",
                     piece == 2 ? RowPresence::Idle : RowPresence::Work);
        const auto project = controller.projects().addNewProjectWithItems({});
        controller.projects().setLabel(*project, QStringLiteral("Meier"));
        m_past = HistoryDiary::of(history.path());
        m_changes = controller.undoStack().index();
        m_amendings = history.observeAmending([this] { ++m_amendments; });
        front("Mail", "Inbox");
        controller.timer().startTimer();
        showHistory();
    }

    ~RandomUse() {
        while (QWidget* popup = QApplication::activePopupWidget()) {
            popup->close();
            settle();
        }
    }

    // Does anything.
    void step() {
        // Some popups and drags do not return before they are over: people go on meanwhile.
        const int level = QThread::currentThread()->loopLevel();
        QTimer goesOn;
        QObject::connect(&goesOn, &QTimer::timeout, &goesOn, [this, level] {
            if (QThread::currentThread()->loopLevel() > level)
                step();
        });
        goesOn.start(0);
        ++m_steps;
        m_last = act();
        if (m_isTold)
            tell();
    }

    int steps() const { return m_steps; }
    // How often something was set right by hand.
    int amendments() const { return m_amendments; }
    // What was done last.
    const std::string& last() const { return m_last; }

    // From now on says each step, for who looks for the one after which it crashes.
    void sayEach() { m_isTold = true; }

    // What does not agree; empty if all does.
    std::string flaws() {
        controller.timer().stopTimer();
        history.finish();
        QStringList flaws = HistoryDiary::flaws(history.path());
        while (controller.undoStack().index() > m_changes)
            controller.undoStack().undo();
        history.finish();
        flaws += HistoryDiary::flaws(history.path());
        if (!HistoryDiary::of(history.path()).starts_with(m_past))
            flaws << QStringLiteral("what was said by hand is undone, but the past has changed");
        const double counted = controller.tracker().totalTime();
        if (std::abs(counted - m_seconds) > 0.2)
            flaws << QStringLiteral("%1 s were counted of %2 s").arg(counted).arg(m_seconds);
        if (controller.projects().count() != 1)
            flaws << QStringLiteral("the projects have changed");
        return flaws.join(u'\n').toStdString();
    }

private:
    void tell() const {
        std::printf("%d %s\n", m_steps, m_last.c_str());
        std::fflush(stdout);
    }

    int pick(int below) { return int(m_random() % unsigned(below)); }

    std::string act() {
        switch (pick(16)) {
        case 0:
            return pass();
        case 1:
            return resize();
        case 2:
            return ask();
        case 3:
        case 4:
        case 5:
        case 6:
        case 7:
            return click();
        case 8:
            return turnWheel();
        case 9:
            return askForMenu();
        case 10:
        case 11:
            return setRight();
        default:
            return press();
        }
    }

    std::string pass() {
        if (pick(3) == 0)
            front(pick(2) ? "Mail" : "Draw", pick(2) ? "Inbox" : "Poster");
        const int tenths = 1 + pick(40);
        seconds(tenths / 10.0);
        m_seconds += tenths / 10.0;
        return "time passes";
    }

    std::string resize() {
        controller.window().resize(480 + pick(1000), 300 + pick(700));
        settle();
        return "resize";
    }

    std::string ask() {
        std::vector<AbsenceBar::Question> questions;
        for (int number = pick(5); number > 0; --number)
            questions.push_back({number, QStringLiteral("an absence")});
        controller.window().absenceBar().ask(questions);
        settle();
        return "absences";
    }

    // The open popup, the dialogue that waits for an answer, or any window.
    QWidget* place() {
        if (QWidget* popup = QApplication::activePopupWidget())
            return popup;
        if (QWidget* dialogue = QApplication::activeModalWidget())
            return dialogue;
        QWidgetList windows;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible() && !window->size().isEmpty() && window->windowType() != Qt::ToolTip)
                windows << window;
        return windows.isEmpty() ? nullptr : windows[pick(int(windows.size()))];
    }

    // What is no business of the history's, or asks the printer.
    static bool isLeftAlone(const QWidget* widget) {
        for (; widget; widget = widget->parentWidget())
            for (const char* name : {"printSheet", "toolBar", "mainMenuBar", "sidebar", "timersPage"})
                if (widget->objectName() == QLatin1String(name))
                    return true;
        return false;
    }

    struct Spot {
        QPointer<QWidget> widget;
        QPoint at;
    };

    // Null if nothing is found that can be used.
    Spot spot() {
        for (int tries = 0; tries < 10; ++tries) {
            QWidget* window = place();
            if (!window || window->size().isEmpty())
                break;
            const QPoint at(pick(window->width()), pick(window->height()));
            QWidget* widget = window->childAt(at);
            if (!widget)
                widget = window;
            if (!isLeftAlone(widget))
                return {widget, widget->mapFrom(window, at)};
        }
        return {};
    }

    static std::string nameOf(const QWidget& widget) {
        return widget.metaObject()->className() + std::string(" ") + widget.objectName().toStdString();
    }

    std::string click() {
        const Spot spot = this->spot();
        if (!spot.widget)
            return "nothing";
        m_last = "a click into " + nameOf(*spot.widget);
        const std::string what = m_last;
        if (QWidget* window = spot.widget->window(); window->windowType() != Qt::Popup)
            window->activateWindow();
        QTest::mouseMove(spot.widget, spot.at);
        const int kind = pick(5);
        if (!spot.widget)
            return what;
        if (kind == 0)
            QTest::mouseDClick(spot.widget, Qt::LeftButton, {}, spot.at);
        else if (kind == 1)
            drag(spot);
        else
            QTest::mouseClick(spot.widget, Qt::LeftButton, {}, spot.at);
        settle();
        return what;
    }

    void drag(const Spot& from) {
        QTest::mousePress(from.widget, Qt::LeftButton, {}, from.at);
        for (int move = 1; move <= 3 && from.widget; ++move)
            QTest::mouseMove(from.widget, from.at + QPoint(20 * move, pick(9) - 4));
        if (from.widget)
            QTest::mouseRelease(from.widget, Qt::LeftButton, {}, from.at + QPoint(60, 0));
    }

    std::string turnWheel() {
        const Spot spot = this->spot();
        if (!spot.widget)
            return "nothing";
        const std::string what = "the wheel over " + nameOf(*spot.widget);
        const auto modifiers = pick(2) ? Qt::ControlModifier : Qt::NoModifier;
        const QPoint turned = pick(2) ? QPoint(0, pick(2) ? 120 : -120) : QPoint(pick(2) ? 120 : -120, 0);
        QWheelEvent event(spot.at, spot.widget->mapToGlobal(spot.at), QPoint(), turned, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(spot.widget, &event);
        settle();
        return what;
    }

    std::string askForMenu() {
        const Spot spot = this->spot();
        if (!spot.widget)
            return "nothing";
        const std::string what = "the menu of " + nameOf(*spot.widget);
        QContextMenuEvent event(QContextMenuEvent::Mouse, spot.at, spot.widget->mapToGlobal(spot.at));
        QApplication::sendEvent(spot.widget, &event);
        settle();
        return what;
    }

    // Opens a dialogue of those that do so, or answers the one that is open.
    std::string setRight() {
        const auto field = [](const char* name) {
            QWidget* dialogue = QApplication::activeModalWidget();
            return dialogue ? dialogue->findChild<QLineEdit*>(QLatin1String(name)) : nullptr;
        };
        if (QApplication::activePopupWidget())
            return "nothing";
        QLineEdit* const name = field("timeName") ? field("timeName") : field("bookedName");
        if (name) {
            QTest::keyClicks(name, QStringLiteral("Visit"));
            QTest::keyClick(name, Qt::Key_Return);
        } else {
            QTest::keyClick(&controller.window(), pick(3) ? Qt::Key_N : Qt::Key_B,
                            Qt::ControlModifier | Qt::ShiftModifier);
        }
        settle();
        return name ? "an answer" : "a dialogue";
    }

    // Whoever gets what is typed.
    QWidget* receiver() {
        QWidget* focus = QApplication::focusWidget();
        QWidget* first = QApplication::activePopupWidget();
        if (!first)
            first = QApplication::activeModalWidget();
        if (first && !(focus && first->isAncestorOf(focus)))
            return first->focusWidget() ? first->focusWidget() : first;
        if (focus && focus->isVisible())
            return focus;
        // Without a window manager nobody gives the focus back when a popup or a window is closed.
        QWidget* window = place();
        if (!window)
            return nullptr;
        window->activateWindow();
        settle();
        return window->focusWidget() ? window->focusWidget() : window;
    }

    std::string press() {
        const QKeyCombination key = kKeys[pick(int(std::size(kKeys)))];
        QWidget* receiver = this->receiver();
        const bool isShortcut =
            key.key() == Qt::Key_Tab || key.keyboardModifiers() & (Qt::AltModifier | Qt::ControlModifier);
        if (!receiver || (isLeftAlone(receiver) && !isShortcut))
            return "nothing";
        const std::string what = QKeySequence(key).toString().toStdString() + " on " + nameOf(*receiver);
        m_last = what;
        QTest::keyClick(receiver, key.key(), key.keyboardModifiers());
        settle();
        return what;
    }

    std::mt19937 m_random;
    std::string m_past;
    int m_changes = 0;
    double m_seconds = 0;
    int m_steps = 0;
    std::string m_last;
    bool m_isTold = false;
    int m_amendments = 0;
    Subscription m_amendings;
};

} // namespace

TEST(RandomUse, ofTheHistory_leavesNothingToComplainOfAndTheAccountAsItIs) {
    const Complaints complaints;
    const int wanted = qEnvironmentVariableIntValue("TICKLOG_RANDOM_USE");
    const int named = qEnvironmentVariableIntValue("TICKLOG_RANDOM_SEED");
    const unsigned seed = named > 0 ? unsigned(named) : wanted > 0 ? std::random_device()() % 1'000'000 : 18;
    std::printf("seed %u\n", seed);
    std::fflush(stdout);
    RandomUse use(seed);
    if (named > 0)
        use.sayEach();
    QElapsedTimer time;
    time.start();
    while (wanted > 0 ? time.elapsed() < wanted * 1000LL : use.steps() < kSteps) {
        use.step();
        ASSERT_EQ(complaints.all(), "") << "step " << use.steps() << ": " << use.last();
    }
    std::printf("%d steps, %d times something was set right\n", use.steps(), use.amendments());
    EXPECT_EQ(use.flaws(), "");
    EXPECT_EQ(complaints.all(), "");
}
