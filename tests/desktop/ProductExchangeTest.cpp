// SPDX-License-Identifier: MIT
// The built program and another one on a real desktop: copying, pasting and dragging between them.
#include "Classes/exchange/PasteboardTypes.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "tests/Places.h"
#include "tests/desktop/harness/Product.h"
#include "tests/fakes/RichTextReader.h"

#include <QDir>
#include <QPoint>

#include <csignal>
#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

const Identity kMail = *Identity::fromBytes("mail0000");
const Identity kNotes = *Identity::fromBytes("notes000");

PropertyListDictionary timer(const char* name, double seconds, const Identity& identity) {
    return {{QStringLiteral("Name"), QString::fromUtf8(name)},
            {QStringLiteral("ActiveTime"), seconds},
            {QStringLiteral("UUID"), identity.bytes()}};
}

PropertyListDictionary application(const PropertyListDictionary& record, const PropertyListArray& windows) {
    return {{QStringLiteral("App"), record}, {QStringLiteral("Windows"), windows}};
}

// In pixels. Ticklog's window is at the upper left of the screen, the other program's to its right.
constexpr int kOtherLeft = 940;
constexpr int kOtherTop = 100;
// Within Ticklog's window.
constexpr int kRowHeight = 24;
// Below the tabs and the header.
constexpr int kFirstRow = 117;
constexpr int kSidebarFirstRow = 72;
constexpr int kOutlineX = 400;
constexpr int kSidebarX = 80;

class ProductExchangeTest : public testing::Test {
protected:
    ProductExchangeTest() {
        QDir().mkpath(QFileInfo(product.databasePath()).path());
        const PropertyListArray windows{timer("Inbox", 20, *Identity::fromBytes("inbox000")),
                                        timer("Sent", 10, *Identity::fromBytes("sent0000"))};
        static_cast<void>(PropertyList::writeXmlFile(
            PropertyListDictionary{
                {QStringLiteral("Version"), QStringLiteral("1.5")},
                {QStringLiteral("Apps"), PropertyListArray{application(timer("Mail", 60, kMail), windows),
                                                           application(timer("Notes", 100, kNotes), {})}}},
            product.databasePath()));
        writeProjects({"Poster"});
    }

    void writeProjects(const std::vector<const char*>& labels) {
        PropertyListArray records;
        for (const char* label : labels)
            records.push_back(PropertyListDictionary{{QStringLiteral("Label"), QString::fromLatin1(label)},
                                                     {QStringLiteral("Subtree"), PropertyListArray()}});
        static_cast<void>(PropertyList::writeBinaryFile(records, projectsPath()));
    }

    QString projectsPath() {
        QDir().mkpath(desk.home().path() + QStringLiteral("/Documents"));
        return desk.home().path() + QStringLiteral("/Documents/Ticklog Projects");
    }

    void start() {
        ASSERT_TRUE(product.start());
        xdotool({QStringLiteral("windowmove"), QStringLiteral("--sync"), QString::number(product.window()),
                 QStringLiteral("0"), QStringLiteral("0")});
    }

    // Starts the other program, which drags what `offer` says.
    void startOther(const QStringList& offer = {}) {
        other = desk.start(QStringLiteral(TICKLOG_BINARY_DIR "/exchange-client"),
                           QStringList{QString::number(kOtherLeft), QString::number(kOtherTop)} + offer,
                           Program::Output::Read);
        ASSERT_NE(desk.waitForWindow(*other), 0U);
    }

    void xdotool(const QStringList& arguments) {
        EXPECT_TRUE(desk.run(QStringLiteral("xdotool"), arguments));
    }

    void press(const char* keys) { xdotool({QStringLiteral("key"), QString::fromLatin1(keys)}); }

    // Selects a row and copies it.
    void copyFirstRow() {
        xdotool(
            {QStringLiteral("windowactivate"), QStringLiteral("--sync"), QString::number(product.window())});
        xdotool({QStringLiteral("mousemove"), QString::number(kOutlineX), QString::number(kFirstRow),
                 QStringLiteral("click"), QStringLiteral("1")});
        press("ctrl+c");
    }

    // As a user quits.
    void quit() {
        xdotool(
            {QStringLiteral("windowactivate"), QStringLiteral("--sync"), QString::number(product.window())});
        press("ctrl+q");
        EXPECT_TRUE(product.program().waitUntilEnded());
        EXPECT_EQ(product.program().exitStatus(), 0);
    }

    QByteArray ask(const char* question) {
        other->write(QByteArray(question) + '\n');
        return other->readLine().value_or("no answer");
    }

    QByteArray bytesOf(const char* question) { return QByteArray::fromBase64(ask(question)); }

    // Drags from one place of the screen to another, as slowly as a hand.
    void drag(QPoint from, QPoint to) {
        QStringList steps{QStringLiteral("mousemove"), QString::number(from.x()), QString::number(from.y()),
                          QStringLiteral("mousedown"), QStringLiteral("1")};
        constexpr int kSteps = 12;
        for (int step = 1; step <= kSteps; ++step) {
            const QPoint at = from + (to - from) * step / kSteps;
            steps << QStringLiteral("sleep") << QStringLiteral("0.03") << QStringLiteral("mousemove")
                  << QString::number(at.x()) << QString::number(at.y());
        }
        // Receivers answer each step, and accept only what they have agreed to.
        steps << QStringLiteral("sleep") << QStringLiteral("0.3") << QStringLiteral("mouseup")
              << QStringLiteral("1");
        xdotool(steps);
    }

