// SPDX-License-Identifier: MIT
// Which room stands on which; and that includes form no circles.
#include "tests/Places.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

using Paths = std::vector<std::string>;

constexpr const char* kFoundation =
    "the foundation knows nothing above it: hand the news up through an observer";
constexpr const char* kBackEnd =
    "a back end stands on platform/*.h, on platform/desktop and platform/bus, and on none of its kind, "
    "so that each can be replaced by itself";
constexpr const char* kAccount =
    "the account knows no screen, and a room of it only those it stands on: put the port "
    "it needs into platform/ and have it given";
constexpr const char* kHelper =
    "a helper is small enough to be read whole: it knows neither the account nor a screen";

// A folder, the rooms directly below it, and the reason why it knows no others. It may include its own files,
// those of these rooms, and what these may include. ARCHITECTURE.md draws this.
struct Room {
    std::string folder;
    Paths below;
    std::string why;
};

// From the bottom up.
const std::vector<Room>& rooms() {
    static const std::vector<Room> all{
        {"platform/foundation/values", {}, kFoundation},
        {"platform/foundation/observing", {}, kFoundation},
        {"platform/foundation/text", {}, kFoundation},
        {"platform/foundation/time",
         {"platform/foundation/values", "platform/foundation/observing"},
         kFoundation},
        {"platform/foundation/propertylists", {"platform/foundation/time"}, kFoundation},
        {"platform/foundation/files",
         {"platform/foundation/propertylists", "platform/foundation/observing", "platform/foundation/text"},
         kFoundation},
        {"platform/foundation/programs",
         {"platform/foundation/time", "platform/foundation/text"},
         kFoundation},
        {"platform",
         {"platform/foundation/files", "platform/foundation/programs"},
         "a port is a promise: it names no back end and no class"},
        {"platform/bus",
         {"platform/foundation/files", "platform/foundation/programs"},
         "the bus carries messages for any service and knows none of them"},
        {"platform/desktop", {"platform"}, "what all desktops share knows none of them"},
        {"platform/x11", {"platform/desktop"}, kBackEnd},
        {"platform/wayland", {"platform/desktop"}, kBackEnd},
        {"platform/gnome", {"platform/desktop", "platform/bus"}, kBackEnd},
        {"platform/linux", {"platform/desktop", "platform/bus"}, kBackEnd},
        {"platform/atspi", {"platform/desktop", "platform/bus"}, kBackEnd},
        {"Classes/common", {"platform"}, kAccount},
        {"Classes/rules", {"Classes/common"}, kAccount},
        {"Classes/store", {"Classes/common"}, kAccount},
        {"Classes/engine", {"Classes/rules", "Classes/store"}, kAccount},
        {"Classes/projects", {"Classes/engine"}, kAccount},
        {"Classes/record", {"Classes/engine"}, kAccount},
        {"Classes/exchange", {"Classes/store"}, kAccount},
        {"Classes/history", {"Classes/record"}, kAccount},
        {"Classes/report", {"Classes/history", "Classes/projects"}, kAccount},
        {"interface",
         {"Classes/exchange", "Classes/report"},
         "the interface reaches the desktop through platform/*.h alone; app/ chooses the back end"},
        {"helpers/TKAXTrusted", {"platform/linux"}, kHelper},
        {"helpers/TicklogLaunchHelper", {"platform/foundation/programs"}, kHelper},
        {"helpers/ticklog-report", {"Classes/report"}, "it reads what was recorded, and knows no screen"},
    };
    return all;
}

// A source file and its includes of our files, by line.
struct Source {
    std::string path;
    std::map<int, std::string> includes;

    // Its folder in rooms(). Absent from the list are folders such as app/, which may include everything.
    std::string room() const {
        const std::string folder = std::filesystem::path(path).parent_path().string();
        return folder.starts_with("interface/") ? "interface" : folder;
    }
    // A header and its sources count as one.
    static std::string unit(const std::string& path) { return path.substr(0, path.rfind('.')); }
};

Source sourceAt(const std::filesystem::path& root, const std::filesystem::path& path) {
    static const std::regex include("^\\s*#\\s*include \"([^\"]+)\".*");
    Source source{path.lexically_relative(root).string(), {}};
    std::ifstream file(path);
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        std::smatch match;
        if (std::regex_match(line, match, include) && match[1].str().find('/') != std::string::npos)
            source.includes[number] = match[1];
    }
    return source;
}

