// SPDX-License-Identifier: MIT
#include "Classes/report/RecordedNames.h"

#include "Classes/history/HistoryFile.h"
#include "Classes/history/HistorySchema.h"
#include "Classes/projects/ProjectFile.h"
#include "Classes/projects/ProjectRecord.h"
#include "Classes/rules/RuleCategories.h"
#include "Classes/rules/Ruleset.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/text/CleanText.h"

#include <algorithm>

namespace {

PropertyListValue contentOf(const QString& path) {
    const auto file = PropertyList::readFile(path);
    return file ? *file : PropertyListValue();
}

} // namespace

RecordedNames::RecordedNames(SqliteDatabase& history, const Folders& folders, UnwrittenRows unwritten)
    : m_history(history)
    , m_unwritten(std::move(unwritten)) {
    const PropertyListValue settings = contentOf(folders.settingsFile);
    if (const auto* entries = settings.asDictionary())
        if (const auto* rules = entries->value(kRulesetKey).asDictionary())
            m_rules = *rules;
    if (!folders.documents.isEmpty())
        m_projectsPath = ProjectFile::pathIn(folders.documents);
}

const RecordedNames::Projects& RecordedNames::projects() const {
    if (!m_projects)
        m_projects = m_projectsPath.isEmpty() ? Projects() : readProjects(m_projectsPath);
    return *m_projects;
}

RecordedNames::Projects RecordedNames::readProjects(const QString& path) {
    Projects projects;
    const PropertyListValue content = contentOf(path);
    const auto* records = content.asArray();
    if (!records)
        return projects;
    for (const PropertyListValue& entry : *records) {
        const auto* record = entry.asDictionary();
        if (!record)
            continue;
        const ProjectRecord project(*record);
        projects.names << project.label();
        for (const Identity& member : project.flattenedMembers())
            projects.memberships[member.bytes()] << projects.names.size() - 1;
        if (const auto identity = project.historyIdentity())
            projects.given.insert(identity->bytes(), projects.names.size() - 1);
        ProjectPatterns patterns(project);
        if (patterns.isEmpty())
            continue;
        projects.belonging =
            std::max(projects.belonging, patterns.lookAtTitles() ? Belonging::Title : Belonging::Program);
        projects.patterns.emplace_back(projects.names.size() - 1, std::move(patterns));
    }
    return projects;
}

Amendment::Whose RecordedNames::recorded(qint64 program, qint64 title) const {
    return {rawProgram(program), rawTitle(title)};
}

QString RecordedNames::rawProgram(qint64 number) const {
    if (number < 0)
        return m_unwritten.program(number);
    SqliteQuery row(m_history, "SELECT name FROM programs WHERE id = ?", std::int64_t(number));
    return row.next() ? row.text(0) : QString();
}

QString RecordedNames::rawTitle(qint64 number) const {
    if (number < 0)
        return m_unwritten.title(number);
    SqliteQuery row(m_history, "SELECT text FROM titles WHERE id = ?", std::int64_t(number));
    return row.next() ? row.text(0) : QString();
}

QString RecordedNames::recordedProgram(qint64 number) const {
    return cleanText(rawProgram(number));
}

std::optional<QString> RecordedNames::program(qint64 number) const {
    const QString name = recordedProgram(number);
    const PropertyListValue& record = m_rules.value(name);
    const auto* entries = record.asDictionary();
    if (!entries || !entries->value(kRuleActive).toBool())
        return name;
    const Rule rule = Rule::fromRecord(record);
    if (rule.block)
        return std::nullopt;
    return rule.enableRename && !rule.rename.isEmpty() ? rule.rename : name;
}

QString RecordedNames::title(qint64 number) const {
    return cleanText(rawTitle(number));
}

// Patterns know a program by its own name, not by the one that a rule gives it.
const QList<qsizetype>& RecordedNames::fitting(qint64 program, qint64 title) const {
    const std::pair key(program, projects().belonging == Belonging::Title ? title : 0);
    const auto known = m_fitting.constFind(key);
    if (known != m_fitting.constEnd())
        return *known;
    QList<qsizetype> places;
    const QString name = recordedProgram(program);
    const SoughtTitle text(projects().belonging == Belonging::Title ? this->title(title) : QString());
    for (const auto& [place, patterns] : projects().patterns)
        if (patterns.fit(name, text))
            places << place;
    return *m_fitting.insert(key, places);
}

RowTimer RecordedNames::recordedTimer(qint64 number) const {
    if (number < 0)
        return m_unwritten.timer(number);
    SqliteQuery row(m_history,
                    HistorySchema::hasAmendments(m_history)
                        ? "SELECT application, window, project FROM timers WHERE id = ?"
                        : "SELECT application, window, x'' FROM timers WHERE id = ?",
                    std::int64_t(number));
    if (!row.next())
        return {};
    return {Identity::fromBytes(row.bytes(0)), Identity::fromBytes(row.bytes(1)),
            historyProject(row.bytes(2))};
}

QList<qsizetype> RecordedNames::givenTo(const RowProject& project) const {
    if (!project.identity)
        return {};
    const QByteArray identity = project.identity->bytes();
    if (const auto place = projects().given.constFind(identity); place != projects().given.constEnd())
        return {*place};
    // The file of projects was lost, or this is another account's history.
    SqliteQuery row(m_history, "SELECT name FROM projects WHERE identity = ?", identity);
    const qsizetype place = row.next() ? projects().names.indexOf(row.text(0)) : -1;
    return place < 0 ? QList<qsizetype>() : QList<qsizetype>{place};
}

QList<qsizetype> RecordedNames::placesOf(qint64 timer, qint64 program, qint64 title) const {
    const RowTimer whose = recordedTimer(timer);
    if (whose.project)
        return givenTo(*whose.project);
    // What has no identity is no project's member.
    QList<qsizetype> places;
    for (const auto& identity : {whose.application, whose.window})
        if (identity)
            places += projects().memberships.value(identity->bytes());
    if (projects().belonging != Belonging::Timer)
        places += fitting(program, title);
    std::ranges::sort(places);
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}

QStringList RecordedNames::projectsOf(qint64 timer, qint64 program, qint64 title) const {
    QStringList names;
    for (const qsizetype place : placesOf(timer, program, title))
        if (!names.contains(projects().names[place]))
            names << projects().names[place];
    return names;
}

QStringList RecordedNames::categoriesOf(qint64 program) const {
    QStringList categories;
    const PropertyListValue& record = m_rules.value(recordedProgram(program));
    const auto* entries = record.asDictionary();
    if (!entries || !entries->value(kRuleActive).toBool())
        return categories;
    for (const QString& category : Rule::fromRecord(record).categories.split(u',', Qt::SkipEmptyParts))
        if (!category.trimmed().isEmpty() && !categories.contains(category.trimmed()))
            categories << category.trimmed();
    return categories;
}