    // "Poster(mail0000) New Project()": what the projects file says.
    std::string projects() {
        const auto file = PropertyList::readFile(projectsPath());
        QByteArray text;
        if (const PropertyListArray* records = file ? file->asArray() : nullptr)
            for (const PropertyListValue& record : *records) {
                text += (text.isEmpty() ? "" : " ") +
                        record.asDictionary()->value(QStringLiteral("Label")).toString().toUtf8() + '(';
                for (const PropertyListValue& member :
                     *record.asDictionary()->value(QStringLiteral("Subtree")).asArray())
                    text += *member.asData();
                text += ')';
            }
        return text.toStdString();
    }

    static QPoint outlineRow(int row) { return {kOutlineX, kFirstRow + row * kRowHeight}; }
    static QPoint sidebarRow(int row) { return {kSidebarX, kSidebarFirstRow + row * kRowHeight}; }
    static QPoint otherWindow() { return {kOtherLeft + 120, kOtherTop + 120}; }

    Desk desk{QStringLiteral("openbox"), Desk::Bus::Own};
    Product product{desk};
    std::unique_ptr<Program> other;
};

} // namespace

TEST_F(ProductExchangeTest, copiedRows_arePastedElsewhereInEveryForm) {
    start();
    startOther();
    copyFirstRow();
    ASSERT_TRUE(waitFor([&] { return ask("formats").contains("org.ticklog.standard.TKItem"); }));
    EXPECT_EQ(bytesOf("data text/plain"), "Mail, 00:01:00\n");
    EXPECT_EQ(bytesOf("data text/tab-separated-values"),
              "Mail\t\tMail\t00:01:00Mail\tInbox\tInbox\t00:00:20Mail\tSent\tSent\t00:00:10\n");
    EXPECT_EQ(textOfRtf(bytesOf("data text/rtf")),
              "Application|Window|Original Name|Time|\nMail||Mail|00:01:00|\nMail|Inbox|Inbox|00:00:20|\n"
              "Mail|Sent|Sent|00:00:10|\n");
    EXPECT_EQ(timersFromPasteboard(bytesOf("data org.ticklog.standard.TKItem")), std::vector{kMail});
    EXPECT_EQ(
        bytesOf("paste").simplified(),
        "Application Window Original Name Time Mail Mail 00:01:00 Mail Inbox Inbox 00:00:20 Mail Sent Sent "
        "00:00:10")
        << "a rich editor takes the HTML";
}

TEST_F(ProductExchangeTest, aCopiedProject_readsAsItsTimers) {
    start();
    startOther();
    xdotool({QStringLiteral("windowactivate"), QStringLiteral("--sync"), QString::number(product.window())});
    xdotool({QStringLiteral("mousemove"), QString::number(kSidebarX), QString::number(sidebarRow(1).y()),
             QStringLiteral("click"), QStringLiteral("1")});
    press("ctrl+c");
    ASSERT_TRUE(waitFor([&] { return ask("formats").contains("org.ticklog.standard.TKProject"); }));
    EXPECT_EQ(bytesOf("data text/plain"), "Mail, 00:01:00\nNotes, 00:01:40\n")
        << "one without timers stands for all";
}

TEST_F(ProductExchangeTest, whatIsPasted_isMadeWhenItIsPasted) {
    product.writeSettings(Product::runningSettings());
    start();
    startOther();
    // Ticklog counts itself while it is in front, and its row is the last.
    xdotool({QStringLiteral("windowactivate"), QStringLiteral("--sync"), QString::number(product.window())});
    ASSERT_TRUE(waitFor([&] {
        press("End");
        press("ctrl+c");
        return ask("formats").contains("org.ticklog.standard.TKItem") &&
               bytesOf("data text/plain").startsWith("Ticklog, ");
    }));
    const QByteArray first = bytesOf("data text/plain");
    EXPECT_TRUE(waitFor([&] { return bytesOf("data text/plain") != first; })) << "its time goes on";
}

TEST_F(ProductExchangeTest, withoutAClipboardManager_nothingCanBePastedAfterTheEnd) {
    start();
    startOther();
    copyFirstRow();
    ASSERT_TRUE(waitFor([&] { return ask("formats").contains("org.ticklog.standard.TKItem"); }));
    EXPECT_EQ(product.end(SIGTERM), 0);
    EXPECT_TRUE(waitFor([&] { return ask("formats").isEmpty(); }))
        << "as every program's on such a desktop, and nobody hangs";
}

