// SPDX-License-Identifier: MIT
// The built program from a real absence to what ticklog-report says of it. It lasts as long as the shortest absence that
// can be asked about, a minute; so several people are away at once.
#include "platform/foundation/propertylists/PropertyList.h"
#include "tests/Places.h"
#include "tests/desktop/harness/Product.h"
#include "tests/desktop/services/ServiceScript.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>

#include <csignal>
#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

// Somebody who writes for Meier, on a desktop that shows notices.
class Person {
public:
    enum class Wish { NotAsked, Asked };

    explicit Person(Wish wish) {
        PropertyListDictionary settings = Product::runningSettings();
        settings.insert(u"enableIdleDetection"_s, true);
        settings.insert(u"minutesUntilIdle"_s, std::int64_t(1));
        settings.insert(u"kTKAskAfterMinutes"_s, std::int64_t(1));
        if (wish == Wish::Asked)
            settings.insert(u"kTKAskAfterAbsence"_s, true);
        product.writeSettings(settings);
        const QString documents = desk.home().path() + u"/Documents"_s;
        QDir().mkpath(documents);
        const PropertyListArray patterns{PropertyListDictionary{{u"Program"_s, u"Writer"_s}}};
        static_cast<void>(PropertyList::writeBinaryFile(
            PropertyListArray{PropertyListDictionary{{u"Label"_s, u"Meier"_s}, {u"kTKPatterns"_s, patterns}}},
            documents + u"/Ticklog Projects"_s));
    }

    void beginWork() {
        const xcb_window_t letter = m_writer.open({.title = "Letter", .className = "Writer"});
        ASSERT_TRUE(product.start());
        ASSERT_TRUE(product.bringToFront(m_writer, letter));
        touch();
    }

    // The absence begins with it, and ends.
    void touch() { ASSERT_TRUE(desk.run(u"xdotool"_s, {u"key"_s, u"shift"_s})); }

    // Answers the first notice. Whoever presses before the program knows its number presses again.
    void press(const char* button) {
        EXPECT_TRUE(waitFor([&] {
            notices.ask(("press 7 " + std::string(button)).c_str());
            return notices.ask("closed") == u"7"_s;
        })) << button;
    }

    // The seconds that ticklog-report tells of this program and project; empty for none.
    QString reported(const QString& program, const QString& project) const {
        QProcess report;
        report.setProcessEnvironment(desk.environment());
        report.start(QStringLiteral(TICKLOG_BINARY_DIR "/ticklog-report"),
                     {u"--from"_s, u"-60m"_s, u"--by"_s, u"app"_s, u"--by"_s, u"project"_s, u"--presence"_s,
                      u"all"_s, u"--format"_s, u"csv"_s});
        EXPECT_TRUE(report.waitForFinished());
        m_printed = QString::fromUtf8(report.readAllStandardOutput());
        const QRegularExpression line(u"^\"?%1\"?,\"?%2\"?,([0-9.]+)"_s.arg(program, project),
                                      QRegularExpression::MultilineOption);
        return line.match(m_printed).captured(1);
    }

    // All of the last report.
    std::string printed() const { return m_printed.toStdString(); }

    Desk desk{u"openbox"_s, Desk::Bus::Own};
    ServiceScript notices{desk.home(), u"notifications.py"_s, {desk.bus().address(), u"actions"_s}};
    Product product{desk};

private:
    XClient m_writer{desk};
    mutable QString m_printed;
};

TEST(ProductAbsenceTest, anAbsence_isAskedAboutOnlyWhereThatIsWished_andBookedAsItWasAnswered) {
    Person working(Person::Wish::Asked);
    Person eating(Person::Wish::Asked);
    Person unasked(Person::Wish::NotAsked);
    for (Person* person : {&working, &eating, &unasked})
        person->beginWork();
    // Idle is who has touched nothing for a minute of 2^30 ns to the second.
    const double away = passTime(67s);
    for (Person* person : {&working, &eating, &unasked})
        person->touch();
    for (Person* person : {&working, &eating})
        EXPECT_EQ(
            person->notices.hear(),
            u"7 0 You were away for 1 minute [project, Meier, break, Break, default, Say…, say, Say…]"_s);
    EXPECT_TRUE(working.notices.ask("body").endsWith(u"What was it?"_s));
    working.press("project");
    eating.press("break");
    EXPECT_TRUE(waitFor([&] { return !working.reported(u"By Hand"_s, u"Meier"_s).isEmpty(); }))
        << working.printed();
    EXPECT_NEAR(working.reported(u"By Hand"_s, u"Meier"_s).toDouble(), away, 4) << working.printed();
    EXPECT_TRUE(working.reported(u"Idle"_s, u".*"_s).isEmpty()) << working.printed();
    for (Person* person : {&eating, &unasked}) {
        EXPECT_EQ(person->product.end(SIGTERM), 0);
        EXPECT_NEAR(person->reported(u"Idle"_s, u".*"_s).toDouble(), away, 4) << person->printed();
        EXPECT_TRUE(person->reported(u"By Hand"_s, u".*"_s).isEmpty()) << person->printed();
    }
    EXPECT_EQ(unasked.notices.ask("asked").toStdString(), "0")
        << "the desktop is not even asked what it can show";
}

} // namespace
