// SPDX-License-Identifier: MIT
// LINKS fakes
// From a file through the account to all that leaves it: whatever is imported can be saved, read again, and saved the same;
// and every form in which timers and projects are handed out can be made of it.
#include "Classes/engine/Engine.h"
#include "Classes/exchange/PasteboardTypes.h"
#include "Classes/exchange/ReadableForms.h"
#include "Classes/projects/ProjectList.h"
#include "Classes/record/CsvExport.h"
#include "Classes/record/TimeDatabase.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/text/CleanText.h"
#include "tests/fakes/FakePlatform.h"

#include <QFile>

#include <cstdlib>

namespace {

void require(bool holds) {
    if (!holds)
        std::abort();
}

struct Account {
    FakePlatform fakes;
    Engine engine{fakes.platform, {}};
    ProjectList projects{engine.services().store, fakes.defaults, fakes.folders.documents};
    TimeDatabase database{engine.tracker(),
                          engine.services().store,
                          fakes.defaults,
                          fakes.folders,
                          {.projects = [this] { return projects.arrayRepresentation(); },
                           .setProjects = [this](const PropertyListValue& all) { projects.setProjects(all); },
                           .computeTime = {},
                           .timersReplaced = {}}};

    QString path(const char* name) const { return fakes.home.filePath(QString::fromLatin1(name)); }
};

void checkNames(const TimeTracker& tracker) {
    for (const auto& app : tracker.fullTimeSet()) {
        require(cleanText(app->name()) == app->name() && app->activeTime() >= 0);
        for (const auto& window : app->windows())
            require(cleanText(window->renamedName()) == window->renamedName());
    }
}

void handOut(Account& account) {
    TimeTracker& tracker = account.engine.tracker();
    const auto& apps = tracker.fullTimeSet();
    const TimeStoreItem::Children all(apps.begin(), apps.end());
    CsvExport::text(all, tracker.totalTime());
    ReadableForms::html(all);
    ReadableForms::rtf(all);
    ReadableForms::tabular(all);
    ReadableForms::plain(all);
    std::vector<Identity> identities;
    for (const auto& app : apps)
        if (app->uuid())
            identities.push_back(*app->uuid());
    require(timersFromPasteboard(timerPasteboardData(identities)) == identities);
    for (const auto& project : account.projects.projects()) {
        project->flattenedMembers();
        static_cast<void>(tracker.humanTimeStringForDouble(double(project->colorTag())));
    }
    tracker.setSearchString(QStringLiteral("a"));
    tracker.setCutoffTime(60);
    const TimerReferences removed = tracker.tree().referencesTo(all);
    const PropertyListArray records = tracker.tree().recordsOf(removed);
    tracker.removeTimers(removed);
    tracker.putBack(records);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    Account first;
    QFile file(first.path("foreign.tkd"));
    require(file.open(QFile::WriteOnly));
    file.write(reinterpret_cast<const char*>(data), qint64(size));
    file.close();
    if (!first.database.importDatabase(file.fileName()))
        return 0;
    checkNames(first.engine.tracker());
    require(bool(first.database.saveSettingsToDiskAtURL(first.path("saved.tkd"))));
    Account second;
    require(bool(second.database.importDatabase(first.path("saved.tkd"))));
    require(bool(second.database.saveSettingsToDiskAtURL(first.path("again.tkd"))));
    const auto saved = PropertyList::readFile(first.path("saved.tkd"));
    const auto again = PropertyList::readFile(first.path("again.tkd"));
    require(saved && again && PropertyList::xml(*saved) == PropertyList::xml(*again));
    handOut(first);
    return 0;
}