std::vector<Source> sources() {
    const std::filesystem::path root(TICKLOG_SOURCE_DIR);
    std::vector<Source> result;
    for (const char* floor : {"platform", "Classes", "interface", "app", "helpers"})
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root / floor))
            if (entry.path().extension() == ".cpp" || entry.path().extension() == ".h")
                result.push_back(sourceAt(root, entry.path()));
    return result;
}

// All that each room may include.
std::map<std::string, std::set<std::string>> reach() {
    std::map<std::string, std::set<std::string>> result;
    for (const Room& room : rooms()) {
        std::set<std::string>& own = result[room.folder];
        own.insert(room.folder);
        for (const std::string& below : room.below) {
            EXPECT_TRUE(result.contains(below))
                << room.folder << " stands on " << below << ", which stands on it or is none";
            own.insert(result[below].begin(), result[below].end());
        }
    }
    return result;
}

using Graph = std::map<std::string, std::set<std::string>>;

Graph unitsThatAreIncluded() {
    Graph graph;
    for (const Source& source : sources())
        for (const auto& [line, included] : source.includes)
            if (Source::unit(included) != Source::unit(source.path))
                graph[Source::unit(source.path)].insert(Source::unit(included));
    return graph;
}

// The shortest chain of includes from one file to another, both included, other than the direct one. Empty if
// there is none.
std::vector<std::string> detour(const Graph& graph, const std::string& from, const std::string& to) {
    std::map<std::string, std::string> cameFrom{{from, {}}};
    std::vector<std::string> open{from};
    for (std::size_t next = 0; next < open.size() && !cameFrom.contains(to); ++next) {
        const std::string unit = open[next];
        const auto included = graph.find(unit);
        if (included == graph.end())
            continue;
        for (const std::string& other : included->second)
            if (!(unit == from && other == to) && cameFrom.try_emplace(other, unit).second)
                open.push_back(other);
    }
    std::vector<std::string> way;
    if (cameFrom.contains(to))
        for (std::string unit = to; !unit.empty(); unit = cameFrom[unit])
            way.insert(way.begin(), unit);
    return way;
}

// Circles of more than two files, each once, beginning with the first by name.
std::set<std::vector<std::string>> circles(const Graph& graph) {
    std::set<std::vector<std::string>> result;
    for (const auto& [unit, included] : graph)
        for (const std::string& other : included) {
            std::vector<std::string> circle = detour(graph, other, unit);
            std::rotate(circle.begin(), std::min_element(circle.begin(), circle.end()), circle.end());
            if (!circle.empty())
                result.insert(circle);
        }
    return result;
}

} // namespace

TEST(Rooms, includes_goDownOnly) {
    const auto allowed = reach();
    int checked = 0;
    for (const Source& source : sources()) {
        const auto room = std::find_if(rooms().begin(), rooms().end(),
                                       [&](const Room& each) { return each.folder == source.room(); });
        if (room == rooms().end()) {
            EXPECT_EQ(source.room(), "app")
                << source.path << " is in no room: give it one in the table above";
            continue;
        }
        for (const auto& [line, included] : source.includes) {
            ++checked;
            const Source other{included, {}};
            if (!allowed.at(room->folder).contains(other.room()))
                ADD_FAILURE_AT((std::string(TICKLOG_SOURCE_DIR) + '/' + source.path).c_str(), line)
                    << included << "\n  " << room->why;
        }
    }
    EXPECT_GT(checked, 500);
}

// Two that include each other are one thing in two files; three are a knot.
TEST(Rooms, circles_areOfTwoFilesAtMost) {
    for (const std::vector<std::string>& circle : circles(unitsThatAreIncluded())) {
        std::string text;
        for (const std::string& unit : circle)
            text += "\n  " + unit;
        ADD_FAILURE() << "these include each other in a circle:" << text;
    }
}

TEST(Rooms, aKnotOfThree_isSeen) {
    EXPECT_EQ(circles({{"b", {"c"}}, {"c", {"a", "d"}}, {"a", {"b"}}, {"d", {"e"}}}),
              (std::set<std::vector<std::string>>{{"a", "b", "c"}}));
    // One that includes two others and is included by both forms no circle of three.
    EXPECT_EQ(circles({{"a", {"b", "c"}}, {"b", {"a"}}, {"c", {"a"}}}), std::set<std::vector<std::string>>());
}
