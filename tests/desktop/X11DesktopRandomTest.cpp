// SPDX-License-Identifier: MIT
#include "tests/desktop/X11Scene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

// Three programs whose windows come, go and change in any order, as quickly as the desk can follow.
class Crowd {
public:
    Crowd(const Desk& desk, unsigned seed)
        : m_random(seed) {
        for (int i = 0; i < 3; ++i)
            m_programs.push_back({std::make_unique<XClient>(desk), {}});
    }

    void act() {
        Program& program = m_programs[m_random() % m_programs.size()];
        const QByteArray title = "Title " + QByteArray::number(++m_lastTitle);
        if (program.windows.empty() || (program.windows.size() < 4 && m_random() % 6 == 0)) {
            program.windows.push_back(program.client->open({.title = title}));
            return;
        }
        const std::size_t index = m_random() % program.windows.size();
        const xcb_window_t window = program.windows[index];
        switch (m_random() % 6) {
        case 0:
            program.client->destroy(window);
            program.windows.erase(program.windows.begin() + std::ptrdiff_t(index));
            break;
        case 1:
            program.client->minimise(window);
            break;
        case 2:
            program.client->setTitle(window, title);
            break;
        default:
            program.client->activate(window);
        }
    }

private:
    struct Program {
        std::unique_ptr<XClient> client;
        std::vector<xcb_window_t> windows;
    };

    std::mt19937 m_random;
    std::vector<Program> m_programs;
    int m_lastTitle = 0;
};

class X11DesktopRandom : public testing::TestWithParam<const char*> {};

// "process: title" of what is in front, asked of the server directly.
QString askedFor(const X11Scene& scene) {
    const DisplayProbe& probe = scene.desk.probe();
    const xcb_window_t active = probe.activeWindow();
    const auto process = probe.number(active, "_NET_WM_PID");
    return process != 0 ? QStringLiteral("%1: %2").arg(process).arg(
                              QString::fromUtf8(probe.text(active, "_NET_WM_NAME")))
                        : QStringLiteral("0: none");
}

QString told(const X11Scene& scene) {
    return QStringLiteral("%1: %2")
        .arg(scene.desktop->activeApplication()->processIdentifier)
        .arg(scene.frontTitle());
}

bool isAsAsked(const X11Scene& scene) {
    QStringList titles;
    for (const xcb_window_t window : scene.desk.probe().windows())
        titles << QString::fromUtf8(scene.desk.probe().text(window, "_NET_WM_NAME"));
    const auto exists = [&](const WindowListEntry& window) {
        return titles.contains(window.name.value_or(QString()));
    };
    return scene.desktop->activeApplication() && told(scene) == askedFor(scene) &&
           std::ranges::all_of(scene.desktop->onScreenWindows(), exists);
}

TEST_P(X11DesktopRandom, whateverHappens_endsInWhatIsAskedFor) {
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    X11Scene scene(QString::fromLatin1(GetParam()));
    Crowd crowd(scene.desk, seed);
    for (int round = 0; round < 12; ++round) {
        for (int i = 0; i < 15; ++i)
            crowd.act();
        EXPECT_TRUE(waitFor([&] { return isAsAsked(scene); }, std::chrono::seconds(20)))
            << qPrintable(told(scene)) << " instead of " << qPrintable(askedFor(scene)) << ", with "
            << scene.desktop->onScreenWindows().size() << " windows";
    }
}

INSTANTIATE_TEST_SUITE_P(X11Desktop, X11DesktopRandom, testing::Values("openbox", "icewm", "metacity"),
                         [](const auto& instance) { return std::string(instance.param); });

} // namespace
