// SPDX-License-Identifier: MIT
// The built program started twice: the window comes back as it was left.
#include "Classes/common/Settings.h"
#include "tests/desktop/harness/Product.h"

#include <csignal>
#include <gtest/gtest.h>

namespace {

constexpr int kLeft = 60;
constexpr int kTop = 40;
constexpr int kWidth = 760;
constexpr int kHeight = 470;
// Within the window: the first column's header, below the tabs.
constexpr int kHeaderX = 420;
constexpr int kHeaderY = 93;

class ProductWindowTest : public testing::Test {
protected:
    void xdotool(const QStringList& arguments) {
        EXPECT_TRUE(desk.run(QStringLiteral("xdotool"), arguments));
    }

    void place() {
        const QString window = QString::number(product.window());
        xdotool({QStringLiteral("windowsize"), QStringLiteral("--sync"), window, QString::number(kWidth),
                 QString::number(kHeight)});
        xdotool({QStringLiteral("windowmove"), QStringLiteral("--sync"), window, QString::number(kLeft),
                 QString::number(kTop)});
    }

    // "X=60 Y=40 WIDTH=760 HEIGHT=470", without the window manager's frame.
    std::string geometry() {
        const auto asked = desk.start(QStringLiteral("xdotool"),
                                      {QStringLiteral("getwindowgeometry"), QStringLiteral("--shell"),
                                       QString::number(product.window())},
                                      Program::Output::Read);
        QByteArrayList lines;
        while (const auto line = asked->readLine(std::chrono::seconds(lines.size() < 6 ? 10 : 0)))
            lines << *line;
        return lines.mid(1, 4).join(' ').toStdString();
    }

    // "1 down": by which column rows are sorted.
    std::string order() const {
        const PropertyListDictionary settings = product.settings();
        return std::to_string(settings.value(kTimersSorting).toInteger()) +
               (settings.value(kTimersSortedDown).toBool() ? " down" : " up");
    }

    Desk desk{QStringLiteral("openbox"), Desk::Bus::Own};
    Product product{desk};
};

TEST_F(ProductWindowTest, aSecondStart_bringsTheWindowBackAsTheFirstOneLeftIt) {
    ASSERT_TRUE(product.start());
    place();
    const std::string left = geometry();
    EXPECT_TRUE(left.find("WIDTH=760 HEIGHT=470") != std::string::npos) << left;
    EXPECT_EQ(product.end(SIGTERM), 0);
    EXPECT_EQ(order(), "1 down") << "of a new account";
    ASSERT_TRUE(product.start());
    EXPECT_EQ(geometry(), left);
    // Sorts by name.
    xdotool({QStringLiteral("mousemove"), QStringLiteral("--window"), QString::number(product.window()),
             QString::number(kHeaderX), QString::number(kHeaderY), QStringLiteral("click"),
             QStringLiteral("1")});
    EXPECT_TRUE(waitFor([&] { return order() == "0 up"; }));
    EXPECT_EQ(product.end(SIGTERM), 0);
    ASSERT_TRUE(product.start());
    EXPECT_EQ(geometry(), left);
    EXPECT_EQ(product.end(SIGTERM), 0);
    EXPECT_EQ(order(), "0 up");
}

} // namespace
