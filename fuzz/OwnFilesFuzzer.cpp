// SPDX-License-Identifier: MIT
// LINKS fakes
// The program's own smaller files, as somebody else may have left them: projects, registry, settings with their rules, and
// what lies on the pasteboard. Whatever is read can be written, and says the same when it is read again.
#include "Classes/engine/Engine.h"
#include "Classes/exchange/PasteboardTypes.h"
#include "Classes/projects/ProjectList.h"
#include "Classes/rules/RuleCategories.h"
#include "Classes/rules/Ruleset.h"
#include "Classes/store/TKUUIDManager.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "tests/fakes/FakePlatform.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdlib>

namespace {

void require(bool holds) {
    if (!holds)
        std::abort();
}

void put(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    require(file.open(QFile::WriteOnly));
    file.write(bytes);
}

void readProjects(const QByteArray& bytes) {
    FakePlatform fakes;
    Engine engine(fakes.platform, {});
    TimeStoreServices& services = engine.services().store;
    put(fakes.folders.documents + QStringLiteral("/Ticklog Projects"), bytes);
    ProjectList projects(services, fakes.defaults, fakes.folders.documents);
    if (projects.projects().empty())
        return;
    projects.setLabel(*projects.projects().front(), QStringLiteral("Work"));
    projects.saveData();
    const ProjectList again(services, fakes.defaults, fakes.folders.documents);
    require(again.arrayRepresentation() == projects.arrayRepresentation());
}

void readRegistry(const QByteArray& bytes) {
    FakePlatform fakes;
    const QString path = fakes.home.filePath(QStringLiteral("registry"));
    put(path, bytes);
    TKUUIDManager registry(path, fakes.runLoop, fakes.log);
    const Identity identity = registry.uuidForName(QStringLiteral("TimeStoreAppMail"));
    registry.setUUID(identity, QStringLiteral("TimeStoreAppMail"));
    registry.saveData();
    require(TKUUIDManager(path, fakes.runLoop, fakes.log).count() == registry.count());
}

void readSettings(const QByteArray& bytes) {
    FakePlatform fakes;
    const QString path = fakes.home.filePath(QStringLiteral("settings"));
    put(path, bytes);
    UserDefaults defaults(path, fakes.notifications, fakes.runLoop, fakes.log);
    Ruleset rules(defaults);
    for (const QString& name : rules.names())
        Ruleset::description(name, rules.record(name));
    RuleCategories().read(defaults.object(kRulesetKey));
    rules.save(std::nullopt, QStringLiteral("Mail"), Rule::fromRecord(defaults.object(kRulesetKey)), [] {});
    defaults.synchronize();
    UserDefaults again(path, fakes.notifications, fakes.runLoop, fakes.log);
    require(Ruleset(again).names() == rules.names());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    if (size == 0)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char*>(data) + 1, qsizetype(size - 1));
    switch (data[0] % 4) {
    case 0:
        readProjects(bytes);
        break;
    case 1:
        readRegistry(bytes);
        break;
    case 2:
        readSettings(bytes);
        break;
    default:
        timersFromPasteboard(bytes);
        projectRowFromPasteboard(bytes);
    }
    return 0;
}