TEST_F(ProductExchangeTest, aClipboardManager_keepsEveryFormWhenItEnds) {
    const auto manager =
        desk.start(QStringLiteral(TICKLOG_BINARY_DIR "/clipboard-manager"), {}, Program::Output::Read);
    ASSERT_EQ(manager->readLine(), "ready");
    start();
    startOther();
    for (const bool isAsked : {false, true}) {
        copyFirstRow();
        ASSERT_TRUE(waitFor([&] { return ask("formats").contains("org.ticklog.standard.TKItem"); }));
        if (isAsked)
            quit();
        else
            EXPECT_EQ(product.end(SIGTERM), 0);
        EXPECT_TRUE(waitFor([&] { return ask("formats").contains("org.ticklog.standard.TKItem"); }))
            << isAsked;
        EXPECT_EQ(bytesOf("data text/plain"), "Mail, 00:01:00\n");
        EXPECT_TRUE(bytesOf("data text/html").contains("<td>Inbox</td>"));
        EXPECT_NE(textOfRtf(bytesOf("data text/rtf")).find("Mail|Inbox"), std::string::npos);
        EXPECT_EQ(timersFromPasteboard(bytesOf("data org.ticklog.standard.TKItem")), std::vector{kMail});
        if (!isAsked)
            start();
    }
}

TEST_F(ProductExchangeTest, whatAnotherProgramHasCopiedSince_staysWhenItEnds) {
    start();
    startOther();
    copyFirstRow();
    ASSERT_TRUE(waitFor([&] { return ask("formats").contains("org.ticklog.standard.TKItem"); }));
    EXPECT_EQ(ask("copy Theirs"), "ok");
    EXPECT_EQ(product.end(SIGTERM), 0);
    EXPECT_EQ(bytesOf("data text/plain"), "Theirs");
}

TEST_F(ProductExchangeTest, aRowPulledIntoAnotherProgram_arrivesInEveryForm) {
    start();
    startOther();
    drag(outlineRow(1), otherWindow());
    ASSERT_EQ(other->readLine(), "drop");
    EXPECT_EQ(bytesOf("dropped text/plain"), "Notes, 00:01:40\n");
    EXPECT_TRUE(bytesOf("dropped text/html").contains("<td>Notes</td>"));
    EXPECT_EQ(timersFromPasteboard(bytesOf("dropped org.ticklog.standard.TKItem")), std::vector{kNotes});
    EXPECT_TRUE(product.program().isRunning());
}

TEST_F(ProductExchangeTest, aRowPulledOntoAProject_isInIt) {
    start();
    drag(outlineRow(0), sidebarRow(1));
    EXPECT_TRUE(waitFor([&] { return projects() == "Poster(mail0000)"; })) << projects();
}

TEST_F(ProductExchangeTest, aRowPulledBelowAllProjects_becomesOne) {
    start();
    drag(outlineRow(1), sidebarRow(8));
    EXPECT_TRUE(waitFor([&] { return projects() == "Poster() New Project(notes000)"; })) << projects();
}

TEST_F(ProductExchangeTest, timersPulledInFromAnotherProgram_areTaken) {
    start();
    startOther({kTimerPasteboardType,
                QString::fromLatin1(timerPasteboardData(std::vector{kNotes, kMail}).toBase64())});
    drag(otherWindow(), sidebarRow(1));
    EXPECT_TRUE(waitFor([&] { return projects() == "Poster(notes000mail0000)"; })) << projects();
    EXPECT_EQ(other->readLine(), "drag 1") << "copied";
}

TEST_F(ProductExchangeTest, aRowPulledBetweenTwoProjects_becomesOneThere) {
    writeProjects({"Poster", "Letters"});
    start();
    // Between the two rows.
    drag(outlineRow(1), sidebarRow(1) + QPoint(0, kRowHeight / 2));
    EXPECT_TRUE(waitFor([&] { return projects() == "Poster() New Project(notes000) Letters()"; }))
        << projects();
}

// Neither text nor data that only pretends to be timers changes a project, at the very place where a row of
// ours does so afterwards.
struct ForeignThing {
    const char* name;
    QString type;
    QByteArray bytes;
    // What the other program is told: anything with our type is accepted, whatever it contains.
    const char* answer;

    friend void PrintTo(const ForeignThing& thing, std::ostream* stream) { *stream << thing.name; }
};

class ForeignDrag : public ProductExchangeTest, public testing::WithParamInterface<ForeignThing> {};

TEST_P(ForeignDrag, whatIsPulledIn_changesNothing) {
    start();
    startOther({GetParam().type, QString::fromLatin1(GetParam().bytes.toBase64())});
    drag(otherWindow(), sidebarRow(1));
    EXPECT_EQ(other->readLine(), GetParam().answer);
    drag(outlineRow(0), sidebarRow(1));
    EXPECT_TRUE(waitFor([&] { return projects() == "Poster(mail0000)"; })) << projects();
}

INSTANTIATE_TEST_SUITE_P(Product, ForeignDrag,
                         testing::Values(ForeignThing{"text", QStringLiteral("text/plain"), "Mail", "drag 0"},
                                         ForeignThing{"damaged", kTimerPasteboardType, "bplist00 or so",
                                                      "drag 1"}),
                         [](const auto& thing) { return std::string(thing.param.name); });
